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

template <>
Result<Variant> LateBound::convert(Variant answer) {
    return answer;
}

template <>
Result<LateBound> LateBound::convert(Variant answer) {
    const Variant plain = answer.copyDereferenced();
    if (!plain.isObject()) return failure(status::wrongClass);
    const LateBound object(Ref<IUnknown>(plain.object()).query<IDispatch>());
    return object ? Result<LateBound>(object) : failure(status::wrongClass);
}

template <>
Result<std::int32_t> LateBound::convert(Variant answer) {
    return answer.toInteger() ? Result<std::int32_t>(answer.integer()) : failure(status::argumentType);
}

template <>
Result<double> LateBound::convert(Variant answer) {
    return answer.toReal() ? Result<double>(answer.real()) : failure(status::argumentType);
}

template <>
Result<std::string> LateBound::convert(Variant answer) {
    return answer.toText() ? Result<std::string>(answer.takeText()) : failure(status::argumentType);
}

}  // namespace tarq
