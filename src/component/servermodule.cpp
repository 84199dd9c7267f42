#include "tarq/component/servermodule.h"

#include <deque>

#include "tarq/component/classtable.h"
#include "tarq/frame/classfactory.h"
#include "tarq/frame/contained.h"
#include "tarq/frame/module.h"

namespace tarq {
namespace {

/// The factory of one class. It lives as long as the library and so neither counts nor holds it.
class ClassFactory final : public IClassFactory {
public:
    explicit ClassFactory(const ClassEntry& entry) : entry_(entry) {}

    Status QueryInterface(const Guid& interfaceId, void** out) override {
        if (out == nullptr) return status::nullPointer;
        const bool offered = interfaceId == IUnknown::id || interfaceId == IClassFactory::id;
        *out = offered ? static_cast<IClassFactory*>(this) : nullptr;
        return offered ? status::ok : status::wrongClass;
    }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }

    Status CreateInstance(IUnknown* outer, const Guid& interfaceId, void** out) override {
        if (out == nullptr) return status::nullPointer;
        *out = nullptr;
        return entry_.create(outer, interfaceId, out);
    }
    Status LockServer(bool locked) override {
        locked ? module::lock() : module::unlock();
        return status::ok;
    }

    [[nodiscard]] const Guid& classId() const { return entry_.classId; }

private:
    const ClassEntry& entry_;
};

ClassFactory* factoryOf(const Guid& classId) {
    static std::deque<ClassFactory> factories = [] {
        std::deque<ClassFactory> all;
        for (const ClassEntry& entry : classTable()) all.emplace_back(entry);
        return all;
    }();
    for (ClassFactory& factory : factories) {
        if (factory.classId() == classId) return &factory;
    }
    return nullptr;
}

std::int32_t code(Status status) { return static_cast<std::int32_t>(status.value()); }

}  // namespace
}  // namespace tarq

std::int32_t DllGetClassObject(const tarq::Guid* classId, const tarq::Guid* interfaceId, void** out) {
    if (out == nullptr) return tarq::code(tarq::status::nullPointer);
    *out = nullptr;
    if (classId == nullptr || interfaceId == nullptr) return tarq::code(tarq::status::nullPointer);
    return tarq::code(tarq::contained([&] {
        tarq::ClassFactory* const factory = tarq::factoryOf(*classId);
        return factory == nullptr ? tarq::status::classNotInLibrary : factory->QueryInterface(*interfaceId, out);
    }));
}

std::int32_t DllCanUnloadNow() { return tarq::module::canUnload() ? 0 : 1; }
