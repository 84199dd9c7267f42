// The classes, their names and their creation, as a client has them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <set>
#include <string>
#include <thread>

#include "tarq/component/classtable.h"
#include "tarq/component/servermodule.h"
#include "tarq/frame/classfactory.h"
#include "tarq/frame/connectionpoint.h"
#include "tarq/frame/membertable.h"
#include "tarq/frame/module.h"
#include "tarq/frame/supporterrorinfo.h"
#include "tarq/interfaces/itarqmodelevents.h"
#include "tests/component/modelfixture.h"

namespace tarq {
namespace {

using namespace std::chrono_literals;

Ref<IClassFactory> factoryOf(const Guid& classId) {
    void* found = nullptr;
    EXPECT_EQ(DllGetClassObject(&classId, &IClassFactory::id, &found), 0);
    return Ref<IClassFactory>::adopt(static_cast<IClassFactory*>(found));
}

TEST(ClassTableTest, FourteenClassesAreFoundByEveryNameAndIdentifier) {
    ASSERT_EQ(classTable().size(), 14U);
    std::set<std::string> identifiers;
    for (const ClassEntry& entry : classTable()) {
        for (const std::string& name : {std::string(entry.name), entry.progId(), entry.versionedProgId()}) {
            EXPECT_EQ(findClass(name), &entry) << name;
        }
        EXPECT_EQ(findClass(entry.classId), &entry);
        identifiers.insert(guidText(entry.classId));
    }
    EXPECT_EQ(identifiers.size(), 14U);
    EXPECT_EQ(findClass("TARQMODEL")->versionedProgId(), "tarq.TARQModel.1");
    for (const char* wrong :
         {"", "tarq.", "TARQModel.1.1", "other.TARQModel", "tarq.TARQModel.2", "tarq.tarq.TARQSet"}) {
        EXPECT_EQ(findClass(wrong), nullptr) << wrong;
    }
}

TEST(ClassFactoryTest, ClassIsCreatedOrRefusedByIdentifier) {
    void* found = nullptr;
    const Ref<IClassFactory> models = factoryOf(classid::TARQModel);
    ASSERT_THAT(models->CreateInstance(nullptr, ITARQModel::id, &found), succeeds());
    const Ref<ITARQModel> model = Ref<ITARQModel>::adopt(static_cast<ITARQModel*>(found));
    EXPECT_THAT(model->Test(), succeeds());

    for (const ClassEntry& entry : classTable()) EXPECT_TRUE(createObject(entry.name)) << entry.name;
    EXPECT_FALSE(createObject("TARQNothing"));
    EXPECT_EQ(lastError()->status, status::classNotAvailable);
    EXPECT_EQ(lastError()->description, "There is no class 'TARQNothing'.");
    const auto code = [](Status status) { return static_cast<std::int32_t>(status.value()); };
    const Guid stranger;
    EXPECT_EQ(DllGetClassObject(&stranger, &IClassFactory::id, &found), code(status::classNotInLibrary));
    EXPECT_EQ(DllGetClassObject(&classid::TARQModel, &ITARQModel::id, &found), code(status::wrongClass));
    EXPECT_EQ(DllGetClassObject(&classid::TARQModel, &IClassFactory::id, nullptr), code(status::nullPointer));
    EXPECT_EQ(DllGetClassObject(nullptr, nullptr, &found), code(status::nullPointer));
}

TEST(ServerModuleTest, ObjectsAndLocksHoldTheLibrary) {
    const Ref<IClassFactory> models = factoryOf(classid::TARQModel);
    // Runs of other tests may just be letting go of their models.
    for (int waited = 0; waited < 5000 && module::liveObjects() > 0; ++waited) std::this_thread::sleep_for(1ms);
    ASSERT_EQ(DllCanUnloadNow(), 0) << "a factory doesn't hold it";
    Ref<IUnknown> model = createObject("TARQModel");
    EXPECT_EQ(DllCanUnloadNow(), 1);
    ASSERT_THAT(models->LockServer(true), succeeds());
    model = nullptr;
    EXPECT_EQ(DllCanUnloadNow(), 1);
    ASSERT_THAT(models->LockServer(false), succeeds());
    EXPECT_EQ(DllCanUnloadNow(), 0);
}

class ModelIdentityTest : public ModelTest {};

TEST_F(ModelIdentityTest, OffersDispatchErrorInfoAndEvents) {
    const auto dispatch = model.query<IDispatch>();
    ASSERT_TRUE(dispatch);
    EXPECT_EQ(dispatch->GetMemberTable(), &ITARQModel::memberTable());
    const auto support = model.query<ISupportErrorInfo>();
    ASSERT_TRUE(support);
    EXPECT_THAT(support->InterfaceSupportsErrorInfo(ITARQModel::id), succeeds());
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(_ITARQModelEvents::id), Status{1});
    const auto container = model.query<IConnectionPointContainer>();
    ASSERT_TRUE(container);
    IConnectionPoint* point = nullptr;
    ASSERT_THAT(container->FindConnectionPoint(_ITARQModelEvents::id, &point), succeeds());
    EXPECT_TRUE(Ref<IConnectionPoint>::adopt(point).query<IConnectionPoint>());
    EXPECT_EQ(container->FindConnectionPoint(ITARQModel::id, &point), status::noConnection);
    EXPECT_EQ(point, nullptr);
}

TEST_F(ModelIdentityTest, MembersAreNumberedInPublishedOrder) {
    struct Case {
        const char* name;
        std::int32_t number;
    };
    // AMPLOutputBufferMaxSize is the first property with a get and a put, which share a number.
    for (const Case& each :
         {Case{"Test", 1}, Case{"AddCol", 2}, Case{"WriteProfile", 34}, Case{"AMPLOutputBuffer", 35},
          Case{"AMPLOutputBufferMaxSize", 36}, Case{"Var", 37}, Case{"ColCost", 38}, Case{"_WriteAMPLSolStub", 99}}) {
        const MemberInfo* member = ITARQModel::memberTable().find(each.name);
        ASSERT_NE(member, nullptr) << each.name;
        EXPECT_EQ(member->id, each.number) << each.name;
    }
    EXPECT_EQ(ITARQModel::memberTable().members().size(), 120U);
}

}  // namespace
}  // namespace tarq
