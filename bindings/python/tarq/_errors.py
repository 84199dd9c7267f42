"""Failures of the component as exceptions."""

import re

from ._tarq import statuses

# What stands for the bytes of texts that are no UTF-8.
UNPRINTABLE = re.compile("[\ud800-\udfff]")


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
        text = UNPRINTABLE.sub("\N{REPLACEMENT CHARACTER}", str(self.description))
        return f"{text} (0x{self.status:08X})"


class ArgumentError(Error, TypeError):
    """A call with too few or too many arguments, an unknown one, or one that can't be converted."""


class MemberError(Error, AttributeError):
    """A name that the object doesn't have."""

    def __init__(self, status, description="", source=""):
        Error.__init__(self, status, description, source)


ARGUMENT_FAILURES = frozenset(
    statuses[name] for name in ("argumentType", "argumentCount", "unknownParameterName", "unknownName")
)

for exception in (Error, ArgumentError, MemberError):
    exception.__module__ = "tarq"


def error_of(status, description, source):
    """The exception for a failing status."""
    kind = ArgumentError if status in ARGUMENT_FAILURES else Error
    return kind(status, description, source)


# Failures of a run of which the engine has told the reason, and how their descriptions begin.
ENGINE_FAILURES = {
    statuses["engineMemory"]: "Not enough memory for model",
    statuses["engineSetup"]: "Input error",
    statuses["crucialError"]: "",
}
NUMBERED = re.compile(r"\b(column|row) ([1-9]\d{0,8})\b", re.IGNORECASE)


def explain(error, model):
    """Notes the engine's reason, and the names of the columns and rows whose numbers are in it."""
    start = ENGINE_FAILURES.get(error.status)
    message = model.LastSolverMessage if start is not None and error.description.startswith(start) else ""
    if message:
        error.add_note(" ".join([message, *named(model, message)]))


def named(model, message):
    names = {"column": model.ColName, "row": model.RowName}
    for kind, number in dict.fromkeys(NUMBERED.findall(message)):
        try:
            name = names[kind.lower()][int(number)]
        except Error:  # a number of something else
            continue
        if name:
            yield f"{kind.capitalize()} {number} is {name!r}."


def member_error(status, description, source):
    return MemberError(status, description, source)


def record_of(exception):
    """Status and description of an exception that a Python object has raised while the component called it."""
    if isinstance(exception, Error):
        return exception.status & 0xFFFFFFFF, exception.description
    return statuses["generalFailure"], f"{type(exception).__name__}: {exception}"
