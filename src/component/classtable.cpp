#include "component/classtable.h"

#include <algorithm>
#include <array>
#include <memory>

#include "component/ctarqmodel.h"
#include "frame/text.h"
#include "interfaces/classids.h"

namespace tarq {
namespace {

template <class Class>
Ref<IUnknown> create() {
    return Ref<IUnknown>(std::make_unique<Class>().release());
}

constexpr std::array classes{
    ClassEntry{"TARQModel", classid::TARQModel, &create<CTARQModel>},
};

constexpr std::string_view progIdPrefix = "tarq.";
constexpr std::string_view progIdVersion = ".1";

std::string_view classNameOf(std::string_view name) {
    if (!equalWithoutCase(name.substr(0, progIdPrefix.size()), progIdPrefix)) return name;
    name.remove_prefix(progIdPrefix.size());
    if (name.ends_with(progIdVersion)) name.remove_suffix(progIdVersion.size());
    return name;
}

}  // namespace

std::span<const ClassEntry> classTable() { return classes; }

const ClassEntry* findClass(std::string_view name) {
    const std::string_view className = classNameOf(name);
    const auto* found =
        std::ranges::find_if(classes, [&](const ClassEntry& entry) { return equalWithoutCase(entry.name, className); });
    return found == classes.end() ? nullptr : found;
}

}  // namespace tarq
