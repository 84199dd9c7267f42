// A model to test, and a matcher for what a failed call leaves.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tarq/tarq.h>

#include <string>

#include "tests/support/outcomematchers.h"

namespace tarq {

/// The call failed with this status, and the thread's error tells this description as one of the class.
MATCHER_P3(raisesAs, classId, status, description, "raises '" + std::string(description) + "'") {
    const ObjectError* error = lastError();
    if (error == nullptr) return false;
    *result_listener << "described as '" << error->description << "'";
    return arg == status && error->status == status && error->description == description && error->classId == classId;
}

/// The same of a model.
template <class Description>
auto raises(Status status, Description description) {
    return raisesAs(classid::TARQModel, status, description);
}

class ModelTest : public testing::Test {
protected:
    ModelTest() : model(createObject<ITARQModel>("TARQModel")) {}

    /// Columns x, y and z from 0 to 10, row r, coefficients 1, 2 and 3.
    void buildSmall() {
        for (const char* name : {"x", "y", "z"}) {
            ASSERT_THAT(model->AddCol(0, 10, TARQColType::Continuous, Variant(1.0), Variant(name)), succeeds());
        }
        ASSERT_THAT(model->AddRow(1, 20, Variant("r")), succeeds());
        double coefficient = 0;
        for (const char* name : {"x", "y", "z"}) {
            ASSERT_THAT(model->AddNZ(Variant("r"), Variant(name), ++coefficient), succeeds());
        }
    }

    /// The value of a getter that must succeed: `valueOf<double>(&ITARQModel::get_ColLB, Variant("x"))`.
    template <class Value, class Getter, class... Arguments>
    Value valueOf(Getter getter, const Arguments&... arguments) {
        Value value{};
        EXPECT_THAT((model.get()->*getter)(arguments..., &value), succeeds());
        return value;
    }

    Ref<ITARQModel> model;
};

}  // namespace tarq
