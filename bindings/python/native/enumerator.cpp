#include "enumerator.h"

#include <new>
#include <string>
#include <utility>

#include "failures.h"
#include "tarq/frame/ienumvariant.h"
#include "values.h"

namespace tarq::python {
namespace {

struct Walk {
    Ref<IEnumVARIANT> elements;
    std::string source;
};

struct Enumerator {
    PyObject_HEAD Walk walk;
};

Walk& walkOf(PyObject* self) { return reinterpret_cast<Enumerator*>(self)->walk; }

PyTypeObject*& enumeratorType() {
    static PyTypeObject* type = nullptr;
    return type;
}

PyObject* nextElement(PyObject* self) {
    return guarded<PyObject*>(nullptr, [&]() -> PyObject* {
        Variant element;
        std::uint32_t fetched = 0;
        const Status status = walkOf(self).elements->Next(1, &element, &fetched);
        setLastStatus(status);
        if (status.failed()) throwFailure(status, walkOf(self).source);
        // Only the status tells whether there was one: the count of a series is one too high.
        if (!status.isOk()) return nullptr;  // without an exception: the end
        return toPython(std::move(element)).release().ptr();
    });
}

void deallocateEnumerator(PyObject* self) {
    PyTypeObject* const type = Py_TYPE(self);
    walkOf(self).~Walk();
    type->tp_free(self);
    Py_DECREF(type);
}

}  // namespace

void makeEnumeratorType() {
    PyType_Slot slots[] = {
        slot(Py_tp_iter, PyObject_SelfIter),
        slot(Py_tp_iternext, nextElement),
        slot(Py_tp_dealloc, deallocateEnumerator),
        {0, nullptr},
    };
    PyType_Spec spec{"tarq._tarq.Enumerator", sizeof(Enumerator), 0,
                     Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION, slots};
    enumeratorType() = reinterpret_cast<PyTypeObject*>(checked(PyType_FromSpec(&spec)));
}

py::object iteratorOf(const Ref<IUnknown>& enumerator, const std::string& source) {
    auto elements = enumerator.query<IEnumVARIANT>();
    if (!elements) throw py::type_error("the object handed out no enumerator");
    auto* const made = checked(PyObject_New(Enumerator, enumeratorType()));
    new (&made->walk) Walk{std::move(elements), source};
    return py::reinterpret_steal<py::object>(reinterpret_cast<PyObject*>(made));
}

}  // namespace tarq::python
