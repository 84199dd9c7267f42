"""Models in MPL, read through a server that Python plays."""

import gc

import pytest

import tarq

PROG_ID = "MPLLib.OptiMax.1"
INFINITY = 1e25


class Node(tarq.Dispatch):
    """One of the server's objects: values and functions by the numbers of its members."""

    def __init__(self, members):
        self._dispids_ = {number: f"m{number}" for number in members}
        for number, value in members.items():
            setattr(self, f"m{number}", value)


def column(name, lower=0, upper=10, cost=1, integer=0, binary=0):
    return Node({9: lower, 10: upper, 4: cost, 17: integer, 18: binary, 13: name})


def row(name, kind, lower=-7, upper=7, ranged=0):
    return Node({3: kind, 1: ranged, 4: lower, 5: upper, 12: name})


def server(columns=(), rows=(), terms=None, read=lambda name: 0, text="", line=0, **matrix):
    """A server that has read these columns and rows; `matrix` replaces members by their numbers behind an m."""
    terms = terms or {}
    members = {
        25: 0, 23: 0, 26: len(columns), 27: len(rows), 28: 1,
        2: Node({0: lambda j: columns[j - 1]}), 1: Node({0: lambda i: rows[i - 1]}),
        0: lambda i, j: terms.get((i, j), 0),
    }
    members |= {int(name[1:]): value for name, value in matrix.items()}
    model = Node({25: read, 18: text, 32: line, 2: Node(members)})
    return Node({5: "", 1: Node({3: lambda argument: model})})


@pytest.fixture
def model():
    """A model with one column, and a check that nothing of the server is held in the end."""
    gc.collect()
    before = tarq._tarq.live_objects()
    made = tarq.TARQModel()
    made.AddCol(0, 1, tarq.Continuous, Name="old")
    yield made
    tarq.unregister_server(PROG_ID)
    del made
    gc.collect()
    assert tarq._tarq.live_objects() <= before + 1  # pytest holds the model


def read(model, played):
    tarq.register_server(PROG_ID.upper(), lambda: played)
    model.ReadMPLModel("plan.mpl")


def test_a_model_is_copied(model):
    columns = [column("x", -1e30, 1e30, 1e30), column("y", integer=1, binary=1), column("z", 0, 1, binary=2)]
    rows = [row("eq", 16), row("le", 32), row("range", 32, ranged=1), row("ge", 64), row("both", 128, -1, 2), row("odd", 5)]
    played = server(columns, rows, {(1, 1): 1e30, (6, 3): -2.5})
    model.MPLWorkingDirectory = "/plans"
    read(model, played)
    assert played.m5 == "/plans"
    assert [model.ColName[j] for j in (1, 2, 3)] == ["x", "y", "z"]
    assert [model.ColType[j] for j in (1, 2, 3)] == [tarq.Continuous, tarq.Integer, tarq.Binary]
    assert (model.ColLB[1], model.ColUB[1], model.ColCost[1]) == (-INFINITY, INFINITY, 1e30)
    bounds = [(model.RowLHS[i], model.RowRHS[i]) for i in range(1, 7)]
    assert bounds == [(7, 7), (-INFINITY, 7), (-7, 7), (-7, INFINITY), (-1, 2), (-1, 2)]
    assert model.NumberOfNZ == 2 and model.NZ["eq", "x"] == INFINITY and model.NZ["odd", "z"] == -2.5
    assert model.Parameter["xminmx"] == "max" and model.MPLErrorLine == 0


def broken(*_):
    raise tarq.Error(0x80041031, "The server is busy.")


@pytest.mark.parametrize("played, status, text, columns", [
    (server(read=lambda name: 4, text="Syntax", line=7), 0x80041036, "Error reading MPL model file.", 1),
    (server(m25=1), 0x80041036, "Model contains nonlinear terms.", 1),
    (server(read=broken), 0x80041031, "The server is busy.", 1),
    (Node({5: "", 1: "no object"}), 0x80004002, None, 1),
    (server([column("x"), column("x")]), 0x80041036, "Error creating TARQ variables (maybe not enough memory).", 1),
    (server([column("x")], [row("r", 16)] * 2), 0x80041036, "Error creating TARQ rows (maybe not enough memory).", 1),
    (server([column("x", lower="abc")]), 0x80020005, None, 0),
    (server([column("x")], m26=2**31), 0x80020005, None, 0),
    (server([column("x")], m26=2**31 - 1), 0x80004005, None, 1),
    (server([column("x")], m27=-5, m26=-1), None, None, 0),
    (server([column("x")], [row("r", 16)], m0=broken), 0x80041031, "The server is busy.", 1),
])
def test_what_a_server_may_do(model, played, status, text, columns):
    if status is None:
        read(model, played)
    else:
        with pytest.raises(tarq.Error) as caught:
            read(model, played)
        assert caught.value.status == status and text in (None, caught.value.description)
    assert model.NumberOfCols == columns
    assert (model.MPLErrorMessage, model.MPLErrorLine) == (("Syntax", 7) if text and "file" in text else ("", 0))


def test_a_server_may_call_back(model):
    """Clearing, or another reading, in the middle of a reading."""
    inner = server([column("inner")], [row("r", 16)], {(1, 1): 3})

    def clear(i, j):
        model.DelModel()
        return 1

    read(model, server([column("x")], [row("r", 16)], m0=clear))
    assert (model.NumberOfCols, model.NumberOfNZ) == (0, 0)
    with pytest.raises(tarq.Error, match="variables"):
        read(model, server([column("inner")], m26=2, m2=Node({0: lambda j: read(model, inner) or column("inner")})))
    assert model.NumberOfCols == 1 and model.NumberOfNZ == 1


def test_a_server_is_found_under_its_name(model):
    for factory in (None, lambda: None, lambda: 5, lambda: object(), broken):
        if factory is not None:
            tarq.register_server(PROG_ID, factory)
        assert model.IsMPLAvailable == 0
        with pytest.raises(tarq.Error, match="MPL is not available."):
            model.ReadMPLModel("plan.mpl")
    made = [None, server()]
    tarq.register_server(PROG_ID.lower(), made.pop)
    with pytest.raises(tarq.Error, match="Error initializing MPL Optimax."):
        model.ReadMPLModel("plan.mpl")
    tarq.register_server(PROG_ID, server)
    assert model.IsMPLAvailable == 1
    tarq.unregister_server(PROG_ID)
    assert model.IsMPLAvailable == 0 and model.NumberOfCols == 1
