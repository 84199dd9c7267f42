#include "frame/latebound.h"

#include "tarq/frame/objecterror.h"

namespace tarq {
namespace {

Outcome failure(Status status) { return {status, std::string(status::meaning(status))}; }

}  // namespace

Outcome LateBound::put(std::int32_t member, const Variant& value) const {
    return invokeMember(member, invoke::put, {&value, 1}, nullptr);
}

Outcome LateBound::invokeMember(std::int32_t member, std::uint16_t kinds, Arguments arguments, Variant* answer) const {
    clearLastError();
    const Status status = object_->Invoke(member, kinds, {.values = arguments, .names = {}}, answer, nullptr);
    if (!status.failed()) return {};
    const ObjectError* const error = lastError();
    return error != nullptr && error->status == status ? Outcome(status, error->description) : failure(status);
}

Outcome LateBound::convert(Variant answer, Variant& value) {
    value = std::move(answer);
    return {};
}

Outcome LateBound::convert(const Variant& answer, LateBound& value) {
    const Variant plain = answer.copyDereferenced();
    if (plain.isObject()) value = LateBound(Ref<IUnknown>(plain.object()).query<IDispatch>());
    return plain.isObject() && value ? Outcome() : failure(status::wrongClass);
}

Outcome LateBound::convert(Variant answer, std::int32_t& value) {
    if (!answer.toInteger()) return failure(status::argumentType);
    value = answer.integer();
    return {};
}

Outcome LateBound::convert(Variant answer, double& value) {
    if (!answer.toReal()) return failure(status::argumentType);
    value = answer.real();
    return {};
}

Outcome LateBound::convert(Variant answer, std::string& value) {
    if (!answer.toText()) return failure(status::argumentType);
    value = answer.takeText();
    return {};
}

}  // namespace tarq
