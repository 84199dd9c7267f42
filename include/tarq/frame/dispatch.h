// IDispatch: calling an object's members by name or by number, with values whose types are found out at run time.
//
// A client asks for the number of a member and of the parameters that it wants to name, and then calls by number. An
// object needn't be one of this component's: a client's own object can stand in wherever the component calls
// late-bound.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "tarq/frame/object.h"
#include "tarq/frame/status.h"
#include "tarq/frame/variant.h"

namespace tarq {

class InterfaceTable;

/// What a call does with its member; the bits can be combined where a client's language doesn't tell a call from a get.
namespace invoke {
inline constexpr std::uint16_t method = 1;
inline constexpr std::uint16_t get = 2;
inline constexpr std::uint16_t put = 4;
}  // namespace invoke

/// Numbers of members that mean the same in every interface.
namespace memberid {
inline constexpr std::int32_t unknown = -1;     ///< of a name that the object doesn't have
inline constexpr std::int32_t value = 0;        ///< the default member
inline constexpr std::int32_t enumerator = -4;  ///< hands out an enumerator
}  // namespace memberid

/// Arguments of a late-bound call. The ones by position come first, in the order of the parameters, then the ones by
/// name, and in a put the new value last. What a call hands back through an argument it writes through a by-reference
/// Variant, if the status is 0, or 1 of a method without a result. An argument left out at the end, or passed as the
/// missing value, is missing.
struct InvokeArguments {
    std::span<const Variant> values;
    std::span<const std::int32_t> names;  ///< parameter numbers, from 0, of the arguments by name
};

class IDispatch : public IUnknown {
public:
    static constexpr Guid id{0x00020400, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// The members of the object's interface; null when the object doesn't tell.
    virtual const InterfaceTable* GetMemberTable() = 0;

    /// Numbers of a member (the first name) and of parameters of it (the others), without regard to the case of ASCII
    /// letters. `ids` has room for as many numbers. unknownName when there is a name that the object doesn't have, with
    /// -1 in its place.
    virtual Status GetIDsOfNames(std::span<const std::string_view> names, std::int32_t* ids) = 0;

    /// Calls a member. `result`, which may be null, gets what a get or a method hands back, if the status is 0. The
    /// member's own status is returned, with its ObjectError on the calling thread; a call that fails before it reaches
    /// the member leaves no ObjectError: unknownMember for a number without such a member, argumentCount for a wrong
    /// count, unknownParameterName for a parameter number that the member doesn't have or that is given twice, and
    /// argumentType for an argument that can't be converted. `argument`, which may be null, gets the position of the
    /// argument in question, from 0, in the last two cases.
    virtual Status Invoke(std::int32_t member, std::uint16_t kinds, const InvokeArguments& arguments, Variant* result,
                          std::uint32_t* argument) = 0;

protected:
    ~IDispatch() = default;
};

}  // namespace tarq
