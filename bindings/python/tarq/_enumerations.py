"""The published enumerations as IntEnums."""

import enum

from . import _tarq


def make_enumerations():
    """A dict of the enumerations by their names and of their values by theirs."""
    names = {}
    for described in _tarq.described_enumerations():
        kind = enum.IntEnum(described["name"], described["values"], module="tarq")
        kind.__doc__ = described["help"]
        _tarq.register_enumeration(described["name"], {int(member): member for member in kind})
        names[described["name"]] = kind
        names.update(kind.__members__)
    return names
