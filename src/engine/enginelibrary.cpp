#include "engine/enginelibrary.h"

namespace tarq {

EngineLibrary::EngineLibrary(DynamicLibrary library) : library_(library) { slots_.bind(library_); }

EngineLibrary::~EngineLibrary() {
    // A refused unload leaves the library in memory, where it does no harm.
    static_cast<void>(library_.release());
}

const void* EngineLibrary::code() const { return reinterpret_cast<const void*>(slots_.slot<"OptimizeLP">().function); }

}  // namespace tarq
