"""Labelled data of pandas on its way into a slice, into which values go by position."""

import itertools
import math
import numbers
import re

from ._errors import Error
from ._helpers import names
from ._missing import Missing

LISTED = 3
INDEX = re.compile("index[1-5]")


class Dimension:
    """What a slice selects of one dimension of an object."""

    def __init__(self, obj, number, key, by_position):
        self.obj, self.number, self.selected = obj, number, None
        if key is None or key is Missing:
            return
        several = hasattr(key, "__iter__") and not isinstance(key, str)
        # What has no end is no selection.
        keys = list(itertools.islice(key, obj.SizeOfIndexset[number] + 1)) if several else [key]
        if by_position:
            self.selected = [obj.IndexsetElement[number, position] for position in keys]
        else:
            self.selected = names_of(keys)

    def __len__(self):
        return self.obj.SizeOfIndexset[self.number] if self.selected is None else len(self.selected)

    def names(self):
        return names(self.obj, self.number) if self.selected is None else self.selected

    def has(self, name):
        """Whether there is such an element, without a walk over all of them."""
        if self.selected is not None:
            return name in self.selected
        try:
            self.obj.Enum(*[Missing] * (self.number - 1), name)
        except Error:
            return False
        return True


def name_of(label):
    """The element that a label or a key names; None for what names none."""
    if isinstance(label, str):
        return label
    if isinstance(label, numbers.Real) and not isinstance(label, bool):
        return str(int(label)) if label == label // 1 else repr(float(label))
    return None


def names_of(labels):
    kinds = set(map(type, labels))
    if kinds == {str}:
        return labels
    return list(map(str if kinds == {int} else name_of, labels))


def order_in(labels, wanted):
    """Where the wanted names are among the labels, if these are the same names in another order; else None."""
    if labels == wanted:
        return None
    places = {label: place for place, label in enumerate(labels)}
    order = [places.get(name) for name in wanted]
    return None if None in order else order


def check(obj, member, arguments, named):
    """Refuses a Series or DataFrame whose labels are those of the slice in another order (ValueError).

    arguments  the values, and the indices of the slice, by position
    named      those given by name
    """
    named = {name.lower(): value for name, value in named.items()}
    values = named.pop("bound", None) if not arguments else arguments[0]
    keys = dict(enumerate(arguments[1:], 1))
    keys.update((int(name.removeprefix("index")), key) for name, key in named.items() if INDEX.fullmatch(name))
    if not hasattr(values, "to_numpy"):
        return
    try:
        by_position = member == "ValueByNumIndex"
        dimensions = [
            Dimension(obj, number, keys.get(number), by_position) for number in range(1, obj.NumberOfIndexsets + 1)
        ]
        for axis, index, parts in named_axes(values, dimensions):
            refuse_reordered(member, values, axis, index, parts)
    except Error:
        return  # the call itself will tell


def named_axes(values, dimensions):
    """(axis, index, dimensions) for each axis of the values: those which the labels of that index could name."""
    long = [dimension for dimension in dimensions if len(dimension) > 1]
    if values.size == 0:
        return []
    if values.ndim == 1 and values.index.nlevels > 1:
        for parts in (dimensions, long):
            if len(parts) == values.index.nlevels:
                return [("index", values.index, parts)]
        return []
    axes = [(axis, getattr(values, axis)) for axis in ("index", "columns")[: values.ndim]]
    axes = [(axis, index) for axis, index in axes if len(index) > 1]
    if len(axes) != len(long) or any(index.nlevels > 1 for _, index in axes):
        return []
    return [(axis, index, [dimension]) for (axis, index), dimension in zip(axes, long)]


def refuse_reordered(member, values, axis, index, parts):
    if len(index) != math.prod(map(len, parts)):
        return
    first = index[0] if index.nlevels > 1 else (index[0],)
    if not all(dimension.has(name_of(label)) for dimension, label in zip(parts, first)):
        return
    if index.nlevels == 1:
        order = order_in(names_of(index.tolist()), parts[0].names())
    else:
        levels = [names_of(index.get_level_values(level).tolist()) for level in range(index.nlevels)]
        order = order_in(list(zip(*levels)), list(itertools.product(*[dimension.names() for dimension in parts])))
    if order is None:
        return
    shown = ", ".join(repr(index[place]) for place in order[:LISTED]) + (", ..." if len(order) > LISTED else "")
    kind = type(values).__name__
    raise ValueError(
        f"the {axis} of this {kind} has the names of the slice of {member} in another order, and values go by position; "
        f"put it in order with .reindex({axis}=[{shown}]), or pass .to_numpy() to go by position all the same"
    )
