"""Values on their way to the component and back, seen by an object that describes what it gets."""

import array
import sys

import numpy
import pytest

import _collection
import tarq

EMPTY, SHORT, LONG, SINGLE, DOUBLE, TEXT, BOOL, VARIANT, UINT8, INT64 = 0, 2, 3, 4, 5, 8, 11, 12, 17, 20


class Unknown:
    """A class that the package knows nothing of, though it can be subscripted."""

    def __getitem__(self, index):
        raise IndexError


def endless_list():
    endless = []
    endless.append(endless)
    return endless


def endless_array(shape):
    endless = numpy.empty(shape, object)
    endless[(0,) * endless.ndim] = endless
    return endless


@pytest.fixture
def collection():
    return _collection.make()


@pytest.mark.parametrize(
    "value, words",
    [
        (True, f"{BOOL} -1"),
        (7, f"{LONG} 7"),
        (-(2**31), f"{LONG} -2147483648"),
        (2**31, f"{DOUBLE} 2147483648"),
        (2.5, f"{DOUBLE} 2.5"),
        ("zwölf", f"{TEXT} zwölf"),
        (None, f"{EMPTY}"),
        (tarq.Missing, "Missing"),
        (tarq.Binary, f"{LONG} 2"),
        (numpy.int16(3), f"{LONG} 3"),
        (numpy.float32(0.5), f"{DOUBLE} 0.5"),
        (numpy.bool_(True), f"{BOOL} -1"),
        (numpy.str_("a"), f"{TEXT} a"),
        (numpy.array(4.5), f"{DOUBLE} 4.5"),
        (numpy.longdouble(1.5), f"{DOUBLE} 1.5"),
        ([], f"array of {VARIANT} 0..-1:"),
        ([1, "b", None], f"array of {VARIANT} 0..2: {LONG} 1 {TEXT} b {EMPTY}"),
        (((1, 2, 3), [4, 5, 6]), f"array of {VARIANT} 0..1 0..2: {LONG} 1 {LONG} 2 {LONG} 3 {LONG} 4 {LONG} 5 {LONG} 6"),
        (
            [[1], [2, 3]],
            f"array of {VARIANT} 0..1: array of {VARIANT} 0..0: {LONG} 1 array of {VARIANT} 0..1: {LONG} 2 {LONG} 3",
        ),
        (range(2), f"array of {VARIANT} 0..1: {LONG} 0 {LONG} 1"),
        (array.array("d", [1.5]), f"array of {VARIANT} 0..0: {DOUBLE} 1.5"),
        (numpy.array([1, 2], "u1"), f"array of {UINT8} 0..1: {UINT8} 1 {UINT8} 2"),
        (numpy.array([1, 2], "i2"), f"array of {SHORT} 0..1: {SHORT} 1 {SHORT} 2"),
        (numpy.array([1, 2], "i4"), f"array of {LONG} 0..1: {LONG} 1 {LONG} 2"),
        (numpy.array([1, 2], "i8"), f"array of {LONG} 0..1: {LONG} 1 {LONG} 2"),
        (numpy.array([1, 2**40], "i8"), f"array of {DOUBLE} 0..1: {DOUBLE} 1 {DOUBLE} 1099511627776"),
        (numpy.array([2**31], "u4"), f"array of {DOUBLE} 0..0: {DOUBLE} 2147483648"),
        (numpy.array([2**31 - 1], "u8"), f"array of {LONG} 0..0: {LONG} 2147483647"),
        (numpy.array([0.5], "f4"), f"array of {SINGLE} 0..0: {SINGLE} 0.5"),
        (numpy.array([0.5], ">f8"), f"array of {DOUBLE} 0..0: {DOUBLE} 0.5"),
        (numpy.arange(6.0).reshape(2, 3).T, f"array of {DOUBLE} 0..2 0..1: " + " ".join(f"{DOUBLE} {v}" for v in (0, 3, 1, 4, 2, 5))),
        (numpy.array([True]), f"array of {VARIANT} 0..0: {BOOL} -1"),
        (numpy.array([["a"], ["b"]]), f"array of {VARIANT} 0..1 0..0: {TEXT} a {TEXT} b"),
        (numpy.zeros((0, 2)), f"array of {DOUBLE} 0..-1 0..1:"),
        (numpy.array([1j]), f"array of {VARIANT} 0..0: Object"),
        (Unknown(), "Object"),
        ({1: 2}, "Object"),
        (tarq.TARQModel(), "Object"),
    ],
)
def test_python_values_become_kinds(collection, value, words):
    assert collection.Describe(value) == words


@pytest.mark.parametrize(
    "value, error",
    [
        (10**400, OverflowError),
        ("\ud800", UnicodeEncodeError),
        (endless_list(), RecursionError),
        (endless_array(1), RecursionError),
        (endless_array(()), RecursionError),
    ],
    ids=["int", "text", "list", "array", "array without dimensions"],
)
def test_values_that_no_kind_holds_are_refused(collection, value, error):
    limit = sys.getrecursionlimit()
    sys.setrecursionlimit(10**6)  # a program that wants deep recursion must not get it on the stack
    try:
        with pytest.raises(error):
            collection.Describe(value)
    finally:
        sys.setrecursionlimit(limit)


def test_arrays_travel_by_reference_only_in_a_variadic_list(collection):
    words = collection.DescribeAll("; ", [1], numpy.array([2.0]), 3, tarq.Missing, None)
    assert words == (
        f"reference to array of {VARIANT} 0..0: {LONG} 1; reference to array of {DOUBLE} 0..0: {DOUBLE} 2; "
        f"{LONG} 3; Missing; {EMPTY}"
    )
    assert collection.DescribeAll("; ") == ""


def test_none_is_the_missing_argument_only_where_one_may_be_left_out(collection):
    assert collection.DescribeOptional() == collection.DescribeOptional(None) == "Missing"
    assert collection.Describe(None) == str(EMPTY)


@pytest.mark.parametrize("value", [True, -5, 2.25, "text", "gr\udcfcn", None, 2**40 + 0.0, [[1, 2], [3, "x"]], [1, [2]]])
def test_values_come_back_as_they_were(collection, value):
    same = collection.Echo(value)
    assert same == value and type(same) is type(value)


@pytest.mark.parametrize(
    "kind, dtype", [(2, "i2"), (3, "i4"), (4, "f4"), (5, "f8"), (16, "i1"), (17, "u1"), (18, "u2"), (19, "u4"), (20, "i8"), (22, "i4"), (23, "u4")]
)
def test_numeric_arrays_become_numpy_arrays_of_their_shape(collection, kind, dtype):
    made = collection.MakeArray(kind, 2, 3)
    assert made.dtype == numpy.dtype(dtype) and made.shape == (2, 3) and not made.any()
    made[1, 2] = 9  # the storage is ours now, and lives as long as the array
    view = made[1:]
    del made
    assert view.sum() == 9


@pytest.mark.parametrize("kind, element", [(8, ""), (9, None), (11, False), (12, None), (7, 0.0), (6, 0.0)])
def test_other_arrays_become_nested_lists(collection, kind, element):
    assert collection.MakeArray(kind, 2, 1) == [[element], [element]]
    assert collection.MakeArray(kind, 0, 1) == []


def test_large_arrays_pass_in_both_directions(collection):
    values = numpy.random.default_rng(1).random((300, 700))
    assert (collection.Echo(values) == values).all()
    assert (collection.Echo(values[::-2, ::3]) == values[::-2, ::3]).all()


def test_objects_keep_their_identity(collection):
    model = tarq.TARQModel()
    collection.Keep(model)
    assert collection.Kept == model and hash(collection.Kept) == hash(model) and collection.Kept != tarq.TARQModel()
    other = Unknown()
    collection.Keep(other)
    assert collection.Kept is other
    collection.Keep(collection.Echo(collection))
    assert collection.Kept == collection
    collection.Keep(model)  # a circle through the component would stay
