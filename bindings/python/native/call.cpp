#include "call.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "callwatch.h"
#include "failures.h"
#include "labels.h"
#include "tarq/frame/ienumvariant.h"
#include "tarq/frame/safearray.h"
#include "text.h"
#include "values.h"

namespace tarq::python {
namespace {

/// Lets other Python threads run during a call that may take long.
class InterpreterRelease {
public:
    InterpreterRelease() = default;
    InterpreterRelease(const InterpreterRelease&) = delete;
    InterpreterRelease& operator=(const InterpreterRelease&) = delete;
    ~InterpreterRelease() {
        withoutUnwinding([this] { PyEval_RestoreThread(state_); });
    }

private:
    PyThreadState* state_ = PyEval_SaveThread();
};

Variant argumentOf(const MemberParameter* parameter, PyObject* value) {
    const bool mayBeMissing = parameter != nullptr && parameter->optional;
    return toVariant(value, mayBeMissing ? NoneMeaning::Missing : NoneMeaning::Empty);
}

std::string rejectionText(const MemberInfo& member, Status status, std::uint32_t argument) {
    const std::string name(member.name);
    if (status == status::argumentCount) return "Wrong number of arguments for " + name + ".";
    if (status == status::unknownParameterName) return "An argument of " + name + " was given twice.";
    if (status != status::argumentType) return {};
    return "Argument " + std::to_string(argument + 1) + " of " + name + " can't be converted.";
}

/// One call, and what became of it.
class Invocation {
public:
    Invocation(const Proxy& called, const MemberInfo& info) : proxy_(called), member_(info) {}
    Variant result{};

    Status run(const InvokeArguments& arguments) {
        forgetException();
        std::uint32_t rejected = 0;
        const Status ended = member_.flags.blocking ? invokeReleased(arguments, rejected) : invoke(arguments, rejected);
        if (ended.failed()) {
            const py::handle explaining = member_.stoppedBy.empty() ? py::handle() : handleOf(proxy_);
            throwFailure(ended, proxy_.type->source, rejectionText(member_, ended, rejected), explaining);
        }
        throwEnding();
        return ended;
    }

private:
    Status invoke(const InvokeArguments& arguments, std::uint32_t& rejected) {
        const Status ended = proxy_.dispatch->Invoke(member_.id, static_cast<std::uint16_t>(member_.kind), arguments,
                                                     &result, &rejected);
        setLastStatus(ended);
        return ended;
    }

    Status invokeReleased(const InvokeArguments& arguments, std::uint32_t& rejected) {
        CallWatch watch(proxy_, member_);
        const Status ended = [&] {
            const InterpreterRelease released;
            return invoke(arguments, rejected);
        }();
        watch.throwInterrupt();
        return ended;
    }

    const Proxy& proxy_;
    const MemberInfo& member_;
};

/// The arguments of a call in the general case: by position and by name, with a variadic list and with outputs.
class ArgumentList {
public:
    ArgumentList(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments)
        : type_(*proxy.type), member_(member) {
        // Variants refer to what lies in these, so they must not move.
        variables_.reserve(member.parameters.size());
        arrays_.reserve(arguments.positional);
        addPositional(arguments);
        addOutputs();
        addNamed(arguments);
    }

    void addPutValue(PyObject* value) { values_.push_back(argumentOf(nullptr, value)); }

    [[nodiscard]] InvokeArguments get() const { return {values_, names_}; }
    [[nodiscard]] bool hasOutputs() const { return !outputs_.empty(); }

    /// Appends the outputs as Python values.
    void appendOutputs(py::list& list) {
        for (const auto& [parameter, variable] : outputs_) list.append(toPython(*variable, parameter->enumeration));
    }

private:
    using Output = std::pair<const MemberParameter*, const Variant*>;

    /// Values go to the parameters that aren't outputs; an output in between gets its variable there.
    void addPositional(const PythonArguments& arguments) {
        std::size_t parameter = 0;
        for (std::size_t i = 0; i < arguments.positional; ++i) {
            while (parameter < member_.parameters.size() && member_.parameters[parameter].out) addOutput(parameter++);
            const bool known = parameter < member_.parameters.size();
            const MemberParameter* info = known ? &member_.parameters[parameter] : nullptr;
            values_.push_back(argumentOf(info, arguments.values[i]));
            if (info != nullptr && info->variadic) {
                passArrayByReference(values_.back());
            } else {
                ++parameter;
            }
        }
        nextParameter_ = parameter;
    }

    /// The outputs that follow at once.
    void addOutputs() {
        while (nextParameter_ < member_.parameters.size() && member_.parameters[nextParameter_].out) {
            addOutput(nextParameter_++);
        }
    }

    void addNamed(const PythonArguments& arguments) {
        const std::size_t count =
            arguments.names == nullptr ? 0 : static_cast<std::size_t>(PyTuple_GET_SIZE(arguments.names));
        for (std::size_t i = 0; i < count; ++i) {
            const py::handle name = PyTuple_GET_ITEM(arguments.names, static_cast<Py_ssize_t>(i));
            const std::size_t parameter = parameterOf(TextBytes(name).copy());
            names_.push_back(static_cast<std::int32_t>(parameter));
            values_.push_back(argumentOf(&member_.parameters[parameter], arguments.values[arguments.positional + i]));
        }
        // Parameters may have been left out before these.
        for (std::size_t i = nextParameter_; i < member_.parameters.size(); ++i) {
            if (!member_.parameters[i].out) continue;
            names_.push_back(static_cast<std::int32_t>(i));
            addOutput(i);
        }
    }

    void addOutput(std::size_t parameter) {
        Variant& variable = variables_.emplace_back();
        outputs_.emplace_back(&member_.parameters[parameter], &variable);
        values_.push_back(Variant::byReference(variable));
    }

    void passArrayByReference(Variant& value) {
        if (!value.isArray()) return;
        SafeArray& kept = arrays_.emplace_back(std::move(value.array()));
        value = Variant::byReference(kept);
    }

    [[nodiscard]] std::size_t parameterOf(const std::string& name) const {
        const std::string_view names[] = {member_.name, name};
        std::int32_t ids[2] = {memberid::unknown, memberid::unknown};
        (void)type_.table->idsOfNames(names, ids);
        const auto parameter = static_cast<std::size_t>(ids[1]);
        if (ids[1] != memberid::unknown && !member_.parameters[parameter].out) return parameter;
        setLastStatus(status::unknownName);
        throwFailure(status::unknownName, type_.source, std::string(member_.name) + " has no argument '" + name + "'.");
    }

    const InterfaceType& type_;
    const MemberInfo& member_;
    std::vector<Variant> values_;
    std::vector<std::int32_t> names_;
    std::vector<Variant> variables_;  // outputs
    std::vector<SafeArray> arrays_;   // passed by reference
    std::vector<Output> outputs_;
    std::size_t nextParameter_ = 0;  // behind the last one given by position
};

/// Whether every argument is a plain value by position, which most calls are.
bool isPlain(const MemberInfo& member, const PythonArguments& arguments) {
    return arguments.names == nullptr && std::ranges::none_of(member.parameters, [](const MemberParameter& info) {
               return info.out || info.variadic;
           });
}

/// The arguments of a plain call, without memory of their own.
template <std::size_t most>
class PlainArguments {
public:
    PlainArguments(const MemberInfo& member, const PythonArguments& arguments) {
        for (; count_ < arguments.positional; ++count_) {
            const bool known = count_ < member.parameters.size();
            values_[count_] = argumentOf(known ? &member.parameters[count_] : nullptr, arguments.values[count_]);
        }
    }
    void add(PyObject* value) { values_[count_++] = toVariant(value); }
    [[nodiscard]] InvokeArguments get() const { return {std::span(values_).first(count_), {}}; }

private:
    std::array<Variant, most> values_;
    std::size_t count_ = 0;
};

constexpr std::size_t mostPlain = 6;

}  // namespace

py::object callMember(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments) {
    checkLabels(proxy, member, arguments, nullptr);
    Invocation call(proxy, member);
    if (arguments.positional <= mostPlain && isPlain(member, arguments)) {
        const PlainArguments<mostPlain> list(member, arguments);
        const Status ended = call.run(list.get());
        return ended.isOk() ? toPython(std::move(call.result), member.resultEnumeration) : py::none();
    }
    ArgumentList list(proxy, member, arguments);
    const Status ended = call.run(list.get());
    const bool isAtEnd = ended == IEnumVARIANT::fewerLeft && member.result == ValueType::None;
    if (!ended.isOk() && !(isAtEnd && list.hasOutputs())) return py::none();
    if (!list.hasOutputs()) return toPython(std::move(call.result), member.resultEnumeration);
    py::list outputs;
    if (member.result != ValueType::None) outputs.append(toPython(std::move(call.result), member.resultEnumeration));
    list.appendOutputs(outputs);
    return py::tuple(outputs);
}

void putMember(const Proxy& proxy, const MemberInfo& member, const PythonArguments& arguments, PyObject* value) {
    checkLabels(proxy, member, arguments, value);
    Invocation call(proxy, member);
    if (arguments.positional < mostPlain && isPlain(member, arguments)) {
        PlainArguments<mostPlain> list(member, arguments);
        list.add(value);
        (void)call.run(list.get());
        return;
    }
    ArgumentList list(proxy, member, arguments);
    list.addPutValue(value);
    (void)call.run(list.get());
}

py::list getNumbered(const Proxy& proxy, const MemberInfo& member, std::int32_t first, std::int32_t count) {
    py::list all;
    std::array numbers{Variant(first), Variant()};
    for (std::int32_t number = 1; number <= count; ++number) {
        numbers.back() = Variant(number);
        Invocation call(proxy, member);
        (void)call.run({numbers, {}});
        all.append(toPython(std::move(call.result), member.resultEnumeration));
    }
    return all;
}

SubscriptArguments::SubscriptArguments(PyObject* key) : single_(key) {
    const auto meaning = [&](PyObject* index) {
        if (!PySlice_Check(index)) return index;
        const auto* range = reinterpret_cast<PySliceObject*>(index);
        if (range->start != Py_None || range->stop != Py_None || range->step != Py_None) {
            throw py::type_error("only a full slice, ':', can stand for an index");
        }
        if (!missing_) missing_ = missingArgument();
        return missing_.ptr();
    };
    if (PyTuple_Check(key)) {
        several_.resize(static_cast<std::size_t>(PyTuple_GET_SIZE(key)));
        for (std::size_t i = 0; i < several_.size(); ++i) {
            several_[i] = meaning(PyTuple_GET_ITEM(key, static_cast<Py_ssize_t>(i)));
        }
        values_ = several_;
    } else {
        single_ = meaning(key);
        values_ = std::span(&single_, 1);
    }
}

}  // namespace tarq::python
