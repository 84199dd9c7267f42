// CTARQModel: the solver parameters.
#include "component/ctarqmodel.h"
#include "parameters/parameteraccess.h"
#include "parameters/profile.h"
#include "parameters/solverfilenames.h"

namespace tarq {
namespace {

template <class... Pointers>
bool anyNull(Pointers... pointers) {
    return ((pointers == nullptr) || ...);
}

}  // namespace

Status CTARQModel::get_Parameter(const std::string& ParameterName, Variant* value) {
    if (value == nullptr) return status::nullPointer;
    return guarded([&] { return readParameter(parameters_, ParameterName, *value); });
}

Status CTARQModel::put_Parameter(const std::string& ParameterName, const Variant& value) {
    return guarded([&] { return writeParameter(parameters_, ParameterName, value, store_.infinity()); });
}

Status CTARQModel::get_NumberOfParameters(std::int32_t* value) {
    return guardedGet(value, [] { return std::int32_t{parameterCount}; });
}

Status CTARQModel::GetParameterInfo(std::int32_t ParameterID, std::int32_t* Type, std::string* Name, Variant* Min,
                                    Variant* Max, Variant* Default, Variant* Value, std::int32_t* StingLen,
                                    std::int32_t* NumberOfOptions, std::string* bsDescription, std::int32_t* lpCategory,
                                    std::int32_t* lpControl) {
    if (anyNull(Type, Name, Min, Max, Default, Value, StingLen, NumberOfOptions, bsDescription, lpCategory,
                lpControl)) {
        return status::nullPointer;
    }
    return guarded([&] {
        ParameterInfo info;
        Outcome outcome = parameterInfo(parameters_, ParameterID, info);
        if (!outcome.isOk()) return outcome;
        std::string name(info.name);
        std::string description(info.description);
        *Type = static_cast<std::int32_t>(info.type);
        *Name = std::move(name);
        if (info.minimum) *Min = std::move(*info.minimum);
        if (info.maximum) *Max = std::move(*info.maximum);
        *Default = std::move(info.defaultValue);
        *Value = std::move(info.value);
        *StingLen = info.stringLength;
        if (info.optionCount) *NumberOfOptions = *info.optionCount;
        *bsDescription = std::move(description);
        *lpCategory = static_cast<std::int32_t>(info.section);
        *lpControl = static_cast<std::int32_t>(info.control);
        return outcome;
    });
}

Status CTARQModel::GetParameterOption(std::int32_t lParameterID, std::int32_t lOptionID, std::int32_t* lpOptionValue,
                                      std::string* bsOptionName) {
    if (anyNull(lpOptionValue, bsOptionName)) return status::nullPointer;
    return guarded([&] {
        ParameterOption option{};
        Outcome outcome = parameterOption(lParameterID, lOptionID, option);
        if (!outcome.isOk()) return outcome;
        *bsOptionName = std::string(option.text);
        *lpOptionValue = option.value;
        return outcome;
    });
}

Status CTARQModel::ReadProfile(const std::string& ProfileName) {
    return guarded([&] { return readProfile(ProfileName, parameters_, store_.infinity()); });
}

Status CTARQModel::WriteProfile(const std::string& ProfileName) {
    return guarded([&] { return writeProfile(ProfileName, parameters_); });
}

Status CTARQModel::ResetParameters() {
    return guarded([&] {
        parameters_.reset();
        return Outcome();
    });
}

Status CTARQModel::GenFileNames(const std::string& FileName) {
    return guarded([&] { return generateFileNames(parameters_, FileName); });
}

}  // namespace tarq
