// A model to test, and matchers for what a call answers.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarq/tarq.h>

#include <string>

namespace tarq {

inline void PrintTo(Status status, std::ostream* out) { *out << "0x" << std::hex << status.value(); }

MATCHER(Succeeds, "") { return arg == status::ok; }

/// The call failed with this status, and the thread's error tells this description.
MATCHER_P2(FailsWith, status, description, "") {
    const ObjectError* error = lastError();
    if (error == nullptr) return false;
    *result_listener << "described as '" << error->description << "'";
    return arg == status && error->status == status && error->description == description &&
           error->classId == classid::TARQModel;
}

class ModelTest : public testing::Test {
protected:
    ModelTest() : model(createObject<ITARQModel>("TARQModel")) {}

    /// Columns x, y and z from 0 to 10, row r, coefficients 1, 2 and 3.
    void buildSmall() {
        for (const char* name : {"x", "y", "z"}) {
            ASSERT_THAT(model->AddCol(0, 10, TARQColType::Continuous, Variant(1.0), Variant(name)), Succeeds());
        }
        ASSERT_THAT(model->AddRow(1, 20, Variant("r")), Succeeds());
        double coefficient = 0;
        for (const char* name : {"x", "y", "z"}) {
            ASSERT_THAT(model->AddNZ(Variant("r"), Variant(name), ++coefficient), Succeeds());
        }
    }

    /// The value of a getter that must succeed: `valueOf<double>(&ITARQModel::get_ColLB, Variant("x"))`.
    template <class Value, class Getter, class... Arguments>
    Value valueOf(Getter getter, const Arguments&... arguments) {
        Value value{};
        EXPECT_THAT((model.get()->*getter)(arguments..., &value), Succeeds());
        return value;
    }

    Ref<ITARQModel> model;
};

}  // namespace tarq
