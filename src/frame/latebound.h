// LateBound: an object whose members the component calls by their published numbers.
//
// Any object will do, a client's own stand-in among them, and it may answer anything. What it answers is converted to
// the type asked for, a by-reference answer is resolved first. A call fails with the status and the description of the
// object; where it gives no description the status is told in words.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "frame/result.h"
#include "tarq/frame/dispatch.h"
#include "tarq/frame/object.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

class LateBound {
public:
    using Arguments = std::span<const Variant>;

    /// Stands for no object.
    LateBound() = default;
    explicit LateBound(Ref<IDispatch> object) : object_(std::move(object)) {}
    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(object_); }

    /// A property as a Variant, LateBound, std::int32_t, double or std::string. argumentType for an answer that is none
    /// of the type, wrongClass for one that is no object to be called in turn.
    template <class Value>
    [[nodiscard]] Result<Value> get(std::int32_t member, Arguments arguments = {}) const {
        return ask<Value>(member, invoke::get, arguments);
    }
    /// What a method answers, likewise.
    template <class Value>
    [[nodiscard]] Result<Value> call(std::int32_t member, Arguments arguments) const {
        return ask<Value>(member, invoke::method, arguments);
    }
    /// Sets a property.
    [[nodiscard]] Outcome put(std::int32_t member, const Variant& value) const;

private:
    template <class Value>
    Result<Value> ask(std::int32_t member, std::uint16_t kinds, Arguments arguments) const {
        Variant answer;
        TARQ_TRY(invokeMember(member, kinds, arguments, &answer));
        return convert<Value>(std::move(answer));
    }
    Outcome invokeMember(std::int32_t member, std::uint16_t kinds, Arguments arguments, Variant* answer) const;
    /// An answer as the type asked for; there is one for each type that `get` tells of.
    template <class Value>
    static Result<Value> convert(Variant answer);

    Ref<IDispatch> object_;
};

}  // namespace tarq
