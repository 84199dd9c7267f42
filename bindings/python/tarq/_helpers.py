"""What the package adds to objects of some interfaces: how they show themselves, and their way to NumPy and pandas.

A table tells which functions become attributes of the proxies of which interface. An interface's own member of that name
comes first.
"""

from __future__ import annotations

import html
import itertools
import reprlib
from typing import Any, Callable, Iterable, Iterator, Sequence

from . import _optional
from . import _tarq  # type: ignore[attr-defined]

MOST_LISTED = 8
MOST_DIMENSIONS = 6
MOST_TABLE_ROWS = 60
MOST_TABLE_COLUMNS = 20


# Texts.


def listed(values: Sequence[Any], count: int) -> str:
    """[1, 'a', 2.5]; of more than a few values only the first ones, and the last one where `values` has it."""
    if count <= MOST_LISTED:
        return f"[{', '.join(map(reprlib.repr, values))}]"
    shown = [*map(reprlib.repr, values[:3]), "..."]
    if len(values) > 3:
        shown.append(reprlib.repr(values[-1]))
    return f"[{', '.join(shown)}]"


def ends(count: int, value_at: Callable[[int], Any]) -> list[Any]:
    """What `listed` wants of `count` values, the first of which is number 1."""
    numbers = range(1, count + 1) if count <= MOST_LISTED else (1, 2, 3, count)
    return [value_at(number) for number in numbers]


def counted(count: int) -> str:
    return f" of {count}" if count > MOST_LISTED else ""


def array_text(array: Any) -> str:
    dimensions = array.NumberOfIndexsets
    if dimensions == 0:
        return "not initialized"
    shown = range(1, min(dimensions, MOST_DIMENSIONS) + 1)
    sizes = [array.SizeOfIndexset[dimension] for dimension in shown]
    elements = [
        listed(ends(size, lambda number: array.IndexsetElement[dimension, number]), size)
        for dimension, size in zip(shown, sizes)
    ]
    more = [] if dimensions == len(shown) else ["..."]
    return " ".join([" x ".join([*map(str, sizes), *more]), " x ".join([*elements, *more])])


def set_text(values: Any) -> str:
    count = values.Count
    return listed(ends(count, lambda number: values.Item[number]), count) + counted(count)


def series_text(series: Any) -> str:
    # A series can only be walked, and its last member may be far away.
    count = series.Count
    return listed(list(itertools.islice(series, MOST_LISTED if count <= MOST_LISTED else 3)), count) + counted(count)


TEXTS: dict[str, Callable[[Any], str]] = {
    "ITARQArray": array_text,
    "ITARQSet": set_text,
    "ITARQSeries": series_text,
}


def text_helper(text: Callable[[Any], str]) -> Callable[[Any], str]:
    def __repr__(self: Any) -> str:
        name = type(self).__name__
        try:
            return f"{name} {text(self)}"
        except Exception as failure:  # what can't be read must still be shown in a traceback
            return f"<{name}: {failure}>"

    return __repr__


# Tables in notebooks.


def names(array: Any, dimension: int, most: int | None = None) -> list[str]:
    """The element names of an array's dimension, which is numbered from 1; the first `most` of them."""
    size = array.SizeOfIndexset[dimension]
    found: list[str] = _tarq.numbered(array, "IndexsetElement", dimension, size if most is None else min(size, most))
    return found


def html_cell(value: Any, kind: str = "td") -> str:
    return f"<{kind}>{'' if value is None else html.escape(str(value))}</{kind}>"


def html_table(heads: Sequence[Any], rows: Iterable[tuple[Sequence[Any], Sequence[Any]]], caption: str) -> str:
    """A table of `rows`, each of them its headers and its values."""
    lines = ["<table>", f"<caption>{html.escape(caption)}</caption>"]
    lines.append(f"<thead><tr>{''.join(html_cell(head, 'th') for head in heads)}</tr></thead>")
    lines.append("<tbody>")
    for row_names, values in rows:
        cells = [*(html_cell(name, "th") for name in row_names), *map(html_cell, values)]
        lines.append(f"<tr>{''.join(cells)}</tr>")
    return "\n".join([*lines, "</tbody>", "</table>"])


def cut(rows: Iterator[tuple[Sequence[Any], Sequence[Any]]], count: int) -> Iterator[tuple[Sequence[Any], Sequence[Any]]]:
    """The first of `count` rows, and a mark where there are more."""
    yield from itertools.islice(rows, MOST_TABLE_ROWS)
    if count > MOST_TABLE_ROWS:
        yield ("\N{HORIZONTAL ELLIPSIS}",), ()


def array_caption(array: Any) -> str:
    return f"{type(array).__name__} {' x '.join(map(str, shape(array)))}"


def matrix_table(array: Any) -> str:
    row_count, column_count = shape(array)
    row_names, column_names = names(array, 1, MOST_TABLE_ROWS), names(array, 2, MOST_TABLE_COLUMNS)
    value = array.ValueByNumIndex
    rows = (
        ((name,), [value[row, column] for column in range(1, len(column_names) + 1)])
        for row, name in enumerate(row_names, 1)
    )
    more = ["\N{HORIZONTAL ELLIPSIS}"] if column_count > len(column_names) else []
    return html_table(["", *column_names, *more], cut(rows, row_count), array_caption(array))


def list_table(array: Any) -> str:
    """A table with a column for each dimension and one for the value."""
    dimensions = array.NumberOfIndexsets
    # The first rows lie within these names, because the last dimension runs fastest.
    leading = [names(array, dimension, MOST_TABLE_ROWS) for dimension in range(1, dimensions + 1)]
    rows = ((combination, [value]) for combination, value in zip(itertools.product(*leading), array))
    return html_table([*[""] * dimensions, "value"], cut(rows, array.Count), array_caption(array))


def array_table(array: Any) -> str | None:
    if array.NumberOfIndexsets == 0:
        return None
    return matrix_table(array) if array.NumberOfIndexsets == 2 else list_table(array)


def sequence_table(values: Any) -> str:
    rows = (((number,), [value]) for number, value in enumerate(values, 1))
    return html_table(["", "value"], cut(rows, values.Count), f"{type(values).__name__} of {values.Count}")


TABLES: dict[str, Callable[[Any], str | None]] = {
    "ITARQArray": array_table,
    "ITARQSet": sequence_table,
    "ITARQSeries": sequence_table,
}


def table_helper(table: Callable[[Any], str | None]) -> Callable[[Any], str | None]:
    def _repr_html_(self: Any) -> str | None:
        """The values as a table, for notebooks."""
        try:
            return table(self)
        except Exception:  # without a table a notebook shows the repr
            return None

    return _repr_html_


# NumPy and pandas.


def shape(array: Any) -> tuple[int, ...]:
    return tuple(array.SizeOfIndexset[dimension] for dimension in range(1, array.NumberOfIndexsets + 1))


def array_cells(array: Any) -> tuple[Any, tuple[int, ...]]:
    """All cells as nested lists, one of which may be a value alone, and their shape."""
    return array.Value(), shape(array)


def sequence_cells(values: Any) -> tuple[Any, tuple[int, ...]]:
    # Rounding may make a series end one member later than it counts; one that stands still ends never.
    members = list(itertools.islice(values, max(values.Count, 0) + 1))
    return members, (len(members),)


CELLS: dict[str, Callable[[Any], tuple[Any, tuple[int, ...]]]] = {
    "ITARQArray": array_cells,
    "ITARQSet": sequence_cells,
    "ITARQSeries": sequence_cells,
}


def numeric_type(kinds: set[type]) -> type:
    if kinds == {int}:
        return int
    return float if kinds <= {int, float} else object


def numpy_helper(cells: Callable[[Any], tuple[Any, tuple[int, ...]]]) -> Callable[..., Any]:
    def __array__(self: Any, dtype: Any = None, copy: bool | None = None) -> Any:
        """The values as a NumPy array: of whole numbers or of numbers where all are, else of objects."""
        if copy is False:
            raise ValueError("the values of a data object can be copied only")
        numpy = _optional.load("numpy", "an array")
        values, found_shape = cells(self)
        # Left to itself NumPy would make texts of numbers among texts.
        made = numpy.array(values, dtype=object).reshape(found_shape)
        if dtype is None:
            dtype = numeric_type(set(map(type, made.flat)))
        return made.astype(dtype, copy=False)

    return __array__


def to_frame(self: Any) -> Any:
    """The cells for pandas, under their index names.

    A Series of an array with one dimension, a DataFrame of one with two, and a Series with a MultiIndex of one with more.
    Columns of numbers are numeric; cells that are Empty are NaN there.
    """
    pandas = _optional.load("pandas", "to_frame()")
    values = self.__array__()
    indices = [names(self, dimension) for dimension in range(1, values.ndim + 1)]
    if values.ndim == 2:
        return pandas.DataFrame(values, index=indices[0], columns=indices[1]).infer_objects()
    index = indices[0] if values.ndim == 1 else pandas.MultiIndex.from_product(indices)
    return pandas.Series(values.reshape(-1), index=index).infer_objects()


HELPERS: dict[str, tuple[Callable[..., Any], ...]] = {
    interface: (text_helper(TEXTS[interface]), table_helper(TABLES[interface]), numpy_helper(CELLS[interface]))
    for interface in TEXTS
}
HELPERS["ITARQArray"] += (to_frame,)


def helpers_of(interface: str) -> tuple[Callable[..., Any], ...]:
    """The functions that become attributes of an interface's proxies, under their own names."""
    return HELPERS.get(interface, ())
