// CTARQModel: birth, clearing, names, locations and the other properties that need no room of their own.
#include <string>
#include <string_view>
#include <utility>

#include "component/ctarqmodel.h"
#include "frame/text.h"
#include "interfaces/commonfailures.h"
#include "parameters/parameteraccess.h"
#include "tarq/interfaces/limits.h"

namespace tarq {
namespace {

constexpr std::size_t longestModelName = 32;  // in characters
constexpr std::int32_t leastAmplOutputBufferSize = 1024;

// The names of the vectors to take from an MPS file belong to the model they were read with.
constexpr std::string_view vectorNames[] = {"xrhs", "xobj", "xdata", "xrange", "xbound"};

Outcome storePath(std::string& path, const std::string& value) {
    if (value.size() > longestPath) return failures::textTooLong();
    path = value;
    return {};
}

}  // namespace

Status CTARQModel::finalConstruct() {
    resetSolution();
    return status::ok;
}

Status CTARQModel::InterfaceSupportsErrorInfo(const Guid& interfaceId) {
    return interfaceId == ITARQModel::id ? status::ok : status::none;
}

void CTARQModel::resetSolution() { summary_.reset(); }

void CTARQModel::clearModel() {
    store_.clear();
    resetSolution();
    std::string().swap(amplOutputBuffer_);  // an assignment would keep the memory
    for (const std::string_view name : vectorNames) setParameter(name, "");
    readingNotes_ = {};
}

void CTARQModel::setParameter(std::string_view name, std::string_view value) {
    // A refused value leaves the parameter as it was, and the reader goes on.
    (void)writeParameter(parameters_, name, Variant(value), store_.infinity());
}

void CTARQModel::setOutput(std::string bytes) { amplOutputBuffer_ = wellFormedText(std::move(bytes)); }

Status CTARQModel::Test() { return status::ok; }

Status CTARQModel::DelModel() {
    return guarded([&] {
        clearModel();
        return Outcome();
    });
}

Status CTARQModel::AutoRenameVariables() {
    return guarded([&] {
        store_.autoRename();
        return Outcome();
    });
}

Status CTARQModel::get_Name(std::string* value) {
    return guardedGet(value, [&] { return objectName_; });
}

Status CTARQModel::put_Name(const std::string& value) {
    return guarded([&] {
        objectName_ = value;
        return Outcome();
    });
}

Status CTARQModel::get_ModelName(std::string* value) {
    return guardedGet(value, [&] { return modelName_; });
}

Status CTARQModel::put_ModelName(const std::string& value) {
    return guarded([&]() -> Outcome {
        if (utf16Length(value) > longestModelName) return failures::textTooLong();
        modelName_ = value;
        return {};
    });
}

Status CTARQModel::get_INF(double* value) {
    return guardedGet(value, [&] { return store_.infinity(); });
}

Status CTARQModel::get_ObjectNET(Ref<IUnknown>* value) {
    return guardedGet(value, [&] { return Ref<IUnknown>(static_cast<ITARQModel*>(this)); });
}

Status CTARQModel::SetRequiresSaveProperties(std::int32_t bSave) {
    requiresSave_ = (bSave & 1) != 0;
    return status::ok;
}

Status CTARQModel::get_LocationOfMathProgDLL(std::string* value) {
    return guardedGet(value, [&] { return locationOfMathProgDll_; });
}

Status CTARQModel::put_LocationOfMathProgDLL(const std::string& value) {
    return guarded([&] { return storePath(locationOfMathProgDll_, value); });
}

Status CTARQModel::get_LocationOfAMPLEXE(std::string* value) {
    return guardedGet(value, [&] { return locationOfAmplExe_; });
}

Status CTARQModel::put_LocationOfAMPLEXE(const std::string& value) {
    return guarded([&] { return storePath(locationOfAmplExe_, value); });
}

Status CTARQModel::get_LocationOfTARQAMPLEXE(std::string* value) {
    return guardedGet(value, [&] { return locationOfTarqAmplExe_; });
}

Status CTARQModel::put_LocationOfTARQAMPLEXE(const std::string& value) {
    return guarded([&] { return storePath(locationOfTarqAmplExe_, value); });
}

Status CTARQModel::get_MPLWorkingDirectory(std::string* value) {
    return guardedGet(value, [&] { return mplWorkingDirectory_; });
}

Status CTARQModel::put_MPLWorkingDirectory(const std::string& value) {
    return guarded([&] { return storePath(mplWorkingDirectory_, value); });
}

Status CTARQModel::get_AMPLOutputBuffer(std::string* value) {
    return guardedGet(value, [&] { return amplOutputBuffer_; });
}

Status CTARQModel::get_AMPLOutputBufferMaxSize(std::int32_t* value) {
    return guardedGet(value, [&] { return amplOutputBufferMaxSize_; });
}

Status CTARQModel::put_AMPLOutputBufferMaxSize(std::int32_t value) {
    return guarded([&]() -> Outcome {
        if (value < leastAmplOutputBufferSize) {
            return {status::invalidArgument, "AMPLOutputBuffer must be at least 1024 Bytes long"};
        }
        amplOutputBufferMaxSize_ = value;
        return {};
    });
}

}  // namespace tarq
