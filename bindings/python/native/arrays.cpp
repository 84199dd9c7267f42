#include "arrays.h"

#include <pybind11/numpy.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "failures.h"
#include "values.h"

namespace tarq::python {
namespace {

/// Nested lists and arrays of whatever depth end here rather than on the stack's last page, also where a program has
/// raised the interpreter's own limit.
class RecursionGuard {
public:
    RecursionGuard() {
        constexpr int deepest = 1000;
        if (depth >= deepest) {
            PyErr_SetString(PyExc_RecursionError, "lists or arrays are nested too deeply");
            throw py::error_already_set();
        }
        if (Py_EnterRecursiveCall(" while converting lists") != 0) throw py::error_already_set();
        ++depth;
    }
    RecursionGuard(const RecursionGuard&) = delete;
    RecursionGuard& operator=(const RecursionGuard&) = delete;
    ~RecursionGuard() {
        --depth;
        Py_LeaveRecursiveCall();
    }

private:
    static thread_local int depth;
};

thread_local int RecursionGuard::depth = 0;

py::module_ numPy() { return py::module_::import("numpy"); }

/// The module when somebody has imported it.
py::object loadedNumPy() {
    static auto* const name = PyUnicode_InternFromString("numpy");
    PyObject* const found = PyDict_GetItemWithError(PyImport_GetModuleDict(), name);
    return found == nullptr ? py::none() : py::reinterpret_borrow<py::object>(found);
}

bool isNumPyScalar(py::handle value) {
    const py::object module = loadedNumPy();
    return !module.is_none() && checked(PyObject_IsInstance(value.ptr(), module.attr("generic").ptr())) != 0;
}

SafeArray newArray(Kind kind, std::span<const Dimension> dimensions) {
    SafeArray array;
    if (const Status made = SafeArray::create(kind, dimensions, array); !made.isOk()) throwFailure(made, {});
    return array;
}

struct TypedKind {
    std::string_view code;  ///< of the element type: kind letter and size, as NumPy's `dtype.str` without byte order
    Kind kind;
};
constexpr TypedKind typedKinds[] = {
    {"u1", Kind::UInt8},  {"i1", Kind::Int8},  {"i2", Kind::Short},  {"u2", Kind::UInt16}, {"i4", Kind::Long},
    {"u4", Kind::UInt32}, {"i8", Kind::Int64}, {"f4", Kind::Single}, {"f8", Kind::Double},
};

/// The elements of a numeric array as bytes; empty for one of another kind. `visit` gets a span of bytes.
template <class Visitor>
bool visitBytes(SafeArray& array, const Visitor& visit) {
    const auto pass = [&](auto elements) { visit(std::as_writable_bytes(elements)); };
    switch (array.elementKind()) {
        case Kind::UInt8:
            return pass(array.elements<std::uint8_t>()), true;
        case Kind::Int8:
            return pass(array.elements<std::int8_t>()), true;
        case Kind::Short:
            return pass(array.elements<std::int16_t>()), true;
        case Kind::UInt16:
            return pass(array.elements<std::uint16_t>()), true;
        case Kind::Long:
        case Kind::Int:
            return pass(array.elements<std::int32_t>()), true;
        case Kind::UInt32:
        case Kind::UInt:
            return pass(array.elements<std::uint32_t>()), true;
        case Kind::Int64:
            return pass(array.elements<std::int64_t>()), true;
        case Kind::Single:
            return pass(array.elements<float>()), true;
        case Kind::Double:
            return pass(array.elements<double>()), true;
        default:
            return false;
    }
}

/// What NumPy array a typed array is made from: itself for the types that have a kind of their own, an array of int32
/// for other whole numbers that all fit, an array of float64 for the rest. None for what isn't numeric.
py::object typedForm(const py::object& array) {
    const py::object dtype = array.attr("dtype");
    const auto kind = dtype.attr("kind").cast<std::string>();
    const auto size = dtype.attr("itemsize").cast<int>();
    const auto as = [&](const char* type) { return numPy().attr("ascontiguousarray")(array, py::arg("dtype") = type); };
    if (kind == "f") return as(size == 4 ? "=f4" : "=f8");
    if (kind == "i" && (size == 2 || size == 4)) return as(size == 2 ? "=i2" : "=i4");
    if (kind == "u" && size == 1) return as("u1");
    if (kind != "i" && kind != "u") return py::none();
    if (array.attr("size").cast<Py_ssize_t>() == 0) return as("=i4");
    const py::object smallest = array.attr("min")();
    const py::object largest = array.attr("max")();
    const bool fits = smallest.attr("__ge__")(std::numeric_limits<std::int32_t>::min()).cast<bool>() &&
                      largest.attr("__le__")(std::numeric_limits<std::int32_t>::max()).cast<bool>();
    return as(fits ? "=i4" : "=f8");
}

std::vector<Dimension> dimensionsOf(const py::object& array) {
    std::vector<Dimension> dimensions;
    for (const py::handle length : array.attr("shape")) {
        dimensions.push_back(Dimension{0, length.cast<std::uint32_t>()});
    }
    return dimensions;
}

SafeArray copyBuffer(const py::object& array) {
    const auto code = array.attr("dtype").attr("str").cast<std::string>().substr(1);
    const auto* known = std::ranges::find(typedKinds, std::string_view(code), &TypedKind::code);
    SafeArray copy = newArray(known->kind, dimensionsOf(array));
    Py_buffer view;
    checked(PyObject_GetBuffer(array.ptr(), &view, PyBUF_C_CONTIGUOUS));
    const std::unique_ptr<Py_buffer, void (*)(Py_buffer*)> released(&view, PyBuffer_Release);
    visitBytes(copy, [&](std::span<std::byte> bytes) {
        if (!bytes.empty()) std::memcpy(bytes.data(), view.buf, bytes.size());
    });
    return copy;
}

bool isNested(PyObject* value) { return PyList_Check(value) || PyTuple_Check(value); }

/// The shape that a list has when all its elements have one shape; else only its length.
std::vector<Dimension> shapeOf(PyObject* list) {
    const RecursionGuard guard;
    const py::object items = owned(PySequence_Fast(list, "a sequence was expected"));
    const auto length = PySequence_Fast_GET_SIZE(items.ptr());
    if (length > std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
    std::vector<Dimension> shape{Dimension{0, static_cast<std::uint32_t>(length)}};
    std::vector<Dimension> inner;
    for (Py_ssize_t i = 0; i < length; ++i) {
        PyObject* const item = PySequence_Fast_GET_ITEM(items.ptr(), i);
        if (!isNested(item)) return shape;
        std::vector<Dimension> found = shapeOf(item);
        if (i > 0 && found != inner) return shape;
        inner = std::move(found);
    }
    shape.insert(shape.end(), inner.begin(), inner.end());
    return shape;
}

/// Puts the elements of a list and of the lists in it, `depth` levels down, into `target` from `position` on.
void fill(PyObject* list, std::size_t depth, SafeArray& target, std::size_t& position) {
    const py::object items = owned(PySequence_Fast(list, "a sequence was expected"));
    for (Py_ssize_t i = 0; i < PySequence_Fast_GET_SIZE(items.ptr()); ++i) {
        const auto item = py::reinterpret_borrow<py::object>(PySequence_Fast_GET_ITEM(items.ptr(), i));
        if (depth > 1) {
            fill(item.ptr(), depth - 1, target, position);
        } else if (const Status put = target.putAt(position++, toVariant(item)); !put.isOk()) {
            throwFailure(put, {}, "The list changed while it was read.");
        }
    }
}

py::list nestedLists(const SafeArray& array, std::size_t dimension, std::size_t& position) {
    const RecursionGuard guard;
    py::list list;
    const std::span<const Dimension> dimensions = array.dimensions();
    for (std::uint32_t i = 0; i < dimensions[dimension].length; ++i) {
        if (dimension + 1 < dimensions.size()) {
            list.append(nestedLists(array, dimension + 1, position));
            continue;
        }
        Variant element;
        if (const Status read = array.getAt(position++, element); !read.isOk()) throwFailure(read, {});
        list.append(toPython(std::move(element)));
    }
    return list;
}

}  // namespace

bool isFromNumPy(py::handle value) {
    return isNumPyScalar(value) || (PyType_Check(value.ptr()) == 0 && py::hasattr(value, "__array__"));
}

Variant numPyToVariant(py::handle value) {
    const RecursionGuard guard;  // an array of objects may hold itself
    const py::object array = numPy().attr("asarray")(value);
    if (array.attr("ndim").cast<int>() == 0) {
        const py::object item = array.attr("item")();
        // A kind of number that Python doesn't have, such as the long double, stays as it is.
        return isNumPyScalar(item) ? toVariant(py::float_(item)) : toVariant(item);
    }
    const py::object typed = typedForm(array);
    if (!typed.is_none()) return Variant(copyBuffer(typed));
    SafeArray list = newArray(Kind::Variant, dimensionsOf(array));
    std::size_t position = 0;
    fill(py::object(array.attr("tolist")()).ptr(), list.dimensions().size(), list, position);
    return Variant(std::move(list));
}

SafeArray sequenceToArray(py::handle sequence) {
    const RecursionGuard guard;
    const std::vector<Dimension> shape = shapeOf(sequence.ptr());
    SafeArray array = newArray(Kind::Variant, shape);
    std::size_t position = 0;
    fill(sequence.ptr(), shape.size(), array, position);
    return array;
}

py::object arrayToPython(SafeArray array) {
    if (array.dimensions().empty()) return py::list();
    auto storage = std::make_unique<SafeArray>(std::move(array));
    std::span<std::byte> bytes;
    if (!visitBytes(*storage, [&](std::span<std::byte> found) { bytes = found; })) {
        std::size_t position = 0;
        return nestedLists(*storage, 0, position);
    }
    const Kind kind = storage->elementKind() == Kind::Int    ? Kind::Long
                      : storage->elementKind() == Kind::UInt ? Kind::UInt32
                                                             : storage->elementKind();
    std::vector<py::ssize_t> shape;
    for (const Dimension& dimension : storage->dimensions()) shape.push_back(dimension.length);
    const py::dtype type(std::string(std::ranges::find(typedKinds, kind, &TypedKind::kind)->code));
    if (bytes.empty()) return py::array(type, shape);
    const py::capsule owner(storage.release(), [](void* kept) { delete static_cast<SafeArray*>(kept); });  // NOLINT
    return py::array(type, shape, bytes.data(), owner);
}

}  // namespace tarq::python
