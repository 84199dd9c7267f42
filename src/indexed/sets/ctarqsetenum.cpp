#include "indexed/sets/ctarqsetenum.h"

#include <utility>

#include "frame/memberguard.h"
#include "frame/result.h"
#include "tarq/interfaces/classids.h"

namespace tarq {
namespace {

constexpr std::int32_t trueAnswer = -1;

Status notInitialized() {
    return guarded(classid::TARQSetEnum,
                   [] { return Outcome(status::notInitialized, "TARQSetEnum has not been initialized."); });
}

Outcome refused(const char* description) { return {status::invalidArgument, description}; }

/// Position of an item of the set. A missing one leaves `position` as it is.
Outcome findItem(ITARQSet& set, const Variant& item, const char* notFound, std::int64_t& position) {
    if (item.isMissing()) return {};
    std::int32_t found = 0;
    TARQ_TRY(set.get_Index(item, &found));
    if (found == 0) return refused(notFound);
    position = found;
    return {};
}

Outcome readStep(Variant given, std::int64_t& step) {
    if (given.isMissing()) return {};
    if (!given.toInteger()) return refused("Parameter 'Step' is no integer value.");
    step = given.integer();
    return step == 0 ? refused("Parameter 'Step' may not be 0.") : Outcome();
}

Outcome makeWalk(ITARQSet& set, const Variant& start, const Variant& end, const Variant& step, PositionWalk& walk) {
    std::int32_t count = 0;
    TARQ_TRY(set.get_Count(&count));
    if (count == 0) {
        if (!start.isMissing() || !end.isMissing() || !step.isMissing()) return refused("Base TARQSet is empty.");
        walk.start = walk.end = 0;
        walk.step = 1;
        return {};
    }
    PositionWalk made{.start = 1, .end = count, .step = 1};
    TARQ_TRY(findItem(set, start, "Start item not found.", made.start));
    TARQ_TRY(findItem(set, end, "End item not found.", made.end));
    TARQ_TRY(readStep(step, made.step));
    if (made.step > 0 && made.end < made.start) return refused("Start item situated after end item.");
    if (made.step < 0 && made.start < made.end) return refused("Start item situated before end item.");
    made.reset();
    walk = made;
    return {};
}

}  // namespace

Status CTARQSetEnum::Init(IUnknown* TARQSet, const Variant& Start, const Variant& End, const Variant& Step) {
    return guarded(classid::TARQSetEnum, [&]() -> Outcome {
        Ref<ITARQSet> set = Ref<IUnknown>(TARQSet).query<ITARQSet>();
        if (!set) return refused("First paramter is no TARQSet.");
        PositionWalk walk = walk_;
        if (Outcome outcome =
                makeWalk(*set, Start.copyDereferenced(), End.copyDereferenced(), Step.copyDereferenced(), walk);
            !outcome.isOk()) {
            return outcome;
        }
        walk_ = walk;
        parent_ = std::move(set);
        return {};
    });
}

Status CTARQSetEnum::MoveFirst() { return Reset(); }

Status CTARQSetEnum::MoveNext() {
    Variant passed;
    return Next(1, &passed, nullptr);
}

Status CTARQSetEnum::get__NewEnum(Ref<IUnknown>* value) {
    if (!parent_) return notInitialized();
    if (value == nullptr) return status::nullPointer;
    TARQ_TRY(Reset());
    *value = Ref<IUnknown>(static_cast<ITARQSetEnum*>(this));
    return status::ok;
}

Status CTARQSetEnum::get_CurrentItem(Variant* value) {
    if (!parent_) return notInitialized();
    const Ref<ITARQSet> parent = parent_;  // which another Init may let go of meanwhile
    return contained([&] { return parent->get_Item(walk_.position(), value); });
}

Status CTARQSetEnum::get_CurrentIndex(std::int32_t* value) {
    return guardedGet(value, [&] { return walk_.position(); });
}

Status CTARQSetEnum::get_IsLast(std::int32_t* value) {
    return guardedGet(value, [&] { return walk_.isLast() ? trueAnswer : 0; });
}

Status CTARQSetEnum::get_IsBeyondLast(std::int32_t* value) {
    return guardedGet(value, [&] { return walk_.inRange() ? 0 : trueAnswer; });
}

Status CTARQSetEnum::Next(std::uint32_t count, Variant* values, std::uint32_t* fetched) {
    if (values == nullptr) return status::nullPointer;
    if (!parent_) return notInitialized();
    const Ref<ITARQSet> parent = parent_;  // which another Init may let go of meanwhile
    return contained([&] {
        std::int32_t size = 0;
        TARQ_TRY(parent->get_Count(&size));
        if (size == 0) return fewerLeft;
        std::uint32_t taken = 0;
        for (; taken < count && walk_.inRange(); ++taken) {
            TARQ_TRY(parent->get_Item(walk_.position(), &values[taken]));
            walk_.advance();
        }
        if (fetched != nullptr) *fetched = taken;
        return taken == count ? status::ok : fewerLeft;
    });
}

Status CTARQSetEnum::Skip(std::uint32_t count) {
    if (!parent_) return notInitialized();
    return walk_.skip(count) ? status::ok : fewerLeft;
}

Status CTARQSetEnum::Reset() {
    if (!parent_) return notInitialized();
    walk_.reset();
    return status::ok;
}

Status CTARQSetEnum::Clone(IEnumVARIANT** /*copy*/) { return status::notImplemented; }

}  // namespace tarq
