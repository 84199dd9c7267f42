#include "tarq/frame/membertable.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "frame/result.h"
#include "frame/text.h"
#include "tarq/frame/memberbinding.h"

namespace tarq {
namespace {

// Mixes the length with the first and the last eight bytes, their letters in one case. Names that fall together here,
// also by bytes that aren't letters, are told apart when they are compared.
std::uint64_t hashOf(std::string_view name) noexcept {
    constexpr std::uint64_t oneCase = 0x2020'2020'2020'2020U;
    std::uint64_t head = 0;
    std::uint64_t tail = 0;
    const std::size_t width = std::min(name.size(), sizeof head);
    if (width == sizeof head) {
        std::memcpy(&head, name.data(), sizeof head);
        std::memcpy(&tail, name.data() + name.size() - sizeof tail, sizeof tail);
    } else {
        std::memcpy(&head, name.data(), width);
    }
    const std::uint64_t mixed = ((head | oneCase) * 0x9E37'79B9'7F4A'7C15U) ^ ((tail | oneCase) + name.size());
    return (mixed * 0xC2B2'AE3D'27D4'EB4FU) >> 32U;
}

std::size_t indexOf(const MemberInfo& member, std::string_view parameter) {
    const auto found = std::ranges::find_if(
        member.parameters, [&](const MemberParameter& info) { return equalWithoutCase(info.name, parameter); });
    return static_cast<std::size_t>(found - member.parameters.begin());
}

bool canBeMissing(const MemberParameter& parameter) { return parameter.optional || parameter.variadic; }

/// Puts the arguments of a call into the order of the member's parameters.
class ArgumentOrder {
public:
    ArgumentOrder(const MemberInfo& member, const InvokeArguments& arguments, MemberCall& call)
        : member_(member), arguments_(arguments), call_(call) {}

    Status arrange() {
        const std::size_t total = arguments_.values.size();
        const std::size_t putValue = member_.kind == MemberKind::Put ? 1 : 0;
        const std::size_t named = arguments_.names.size();
        if (total < named + putValue) return status::argumentCount;
        settable_ = member_.parameters.size() - putValue;
        TARQ_TRY(placePositional(total - named - putValue));
        TARQ_TRY(placeNamed(total - named - putValue));
        if (putValue != 0) place(settable_, total - 1);
        for (std::size_t index = 0; index < settable_; ++index) {
            if (call_.given[index] == nullptr && !canBeMissing(member_.parameters[index])) return status::argumentCount;
        }
        return status::ok;
    }

    /// Position among the arguments of the one that a parameter got.
    [[nodiscard]] std::uint32_t argumentOf(std::size_t parameter) const { return origin_[parameter]; }
    [[nodiscard]] std::uint32_t badName() const { return badName_; }

private:
    void place(std::size_t parameter, std::size_t argument) {
        call_.given[parameter] = &arguments_.values[argument];
        origin_[parameter] = static_cast<std::uint32_t>(argument);
    }

    Status placePositional(std::size_t count) {
        const bool variadic = settable_ > 0 && member_.parameters[settable_ - 1].variadic;
        const std::size_t fixed = variadic ? settable_ - 1 : settable_;
        if (count > fixed && !variadic) return status::argumentCount;
        for (std::size_t index = 0; index < std::min(count, fixed); ++index) place(index, index);
        if (count > fixed) call_.variadic = arguments_.values.subspan(fixed, count - fixed);
        return status::ok;
    }

    Status placeNamed(std::size_t first) {
        for (std::size_t index = 0; index < arguments_.names.size(); ++index) {
            const std::int32_t parameter = arguments_.names[index];
            const bool fits = parameter >= 0 && static_cast<std::size_t>(parameter) < settable_ &&
                              !member_.parameters[static_cast<std::size_t>(parameter)].variadic;
            if (!fits || call_.given[static_cast<std::size_t>(parameter)] != nullptr) {
                badName_ = static_cast<std::uint32_t>(first + index);
                return status::unknownParameterName;
            }
            place(static_cast<std::size_t>(parameter), first + index);
        }
        return status::ok;
    }

    const MemberInfo& member_;
    const InvokeArguments& arguments_;
    MemberCall& call_;
    std::size_t settable_ = 0;  // parameters that the arguments but a put's new value go to
    std::uint32_t badName_ = 0;
    std::array<std::uint32_t, MemberCall::mostParameters> origin_{};
};

}  // namespace

InterfaceTable::InterfaceTable(std::string_view name, const Guid& id, std::string_view help,
                               std::vector<MemberInfo> members)
    : name_(name), id_(id), help_(help), members_(std::move(members)) {
    std::size_t size = 16;
    while (size < members_.size() * 4) size *= 2;
    slots_.assign(size, 0);
    std::int32_t next = 1;
    for (std::size_t position = 0; position < members_.size(); ++position) {
        MemberInfo& member = members_[position];
        const bool sameProperty = position > 0 && members_[position - 1].name == member.name;
        if (member.id == unnumbered) member.id = sameProperty ? members_[position - 1].id : next;
        next = std::max(next, member.id + 1);
        if (sameProperty) continue;
        const auto mark = static_cast<std::uint16_t>(position + 1);
        slots_[slotOf(member.name)] = mark;
        if (member.id < 0) {
            negativeNumbers_.push_back(static_cast<std::uint16_t>(position));
            continue;
        }
        const auto number = static_cast<std::size_t>(member.id);
        if (numbered_.size() <= number) numbered_.resize(number + 1);
        numbered_[number] = mark;
    }
}

std::size_t InterfaceTable::slotOf(std::string_view name) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hashOf(name) & mask;
    while (slots_[slot] != 0 && !equalWithoutCase(members_[slots_[slot] - 1U].name, name)) slot = (slot + 1) & mask;
    return slot;
}

const MemberInfo* InterfaceTable::find(std::string_view name) const noexcept {
    const std::uint16_t mark = slots_[slotOf(name)];
    return mark == 0 ? nullptr : &members_[mark - 1U];
}

const MemberInfo* InterfaceTable::find(std::int32_t id, std::uint16_t kinds) const noexcept {
    std::size_t position = members_.size();
    if (id >= 0 && static_cast<std::size_t>(id) < numbered_.size() && numbered_[static_cast<std::size_t>(id)] != 0) {
        position = numbered_[static_cast<std::size_t>(id)] - 1U;
    } else if (id < 0) {
        for (const std::uint16_t candidate : negativeNumbers_) {
            if (members_[candidate].id == id) position = candidate;
        }
    }
    for (; position < members_.size() && members_[position].id == id; ++position) {
        if ((static_cast<std::uint16_t>(members_[position].kind) & kinds) != 0) return &members_[position];
    }
    return nullptr;
}

Status InterfaceTable::idsOfNames(std::span<const std::string_view> names, std::int32_t* ids) const {
    if (names.empty()) return status::ok;
    if (ids == nullptr) return status::nullPointer;
    const MemberInfo* member = find(names.front());
    bool known = member != nullptr;
    ids[0] = known ? member->id : memberid::unknown;
    for (std::size_t index = 1; index < names.size(); ++index) {
        const std::size_t parameter = member == nullptr ? 0 : indexOf(*member, names[index]);
        const bool found = member != nullptr && parameter < member->parameters.size();
        ids[index] = found ? static_cast<std::int32_t>(parameter) : memberid::unknown;
        known = known && found;
    }
    return known ? status::ok : status::unknownName;
}

Status InterfaceTable::invoke(IDispatch& object, std::int32_t member, std::uint16_t kinds,
                              const InvokeArguments& arguments, Variant* result, std::uint32_t* argument) const {
    const MemberInfo* found = find(member, kinds);
    if (found == nullptr) return status::unknownMember;
    MemberCall call;
    call.result = result;
    ArgumentOrder order(*found, arguments, call);
    const Status arranged = order.arrange();
    if (arranged == status::unknownParameterName && argument != nullptr) *argument = order.badName();
    if (!arranged.isOk()) return arranged;
    const Status ended = found->call(object, call);
    if (call.rejected != MemberCall::noParameter && argument != nullptr) *argument = order.argumentOf(call.rejected);
    return ended;
}

namespace binding {

const Variant& missingValue() {
    static const Variant missing = Variant::missing();
    return missing;
}

MemberInfo makeMember(MemberKind kind, std::string_view name, std::string_view help,
                      std::vector<MemberParameter> parameters, std::span<const ParameterName> names,
                      std::size_t resultIndex) {
    MemberInfo member;
    member.id = InterfaceTable::unnumbered;
    member.name = name;
    member.kind = kind;
    member.help = help;
    for (std::size_t index = 0; index < names.size(); ++index) {
        parameters[index].name = names[index].name;
        parameters[index].optional = parameters[index].optional || names[index].optional;
    }
    if (resultIndex < parameters.size()) {
        member.result = parameters.back().type;
        member.resultEnumeration = parameters.back().enumeration;
        parameters.pop_back();
    }
    if (kind == MemberKind::Put) parameters.back().name = "value";
    member.parameters = std::move(parameters);
    return member;
}

}  // namespace binding

}  // namespace tarq
