"""Writes the type stubs of the package from the member tables: makestubs.py FILE."""

import inspect
import sys
import textwrap

import tarq
from tarq import _helpers, _signatures, _tarq

HEAD = '''\
"""{summary}

Made from the member tables of the component.
"""

from enum import Enum, IntEnum
from typing import Any, Callable, Iterator, Literal, Mapping, Sequence

from . import spreadsheet as spreadsheet

__version__: str

class MissingType(Enum):
    """Type of `tarq.Missing`, the argument that is left out, said explicitly."""
    Missing = "Missing"

Missing: Literal[MissingType.Missing]

class Error(Exception):
    """A call that failed."""
    status: int
    description: str
    source: str
    def __init__(self, status: int, description: str = ..., source: str = ...) -> None: ...

class ArgumentError(Error, TypeError):
    """A call with too few or too many arguments, an unknown one, or one that can't be converted."""

class MemberError(Error, AttributeError):
    """A name that the object doesn't have."""

class Object:
    """An object of the component."""
    def __hash__(self) -> int: ...

class Dispatch:
    """Base of classes whose objects stand in where the component itself calls late-bound."""
    _interfaces_: Sequence[str]
    _dispids_: Mapping[int, str]

def last_status() -> int:
    """{last_status}"""

def unadvise(obj: Object, cookie: int) -> None:
    """{unadvise}"""

def advise(obj: Object, sink: Any) -> int:
    """{advise}"""

def register_server(prog_id: str, factory: Callable[[], Dispatch | Object]) -> None:
    """{register_server}"""

def unregister_server(prog_id: str) -> None:
    """{unregister_server}"""
'''


def docstring(text):
    """A docstring in the stub's indentation, without what would end it."""
    return '"""' + text.replace("\\", "\\\\").replace('"""', "'''") + '"""'


def indented(lines, depth=1):
    return [textwrap.indent(line, "    " * depth) for line in lines]


def head():
    texts = {
        name: inspect.getdoc(getattr(tarq, name)).split("\n\n", 1)[-1].replace("\n", " ")
        for name in ("last_status", "unadvise", "advise", "register_server", "unregister_server")
    }
    return HEAD.format(summary=tarq.__doc__.splitlines()[0], **texts)


def enumeration(described):
    lines = [f"class {described['name']}(IntEnum):", *indented([docstring(described["help"])])]
    lines += indented([f"{name} = {value}" for name, value in described["values"]])
    lines.append("")
    lines += [f"{name}: Literal[{described['name']}.{name}]" for name, _ in described["values"]]
    return lines + [""]


def method(name, member):
    return [f"def {name}{_signatures.signature(member, True)}:",
            *indented([docstring(member["help"]), "..."])]


def put_signature(put, name):
    """A put as a method that gets the index arguments in one key."""
    value = _signatures.input_annotation(_signatures.new_value(put))
    return f"def {name}(self, key: Any, value: {value}) -> None: ..."


def indexed_class(class_name, call, put):
    """What a property with arguments is: it can be subscripted and called."""
    lines = [f"class {class_name}:"]
    if call is not None:
        result = _signatures.result_annotation(call)
        lines += indented([f"def __getitem__(self, key: Any) -> {result}: ..."])
        lines += indented([f"def __call__{_signatures.signature(call, True)}: ..."])
    if put is not None:
        lines += indented([put_signature(put, "__setitem__")])
    if is_assignable(put):
        # A property of which the setter takes another type than the getter gives has no other form that checkers know.
        value = _signatures.input_annotation(_signatures.new_value(put))
        lines += indented([
            f"def __get__(self, instance: object, owner: Any = None) -> {class_name}: ...",
            f"def __set__(self, instance: object, value: {value}) -> None: ...",
        ])
    return lines + [""]


def is_assignable(put):
    """Whether a property with arguments can be put without them."""
    return put is not None and all(parameter["optional"] for parameter in _signatures.inputs(put))


def property_lines(name, call, put, class_name):
    """A property; `class_name` is the class of one with arguments."""
    plain = _signatures.result_annotation(call) if call else _signatures.input_annotation(_signatures.new_value(put))
    text = docstring(_signatures.documentation(call, put))
    if class_name and is_assignable(put):
        return [f"{name}: {class_name}", text]
    lines = ["@property", f"def {name}(self) -> {class_name or plain}:", *indented([text, "..."])]
    if is_assignable(put):
        value = _signatures.input_annotation(_signatures.new_value(put))
        lines += [f"@{name}.setter", f"def {name}(self, value: {value}) -> None: ..."]
    return lines


def special_methods(members):
    """What an object itself does by its members with special numbers."""
    lines = []
    for member in members:
        if member["id"] == 0 and member["kind"] != "put":
            result = _signatures.result_annotation(member)
            lines.append(f"def __getitem__(self, key: Any) -> {result}: ...")
            lines.append(f"def __call__{_signatures.signature(member, True)}: ...")
        elif member["id"] == 0:
            lines.append(put_signature(member, "__setitem__"))
        elif member["id"] == -4:
            lines.append("def __iter__(self) -> Iterator[Any]: ...")
        elif member["name"] == "Count" and member["kind"] != "put" and not member["parameters"]:
            lines.append("def __len__(self) -> int: ...")
    return lines


def helper_lines(interface):
    """What the package adds to the members."""
    taken = {member["name"].lower() for member in interface["members"]}
    lines = []
    for helper in _helpers.helpers_of(interface["name"]):
        if helper.__name__.lower() not in taken:
            text = docstring(inspect.getdoc(helper) or "")
            signature = inspect.signature(helper, eval_str=True)
            lines += [f"def {helper.__name__}{signature}:", *indented([text, "..."])]
    return lines


def class_lines(described):
    interface = described["interface"]
    members = interface["members"]
    groups = {}
    for member in members:
        if not member["hidden"] and not member["restricted"]:
            groups.setdefault(member["name"], {})[member["kind"]] = member
    helpers, body = [], [docstring(interface["help"]), *special_methods(members)]
    for name, group in groups.items():
        if "method" in group:
            body += method(name, group["method"])
            continue
        call, put = group.get("get"), group.get("put")
        class_name = f"_{described['name']}_{name}" if _signatures.inputs(call or put) else None
        if class_name:
            helpers += indexed_class(class_name, call, put)
        body += property_lines(name, call, put, class_name)
    body += helper_lines(interface)
    return [*helpers, f"class {described['name']}(Object):", *indented(body), ""]


def stubs():
    classes = _tarq.described_classes()
    lines = [head()]
    for described in _tarq.described_enumerations():
        lines += enumeration(described)
    for described in classes:
        lines += class_lines(described)
    lines += ["def create(name: str) -> Any:", *indented([docstring(inspect.getdoc(tarq.create).split("\n", 1)[-1].strip()), "..."])]
    return "\n".join(lines) + "\n"


if __name__ == "__main__":
    with open(sys.argv[1], "w", encoding="utf-8") as file:
        file.write(stubs())
