"""Worksheets as data: ranges of openpyxl worksheets that the component reads, and values written back.

    book = openpyxl.load_workbook("distances.xlsx", data_only=True)
    sheet = book.active
    a = tarq.TARQArray()
    a.Init(list(Range(sheet, "A2:A5")), list(Range(sheet, "B1:E1")))
    a.Value = Range(sheet, "B2:E5")
    write(sheet, "G1", a, headers=True)

Nothing else of the package needs openpyxl, so it is imported when a range is made from an address or written.
"""

from __future__ import annotations

import math
import reprlib
from typing import Any, Callable, Iterator, Mapping, NamedTuple, Sequence

from tarq import Dispatch

from . import _helpers, _optional

__all__ = ["Range", "write"]

LAST_ROW = 1048576
LAST_COLUMN = 16384
LONGEST_TEXT = 32767


class Area(NamedTuple):
    """A block of cells by the numbers of its first and last rows and columns."""

    top: int
    left: int
    bottom: int
    right: int

    @property
    def rows(self) -> int:
        return self.bottom - self.top + 1

    @property
    def columns(self) -> int:
        return self.right - self.left + 1

    def address(self) -> str:
        letter = _optional.load("openpyxl.utils.cell", "tarq.spreadsheet").get_column_letter
        first, last = f"{letter(self.left)}{self.top}", f"{letter(self.right)}{self.bottom}"
        return first if first == last else f"{first}:{last}"


# Addresses.


def used_area(sheet: Any) -> Area:
    """The block that holds all cells of a sheet."""
    if sheet.max_row is None or sheet.max_column is None:  # a file that doesn't tell it, opened for reading only
        sheet.calculate_dimension(force=True)
    return Area(sheet.min_row, sheet.min_column, sheet.max_row, sheet.max_column)


def named_addresses(sheet: Any, name: str) -> list[str]:
    """The addresses on this sheet of a table or a defined name; none where there is no such name."""
    tables = getattr(sheet, "tables", {})
    if name in tables:
        return [tables[name].ref]
    title = sheet.title
    for scope in (sheet, sheet.parent):
        defined = getattr(scope, "defined_names", None)
        found = None if defined is None else defined.get(name)
        if found is not None:
            return [address for owner, address in found.destinations if owner == title]
    return []


def area_of(sheet: Any, address: str) -> Area:
    """The area of "B2", "B2:E5", "B:E" or "2:5"; whole columns and rows as far as the sheet is used."""
    boundaries = _optional.load("openpyxl.utils.cell", "tarq.spreadsheet").range_boundaries
    try:
        left, top, right, bottom = boundaries(address)
    except ValueError:
        left = top = None
    if (left is None and top is None) or (":" not in address and (left is None or top is None)):
        raise ValueError(f"{address!r} is neither an address nor a name on the sheet {sheet.title!r}")
    if left is None or top is None:
        used = used_area(sheet)
        left, right = (used.left, used.right) if left is None else (left, right)
        top, bottom = (used.top, used.bottom) if top is None else (top, bottom)
    area = Area(min(top, bottom), min(left, right), max(top, bottom), max(left, right))
    check_on_sheet(area, address)
    return area


def check_on_sheet(area: Area, address: str) -> None:
    if area.top < 1 or area.left < 1 or area.bottom > LAST_ROW or area.right > LAST_COLUMN:
        raise ValueError(f"{address!r} reaches beyond the sheet")


def areas_of(sheet: Any, address: str) -> list[Area]:
    areas: list[Area] = []
    for part in map(str.strip, address.split(",")):
        for single in named_addresses(sheet, part) or [part]:
            areas += [area_of(sheet, piece) for piece in single.split(",")]
    return areas


# Reading.


def cell_finder(sheet: Any, area: Area) -> Callable[[int, int], Any]:
    """What gives a sheet's cell by row and column, or None where there is none."""
    if hasattr(sheet, "_cells"):
        # Asking the sheet for a cell would make it, and move the sheet's end.
        return lambda row, column: sheet._cells.get((row, column))
    # A sheet opened for reading only parses its file again for every cell that it is asked for.
    block: dict[tuple[int, int], Any] = {}

    def find(row: int, column: int) -> Any:
        if not block:
            bounds = {"min_row": area.top, "max_row": area.bottom, "min_col": area.left, "max_col": area.right}
            for number, cells in enumerate(sheet.iter_rows(**bounds), area.top):
                block.update(((number, place), cell) for place, cell in enumerate(cells, area.left))
            block.setdefault((area.top, area.left), None)
        return block.get((row, column))

    return find


def value_of(cell: Any) -> Any:
    """A cell's value. Formulas and errors are no values, though openpyxl gives texts for them."""
    if cell is None:
        return None
    if cell.data_type == "f":
        raise ValueError(
            f"{cell.coordinate} holds a formula; load the workbook with data_only=True to read the values saved with it"
        )
    if cell.data_type == "e":
        raise ValueError(f"{cell.coordinate} holds the error {cell.value}")
    return cell.value


class Parts(Dispatch):
    """The areas, rows or columns of a range."""

    _dispids_ = {0x76: "Count", 0xAA: "Item"}

    def __init__(self, count: int, part: Callable[[int], Range]) -> None:
        self.Count = count
        self._part = part

    def Item(self, number: int) -> Range:
        """Part `number`, from 1."""
        if not 1 <= number <= self.Count:
            raise IndexError(f"there is no part {number} of {self.Count}")
        return self._part(number)

    def __len__(self) -> int:
        return self.Count

    def __iter__(self) -> Iterator[Range]:
        return map(self._part, range(1, self.Count + 1))


class Range(Dispatch):
    """Cells of an openpyxl worksheet, which the component takes for a range of a spreadsheet.

    sheet    a worksheet, of a workbook opened for reading only, too
    address  "B2:E5", "B2", "B:E" and "2:5" (as far as the sheet is used), the name of a table, a defined name, or several
             of these with commas between them; without one all that is used

    Walking a range gives its values, row by row. A cell without a value gives None, a formula or an error ValueError.
    The cells are read when they are asked for; those of a sheet opened for reading only once.
    """

    _interfaces_ = ["{00020846-0000-0000-C000-000000000046}"]
    _dispids_ = {
        0: "Value",
        0x238: "Areas",
        0x76: "Count",
        0x102: "Rows",
        0xF1: "Columns",
        0xAA: "Item",
        6: "Value",
        0x101: "Row",
        0xF0: "Column",
    }

    def __init__(self, sheet: Any, address: str | None = None) -> None:
        if not hasattr(sheet, "iter_rows"):
            raise TypeError(f"a worksheet is needed, not {type(sheet).__name__}")
        areas = [used_area(sheet)] if address is None else areas_of(sheet, address)
        self._set(sheet, areas, cell_finder(sheet, areas[0]))

    def _set(self, sheet: Any, areas: Sequence[Area], find: Callable[[int, int], Any]) -> None:
        self._sheet = sheet
        self._areas = areas
        self._first = areas[0]
        self._find = find

    def _part(self, area: Area) -> Range:
        part = Range.__new__(Range)
        part._set(self._sheet, (area,), self._find if area_within(area, self._first) else cell_finder(self._sheet, area))
        return part

    @property
    def Areas(self) -> Parts:
        """The blocks that the range is made of."""
        return Parts(len(self._areas), lambda number: self._part(self._areas[number - 1]))

    @property
    def Count(self) -> int:
        """Number of cells."""
        return sum(area.rows * area.columns for area in self._areas)

    @property
    def Rows(self) -> Parts:
        """The rows of the first area."""
        area = self._first

        def row(number: int) -> Range:
            sheet_row = area.top + number - 1
            return self._part(Area(sheet_row, area.left, sheet_row, area.right))

        return Parts(area.rows, row)

    @property
    def Columns(self) -> Parts:
        """The columns of the first area."""
        area = self._first

        def column(number: int) -> Range:
            sheet_column = area.left + number - 1
            return self._part(Area(area.top, sheet_column, area.bottom, sheet_column))

        return Parts(area.columns, column)

    def Item(self, row: int, column: int) -> Range:
        """The cell in a row and a column of the first area, both counted from 1."""
        area = self._first
        if not (1 <= row <= area.rows and 1 <= column <= area.columns):
            raise IndexError(f"there is no row {row} and column {column} in {area.address()}")
        sheet_row, sheet_column = area.top + row - 1, area.left + column - 1
        return self._part(Area(sheet_row, sheet_column, sheet_row, sheet_column))

    @property
    def Value(self) -> Any:
        """The value of a single cell; of more the rows of the first area as lists."""
        area = self._first
        if area.rows == area.columns == 1:
            return value_of(self._find(area.top, area.left))
        columns = range(area.left, area.right + 1)
        return [
            [value_of(self._find(row, column)) for column in columns] for row in range(area.top, area.bottom + 1)
        ]

    @property
    def Row(self) -> int:
        """Number of the first row on the sheet."""
        return self._first.top

    @property
    def Column(self) -> int:
        """Number of the first column on the sheet."""
        return self._first.left

    def __len__(self) -> int:
        return self.Count

    def __iter__(self) -> Iterator[Any]:
        for area in self._areas:
            find = self._find if area is self._first else cell_finder(self._sheet, area)
            for row in range(area.top, area.bottom + 1):
                for column in range(area.left, area.right + 1):
                    yield value_of(find(row, column))

    def __repr__(self) -> str:
        addresses = ",".join(area.address() for area in self._areas)
        size = f", {self._first.rows} x {self._first.columns}" if len(self._areas) == 1 else ""
        return f"<tarq.spreadsheet.Range {self._sheet.title!r}!{addresses}{size}>"


def area_within(inner: Area, outer: Area) -> bool:
    rows = outer.top <= inner.top and inner.bottom <= outer.bottom
    return rows and outer.left <= inner.left and inner.right <= outer.right


# Writing.


def table_of(values: Any) -> list[list[Any]]:
    """Values as rows; a sequence becomes a column."""
    if hasattr(values, "__array__"):
        values = values.__array__().tolist()
    if isinstance(values, Mapping) or isinstance(values, str) or not hasattr(values, "__iter__"):
        raise TypeError(f"values in rows or in a sequence are needed, not {type(values).__name__}")
    rows = list(values)
    nested = [isinstance(row, (list, tuple)) for row in rows]
    if not any(nested):
        return [[value] for value in rows]
    if not all(nested) or len(set(map(len, rows))) > 1:
        raise ValueError("the rows have different lengths")
    return [list(row) for row in rows]


def with_headers(array: Any, rows: list[list[Any]]) -> list[list[Any]]:
    """The rows with the names of an array's elements beside them, and above them where it has two dimensions."""
    if not hasattr(array, "IndexsetElement"):
        raise TypeError(f"only an array has index names, {type(array).__name__} has none")
    beside = [[name, *row] for name, row in zip(_helpers.names(array, 1), rows)]
    return beside if array.NumberOfIndexsets < 2 else [[None, *_helpers.names(array, 2)], *beside]


def check_storable(value: Any, cell: Any) -> None:
    """Refuses what a cell would lose or what spoils the file. The cell is one to try it with."""
    fits = True
    if isinstance(value, str):
        fits = len(value) <= LONGEST_TEXT
    elif isinstance(value, float):
        fits = math.isfinite(value)
    elif isinstance(value, (list, tuple)):
        raise ValueError("a sheet takes values of one or two dimensions")
    if not fits:
        raise ValueError(f"a cell can't hold {reprlib.repr(value)}")
    try:
        cell.value = value
    except Exception as failure:
        raise ValueError(f"a cell can't hold {reprlib.repr(value)}") from failure


def put_table(sheet: Any, area: Area, table: list[list[Any]]) -> None:
    """Puts rows into an area of their size, or leaves the sheet as it is where one of its values can't be stored."""
    kinds = _optional.load("openpyxl.cell.cell", "tarq.spreadsheet")
    scratch = kinds.Cell(sheet, area.top, area.left)
    cells = []
    for row_number, row in enumerate(table, area.top):
        for column_number, value in enumerate(row, area.left):
            check_storable(value, scratch)
            cells.append((sheet.cell(row_number, column_number), value))
    for cell, _ in cells:
        if not isinstance(cell, kinds.Cell):
            raise ValueError(f"{area.address()} has cells that are merged into others or can only be read")
    for cell, value in cells:
        cell.value = value
        if isinstance(value, str):
            cell.data_type = "s"  # a text may look like a formula


def write(sheet: Any, address: str, values: Any, headers: bool = False) -> Range:
    """Puts values into a worksheet and returns the range that they have got, without the headers.

    address  the upper left cell, of the headers where there are some
    values   an array of one or two dimensions, a set, a series, or lists or NumPy arrays; what has one dimension becomes
             a column
    headers  with the names of an array's elements: those of the first dimension beside the values, those of the second
             above them

    None empties a cell. Texts stay texts, also those that look like formulas. The sheet stays as it is when a value can't
    be stored (ValueError).
    """
    rows = table_of(values)
    if not rows or not rows[0]:
        raise ValueError("there are no values to write")
    table = with_headers(values, rows) if headers else rows
    start = area_of(sheet, address)
    if start.rows * start.columns != 1:
        raise ValueError(f"{address!r} is more than one cell; the upper left one is needed")
    whole = Area(start.top, start.left, start.top + len(table) - 1, start.left + len(table[0]) - 1)
    check_on_sheet(whole, whole.address())
    put_table(sheet, whole, table)
    data = Area(whole.bottom - len(rows) + 1, whole.right - len(rows[0]) + 1, whole.bottom, whole.right)
    return Range(sheet, data.address())
