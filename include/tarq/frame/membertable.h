// The members of an interface as data: what late binding, help, documentation and type stubs are made from.
//
// A table is built once, from the interface's own member functions (see memberbinding.h), and never changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/export.h"
#include "tarq/frame/guid.h"

namespace tarq {

struct EnumerationValue {
    std::string_view name;
    std::int32_t value;
};

/// A published enumeration.
struct EnumerationTable {
    std::string_view name;
    std::string_view help;
    std::span<const EnumerationValue> values;
};

enum class MemberKind : std::uint16_t { Method = invoke::method, Get = invoke::get, Put = invoke::put };

/// The declared type of a parameter or a result.
enum class ValueType : std::uint8_t {
    None,     ///< no result
    Long,     ///< signed 32-bit
    Double,   ///< 64-bit real
    Text,     ///< UTF-8
    Variant,  ///< anything
    Object,   ///< a counted object
};

struct MemberParameter {
    std::string_view name;
    ValueType type = ValueType::None;
    const EnumerationTable* enumeration = nullptr;  ///< of a Long that is a value of an enumeration, else null
    bool optional = false;                          ///< may be left out
    bool variadic = false;                          ///< takes all remaining arguments by position
    bool out = false;                               ///< handed back through the argument
};

/// What a caller does better not show, or has to know before it calls.
struct MemberFlags {
    bool hidden = false;      ///< for the component's own use; works, but isn't listed
    bool restricted = false;  ///< for languages, not for people
    bool blocking = false;    ///< may take long, wait for another thread or call the client back
};

class InterfaceTable;
class MemberCall;

struct MemberInfo {
    std::int32_t id = 0;
    std::string_view name;
    MemberKind kind = MemberKind::Method;
    MemberFlags flags;
    std::string_view help;
    std::vector<MemberParameter> parameters;  ///< a put's new value is the last one
    ValueType result = ValueType::None;
    const EnumerationTable* resultEnumeration = nullptr;
    const InterfaceTable& (*resultInterface)() = nullptr;  ///< of an Object that always offers it, else null
    std::string_view stoppedBy;  ///< the member that asks a call of this one to end soon, on any thread; else empty
    Status (*call)(IDispatch& object, MemberCall& arguments) = nullptr;

    [[nodiscard]] bool isDefault() const { return id == memberid::value; }
};

class TARQ_API InterfaceTable {
public:
    /// Members of one name stand together and share their number. A member without a number of its own (0 would be the
    /// default member's, so `unnumbered`) gets the next one, from 1.
    static constexpr std::int32_t unnumbered = INT32_MIN;
    InterfaceTable(std::string_view name, const Guid& id, std::string_view help, std::vector<MemberInfo> members);

    [[nodiscard]] std::string_view name() const { return name_; }
    [[nodiscard]] const Guid& id() const { return id_; }
    [[nodiscard]] std::string_view help() const { return help_; }
    /// In published order.
    [[nodiscard]] std::span<const MemberInfo> members() const { return members_; }

    /// The first member of that name, compared without regard to the case of ASCII letters, else null. Constant time.
    [[nodiscard]] const MemberInfo* find(std::string_view name) const noexcept;
    /// The member of that number that can be called in one of the ways `kinds`, else null. Constant time.
    [[nodiscard]] const MemberInfo* find(std::int32_t id, std::uint16_t kinds) const noexcept;

    /// See IDispatch.
    Status idsOfNames(std::span<const std::string_view> names, std::int32_t* ids) const;
    /// See IDispatch; `object` must offer this interface as its dispatch interface.
    Status invoke(IDispatch& object, std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments,
                  Variant* result, std::uint32_t* argument) const;

private:
    [[nodiscard]] std::size_t slotOf(std::string_view name) const noexcept;

    std::string_view name_;
    Guid id_;
    std::string_view help_;
    std::vector<MemberInfo> members_;
    std::vector<std::uint16_t> slots_;            // hash table of first members by name: position plus 1, or 0
    std::vector<std::uint16_t> numbered_;         // first members by number from 0: position plus 1, or 0
    std::vector<std::uint16_t> negativeNumbers_;  // positions of first members with a number below 0
};

}  // namespace tarq
