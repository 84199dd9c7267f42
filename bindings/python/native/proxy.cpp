#include "proxy.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "call.h"
#include "enumerator.h"
#include "failures.h"
#include "heldobject.h"
#include "member.h"
#include "tarq/component/createobject.h"
#include "text.h"
#include "values.h"

namespace tarq::python {
namespace {

py::object& baseType() {
    static auto* const type = new py::object;  // NOLINT(cppcoreguidelines-owning-memory)
    return *type;
}

/// The types made so far. They stay, as static types do.
std::unordered_map<const InterfaceTable*, std::unique_ptr<InterfaceType>>& interfaceTypes() {
    static auto* const all = new std::unordered_map<const InterfaceTable*, std::unique_ptr<InterfaceType>>;  // NOLINT
    return *all;
}

Proxy& self(PyObject* object) { return *reinterpret_cast<Proxy*>(object); }

bool isSubtype(PyTypeObject* type, const InterfaceType& interface) {
    return PyType_IsSubtype(type, reinterpret_cast<PyTypeObject*>(interface.type.ptr())) != 0;
}

py::module_ presentation() { return py::module_::import("tarq._presentation"); }

[[noreturn]] void throwNoMember(PyObject* object, PyObject* name) {
    const py::object text = presentation().attr("unknown_member")(py::handle(object), py::handle(name));
    throwUnknownName(TextBytes(text).copy(), sourceName(object));
}

// Attributes. Python's own look-up comes first: it knows the members in their own spelling. The other spellings, and
// the hidden members, are in the table.

PyObject* getAttribute(PyObject* object, PyObject* name) {
    PyObject* const found = PyObject_GenericGetAttr(object, name);
    if (found != nullptr || PyErr_ExceptionMatches(PyExc_AttributeError) == 0 || self(object).type == nullptr)
        return found;
    return guarded<PyObject*>(nullptr, [&] {
        py::error_already_set original;
        const TextBytes text(name);
        if (PyObject* const member = self(object).type->descriptor(text.view()); member != nullptr) {
            return checked(Py_TYPE(member)->tp_descr_get(member, object, nullptr));
        }
        // Python itself asks for names like these and expects no long answer.
        if (text.view().starts_with("__")) throw original;
        throwNoMember(object, name);
    });
}

/// An object can become one of another class of the client's own, but not of another interface.
void checkNewClass(PyObject* object, PyObject* newClass) {
    const InterfaceType* type = self(object).type;
    if (newClass == nullptr || PyType_Check(newClass) == 0) return;  // Python refuses these itself
    if (type != nullptr && isSubtype(reinterpret_cast<PyTypeObject*>(newClass), *type)) return;
    throw py::type_error("an object of the component keeps the class of its interface");
}

int setAttribute(PyObject* object, PyObject* name, PyObject* value) {
    return guarded(-1, [&] {
        PyObject* const member =
            self(object).type == nullptr ? nullptr : self(object).type->descriptor(TextBytes(name).view());
        if (member != nullptr && Py_TYPE(member)->tp_descr_set != nullptr) {
            return checked(Py_TYPE(member)->tp_descr_set(member, object, value));
        }
        if (PyUnicode_CompareWithASCIIString(name, "__class__") == 0) checkNewClass(object, value);
        if (PyObject_GenericSetAttr(object, name, value) == 0) return 0;
        const bool isUnknown = member == nullptr && self(object).type != nullptr;
        if (!isUnknown || PyErr_ExceptionMatches(PyExc_AttributeError) == 0) return -1;
        PyErr_Clear();
        throwNoMember(object, name);
    });
}

/// The member behind an operation of the object. A type that a program has put together may offer more operations than
/// the object itself has.
const MemberInfo& memberBehind(PyObject* object, const MemberInfo* InterfaceType::*operation) {
    const InterfaceType* type = self(object).type;
    if (type != nullptr && type->*operation != nullptr) return *(type->*operation);
    throw py::type_error(std::string("this object isn't what its type ") + Py_TYPE(object)->tp_name + " tells");
}

// The default member.

PyObject* subscript(PyObject* object, PyObject* key) {
    return guarded<PyObject*>(nullptr, [&] {
        const MemberInfo& member = memberBehind(object, &InterfaceType::defaultGet);
        const SubscriptArguments arguments(key);
        return callMember(self(object), member, arguments.get()).release().ptr();
    });
}

int assignSubscript(PyObject* object, PyObject* key, PyObject* value) {
    return guarded(-1, [&] {
        if (value == nullptr) throw py::type_error("an element can't be deleted");
        const InterfaceType* type = self(object).type;
        if (type == nullptr || type->defaultPut == nullptr) {
            throw py::type_error("the elements of this object can't be set");
        }
        const SubscriptArguments arguments(key);
        putMember(self(object), *type->defaultPut, arguments.get(), value);
        return 0;
    });
}

PyObject* call(PyObject* object, PyObject* arguments, PyObject* keywords) {
    return guarded<PyObject*>(nullptr, [&] {
        const MemberInfo& member = memberBehind(object, &InterfaceType::defaultGet);
        std::vector<PyObject*> values;
        for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(arguments); ++i) values.push_back(PyTuple_GET_ITEM(arguments, i));
        const std::size_t positional = values.size();
        py::list names;
        if (keywords != nullptr) {
            for (const auto& [name, value] : py::reinterpret_borrow<py::dict>(keywords)) {
                names.append(name);
                values.push_back(value.ptr());
            }
        }
        const py::tuple fixedNames(names);
        PyObject* const passedNames = fixedNames.empty() ? nullptr : fixedNames.ptr();
        return callMember(self(object), member, {values.data(), positional, passedNames}).release().ptr();
    });
}

Py_ssize_t length(PyObject* object) {
    return guarded<Py_ssize_t>(-1, [&] {
        return callMember(self(object), memberBehind(object, &InterfaceType::count), {}).cast<Py_ssize_t>();
    });
}

PyObject* iterate(PyObject* object) {
    return guarded<PyObject*>(nullptr, [&] {
        const MemberInfo& member = memberBehind(object, &InterfaceType::enumerator);
        const std::string& source = self(object).type->source;
        Variant enumerator;
        const Status status =
            self(object).dispatch->Invoke(member.id, static_cast<std::uint16_t>(member.kind), {}, &enumerator, nullptr);
        setLastStatus(status);
        if (status.failed()) throwFailure(status, source);
        if (!enumerator.isObject()) throw py::type_error("the object handed out no enumerator");
        return iteratorOf(Ref<IUnknown>(enumerator.object()), source).release().ptr();
    });
}

// Identity.

PyObject* represent(PyObject* object) {
    return guarded<PyObject*>(nullptr,
                              [&] { return presentation().attr("represent")(py::handle(object)).release().ptr(); });
}

PyObject* compare(PyObject* left, PyObject* right, int operation) {
    if ((operation != Py_EQ && operation != Py_NE) || !isProxy(right)) Py_RETURN_NOTIMPLEMENTED;
    const bool same = self(left).object == self(right).object;
    return PyBool_FromLong(same == (operation == Py_EQ));
}

Py_hash_t hash(PyObject* object) {
    // Objects lie at addresses that are multiples of 16.
    const auto value = static_cast<Py_hash_t>(reinterpret_cast<std::uintptr_t>(self(object).object) >> 4U);
    return value == -1 ? -2 : value;
}

PyObject* refuseCopy(PyObject* /*object*/, PyObject* /*protocol*/) {
    PyErr_SetString(PyExc_TypeError, "an object of the component can't be pickled or copied");
    return nullptr;
}

PyObject* listMembers(PyObject* object, PyObject* /*none*/) {
    return guarded<PyObject*>(nullptr,
                              [&] { return presentation().attr("members")(py::handle(object)).release().ptr(); });
}

// Life.

void give(Proxy& proxy, const Ref<IUnknown>& object, IDispatch* dispatch, const InterfaceType* type) {
    proxy.object = object.get();
    proxy.object->AddRef();
    proxy.dispatch = dispatch;
    if (dispatch != nullptr) dispatch->AddRef();
    proxy.type = type;
}

PyObject* create(PyTypeObject* type, PyObject* arguments, PyObject* keywords) {
    return guarded<PyObject*>(nullptr, [&] {
        const InterfaceType* found = nullptr;
        for (const auto& [table, candidate] : interfaceTypes()) {
            if (!isSubtype(type, *candidate)) continue;
            if (found != nullptr) throw py::type_error("a class can extend one class of the component");
            found = candidate.get();
        }
        if (found == nullptr || found->entry == nullptr) {
            throw py::type_error(std::string("a ") + type->tp_name + " can't be created, the component hands it out");
        }
        // A class of the client's own may take arguments for its __init__.
        const bool isOwn = reinterpret_cast<PyObject*>(type) != found->type.ptr();
        if (!isOwn && (PyTuple_GET_SIZE(arguments) > 0 || (keywords != nullptr && PyDict_Size(keywords) > 0))) {
            throw py::type_error(std::string(type->tp_name) + " takes no arguments");
        }
        clearLastError();
        const Ref<IUnknown> object = createObject(found->entry->name);
        if (!object) throwFailure(lastError() == nullptr ? status::generalFailure : lastError()->status, found->source);
        const auto dispatch = object.query<IDispatch>();
        py::object made = owned(type->tp_alloc(type, 0));
        give(proxyOf(made), object, dispatch.get(), found);
        return made.release().ptr();
    });
}

void deallocate(PyObject* object) {
    PyTypeObject* const type = Py_TYPE(object);
    Proxy& proxy = self(object);
    if (proxy.weakReferences != nullptr) PyObject_ClearWeakRefs(object);
    if (proxy.dispatch != nullptr) proxy.dispatch->Release();
    if (proxy.object != nullptr) proxy.object->Release();
    type->tp_free(object);
    Py_DECREF(type);
}

PyMemberDef members[] = {
    {"__weaklistoffset__", T_PYSSIZET, offsetof(Proxy, weakReferences), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

PyMethodDef methods[] = {
    {"__reduce_ex__", refuseCopy, METH_O, "Refused: an object of the component can't be pickled or copied."},
    {"__dir__", listMembers, METH_NOARGS, "The members in their own spelling, without hidden ones."},
    {nullptr, nullptr, 0, nullptr},
};

void findSpecialMembers(InterfaceType& type) {
    const InterfaceTable& table = *type.table;
    type.defaultGet = table.find(memberid::value, invoke::get | invoke::method);
    type.defaultPut = table.find(memberid::value, invoke::put);
    type.enumerator = table.find(memberid::enumerator, invoke::get | invoke::method);
    const MemberInfo* count = table.find("Count");
    if (count != nullptr && count->kind != MemberKind::Put && count->parameters.empty()) type.count = count;
}

py::object makeType(const InterfaceType& type, const std::string& name) {
    const std::string help(type.table->help());
    std::vector<PyType_Slot> slots{slot(Py_tp_doc, help.c_str())};
    if (type.defaultGet != nullptr) {
        slots.push_back(slot(Py_mp_subscript, subscript));
        slots.push_back(slot(Py_mp_ass_subscript, assignSubscript));
        slots.push_back(slot(Py_tp_call, call));
    }
    if (type.enumerator != nullptr) slots.push_back(slot(Py_tp_iter, iterate));
    if (type.count != nullptr) slots.push_back(slot(Py_mp_length, length));
    slots.push_back({0, nullptr});
    const std::string qualified = "tarq." + name;
    PyType_Spec spec{qualified.c_str(), sizeof(Proxy), 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, slots.data()};
    return owned(PyType_FromSpecWithBases(&spec, baseType().ptr()));
}

void addMembers(InterfaceType& type) {
    const std::span<const MemberInfo> all = type.table->members();
    type.members.resize(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (type.table->find(all[i].name) != &all[i]) continue;
        type.members[i] = makeDescriptor(type, all[i]);
        if (all[i].flags.hidden || all[i].flags.restricted) continue;
        py::setattr(type.type, py::str(all[i].name.data(), all[i].name.size()), type.members[i]);
    }
}

/// What the package itself adds to an interface. It never hides a member, under whatever spelling.
void addHelpers(InterfaceType& type) {
    const py::object name = py::str(type.table->name().data(), type.table->name().size());
    for (const py::handle helper : py::module_::import("tarq._helpers").attr("helpers_of")(name)) {
        const py::object helperName = helper.attr("__name__");
        if (type.descriptor(TextBytes(helperName).view()) == nullptr) py::setattr(type.type, helperName, helper);
    }
}

}  // namespace

PyObject* InterfaceType::descriptor(std::string_view name) const {
    const MemberInfo* first = table->find(name);
    return first == nullptr ? nullptr : members[static_cast<std::size_t>(first - table->members().data())].ptr();
}

py::object makeProxyType() {
    PyType_Slot slots[] = {
        slot(Py_tp_new, create),
        slot(Py_tp_dealloc, deallocate),
        slot(Py_tp_getattro, getAttribute),
        slot(Py_tp_setattro, setAttribute),
        slot(Py_tp_repr, represent),
        slot(Py_tp_richcompare, compare),
        slot(Py_tp_hash, hash),
        slot(Py_tp_members, members),
        slot(Py_tp_methods, methods),
        slot(Py_tp_doc, "An object of the component."),
        {0, nullptr},
    };
    PyType_Spec spec{"tarq.Object", sizeof(Proxy), 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, slots};
    baseType() = owned(PyType_FromSpec(&spec));
    return baseType();
}

const InterfaceType& interfaceType(const InterfaceTable& table) {
    std::unique_ptr<InterfaceType>& known = interfaceTypes()[&table];
    if (known) return *known;
    auto type = std::make_unique<InterfaceType>();
    type->table = &table;
    for (const ClassEntry& entry : classTable()) {
        if (entry.members != nullptr && &entry.members() == &table) type->entry = &entry;
    }
    type->source = type->entry == nullptr ? std::string(table.name()) : type->entry->versionedProgId();
    findSpecialMembers(*type);
    type->type = makeType(*type, std::string(type->entry == nullptr ? table.name() : type->entry->name));
    addMembers(*type);
    addHelpers(*type);
    known = std::move(type);
    return *known;
}

py::object objectToPython(const Ref<IUnknown>& object) {
    if (!object) return py::none();
    if (py::object held = heldIn(object)) return held;
    const auto identity = object.query<IUnknown>();
    const auto dispatch = object.query<IDispatch>();
    const InterfaceTable* table = dispatch ? dispatch->GetMemberTable() : nullptr;
    const InterfaceType* type = table == nullptr ? nullptr : &interfaceType(*table);
    auto* const python = reinterpret_cast<PyTypeObject*>(type == nullptr ? baseType().ptr() : type->type.ptr());
    py::object made = owned(python->tp_alloc(python, 0));
    give(proxyOf(made), identity ? identity : object, dispatch.get(), type);
    return made;
}

bool isProxy(py::handle value) {
    return PyObject_TypeCheck(value.ptr(), reinterpret_cast<PyTypeObject*>(baseType().ptr())) != 0;
}

Ref<IUnknown> objectOf(py::handle proxy) { return Ref<IUnknown>(proxyOf(proxy).object); }

const ClassEntry* classOf(py::handle proxy) {
    return proxyOf(proxy).type == nullptr ? nullptr : proxyOf(proxy).type->entry;
}

std::string sourceName(py::handle proxy) {
    return proxyOf(proxy).type == nullptr ? std::string("tarq") : proxyOf(proxy).type->source;
}

}  // namespace tarq::python
