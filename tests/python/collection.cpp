// A collection with members of every form that late binding knows, for the tests of the Python package.
#include <pybind11/pybind11.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tarq/frame/countedobject.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/memberbinding.h"
#include "tarq/frame/objecterror.h"
#include "tarq/frame/safearray.h"

namespace tarq {
namespace {

class ICollection : public IDispatch {
public:
    static constexpr Guid id{0x8C6E6A51, 0x2B77, 0x4C1C, {0x9D, 0x1B, 0x21, 0x44, 0x0E, 0x5C, 0x1A, 0x01}};
    static const InterfaceTable& memberTable();

    virtual Status get_Item(const Variant& first, const Variant& second, std::string* value) = 0;
    virtual Status put_Item(const Variant& first, const Variant& second, const Variant& value) = 0;
    virtual Status get__NewEnum(Ref<IUnknown>* value) = 0;
    virtual Status get_Count(std::int32_t* value) = 0;
    virtual Status put_Count(std::int32_t value) = 0;
    virtual Status get_Level(const Variant& first, const Variant& second, std::string* value) = 0;
    virtual Status put_Level(const Variant& first, const Variant& second, double value) = 0;
    virtual Status Describe(const Variant& value, std::string* words) = 0;
    virtual Status DescribeAll(const std::string& separator, const ValueList& values, std::string* words) = 0;
    virtual Status DescribeOptional(const Variant& value, std::string* words) = 0;
    virtual Status Echo(const Variant& value, Variant* same) = 0;
    virtual Status MakeArray(std::int32_t kind, std::int32_t rows, std::int32_t columns, Variant* array) = 0;
    virtual Status Split(std::int32_t number, std::int32_t* tens, std::int32_t* ones) = 0;
    virtual Status Surround(std::int32_t* before, std::int32_t number, std::int32_t* after, std::string* words) = 0;
    virtual Status Call(IUnknown* object, std::int32_t member, std::int32_t kinds, const ValueList& arguments,
                        Variant* result) = 0;
    virtual Status NumberOf(IUnknown* object, const std::string& name, std::int32_t* number) = 0;
    virtual Status Offers(IUnknown* object, const std::string& interfaceId, std::int32_t* offered) = 0;
    virtual Status Keep(IUnknown* object) = 0;
    virtual Status get_Kept(Ref<IUnknown>* value) = 0;
    virtual Status Drop(std::int32_t milliseconds) = 0;
    virtual Status Sleep(std::int32_t milliseconds) = 0;
    virtual Status Secret(std::int32_t* value) = 0;

protected:
    ~ICollection() = default;
};

const InterfaceTable& ICollection::memberTable() {
    using I = ICollection;
    constexpr MemberFlags blocking{.blocking = true};
    // Never destroyed: a thread may be in a call when the process ends.
    static const auto& table =
        *new InterfaceTable("ICollection", id, "Members of every form.",
                            {numbered(memberid::value, get<&I::get_Item>("Item", "", "first", optional("second"))),
                             numbered(memberid::value, put<&I::put_Item>("Item", "", "first", optional("second"))),
                             numbered(memberid::enumerator, get<&I::get__NewEnum>("_NewEnum", "")),
                             numbered(1, get<&I::get_Count>("Count", "How many elements.")),
                             put<&I::put_Count>("Count", ""),
                             get<&I::get_Level>("Level", "", optional("first"), optional("second")),
                             put<&I::put_Level>("Level", "", optional("first"), optional("second")),
                             resultMethod<&I::Describe>("Describe", "", "value"),
                             resultMethod<&I::DescribeAll>("DescribeAll", "", "separator", "values"),
                             resultMethod<&I::DescribeOptional>("DescribeOptional", "", optional("value")),
                             resultMethod<&I::Echo>("Echo", "", "value"),
                             resultMethod<&I::MakeArray>("MakeArray", "", "kind", "rows", "columns"),
                             method<&I::Split>("Split", "", "number", "tens", "ones"),
                             resultMethod<&I::Surround>("Surround", "", "before", "number", "after"),
                             resultMethod<&I::Call>("Call", "", "object", "member", "kinds", "arguments"),
                             resultMethod<&I::NumberOf>("NumberOf", "", "object", "name"),
                             resultMethod<&I::Offers>("Offers", "", "object", "interfaceId"),
                             method<&I::Keep>("Keep", "", "object"),
                             get<&I::get_Kept>("Kept", ""),
                             flagged(blocking, method<&I::Drop>("Drop", "", "milliseconds")),
                             flagged(blocking, method<&I::Sleep>("Sleep", "", "milliseconds")),
                             flagged({.hidden = true}, get<&I::Secret>("Secret", ""))});
    return table;
}

/// "Long 5", "Text abc", "Missing", "array of Double 2 x 3: 1 2 3 4 5 6", "reference to array of Variant 1: Long 7".
std::string describe(const Variant& value) {
    if (value.isArray()) {
        const SafeArray& array = value.array();
        std::string words = value.isByReference() ? "reference to array of " : "array of ";
        words += std::to_string(static_cast<int>(array.elementKind()));
        for (const Dimension& dimension : array.dimensions()) {
            words += " " + std::to_string(dimension.lowerBound) + ".." + std::to_string(dimension.upperBound());
        }
        words += ":";
        for (std::size_t i = 0; i < array.elementCount(); ++i) {
            Variant element;
            (void)array.getAt(i, element);
            words += " " + describe(element);
        }
        return words;
    }
    if (value.isMissing()) return "Missing";
    if (value.isObject()) return "Object";
    Variant text = value;
    const std::string shown = text.toText() ? text.text() : std::string();
    return std::to_string(static_cast<int>(value.kind())) + (shown.empty() ? "" : " " + shown);
}

class Walk final : public CountedObject<Walk, IEnumVARIANT> {
public:
    explicit Walk(std::int32_t count) : count_(count) {}

    Status Next(std::uint32_t /*count*/, Variant* values, std::uint32_t* fetched) override {
        *fetched = next_ < count_ ? 1 : 0;
        if (*fetched == 0) return fewerLeft;
        if (next_ == 90) return raise(Guid{}, "The walk is broken.", status::wrongState);
        *values = Variant(++next_);
        return status::ok;
    }
    Status Skip(std::uint32_t /*count*/) override { return status::notImplemented; }
    Status Reset() override { return status::notImplemented; }
    Status Clone(IEnumVARIANT** /*copy*/) override { return status::notImplemented; }

private:
    friend std::default_delete<Walk>;
    ~Walk() = default;

    std::int32_t count_;
    std::int32_t next_ = 0;
};

class Collection final : public CountedObject<Collection, ICollection> {
public:
    Status get_Item(const Variant& first, const Variant& second, std::string* value) override {
        *value = stored_ + "(" + describe(first) + ", " + describe(second) + ")";
        return status::ok;
    }
    Status put_Item(const Variant& first, const Variant& second, const Variant& value) override {
        stored_ = describe(first) + ", " + describe(second) + " = " + describe(value);
        return status::ok;
    }
    Status get__NewEnum(Ref<IUnknown>* value) override {
        *value = Ref<IUnknown>(std::make_unique<Walk>(count_).release());
        return status::ok;
    }
    Status get_Count(std::int32_t* value) override {
        *value = count_;
        return status::ok;
    }
    Status put_Count(std::int32_t value) override {
        count_ = value;
        return status::ok;
    }
    Status get_Level(const Variant& first, const Variant& second, std::string* value) override {
        return get_Item(first, second, value);
    }
    Status put_Level(const Variant& first, const Variant& second, double value) override {
        return put_Item(first, second, Variant(value));
    }
    Status Describe(const Variant& value, std::string* words) override {
        *words = describe(value);
        return status::ok;
    }
    Status DescribeAll(const std::string& separator, const ValueList& values, std::string* words) override {
        for (const Variant& value : values.walk()) *words += (words->empty() ? "" : separator) + describe(value);
        return status::ok;
    }
    Status DescribeOptional(const Variant& value, std::string* words) override { return Describe(value, words); }
    Status Echo(const Variant& value, Variant* same) override {
        *same = value;
        return status::ok;
    }
    Status MakeArray(std::int32_t kind, std::int32_t rows, std::int32_t columns, Variant* array) override {
        const Dimension dimensions[] = {{-3, static_cast<std::uint32_t>(rows)},
                                        {1, static_cast<std::uint32_t>(columns)}};
        SafeArray made;
        const Status created = SafeArray::create(static_cast<Kind>(kind), dimensions, made);
        *array = Variant(std::move(made));
        return created;
    }
    Status Split(std::int32_t number, std::int32_t* tens, std::int32_t* ones) override {
        if (number < 0) return Status(0x0004200A);
        *tens = number / 10;
        *ones = number % 10;
        return status::ok;
    }
    Status Surround(std::int32_t* before, std::int32_t number, std::int32_t* after, std::string* words) override {
        *words = "from " + std::to_string(*before);
        *before = number - 1;
        *after = number + 1;
        return status::ok;
    }
    Status Call(IUnknown* object, std::int32_t member, std::int32_t kinds, const ValueList& arguments,
                Variant* result) override {
        const auto dispatch = Ref<IUnknown>(object).query<IDispatch>();
        if (!dispatch) return status::wrongClass;
        const ValueList::Walk values = arguments.walk();
        return dispatch->Invoke(member, static_cast<std::uint16_t>(kinds), {values.values(), {}}, result, nullptr);
    }
    Status NumberOf(IUnknown* object, const std::string& name, std::int32_t* number) override {
        const std::string_view names[] = {name};
        const auto dispatch = Ref<IUnknown>(object).query<IDispatch>();
        return dispatch ? dispatch->GetIDsOfNames(names, number) : status::wrongClass;
    }
    Status Offers(IUnknown* object, const std::string& interfaceId, std::int32_t* offered) override {
        Guid wanted;
        if (!parseGuid(interfaceId, wanted)) return status::invalidArgument;
        void* found = nullptr;
        *offered = object->QueryInterface(wanted, &found).isOk() ? 1 : 0;
        if (found != nullptr) static_cast<IUnknown*>(found)->Release();
        return status::ok;
    }
    Status Keep(IUnknown* object) override {
        kept_ = Ref<IUnknown>(object);
        return status::ok;
    }
    Status get_Kept(Ref<IUnknown>* value) override {
        *value = kept_;
        return status::ok;
    }
    /// Lets the kept object go on a thread of its own.
    Status Drop(std::int32_t milliseconds) override {
        std::thread([kept = std::move(kept_), milliseconds]() mutable {
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
            kept = {};
        }).join();
        return status::ok;
    }
    Status Sleep(std::int32_t milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        return status::ok;
    }
    Status Secret(std::int32_t* value) override {
        *value = 42;
        return status::ok;
    }

private:
    friend std::default_delete<Collection>;
    ~Collection() = default;

    std::int32_t count_ = 3;
    std::string stored_;
    Ref<IUnknown> kept_;
};

}  // namespace
}  // namespace tarq

PYBIND11_MODULE(_collection, module) {
    module.def("make", [] {
        const tarq::Ref<tarq::IUnknown> made(std::make_unique<tarq::Collection>().release());
        return pybind11::module_::import("tarq._tarq").attr("adopt")(pybind11::capsule(made.get(), "tarq.IUnknown"));
    });
}
