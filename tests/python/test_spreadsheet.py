"""Ranges of openpyxl worksheets as the component calls them, and values written into worksheets."""

import datetime
import sys

import numpy
import openpyxl
import pytest

import _collection
import tarq
from tarq.spreadsheet import Range, write

GET = 2
AREAS, COUNT, ROWS, COLUMNS, ITEM, VALUE, ROW, COLUMN = 0x238, 0x76, 0x102, 0xF1, 0xAA, 6, 0x101, 0xF0
ROWS_OF_THE_SHEET = [["from", "Bonn", "Köln"], ["Ulm", 384, 377.5], ["Jena", None, True], ["x", datetime.datetime(2024, 2, 29), 9]]


@pytest.fixture
def get():
    caller = _collection.make()
    return lambda range_, member, *arguments: caller.Call(range_, member, GET, *arguments)


def filled(book):
    """A sheet whose cells B2:D5 are used, as a file has them."""
    sheet = book.active
    sheet.title = "Wege"
    for row, values in enumerate(ROWS_OF_THE_SHEET, 2):
        for column, value in enumerate(values, 2):
            sheet.cell(row, column).value = value
    table = openpyxl.worksheet.table.Table(displayName="Kilometres", ref="B2:D5")
    sheet.add_table(table)
    return sheet


@pytest.fixture(params=["made", "loaded", "read only"])
def sheet(request, tmp_path):
    book = openpyxl.Workbook()
    made = filled(book)
    if request.param == "made":
        return made
    book.save(tmp_path / "ways.xlsx")
    return openpyxl.load_workbook(tmp_path / "ways.xlsx", read_only=request.param == "read only").active


@pytest.fixture
def writable():
    return filled(openpyxl.Workbook())


def test_the_component_reads_a_range_by_the_published_numbers(get, sheet):
    range_ = Range(sheet, "C2:D4")
    assert get(get(range_, AREAS), COUNT) == 1
    assert get(get(range_, ROWS), COUNT) == 3 and get(get(range_, COLUMNS), COUNT) == 2
    assert get(range_, COUNT) == 6 and (get(range_, ROW), get(range_, COLUMN)) == (2, 3)
    cells = [[get(get(range_, ITEM, row, column), VALUE) for column in (1, 2)] for row in (1, 2, 3)]
    assert cells == [["Bonn", "Köln"], [384, 377.5], [None, True]]
    cell = get(range_, ITEM, 2, 1)
    assert get(cell, COUNT) == 1 and (get(cell, ROW), get(cell, COLUMN)) == (3, 3)
    assert _collection.make().Offers(cell, "{00020846-0000-0000-C000-000000000046}") == 1


@pytest.mark.parametrize(
    "address, areas, first, count",
    [
        ("B2", 1, (2, 2, 1, 1), 1),
        ("$c$3:$b$2", 1, (2, 2, 2, 2), 4),
        ("B2:C3,D4", 2, (2, 2, 2, 2), 5),
        ("B2:C3, D4 ,A1", 3, (2, 2, 2, 2), 6),
        ("C:D", 1, (2, 3, 4, 2), 8),
        ("3:4", 1, (3, 2, 2, 3), 6),
        (None, 1, (2, 2, 4, 3), 12),
        ("A1:XFD1048576", 1, (1, 1, 1048576, 16384), 2**34),
    ],
)
def test_addresses_of_every_form(writable, address, areas, first, count):
    range_ = Range(writable, address)
    assert (range_.Row, range_.Column, range_.Rows.Count, range_.Columns.Count) == first
    assert range_.Areas.Count == areas and range_.Count == count


@pytest.mark.parametrize("address", ["", ",", ":", "B", "2", "B2:", "B2:C", "A0", "A1:XFE1", "A1048577", "nothing", "Wege!A1", "B2;C3"])
def test_addresses_that_make_no_sense_are_refused(writable, address):
    with pytest.raises(ValueError, match="neither an address nor a name|beyond the sheet"):
        Range(writable, address)


def test_tables_and_defined_names_are_addresses(tmp_path, writable):
    if hasattr(writable, "defined_names"):
        writable.parent.defined_names["distances"] = openpyxl.workbook.defined_name.DefinedName("distances", attr_text="Wege!$C$3:$D$3")
    else:
        writable.parent.create_named_range("distances", writable, "$C$3:$D$3")
    writable.parent.save(tmp_path / "ways.xlsx")
    loaded = openpyxl.load_workbook(tmp_path / "ways.xlsx").active
    assert list(Range(loaded, "distances")) == [384, 377.5] and Range(loaded, "Kilometres,distances").Count == 14


def test_rows_columns_and_areas_are_ranges(sheet):
    range_ = Range(sheet, "B2:C4,D3")
    assert [row.Value for row in range_.Rows] == [[["from", "Bonn"]], [["Ulm", 384]], [["Jena", None]]]
    assert range_.Columns.Item(2).Value == [["Bonn"], [384], [None]]
    assert [area.Value for area in range_.Areas][1] == 377.5
    assert list(range_) == ["from", "Bonn", "Ulm", 384, "Jena", None, 377.5] and len(range_) == 7
    for wrong in (lambda: range_.Item(4, 1), lambda: range_.Item(0, 1), lambda: range_.Rows.Item(4), lambda: range_.Areas.Item(0)):
        with pytest.raises(IndexError):
            wrong()


def test_values_are_those_of_the_moment_and_dates_stay_dates(writable):
    range_ = Range(writable, "C5:D5")
    assert range_.Value == [[datetime.datetime(2024, 2, 29), 9]]
    writable["D5"] = 10
    assert range_.Value[0][1] == range_.Item(1, 2).Value == 10


def test_reading_leaves_the_sheet_as_it_was(writable):
    assert list(Range(writable, "A1:Z100")).count(None) == 2600 - 11
    assert Range(writable, "J50").Value is None and writable.dimensions == "B2:D5"


@pytest.mark.parametrize("read_only", [False, True])
@pytest.mark.parametrize("content, message", [("=1+1", "C3 holds a formula; .* data_only"), ("#N/A", "C3 holds the error #N/A")])
def test_formulas_and_errors_are_no_values(get, tmp_path, writable, content, message, read_only):
    writable["C3"] = content
    writable.parent.save(tmp_path / "ways.xlsx")
    range_ = Range(openpyxl.load_workbook(tmp_path / "ways.xlsx", read_only=read_only).active, "B3:C3")
    with pytest.raises(ValueError, match=message):
        range_.Value
    with pytest.raises(tarq.Error, match=message) as caught:
        get(get(range_, ITEM, 1, 2), VALUE)
    assert isinstance(caught.value.__cause__, ValueError)


def test_a_range_shows_where_it_is(writable):
    assert repr(Range(writable, "B2:E5")) == "<tarq.spreadsheet.Range 'Wege'!B2:E5, 4 x 4>"
    assert repr(Range(writable, "A1:B2,D4")) == "<tarq.spreadsheet.Range 'Wege'!A1:B2,D4>"


def test_an_argument_stays_an_object_whatever_else_it_offers():
    class Shown(Range):
        def __array__(self, *_):
            raise AssertionError("nobody asked for an array")

    caller = _collection.make()
    range_ = Shown(filled(openpyxl.Workbook()), "C3")
    assert caller.Describe(range_) == "Object" and caller.Echo(range_) is range_
    assert caller.DescribeAll(";", range_, [range_]).endswith("0..0: Object")


@pytest.mark.parametrize(
    "values, rows",
    [
        ([1, None, "a", 2.5], [[1], [None], ["a"], [2.5]]),
        ([(1, 2), (3, 4)], [[1, 2], [3, 4]]),
        (numpy.array([[0.5], [1.5]]), [[0.5], [1.5]]),
        (range(2), [[0], [1]]),
        (["=1+1", "#N/A"], [["=1+1"], ["#N/A"]]),
        ([True, datetime.datetime(2024, 2, 29)], [[True], [datetime.datetime(2024, 2, 29)]]),
    ],
)
def test_written_values_are_read_back_from_the_file(tmp_path, values, rows):
    book = openpyxl.Workbook()
    written = write(book.active, "C2", values)
    assert written.Value == rows and (written.Row, written.Column) == (2, 3)
    book.save(tmp_path / "written.xlsx")
    assert Range(openpyxl.load_workbook(tmp_path / "written.xlsx").active).Value == rows


@pytest.mark.parametrize(
    "values, error, message",
    [
        ([1, float("nan")], ValueError, "can't hold nan"),
        ([1, "a\0b"], ValueError, "can't hold 'a"),
        ([1, "a" * 32768], ValueError, "can't hold 'aaa"),
        ([1, object()], ValueError, "can't hold <object"),
        ([[1, 2], [3]], ValueError, "different lengths"),
        ([[1, 2], 3], ValueError, "different lengths"),
        ([[[1]]], ValueError, "one or two dimensions"),
        ([], ValueError, "no values"),
        ([[]], ValueError, "no values"),
        ("text", TypeError, "not str"),
        (5, TypeError, "not int"),
        ({"a": 1}, TypeError, "not dict"),
    ],
)
def test_what_a_sheet_cannot_hold_changes_nothing(writable, values, error, message):
    before = Range(writable).Value
    with pytest.raises(error, match=message):
        write(writable, "B2", values)
    assert Range(writable).Value == before


@pytest.mark.parametrize(
    "address, message",
    [("XFD1048576", "beyond the sheet"), ("B2:C3", "more than one cell"), ("B7", "merged")],
)
def test_cells_that_cannot_be_written_are_refused(writable, address, message):
    writable.merge_cells("B7:B8")
    with pytest.raises(ValueError, match=message):
        write(writable, address, [1, 2])
    assert Range(writable, "B7").Value is None


def test_a_sheet_opened_for_reading_is_not_written(tmp_path, writable):
    writable.parent.save(tmp_path / "ways.xlsx")
    sheet = openpyxl.load_workbook(tmp_path / "ways.xlsx", read_only=True).active
    with pytest.raises(ValueError, match="can only be read"):
        write(sheet, "A1", [1])


def test_without_openpyxl_the_failure_names_it(monkeypatch, writable):
    for name in [name for name in sys.modules if name.partition(".")[0] == "openpyxl"]:
        monkeypatch.setitem(sys.modules, name, None)
    with pytest.raises(ImportError, match="tarq.spreadsheet needs the Python package openpyxl"):
        Range(writable, "B2:C3")
    with pytest.raises(TypeError, match="a worksheet is needed, not str"):
        Range("ways.xlsx", "B2:C3")
