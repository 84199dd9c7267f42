// DynamicLibrary: a shared library loaded by name at run time.
#pragma once

#include <string>

namespace tarq {

/// Handle of a loaded library. Copies nothing and never unloads by itself: the platform counts each load, and the
/// component decides when one is given back.
class DynamicLibrary {
public:
    DynamicLibrary() = default;

    /// Loads `name`, a path or a plain name. A plain name is looked up beside this component's own library first, then
    /// by the platform's ordinary search; where the literal file is not there, NAME.dll stands for libNAME.so, in any
    /// case of letters where that isn't there either. The result is empty when nothing could be loaded, also of a file
    /// that was cut short, with which the loader would end the process.
    static DynamicLibrary load(const std::string& name);

    /// A library that the process has loaded already, whoever did it, by the name under which libraries ask for it;
    /// empty when it isn't there. Counts as a load.
    static DynamicLibrary alreadyLoaded(const char* name);

    /// Gives back one load. True when the platform agreed.
    [[nodiscard]] bool release();

    [[nodiscard]] explicit operator bool() const { return handle_ != nullptr; }
    /// Address of an exported symbol, null when there is none.
    [[nodiscard]] void* symbol(const char* name) const;

private:
    void* handle_ = nullptr;
};

}  // namespace tarq
