"""Failures of the component as exceptions."""

ARGUMENT_TYPE = 0x80020005
ARGUMENT_COUNT = 0x8002000E
UNKNOWN_PARAMETER = 0x80020004
UNKNOWN_NAME = 0x80020006
GENERAL_FAILURE = 0x80004005


class Error(Exception):
    """A call that failed.

    status       the status as an unsigned number
    description  what went wrong, in words
    source       ProgID of the class that failed, such as "tarq.TARQModel.1"
    """

    def __init__(self, status, description="", source=""):
        super().__init__(status, description, source)
        self.status = status
        self.description = description
        self.source = source

    def __str__(self):
        return f"{self.description} (0x{self.status:08X})"


class ArgumentError(Error, TypeError):
    """A call with too few or too many arguments, an unknown one, or one that can't be converted."""


class MemberError(Error, AttributeError):
    """A name that the object doesn't have."""

    def __init__(self, status, description="", source=""):
        Error.__init__(self, status, description, source)


ARGUMENT_FAILURES = frozenset((ARGUMENT_TYPE, ARGUMENT_COUNT, UNKNOWN_PARAMETER, UNKNOWN_NAME))

for exception in (Error, ArgumentError, MemberError):
    exception.__module__ = "tarq"


def error_of(status, description, source):
    """The exception for a failing status."""
    kind = ArgumentError if status in ARGUMENT_FAILURES else Error
    return kind(status, description, source)


def member_error(status, description, source):
    return MemberError(status, description, source)


def record_of(exception):
    """Status and description of an exception that a Python object has raised while the component called it."""
    if isinstance(exception, Error):
        return exception.status & 0xFFFFFFFF, exception.description
    return GENERAL_FAILURE, f"{type(exception).__name__}: {exception}"
