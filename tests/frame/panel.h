// Panel: an object with members of every form that late binding knows.
#pragma once

#include <array>
#include <memory>
#include <new>
#include <string>

#include "tarq/frame/countedobject.h"
#include "tarq/frame/memberbinding.h"
#include "tarq/frame/objecterror.h"

namespace tarq {

enum class Shade : std::int32_t { Light = 0, Dark = 7 };
inline constexpr std::array shadeValues{EnumerationValue{"Light", 0}, EnumerationValue{"Dark", 7}};
inline constexpr EnumerationTable shadeEnumeration{"Shade", "How dark it is.", shadeValues};
template <>
inline constexpr const EnumerationTable* enumerationTableOf<Shade> = &shadeEnumeration;

class IPanel : public IDispatch {
public:
    static constexpr Guid id{0x2D0C5E11, 0x39F2, 0x4C5B, {0x8C, 0x1D, 0x50, 0x0A, 0x6E, 0x7C, 0x90, 0x11}};
    static const InterfaceTable& memberTable();

    virtual Status get_Item(const Variant& row, const Variant& column, std::string* value) = 0;
    virtual Status put_Item(const Variant& row, const Variant& column, double value) = 0;
    virtual Status get_Shade(Shade* value) = 0;
    virtual Status put_Shade(Shade value) = 0;
    virtual Status Join(const std::string& separator, const ValueList& parts, std::string* value) = 0;
    virtual Status Split(std::int32_t number, std::int32_t* tens, std::int32_t* ones) = 0;
    virtual Status Keep(IUnknown* object) = 0;
    virtual Status get_Kept(Ref<IUnknown>* value) = 0;
    virtual Status Measure(const double* width, Variant* value) = 0;
    virtual Status Fail(std::int32_t code, std::int32_t* value) = 0;
    virtual Status Exhaust() = 0;

protected:
    ~IPanel() = default;
};

/// A second interface of the same object.
class IKnob : public IUnknown {
public:
    static constexpr Guid id{0x2D0C5E12, 0x39F2, 0x4C5B, {0x8C, 0x1D, 0x50, 0x0A, 0x6E, 0x7C, 0x90, 0x11}};
    virtual int turns() = 0;

protected:
    ~IKnob() = default;
};

inline const Guid panelClass{0x2D0C5E13, 0x39F2, 0x4C5B, {0x8C, 0x1D, 0x50, 0x0A, 0x6E, 0x7C, 0x90, 0x11}};

inline const InterfaceTable& IPanel::memberTable() {
    static const InterfaceTable table(
        "IPanel", id, "Members of every form.",
        {numbered(memberid::value, get<&IPanel::get_Item>("Item", "", optional("row"), optional("column"))),
         put<&IPanel::put_Item>("Item", "", optional("row"), optional("column")), get<&IPanel::get_Shade>("Shade", ""),
         put<&IPanel::put_Shade>("Shade", ""), resultMethod<&IPanel::Join>("Join", "", "separator", "parts"),
         method<&IPanel::Split>("Split", "", "number", "tens", "ones"),
         numbered(-4, method<&IPanel::Keep>("Keep", "", "object")), get<&IPanel::get_Kept>("Kept", ""),
         resultMethod<&IPanel::Measure>("Measure", "", "width"), resultMethod<&IPanel::Fail>("Fail", "", "code"),
         method<&IPanel::Exhaust>("Exhaust", "")});
    return table;
}

class Panel final : public CountedObject<Panel, IPanel, IKnob> {
public:
    static inline bool refuseConstruction = false;
    static inline int alive = 0;

    Panel() { ++alive; }
    Status finalConstruct() {
        // A reference that comes and goes meanwhile must not end the object.
        const Ref<IUnknown> passing(&identity());
        return refuseConstruction ? status::wrongState : status::ok;
    }

    Status get_Item(const Variant& row, const Variant& column, std::string* value) override {
        *value = shown(row) + "," + shown(column);
        return status::ok;
    }
    Status put_Item(const Variant& row, const Variant& column, double value) override {
        item = shown(row) + "," + shown(column) + "=" + std::to_string(static_cast<int>(value));
        return status::ok;
    }
    Status get_Shade(Shade* value) override {
        *value = shade;
        return status::ok;
    }
    Status put_Shade(Shade value) override {
        shade = value;
        return status::ok;
    }
    Status Join(const std::string& separator, const ValueList& parts, std::string* value) override {
        for (const Variant& part : parts.walk()) *value += shown(part) + separator;
        return status::ok;
    }
    Status Split(std::int32_t number, std::int32_t* tens, std::int32_t* ones) override {
        *tens = number / 10;
        if (number % 10 != 0) *ones = number % 10;
        return splitEnds;
    }
    Status Keep(IUnknown* object) override {
        kept = Ref<IUnknown>(object);
        return status::ok;
    }
    Status get_Kept(Ref<IUnknown>* value) override {
        *value = kept;
        return status::ok;
    }
    Status Measure(const double* width, Variant* value) override {
        *value = width == nullptr ? Variant("unknown") : Variant(*width);
        return status::ok;
    }
    Status Fail(std::int32_t code, std::int32_t* value) override {
        *value = 5;
        return raise(panelClass, "It failed.", Status{static_cast<std::uint32_t>(code)});
    }
    Status Exhaust() override { throw std::bad_alloc(); }
    int turns() override { return 3; }

    std::string item;
    Status splitEnds;
    Shade shade = Shade::Light;
    Ref<IUnknown> kept;

private:
    friend std::default_delete<Panel>;
    ~Panel() { --alive; }

    static std::string shown(const Variant& value) {
        Variant copy = value.copyDereferenced();
        return copy.isMissing() ? "missing" : copy.toText() ? copy.text() : "?";
    }
};

}  // namespace tarq
