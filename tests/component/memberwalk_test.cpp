// Every member of every class, called late-bound with arguments of all wrong sorts, of an object as it is made and of
// one that is in use.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "modelfixture.h"
#include "tests/support/valuewalks.h"

namespace tarq {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

Ref<ITARQModel> usedModel() {
    auto model = createObject<ITARQModel>("TARQModel");
    EXPECT_THAT(model->put_LocationOfTARQDLL("/no/such/engine.dll"), succeeds());
    EXPECT_THAT(model->AddCol(0, 10, TARQColType::Integer, Variant(1.0), Variant("x")), succeeds());
    EXPECT_THAT(model->AddRow(1, 20, Variant("r")), succeeds());
    EXPECT_THAT(model->AddNZ(Variant("r"), Variant("x"), 2), succeeds());
    return model;
}

Ref<ITARQSet> usedSet() {
    auto set = createObject<ITARQSet>("TARQSet");
    EXPECT_THAT(set->Add(ValueList({Variant("a"), Variant("b"), Variant(3)})), succeeds());
    return set;
}

Ref<ITARQArray> usedArray() {
    auto array = createObject<ITARQArray>("TARQArray");
    EXPECT_THAT(array->Init(ValueList({Variant(2), Variant(usedSet().query<IUnknown>())})), succeeds());
    EXPECT_THAT(
        array->SetValues(ValueList({Variant(1), Variant(2), Variant(3), Variant(4), Variant(5), Variant("six")})),
        succeeds());
    return array;
}

/// An object of a class that `begin` puts to use.
template <class Interface, class Begin>
Ref<IDispatch> used(const char* className, const Begin& begin) {
    auto object = createObject<Interface>(className);
    EXPECT_THAT(begin(*object), succeeds()) << className;
    return object.template query<IDispatch>();
}

template <class Family>
Ref<IDispatch> usedFamily(const char* className) {
    return used<Family>(className, [](Family& family) {
        return family.Init(usedModel().get(), "f", ValueList({Variant(2), Variant(usedSet().query<IUnknown>())}));
    });
}

/// Walks what another object in use has.
template <class Enumerator>
Ref<IDispatch> usedWalk(const char* className, const Ref<IUnknown>& parent) {
    return used<Enumerator>(className, [&](Enumerator& walk) { return walk.Init(parent.get()); });
}

const std::map<std::string_view, std::function<Ref<IDispatch>()>> usedObjects{
    {"TARQModel", [] { return usedModel().query<IDispatch>(); }},
    {"TARQSet", [] { return usedSet().query<IDispatch>(); }},
    {"TARQArray", [] { return usedArray().query<IDispatch>(); }},
    {"TARQSeries", [] { return used<ITARQSeries>("TARQSeries", [](auto& series) { return series.Init(1, 3); }); }},
    {"TARQVar",
     [] { return used<ITARQVar>("TARQVar", [](auto& var) { return var.Attach(usedModel().get(), Variant(1)); }); }},
    {"TARQRes",
     [] { return used<ITARQRes>("TARQRes", [](auto& res) { return res.Attach(usedModel().get(), Variant(1)); }); }},
    {"TARQVarSet", [] { return usedFamily<ITARQVarSet>("TARQVarSet"); }},
    {"TARQResSet", [] { return usedFamily<ITARQResSet>("TARQResSet"); }},
    {"TARQSeriesEnum",
     [] { return used<ITARQSeriesEnum>("TARQSeriesEnum", [](auto& walk) { return walk.Init(1, 3, 1); }); }},
    {"TARQSetEnum", [] { return usedWalk<ITARQSetEnum>("TARQSetEnum", usedSet().query<IUnknown>()); }},
    {"TARQArrayEnum", [] { return usedWalk<ITARQArrayEnum>("TARQArrayEnum", usedArray().query<IUnknown>()); }},
    {"TARQVarSetEnum",
     [] {
         return usedWalk<ITARQVarSetEnum>("TARQVarSetEnum", usedFamily<ITARQVarSet>("TARQVarSet").query<IUnknown>());
     }},
    {"TARQResSetEnum",
     [] {
         return usedWalk<ITARQResSetEnum>("TARQResSetEnum", usedFamily<ITARQResSet>("TARQResSet").query<IUnknown>());
     }},
};

struct Sort {
    const char* name;
    Variant value;
    int count = 0;  ///< of arguments, compared with the member's parameters
};

std::vector<Sort> wrongArguments() {
    return {{"one too many", Variant(1), 1},
            {"one too few", Variant(1), -1},
            {"missing", Variant::missing()},
            {"Empty", Variant()},
            {"Null", Variant::null()},
            {"no object", Variant(Ref<IUnknown>())},
            {"a strange object", objectOf<Stranger>()},
            {"a set", Variant(usedSet().query<IUnknown>())},
            {"an array", Variant(SafeArray::of(std::vector<double>{1, 2}))},
            {"a text", Variant("nothing")},
            {"-1", Variant(-1)},
            {"a large number", Variant(1e30)}};
}

/// Opens a window where there is a display.
bool isLeftOut(const MemberInfo& member) { return member.name == "ShowPropertyPage"; }

/// Whether a call with so many arguments can't reach the member. A put's last one is its new value.
bool isWrongCount(const MemberInfo& member, std::size_t count) {
    const std::size_t values = member.kind == MemberKind::Put ? 1 : 0;
    const std::size_t settable = member.parameters.size() - values;
    if (count < values) return true;
    const std::size_t given = count - values;
    const bool isVariadic = settable > 0 && member.parameters[settable - 1].variadic;
    if (given > settable) return !isVariadic;
    return std::any_of(member.parameters.begin() + static_cast<std::ptrdiff_t>(given),
                       member.parameters.begin() + static_cast<std::ptrdiff_t>(settable),
                       [](const MemberParameter& left) { return !left.optional && !left.variadic; });
}

void callWith(const Sort& sort, const MemberInfo& member, const Ref<IDispatch>& object) {
    std::int32_t number = 0;
    ASSERT_THAT(object->GetIDsOfNames({&member.name, 1}, &number), succeeds());
    ASSERT_EQ(number, member.id);
    const int count = std::max(static_cast<int>(member.parameters.size()) + sort.count, 0);
    std::vector<Variant> outputs(static_cast<std::size_t>(count), Variant("untouched"));
    std::vector<Variant> arguments;
    for (std::size_t i = 0; i < outputs.size(); ++i) {
        const bool isOutput = i < member.parameters.size() && member.parameters[i].out;
        arguments.push_back(isOutput ? Variant::byReference(outputs[i]) : sort.value);
    }
    Variant result("untouched");
    (void)raise(Guid(), "older", status::generalFailure);
    const auto kind = static_cast<std::uint16_t>(member.kind);
    const Status ended = object->Invoke(number, kind, {arguments, {}}, &result, nullptr);
    const ObjectError* const error = lastError();

    EXPECT_NE(status::meaning(ended), "unknown status") << testing::PrintToString(ended);
    if (isWrongCount(member, outputs.size())) {
        EXPECT_EQ(ended, status::argumentCount);
    } else {
        EXPECT_NE(ended, status::argumentCount);
    }
    if (ended == status::argumentCount || ended == status::argumentType || ended.isOk()) {
        EXPECT_EQ(error, nullptr) << error->description;
    } else if (error != nullptr) {
        EXPECT_EQ(error->status, ended) << error->description;
        EXPECT_FALSE(error->description.empty());
    } else {
        EXPECT_FALSE((ended.value() & 0xFFFFF000U) == 0x80041000U) << testing::PrintToString(ended) << " isn't told";
    }
    if (ended.isOk() || ended == status::none) return;
    EXPECT_TRUE(result.isText() && result.text() == "untouched");
    for (const Variant& output : outputs) EXPECT_TRUE(output.isText() && output.text() == "untouched");
}

class MemberWalkTest : public testing::TestWithParam<const ClassEntry*> {
protected:
    // What a file's name makes of the arguments is written here.
    MemberWalkTest() : before_(fs::current_path()), folder_(fs::path(testing::TempDir()) / "tarq-member-walk") {
        fs::create_directories(folder_);
        fs::current_path(folder_);
    }
    ~MemberWalkTest() override {
        fs::current_path(before_);
        fs::remove_all(folder_);
    }

    /// Calls every member with every sort of arguments, of a new object each time.
    static void walk(const std::function<Ref<IDispatch>()>& make) {
        const std::int64_t before = module::liveObjects();
        for (const MemberInfo& member : GetParam()->members().members()) {
            if (isLeftOut(member)) continue;
            for (const Sort& sort : wrongArguments()) {
                SCOPED_TRACE(std::string(member.name) + (member.kind == MemberKind::Put ? ", put: " : ": ") +
                             sort.name);
                callWith(sort, member, make());
                if (HasFatalFailure()) return;
            }
        }
        // Runs in the background let go of their models a moment later.
        for (int waited = 0; waited < 5000 && module::liveObjects() > before; ++waited)
            std::this_thread::sleep_for(1ms);
        EXPECT_EQ(module::liveObjects(), before);
    }

private:
    fs::path before_;
    fs::path folder_;
};

TEST_P(MemberWalkTest, NewObjectAnswersAllThatIsWrong) {
    walk([] { return createObject<IDispatch>(GetParam()->name); });
}

TEST_P(MemberWalkTest, ObjectInUseAnswersAllThatIsWrong) { walk(usedObjects.at(GetParam()->name)); }

std::vector<const ClassEntry*> classesWithMembers() {
    std::vector<const ClassEntry*> all;
    for (const ClassEntry& entry : classTable()) {
        if (entry.members != nullptr) all.push_back(&entry);
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Classes, MemberWalkTest, testing::ValuesIn(classesWithMembers()),
                         [](const auto& entry) { return std::string(entry.param->name); });

}  // namespace
}  // namespace tarq
