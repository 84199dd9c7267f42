"""The argument that is left out."""

import enum


class MissingType(enum.Enum):
    """Type of `tarq.Missing`, the argument that is left out, said explicitly."""

    Missing = "Missing"

    def __repr__(self):
        return "tarq.Missing"

    __str__ = __repr__

    def __bool__(self):
        return False


MissingType.__module__ = "tarq"
Missing = MissingType.Missing
