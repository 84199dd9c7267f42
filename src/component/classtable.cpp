#include "tarq/component/classtable.h"

#include <algorithm>
#include <array>

#include "component/ctarqmodel.h"
#include "component/ctarqprop1.h"
#include "frame/text.h"
#include "indexed/arrays/ctarqarray.h"
#include "indexed/arrays/ctarqarrayenum.h"
#include "indexed/families/ctarqresset.h"
#include "indexed/families/ctarqressetenum.h"
#include "indexed/families/ctarqvarset.h"
#include "indexed/families/ctarqvarsetenum.h"
#include "indexed/sets/ctarqseries.h"
#include "indexed/sets/ctarqseriesenum.h"
#include "indexed/sets/ctarqset.h"
#include "indexed/sets/ctarqsetenum.h"
#include "interfaces/ifamilyidentity.h"
#include "items/ctarqres.h"
#include "items/ctarqvar.h"
#include "tarq/frame/classfactory.h"
#include "tarq/frame/connectionpoint.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/supporterrorinfo.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqmodelevents.h"

namespace tarq {
namespace {

constexpr std::array classes{
    ClassEntry{"TARQModel", classid::TARQModel, "ITARQModel", &createInstance<CTARQModel>, &ITARQModel::memberTable,
               &_ITARQModelEvents::memberTable},
    ClassEntry{"TARQSet", classid::TARQSet, "ITARQSet", &createInstance<CTARQSet>, &ITARQSet::memberTable},
    ClassEntry{"TARQSeries", classid::TARQSeries, "ITARQSeries", &createInstance<CTARQSeries>,
               &ITARQSeries::memberTable},
    ClassEntry{"TARQArray", classid::TARQArray, "ITARQArray", &createInstance<CTARQArray>, &ITARQArray::memberTable},
    ClassEntry{"TARQVar", classid::TARQVar, "ITARQVar", &createInstance<CTARQVar>, &ITARQVar::memberTable},
    ClassEntry{"TARQRes", classid::TARQRes, "ITARQRes", &createInstance<CTARQRes>, &ITARQRes::memberTable},
    ClassEntry{"TARQVarSet", classid::TARQVarSet, "ITARQVarSet", &createInstance<CTARQVarSet>,
               &ITARQVarSet::memberTable},
    ClassEntry{"TARQResSet", classid::TARQResSet, "ITARQResSet", &createInstance<CTARQResSet>,
               &ITARQResSet::memberTable},
    ClassEntry{"TARQSeriesEnum", classid::TARQSeriesEnum, "ITARQSeriesEnum", &createInstance<CTARQSeriesEnum>,
               &ITARQSeriesEnum::memberTable},
    ClassEntry{"TARQSetEnum", classid::TARQSetEnum, "ITARQSetEnum", &createInstance<CTARQSetEnum>,
               &ITARQSetEnum::memberTable},
    ClassEntry{"TARQArrayEnum", classid::TARQArrayEnum, "ITARQArrayEnum", &createInstance<CTARQArrayEnum>,
               &ITARQArrayEnum::memberTable},
    ClassEntry{"TARQVarSetEnum", classid::TARQVarSetEnum, "ITARQVarSetEnum", &createInstance<CTARQVarSetEnum>,
               &ITARQVarSetEnum::memberTable},
    ClassEntry{"TARQResSetEnum", classid::TARQResSetEnum, "ITARQResSetEnum", &createInstance<CTARQResSetEnum>,
               &ITARQResSetEnum::memberTable},
    ClassEntry{"tarqprop1", classid::tarqprop1, "", &createInstance<CTARQProp1>},
};

constexpr std::string_view progIdPrefix = "tarq.";
constexpr std::string_view progIdVersion = ".1";

std::string_view classNameOf(std::string_view name) {
    if (!equalWithoutCase(name.substr(0, progIdPrefix.size()), progIdPrefix)) return name;
    name.remove_prefix(progIdPrefix.size());
    if (name.ends_with(progIdVersion)) name.remove_suffix(progIdVersion.size());
    return name;
}

const ClassEntry* entryWhere(const auto& matches) {
    const auto* found = std::ranges::find_if(classes, matches);
    return found == classes.end() ? nullptr : found;
}

}  // namespace

std::string ClassEntry::progId() const { return std::string(progIdPrefix).append(name); }
std::string ClassEntry::versionedProgId() const { return progId().append(progIdVersion); }
std::string ClassEntry::description() const { return std::string(name).append(" Class"); }

std::span<const ClassEntry> classTable() { return classes; }

const ClassEntry* findClass(std::string_view name) {
    const std::string_view className = classNameOf(name);
    return entryWhere([&](const ClassEntry& entry) { return equalWithoutCase(entry.name, className); });
}

const ClassEntry* findClass(const Guid& classId) {
    return entryWhere([&](const ClassEntry& entry) { return entry.classId == classId; });
}

bool isCalledDirectly(const Guid& interfaceId) {
    constexpr std::array frameInterfaces{IEnumVARIANT::id,  IConnectionPoint::id,  IConnectionPointContainer::id,
                                         IClassFactory::id, ISupportErrorInfo::id, IFamilyIdentity::id};
    return std::ranges::find(frameInterfaces, interfaceId) != frameInterfaces.end() ||
           std::ranges::any_of(classes, [&](const ClassEntry& entry) {
               return entry.members != nullptr && entry.members().id() == interfaceId;
           });
}

}  // namespace tarq
