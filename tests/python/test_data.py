"""Arrays, sets and series as Python values: shown, walked, and on their way to NumPy and pandas and back."""

import contextlib
import itertools
import subprocess
import sys
import types

import numpy
import openpyxl
import pandas
import pytest

import tarq
from tarq.spreadsheet import Range, write


def array_of(values, *indexsets):
    made = tarq.TARQArray()
    made.Init(*indexsets)
    made.Value = values
    return made


def set_of(*values):
    made = tarq.TARQSet()
    made.Add(*values)
    return made


def series_of(*limits):
    made = tarq.TARQSeries()
    made.Init(*limits)
    return made


def empty(*indexsets):
    made = tarq.TARQArray()
    made.Init(*indexsets)
    return made


def half_made():
    made = tarq.TARQArray()
    with pytest.raises(tarq.Error):
        made.Init(3, "x")
    return made


@pytest.mark.parametrize(
    "make, text",
    [
        (lambda: empty(["a", "b"], ["x", "y", "z"]), "TARQArray 2 x 3 ['a', 'b'] x ['x', 'y', 'z']"),
        (lambda: empty(1), "TARQArray 1 ['1']"),
        (lambda: empty(9, 8), "TARQArray 9 x 8 ['1', '2', '3', ..., '9'] x ['1', '2', '3', '4', '5', '6', '7', '8']"),
        (lambda: empty(["n" * 99]), f"TARQArray 1 ['{'n' * 12}...{'n' * 13}']"),
        (lambda: empty(*[1] * 7), "TARQArray 1 x 1 x 1 x 1 x 1 x 1 x ... ['1'] x ['1'] x ['1'] x ['1'] x ['1'] x ['1'] x ..."),
        (half_made, "TARQArray 3 ['1', '2', '3']"),
        (tarq.TARQArray, "TARQArray not initialized"),
        (lambda: set_of(1, "a", 2.5), "TARQSet [1, 'a', 2.5]"),
        (lambda: set_of(*range(1000)), "TARQSet [0, 1, 2, ..., 999] of 1000"),
        (tarq.TARQSet, "TARQSet []"),
        (lambda: series_of(1, 2, 0.25), "TARQSeries [1.0, 1.25, 1.5, 1.75, 2.0]"),
        (lambda: series_of(0, 2e9, 0.5e1), "TARQSeries [0.0, 5.0, 10.0, ...] of 400000001"),
        (tarq.TARQSeries, "<TARQSeries: TARQSeries has not been initialized (0x80041032)>"),
    ],
)
def test_data_shows_what_it_is(make, text):
    assert repr(make()) == text


def test_an_own_class_shows_its_name():
    class Distances(tarq.TARQArray):
        pass

    distances = Distances()
    distances.Init(2)
    assert repr(distances) == "Distances 2 ['1', '2']" and numpy.asarray(distances).shape == (2,)


def test_notebooks_get_a_table_with_the_values_escaped():
    table = array_of([[1, "<b>"], [2.5, "&"]], ["r<", "s"], ["x", "y"])._repr_html_()
    assert "<thead><tr><th></th><th>x</th><th>y</th></tr></thead>" in table
    assert "<tr><th>r&lt;</th><td>1</td><td>&lt;b&gt;</td></tr>" in table and "<b>" not in table
    listed = array_of(numpy.arange(8).reshape(2, 2, 2), 2, ["a", "b"], 2)._repr_html_()
    assert "<tr><th>2</th><th>a</th><th>1</th><td>4</td></tr>" in listed and listed.count("<tr>") == 9
    assert "<tr><th>2</th><td>a</td></tr>" in set_of(1, "a")._repr_html_()
    assert "<tr><th>3</th><td>1.5</td></tr>" in series_of(0.5, 2, 0.5)._repr_html_()
    assert tarq.TARQArray()._repr_html_() is None


@pytest.mark.parametrize("sizes, rows, columns", [((1000, 100), 62, 22), ((70, 1, 3), 62, 4), ((60,), 61, 2), ((61,), 62, 2)])
def test_long_tables_are_cut(sizes, rows, columns):
    table = array_of(numpy.arange(float(numpy.prod(sizes))).reshape(sizes), *sizes)._repr_html_()
    assert table.count("<tr>") == rows and table.partition("</thead>")[0].count("<th>") == columns
    assert ("\N{HORIZONTAL ELLIPSIS}" in table) == (rows == 62)


@pytest.mark.parametrize(
    "make, values, dtype",
    [
        (lambda: array_of([[1, 2.5], [3, 4]], 2, 2), [[1, 2.5], [3, 4]], float),
        (lambda: array_of([[1, 2], [3, 4]], 2, 2), [[1, 2], [3, 4]], int),
        (lambda: array_of([[1, "a"]], 1, 2), [[1, "a"]], object),
        (lambda: empty(2), [None, None], object),
        (lambda: array_of(7, 1, 1, 1), [[[7]]], int),
        (lambda: array_of("text", 1), ["text"], object),
        (lambda: array_of(numpy.arange(64).reshape((2,) * 6), *[2] * 6), numpy.arange(64).reshape((2,) * 6), int),
        (lambda: set_of(1, "a", 2.5), [1, "a", 2.5], object),
        (lambda: set_of(3, 2.5), [3, 2.5], float),
        (tarq.TARQSet, [], float),
        (lambda: series_of(1, 2, 0.3), [1, 1.3, 1.6, 1.9000000000000001], float),
    ],
)
def test_data_becomes_numpy_arrays(make, values, dtype):
    made = numpy.asarray(make())
    assert made.dtype == dtype and made.shape == numpy.shape(values) and made.tolist() == numpy.asarray(values, dtype).tolist()


def test_numpy_chooses_the_type_and_gets_nan_for_empty_cells():
    array = empty(2)
    array[1] = 5
    wanted = numpy.array(array, dtype="f4")
    assert wanted.dtype == "f4" and wanted[0] == 5 and numpy.isnan(wanted[1])
    assert (numpy.asarray(set_of(1, 2), int) + set_of(10, 20)).tolist() == [11, 22]
    with pytest.raises(ValueError, match="copied"):
        array.__array__(copy=False)
    with pytest.raises(tarq.Error, match="TARQArray has not been initialized."):
        numpy.asarray(tarq.TARQArray())


@pytest.mark.parametrize(
    "values",
    [
        numpy.array([[1.5, 2], [3, 4]]),
        numpy.array([[1, 2], [3, 4]], "i8"),
        numpy.array([[1, 2], [3, 2**40]]),
        numpy.array([["a", "b"], ["c", "d"]]),
        numpy.array([["a", 1.5], [2, "d"]], dtype=object),
    ],
    ids=lambda values: str(values.dtype),
)
def test_numpy_arrays_come_back_as_they_were(values):
    assert numpy.asarray(array_of(values, 2, 2)).tolist() == values.tolist()


def test_a_proxy_as_an_argument_stays_the_object():
    source = array_of([[1, 2, 3]] * 3, 3, 3)
    # Of a larger object the first cells arrive, of an array of values the block at its upper left.
    assert numpy.asarray(array_of(source, 2, 2)).tolist() == [[1, 2], [3, 1]]
    assert numpy.asarray(array_of(numpy.asarray(source), 2, 2)).tolist() == [[1, 2], [1, 2]]
    assert list(set_of(series_of(1, 3), set_of("a"))) == [1, 2, 3, "a"]


def test_arrays_become_frames_and_series():
    array = empty(["a", "b"], ["x", "y"])
    array[:, "x"], array["a", "y"] = [1, 2], "p"
    frame = array.to_frame()
    assert frame.index.tolist() == ["a", "b"] and frame.columns.tolist() == ["x", "y"]
    assert frame["x"].dtype == int and frame.loc["a", "y"] == "p" and frame.loc["b", "y"] is None
    gaps = empty(["a", "b"])
    gaps["a"] = 4
    assert gaps.to_frame()["a"] == 4 and numpy.isnan(gaps.to_frame()["b"])
    cube = array_of(numpy.arange(8.0).reshape(2, 2, 2), 2, ["a", "b"], 2).to_frame()
    assert cube["2", "a", "1"] == 4 and cube.index.nlevels == 3


def test_frames_become_arrays():
    frame = pandas.DataFrame({"x": [1.5, 2.5], "y": ["p", "q"]}, index=["a", "b"])
    array = array_of(frame, frame.index, frame.columns)
    assert array["b", "x"] == 2.5 and array["a", "y"] == "p"
    assert array.to_frame().equals(frame)
    array[:, "x"] = pandas.Series([7, 8])
    assert array["b", "x"] == 8


LABELS = [
    (lambda d: d.a.__setitem__((), pandas.DataFrame([[1, 2], [3, 4]], ["b", "a"], ["1", "2"])), r"index=\['a', 'b'\]"),
    (lambda d: setattr(d.x, "UB", pandas.DataFrame([[1, 2], [3, 4]], ["a", "b"], [2, 1])), r"columns=\[1, 2\]"),
    (lambda d: d.a.__setitem__(("a",), pandas.Series([1, 2], ["2", "1"])), "Value in another order"),
    (lambda d: d.a.ValueByNumIndex.__setitem__((slice(None), 2), pandas.Series([1, 2], ["b", "a"])), "index of this Series"),
    (lambda d: d.x.UB.__setitem__((["b", "a"], 1), pandas.Series([1, 2], ["a", "b"])), r"index=\['b', 'a'\]"),
    (lambda d: d.a.__setitem__((), pandas.Series({("a", 1): 1, ("b", 1): 2, ("a", 2): 3, ("b", 2): 4})), "reindex"),
    (lambda d: d.r.SetLT(pandas.Series([1, 2], ["b", "a"]), Index2=1), "slice of SetLT"),
    (lambda d: d.r.SetLT(Bound=pandas.Series([1, 2], ["2", "1"]), index1="a"), "slice of SetLT"),
    (lambda d: d.a.__setitem__((), pandas.DataFrame([[1, 2], [3, 4]], ["a", "b"], [1.0, 2.0])), None),
    (lambda d: d.a.__setitem__(("b",), pandas.Series([1, 2])), None),
    (lambda d: d.a.__setitem__((slice(None), "1"), pandas.Series([1, 2], ["b", "c"])), None),
    (lambda d: d.x.UB.__setitem__((["b", "a"], 1), pandas.Series([1, 2], ["b", "a"])), None),
    (lambda d: d.x.UB.__setitem__(("b",), pandas.Series([1, 2], [False, None])), None),
]


@pytest.mark.parametrize("assign, message", LABELS)
def test_labels_in_another_order_than_the_slice_are_refused(assign, message):
    model = tarq.TARQModel()
    data = types.SimpleNamespace(a=empty(["a", "b"], 2), x=tarq.TARQVarSet(), r=tarq.TARQResSet())
    data.x.Init(model, "x", ["a", "b"], 2)
    data.r.Init(model, "r", ["a", "b"], 2)
    with contextlib.nullcontext() if message is None else pytest.raises(ValueError, match=message):
        assign(data)


def test_collections_are_walked_and_counted():
    array = array_of([[1, 2], [3, 4]], 2, 2)
    assert len(array) == 4 and list(array) == [1, 2, 3, 4] and list(array.Enum[2]) == [3, 4]
    assert len(set_of("b", "a")) == 2 and list(set_of("b", "a")) == ["b", "a"]
    assert list(itertools.islice(series_of(3, 1), 9)) == [3, 2, 1]  # without a limit a walk that fails to end takes all memory
    assert len(tarq.TARQSet()) == 0 and not tarq.TARQSet()


@pytest.mark.parametrize(
    "wrong, message",
    [
        (lambda a: a["a", "q"], "Index element 'q' is no index element of the base object."),
        (lambda a: a[["a", "a"], "x"], "Duplicate element 'a' in index."),
        (lambda a: a[1.5], "Only whole numbers allowed as index value."),
        (lambda a: a.ValueByNumIndex[1, 4], "Index 2 is too high."),
        (lambda a: a["a", "x", "y"], "Too many indexsets used as parameter."),
    ],
)
def test_failures_name_the_index(wrong, message):
    with pytest.raises(tarq.Error) as caught:
        wrong(empty(["a", "b"], ["x", "y", "z"]))
    assert caught.value.description == message and caught.value.source == "tarq.TARQArray.1"


def test_models_get_no_helpers():
    for name in ("to_frame", "__array__", "_repr_html_"):
        assert not hasattr(tarq.TARQModel(), name) and not hasattr(tarq.TARQModel, name)


HELPERS_OF_THE_NAMES_OF_MEMBERS = """
import _collection
from tarq import _helpers

def Count(self): pass
def secret(self): pass
def extra(self): return "extra"

_helpers.HELPERS["ICollection"] = (Count, secret, extra)
collection = _collection.make()
print(collection.Count, collection.secret, collection.extra())
"""


def test_a_helper_hides_no_member_not_even_a_hidden_one_in_other_letters():
    ran = subprocess.run([sys.executable, "-c", HELPERS_OF_THE_NAMES_OF_MEMBERS], capture_output=True, text=True, check=True)
    assert ran.stdout == "3 42 extra\n"


class Cells(tarq.Dispatch):
    """A range over lists, with all that the component asks for."""

    _interfaces_ = ["{00020846-0000-0000-C000-000000000046}"]
    _dispids_ = {0x238: "Areas", 0x76: "Count", 0x102: "Rows", 0xF1: "Columns", 0xAA: "Item", 6: "Value"}

    def __init__(self, rows, count=0):
        self.rows = rows
        self.Count = count
        self.Value = rows

    Areas = property(lambda self: Cells(None, 1))
    Rows = property(lambda self: Cells(None, len(self.rows)))
    Columns = property(lambda self: Cells(None, len(self.rows[0])))

    def Item(self, row, column):
        return Cells(self.rows[row - 1][column - 1])


def test_a_stand_in_range_feeds_arrays_and_sets():
    cells = Cells([[1, 2.5, "a"], [4, 5, 6]])
    assert numpy.asarray(array_of(cells, 2, 3)).tolist() == [[1, 2.5, "a"], [4, 5, 6]]
    assert numpy.asarray(array_of(cells, 2, 2)).tolist() == [[1, 2.5], [4, 5]]
    assert list(set_of(0, cells)) == [0, 1, 2.5, "a", 4, 5, 6]


@pytest.fixture
def sheet(tmp_path):
    book = openpyxl.Workbook()
    for row in ([None, "x", "y"], ["a", 1, 2.5], ["b", True, None]):
        book.active.append(row)
    book.save(tmp_path / "data.xlsx")
    return openpyxl.load_workbook(tmp_path / "data.xlsx").active


def test_a_worksheet_feeds_an_array_and_gets_it_back(tmp_path, sheet):
    sheet["B3"], sheet["C3"] = 3, "far"
    array = array_of(Range(sheet, "B2:C3"), list(Range(sheet, "A2:A3")), list(Range(sheet, "B1:C1")))
    assert array["a", "y"] == 2.5 and array["b", "y"] == "far"
    written = write(sheet, "E5", array, headers=True)
    assert (written.Row, written.Column) == (6, 6)
    sheet.parent.save(tmp_path / "back.xlsx")
    back = openpyxl.load_workbook(tmp_path / "back.xlsx", read_only=True).active
    assert Range(back, "E5:G7").Value == Range(sheet, "A1:C3").Value == [[None, "x", "y"], ["a", 1, 2.5], ["b", 3, "far"]]
    assert numpy.asarray(array_of(Range(back, "F6:G7"), 2, 2)).tolist() == [[1, 2.5], [3, "far"]]


@pytest.mark.parametrize(
    "address, sizes, message",
    [
        ("B2:C2", (2, 2), "Not enough rows in Excel Range."),
        ("B2:B3", (2, 2), "Not enough columns in Excel Range."),
        ("B2:C2", (3,), "Not enough values in Excel Range."),
        ("B2,C2", (2,), "No multiple areas allowed"),
        ("B2:C2", (1, 1, 2), "Excel Ranges cannot be read into objects with more than 2 dimensions."),
        ("B3", (1,), "Value cannot be converted to string or numeric."),
        ("C3", (1,), "Value cannot be converted to string or numeric."),
    ],
)
def test_ranges_that_do_not_fit_are_refused(sheet, address, sizes, message):
    with pytest.raises(tarq.Error) as caught:
        array_of(Range(sheet, address), *sizes)
    assert caught.value.description == message and caught.value.status == 0x80041031


def test_a_failing_cell_is_the_failure_of_the_import(sheet):
    sheet["B3"] = "=A1"
    with pytest.raises(tarq.Error, match="B3 holds a formula") as caught:
        array_of(Range(sheet, "B2:B3"), 2)
    assert isinstance(caught.value.__cause__, ValueError)


@pytest.mark.parametrize(
    "make, headers, rows",
    [
        (lambda: array_of([1, 2], ["a", "b"]), True, [["a", 1], ["b", 2]]),
        (lambda: array_of([1, 2], ["a", "b"]), False, [[1], [2]]),
        (lambda: array_of(5, 1, 1), True, [[None, "1"], ["1", 5]]),
        (lambda: set_of(1, "a"), False, [[1], ["a"]]),
        (lambda: series_of(1, 2), False, [[1], [2]]),
    ],
)
def test_data_is_written_with_and_without_headers(make, headers, rows):
    sheet = openpyxl.Workbook().active
    write(sheet, "A1", make(), headers=headers)
    assert Range(sheet).Value == rows


def test_what_has_no_names_or_too_many_dimensions_is_not_written(sheet):
    with pytest.raises(TypeError, match="only an array has index names, TARQSet has none"):
        write(sheet, "A1", set_of(1), headers=True)
    with pytest.raises(ValueError, match="one or two dimensions"):
        write(sheet, "A1", empty(1, 2, 2), headers=True)


def test_a_table_of_very_many_dimensions_ends_in_an_exception():
    array = empty(*[1] * 100_000, 2)
    with pytest.raises(RecursionError):
        array.Value()
    assert repr(array).startswith("TARQArray 1 x 1") and array.Count == 2
