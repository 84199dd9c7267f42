#include "member.h"

#include <cstddef>
#include <string>

#include "call.h"
#include "description.h"
#include "proxy.h"

namespace tarq::python {
namespace {

/// In a type: one member of its interface.
struct Descriptor {
    PyObject_HEAD vectorcallfunc vectorcall;
    const InterfaceType* type;
    const MemberInfo* call;  ///< the method or the get, null for a property that can only be put
    const MemberInfo* put;   ///< null for a method and for a property that can only be got
    bool isMethod;
    bool isIndexed;  ///< a property with arguments
};

/// `m.AddCol`, or a property with arguments such as `m.ColLB`: a member together with its object.
struct BoundMember {
    PyObject_HEAD vectorcallfunc vectorcall;
    PyObject* proxy;
    Descriptor* member;
};

struct MemberTypes {
    PyTypeObject* method = nullptr;
    PyTypeObject* property = nullptr;
    PyTypeObject* bound = nullptr;
};

MemberTypes& types() {
    static MemberTypes all;
    return all;
}

Descriptor& descriptorOf(PyObject* self) { return *reinterpret_cast<Descriptor*>(self); }
BoundMember& boundOf(PyObject* self) { return *reinterpret_cast<BoundMember*>(self); }
const MemberInfo& infoOf(const Descriptor& member) { return member.call != nullptr ? *member.call : *member.put; }
py::str nameOf(const Descriptor& member) {
    const std::string_view name = infoOf(member).name;
    return {name.data(), name.size()};
}
std::string typeName(const Descriptor& member) {
    return reinterpret_cast<PyTypeObject*>(member.type->type.ptr())->tp_name;
}

const Proxy& proxyFor(const Descriptor& member, PyObject* object) {
    if (isProxy(object) && proxyOf(object).type == member.type) return proxyOf(object);
    throw py::type_error("a " + typeName(member) + " was expected");
}

const MemberInfo& callable(const Descriptor& member) {
    if (member.call != nullptr) return *member.call;
    throw py::attribute_error(std::string(infoOf(member).name) + " can only be set");
}

const MemberInfo& settable(const Descriptor& member) {
    if (member.put != nullptr) return *member.put;
    throw py::attribute_error(std::string(infoOf(member).name) + " can't be set");
}

// Calls. The interpreter passes the object first when it calls a method through its descriptor.

PyObject* callDescriptor(PyObject* self, PyObject* const* arguments, std::size_t flaggedCount, PyObject* names) {
    return guarded<PyObject*>(nullptr, [&] {
        const Descriptor& member = descriptorOf(self);
        const auto count = static_cast<std::size_t>(PyVectorcall_NARGS(flaggedCount));
        if (count == 0)
            throw py::type_error("the object is missing that " + std::string(infoOf(member).name) + " belongs to");
        return callMember(proxyFor(member, arguments[0]), callable(member), {arguments + 1, count - 1, names})
            .release()
            .ptr();
    });
}

PyObject* callBound(PyObject* self, PyObject* const* arguments, std::size_t flaggedCount, PyObject* names) {
    return guarded<PyObject*>(nullptr, [&] {
        const BoundMember& bound = boundOf(self);
        const auto count = static_cast<std::size_t>(PyVectorcall_NARGS(flaggedCount));
        return callMember(proxyOf(bound.proxy), callable(*bound.member), {arguments, count, names}).release().ptr();
    });
}

PyObject* subscriptBound(PyObject* self, PyObject* key) {
    return guarded<PyObject*>(nullptr, [&] {
        const BoundMember& bound = boundOf(self);
        if (bound.member->isMethod)
            throw py::type_error(std::string(infoOf(*bound.member).name) + " is called, not subscripted");
        return callMember(proxyOf(bound.proxy), callable(*bound.member), SubscriptArguments(key).get()).release().ptr();
    });
}

int assignBound(PyObject* self, PyObject* key, PyObject* value) {
    return guarded(-1, [&] {
        const BoundMember& bound = boundOf(self);
        if (value == nullptr) throw py::type_error("a value can't be deleted");
        putMember(proxyOf(bound.proxy), settable(*bound.member), SubscriptArguments(key).get(), value);
        return 0;
    });
}

// Descriptors.

PyObject* bind(Descriptor& member, PyObject* object) {
    auto* const bound = checked(PyObject_GC_New(BoundMember, types().bound));
    bound->vectorcall = callBound;
    bound->proxy = Py_NewRef(object);
    bound->member = reinterpret_cast<Descriptor*>(Py_NewRef(reinterpret_cast<PyObject*>(&member)));
    PyObject_GC_Track(bound);
    return reinterpret_cast<PyObject*>(bound);
}

PyObject* getDescriptor(PyObject* self, PyObject* object, PyObject* /*type*/) {
    if (object == nullptr || object == Py_None) return Py_NewRef(self);
    return guarded<PyObject*>(nullptr, [&] {
        Descriptor& member = descriptorOf(self);
        const Proxy& proxy = proxyFor(member, object);
        if (member.isMethod || member.isIndexed) return bind(member, object);
        return callMember(proxy, callable(member), {}).release().ptr();
    });
}

int setDescriptor(PyObject* self, PyObject* object, PyObject* value) {
    return guarded(-1, [&] {
        const Descriptor& member = descriptorOf(self);
        if (value == nullptr) throw py::attribute_error(std::string(infoOf(member).name) + " can't be deleted");
        putMember(proxyFor(member, object), settable(member), {}, value);
        return 0;
    });
}

void deallocateDescriptor(PyObject* self) {
    PyTypeObject* const type = Py_TYPE(self);
    type->tp_free(self);
    Py_DECREF(type);
}

int traverseBound(PyObject* self, visitproc visit, void* arg) {
    Py_VISIT(Py_TYPE(self));
    Py_VISIT(boundOf(self).proxy);
    return 0;
}

void deallocateBound(PyObject* self) {
    PyObject_GC_UnTrack(self);
    PyTypeObject* const type = Py_TYPE(self);
    Py_CLEAR(boundOf(self).proxy);
    Py_DECREF(reinterpret_cast<PyObject*>(boundOf(self).member));
    PyObject_GC_Del(self);
    Py_DECREF(type);
}

PyObject* compareBound(PyObject* left, PyObject* right, int operation) {
    if ((operation != Py_EQ && operation != Py_NE) || Py_TYPE(left) != Py_TYPE(right)) Py_RETURN_NOTIMPLEMENTED;
    if (boundOf(left).member != boundOf(right).member) return PyBool_FromLong(operation == Py_NE);
    return PyObject_RichCompare(boundOf(left).proxy, boundOf(right).proxy, operation);
}

Py_hash_t hashBound(PyObject* self) {
    const Py_hash_t hash = PyObject_Hash(boundOf(self).proxy);
    return hash == -1 ? -1
                      : (hash ^ static_cast<Py_hash_t>(reinterpret_cast<std::uintptr_t>(boundOf(self).member) >> 4U));
}

// What a member tells of itself; the same for descriptors and bound members.

template <const Descriptor& (*memberOf)(PyObject*)>
struct Told {
    static PyObject* name(PyObject* self, void* /*closure*/) {
        return guarded<PyObject*>(nullptr, [&] { return nameOf(memberOf(self)).release().ptr(); });
    }
    static PyObject* qualifiedName(PyObject* self, void* /*closure*/) {
        return guarded<PyObject*>(nullptr, [&] {
            const Descriptor& member = memberOf(self);
            return py::str("{}.{}").format(member.type->type.attr("__name__"), nameOf(member)).release().ptr();
        });
    }
    static PyObject* module(PyObject* /*self*/, void* /*closure*/) { return PyUnicode_InternFromString("tarq"); }
    static PyObject* ownerType(PyObject* self, void* /*closure*/) { return Py_NewRef(memberOf(self).type->type.ptr()); }
    static PyObject* documentation(PyObject* self, void* /*closure*/) {
        return guarded<PyObject*>(nullptr, [&] {
            const Descriptor& member = memberOf(self);
            return documentationOf(member.call, member.put).release().ptr();
        });
    }
    static PyObject* signature(PyObject* self, void* /*closure*/) {
        return guarded<PyObject*>(nullptr, [&] {
            const Descriptor& member = memberOf(self);
            const bool withSelf = Py_TYPE(self) != types().bound;
            return signatureOf(infoOf(member), withSelf).release().ptr();
        });
    }
};

const Descriptor& itself(PyObject* self) { return descriptorOf(self); }
const Descriptor& ofBound(PyObject* self) { return *boundOf(self).member; }

template <const Descriptor& (*memberOf)(PyObject*)>
PyGetSetDef told[] = {
    {"__name__", Told<memberOf>::name, nullptr, nullptr, nullptr},
    {"__qualname__", Told<memberOf>::qualifiedName, nullptr, nullptr, nullptr},
    {"__module__", Told<memberOf>::module, nullptr, nullptr, nullptr},
    {"__objclass__", Told<memberOf>::ownerType, nullptr, nullptr, nullptr},
    {"__doc__", Told<memberOf>::documentation, nullptr, nullptr, nullptr},
    {"__signature__", Told<memberOf>::signature, nullptr, nullptr, nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyObject* representDescriptor(PyObject* self) {
    return guarded<PyObject*>(nullptr, [&] {
        const Descriptor& member = descriptorOf(self);
        return py::str("<{} {} of {}>")
            .format(member.isMethod ? "method" : "property", nameOf(member), typeName(member))
            .release()
            .ptr();
    });
}

PyObject* representBound(PyObject* self) {
    return guarded<PyObject*>(nullptr, [&] {
        const BoundMember& bound = boundOf(self);
        const py::str kind(bound.member->isMethod ? "method" : "property");
        return py::str("<{} {} of {}>")
            .format(kind, nameOf(*bound.member), py::repr(py::handle(bound.proxy)))
            .release()
            .ptr();
    });
}

template <std::size_t offset>
PyMemberDef vectorcallOffset[] = {
    {"__vectorcalloffset__", T_PYSSIZET, offset, READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

PyMemberDef boundMembers[] = {
    {"__vectorcalloffset__", T_PYSSIZET, offsetof(BoundMember, vectorcall), READONLY, nullptr},
    {"__self__", T_OBJECT, offsetof(BoundMember, proxy), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr},
};

PyTypeObject* makeType(PyType_Spec spec) { return reinterpret_cast<PyTypeObject*>(checked(PyType_FromSpec(&spec))); }

PyTypeObject* makeMethodType() {
    PyType_Slot slots[] = {
        slot(Py_tp_descr_get, getDescriptor),
        slot(Py_tp_call, PyVectorcall_Call),
        slot(Py_tp_members, vectorcallOffset<offsetof(Descriptor, vectorcall)>),
        slot(Py_tp_getset, told<itself>),
        slot(Py_tp_repr, representDescriptor),
        slot(Py_tp_dealloc, deallocateDescriptor),
        {0, nullptr},
    };
    return makeType({"tarq._tarq.Method", sizeof(Descriptor), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_METHOD_DESCRIPTOR |
                         Py_TPFLAGS_DISALLOW_INSTANTIATION,
                     slots});
}

PyTypeObject* makePropertyType() {
    PyType_Slot slots[] = {
        slot(Py_tp_descr_get, getDescriptor),      slot(Py_tp_descr_set, setDescriptor),
        slot(Py_tp_getset, told<itself>),          slot(Py_tp_repr, representDescriptor),
        slot(Py_tp_dealloc, deallocateDescriptor), {0, nullptr},
    };
    return makeType(
        {"tarq._tarq.Property", sizeof(Descriptor), 0, Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots});
}

PyTypeObject* makeBoundType() {
    PyType_Slot slots[] = {
        slot(Py_tp_call, PyVectorcall_Call),
        slot(Py_mp_subscript, subscriptBound),
        slot(Py_mp_ass_subscript, assignBound),
        slot(Py_tp_members, boundMembers),
        slot(Py_tp_getset, told<ofBound>),
        slot(Py_tp_repr, representBound),
        slot(Py_tp_richcompare, compareBound),
        slot(Py_tp_hash, hashBound),
        slot(Py_tp_traverse, traverseBound),
        slot(Py_tp_dealloc, deallocateBound),
        {0, nullptr},
    };
    return makeType(
        {"tarq._tarq.BoundMember", sizeof(BoundMember), 0,
         Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_DISALLOW_INSTANTIATION,
         slots});
}

}  // namespace

void makeMemberTypes() { types() = {makeMethodType(), makePropertyType(), makeBoundType()}; }

py::object makeDescriptor(const InterfaceType& type, const MemberInfo& first) {
    const bool isMethod = first.kind == MemberKind::Method;
    auto* const made = checked(PyObject_New(Descriptor, isMethod ? types().method : types().property));
    made->vectorcall = callDescriptor;
    made->type = &type;
    made->isMethod = isMethod;
    made->call = isMethod ? &first : type.table->find(first.id, invoke::get);
    made->put = isMethod ? nullptr : type.table->find(first.id, invoke::put);
    const std::size_t arguments = infoOf(*made).parameters.size() - (made->call == nullptr ? 1 : 0);
    made->isIndexed = arguments > 0;
    return py::reinterpret_steal<py::object>(reinterpret_cast<PyObject*>(made));
}

}  // namespace tarq::python
