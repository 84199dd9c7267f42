#include "platform/dynamiclibrary.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarq {
namespace {

const std::string probeDirectory = PROBE_DIRECTORY;
const std::string probePath = probeDirectory + "/libPlatformProbe.so";

bool probeIsLoaded() {
    void* const handle = dlopen(probePath.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle != nullptr) dlclose(handle);
    return handle != nullptr;
}

TEST(DynamicLibraryTest, LibraryBesideTheComponentIsFoundUnderItsNames) {
    for (const std::string& name :
         {std::string("libPlatformProbe.so"), std::string("PlatformProbe.dll"), std::string("PLATFORMPROBE.DLL"),
          probePath, probeDirectory + "/platformprobe.Dll"}) {
        DynamicLibrary library = DynamicLibrary::load(name);
        ASSERT_TRUE(library) << name;
        const auto answer = reinterpret_cast<int (*)()>(library.symbol("probeAnswer"));
        ASSERT_NE(answer, nullptr) << name;
        EXPECT_EQ(answer(), 42);
        EXPECT_EQ(library.symbol("noSuchSymbol"), nullptr);
        EXPECT_TRUE(library.release());
        EXPECT_FALSE(library) << "a released library is empty";
        EXPECT_FALSE(library.release());
    }
}

TEST(DynamicLibraryTest, OrdinarySearchFindsSystemLibraries) { EXPECT_TRUE(DynamicLibrary::load("libm.so.6")); }

TEST(DynamicLibraryTest, EveryLoadIsGivenBackOnItsOwn) {
    DynamicLibrary first = DynamicLibrary::load(probePath);
    DynamicLibrary second = DynamicLibrary::load("PlatformProbe.dll");
    EXPECT_TRUE(first.release());
    EXPECT_TRUE(probeIsLoaded());
    EXPECT_TRUE(second.release());
    EXPECT_FALSE(probeIsLoaded());
}

TEST(DynamicLibraryTest, WhatIsNoLibraryGivesAnEmptyHandle) {
    const std::string withZero("libPlatformProbe.so\0x", 21);
    for (const std::string& name :
         {std::string(), std::string(".dll"), std::string("nosuch.dll"), withZero, std::string("libplatformprobe.so"),
          probeDirectory, probeDirectory + "/nosuch.dll", std::string("/nowhere/PlatformProbe.dll")}) {
        const DynamicLibrary library = DynamicLibrary::load(name);
        EXPECT_FALSE(library) << name;
        EXPECT_EQ(library.symbol("probeAnswer"), nullptr);
    }
}

TEST(DynamicLibraryTest, LibraryThatWasCutShortIsRefusedAndEndsNothing) {
    const std::string path = testing::TempDir() + "tarq-cut-library.so";
    const std::uintmax_t whole = std::filesystem::file_size(probePath);
    for (std::uintmax_t size = 0; size < whole * 3 / 4; size += 500) {
        std::filesystem::copy_file(probePath, path, std::filesystem::copy_options::overwrite_existing);
        std::filesystem::resize_file(path, size);
        EXPECT_FALSE(DynamicLibrary::load(path)) << size;
    }
    std::filesystem::remove(path);
}

TEST(DynamicLibraryTest, LiteralFileIsNotReplacedByTheNativeOne) {
    const auto directory = std::filesystem::temp_directory_path() / "tarq-literal-library";
    std::filesystem::create_directories(directory);
    std::filesystem::copy_file(probePath, directory / "libeither.so",
                               std::filesystem::copy_options::overwrite_existing);
    const std::string name = (directory / "either.dll").string();
    DynamicLibrary native = DynamicLibrary::load(name);
    std::ofstream(name) << "not a library of this platform";
    const DynamicLibrary literal = DynamicLibrary::load(name);
    std::filesystem::remove_all(directory);
    EXPECT_TRUE(native.release());
    EXPECT_FALSE(literal);
}

}  // namespace
}  // namespace tarq
