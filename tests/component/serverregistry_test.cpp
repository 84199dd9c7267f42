#include "tarq/component/serverregistry.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tarq/component/createobject.h"
#include "tarq/interfaces/itarqmodel.h"

namespace tarq {
namespace {

TEST(ServerRegistryTest, FactoriesAreFoundByNameReplacedAndTakenAway) {
    registerServer("Some.Server.1", [] { return createObject<ITARQModel>("TARQModel"); });
    EXPECT_TRUE(createServer("some.SERVER.1"));
    registerServer("SOME.server.1", []() -> Ref<IUnknown> {
        unregisterServer("Some.Server.1");  // a factory may come back
        throw std::runtime_error("no server");
    });
    EXPECT_FALSE(createServer("Some.Server.1"));
    unregisterServer("Some.Server.1");
}

}  // namespace
}  // namespace tarq
