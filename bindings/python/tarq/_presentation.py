"""How objects show themselves, and what they say to a name that they don't have."""

import difflib

DETAILS = (
    # The members that a repr shows where the object has them, with the words around their values.
    ("ModelName", "{!r}", str),
    ("Name", "{!r}", str),
    ("NumberOfCols", "{} columns", int),
    ("NumberOfRows", "{} rows", int),
    ("NumberOfNZ", "{} nonzeros", int),
    ("Count", "{} elements", int),
    ("ModelIndex", "number {}", int),
)
# A member that an object has only while another one of its members is true.
CONDITIONS = {"ModelIndex": "IsAttached"}


def members(obj):
    """The names of an object's members in their own spelling, without hidden ones."""
    names = set(object.__dir__(obj))
    return sorted(names)


def own_members(obj):
    return [name for name in dir(obj) if not name.startswith("_")]


def unknown_member(obj, name):
    """What to say when an object doesn't have a member."""
    text = f"{type(obj).__name__} has no member '{name}'"
    names = {member.lower(): member for member in own_members(obj)}
    near = difflib.get_close_matches(name.lower(), names, n=1)
    return f"{text}. Did you mean '{names[near[0]]}'?" if near else f"{text}."


def represent(obj):
    """<tarq.TARQModel 'plan': 3 columns, 2 rows, 5 nonzeros>"""
    kind = type(obj)
    title, sizes = f"{kind.__module__}.{kind.__qualname__}", []
    for name, words, value_type in DETAILS:
        if not hasattr(kind, name):
            continue
        try:
            if name in CONDITIONS and not getattr(obj, CONDITIONS[name]):
                continue
            value = getattr(obj, name)
        except Exception:
            continue
        if not isinstance(value, value_type) or value == "":
            continue
        if value_type is str:
            title += " " + words.format(value)
        else:
            sizes.append((words.removesuffix("s") if value == 1 else words).format(value))
    return f"<{title}: {', '.join(sizes)}>" if sizes else f"<{title}>"
