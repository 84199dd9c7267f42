"""Member tables as signatures and help texts."""

import inspect
from inspect import Parameter

TYPES = {"None": "None", "Long": "int", "Double": "float", "Text": "str", "Variant": "Any", "Object": "Object"}
INPUT_TYPES = {**TYPES, "Object": "Any"}


def input_annotation(parameter):
    """What a parameter takes."""
    if parameter["enumeration"]:
        annotation = f"{parameter['enumeration']} | int"
    else:
        annotation = INPUT_TYPES[parameter["type"]]
    if parameter["optional"] and annotation != "Any":
        annotation += " | None"
    return annotation


def value_annotation(parameter):
    """What a value handed out is."""
    return parameter["enumeration"] or TYPES[parameter["type"]]


def call_annotation(call):
    """What a call hands out apart from its outputs."""
    return call["enumeration"] or call["class"] or TYPES[call["result"]]


def inputs(member):
    """The parameters that a caller passes; a put's new value isn't among them."""
    parameters = [parameter for parameter in member["parameters"] if not parameter["out"]]
    return parameters[:-1] if member["kind"] == "put" else parameters


def result_annotation(member):
    """What a call returns: the result, or a tuple of it and the outputs."""
    result = call_annotation(member)
    outputs = [value_annotation(p) for p in member["parameters"] if p["out"]]
    if not outputs:
        return result
    if member["result"] != "None":
        outputs.insert(0, result)
    return f"tuple[{', '.join(outputs)}]"


def signature(member, with_self):
    """The inspect.Signature of a call."""
    parameters = [Parameter("self", Parameter.POSITIONAL_OR_KEYWORD)] if with_self else []
    for parameter in inputs(member):
        if parameter["variadic"]:
            parameters.append(
                Parameter(parameter["name"], Parameter.VAR_POSITIONAL, annotation=Annotation(input_annotation(parameter)))
            )
            continue
        # A parameter that may be left out can stand before one that may not.
        follows_default = bool(parameters) and parameters[-1].default is not Parameter.empty
        default = None if parameter["optional"] or follows_default else Parameter.empty
        parameters.append(
            Parameter(
                parameter["name"],
                Parameter.POSITIONAL_OR_KEYWORD,
                default=default,
                annotation=Annotation(input_annotation(parameter)),
            )
        )
    return inspect.Signature(parameters, return_annotation=Annotation(result_annotation(member)))


class Annotation:
    """A type by its name, shown without quotes."""

    def __init__(self, name):
        self.name = name

    def __repr__(self):
        return self.name


def index_text(member):
    """The arguments of a property as they stand between brackets; empty without such."""
    names = [("*" if p["variadic"] else "") + p["name"] for p in inputs(member)]
    return f"[{', '.join(names)}]" if names else ""


def new_value(put):
    """The new value of a put as a parameter."""
    return put["parameters"][-1]


def documentation(call, put):
    """The help text of a method (`call`), or of a property with its get (`call`) and its put."""
    if call is not None and call["kind"] == "method":
        return call["help"]
    member = call or put
    if call is not None:
        kind = call_annotation(call)
    else:
        kind = input_annotation(new_value(put))
    access = "" if call and put else ", read-only" if call else ", write-only"
    texts = [f"{member['name']}{index_text(member)}: {kind}{access}"]
    if call is not None and call["help"]:
        texts.append(call["help"])
    if put is not None and put["help"] and (call is None or put["help"] != call["help"]):
        texts.append(put["help"] if call is None else f"Set: {put['help']}")
    return "\n".join(texts)
