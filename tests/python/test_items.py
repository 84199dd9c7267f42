"""Columns and rows as objects."""

import pytest

import tarq


@pytest.fixture
def model():
    made = tarq.TARQModel()
    for name in ("x", "y"):
        made.AddCol(0, 10, tarq.Continuous, 1, name)
    made.AddRow(0, 8, "r")
    return made


def test_a_model_is_built_from_objects_and_solved():
    model = tarq.TARQModel()
    columns = []
    for name, cost in (("x", 3.0), ("y", 2.0)):
        column = tarq.TARQVar()
        column.Name, column.Cost, column.UB = name, cost, 5
        model.AddVar(column)
        columns.append(column)
    row = tarq.TARQRes()
    row.SetLT(8)
    model.AddRes(row)
    row.Sum(columns[0], columns[1])
    row.Sum(1, "y")
    model.Parameter["xminmx"] = "max"
    model.Optimize()
    assert [round(column.LPSol, 6) for column in columns] == [5, 1.5] and round(row.LPSol, 6) == 8
    columns[0].Detach()
    model.DelModel()
    assert round(columns[0].LPSol, 6) == 5 and columns[0].Name == "x"
    with pytest.raises(tarq.Error, match="Column index is greater than number of columns."):
        columns[1].UB = 4


def test_objects_are_handles_of_their_columns_and_rows(model):
    model.Var["y"].UB = 4
    assert model.ColUB["y"] == 4 and model.Var[2].Parent.NumberOfCols == 2
    model.Var["x"] = model.Res["r"].Parent.Var["x"]
    model.Res["r"].SetEQ(3)
    assert (model.RowLHS[1], model.RowRHS[1]) == (3, 3)
    model.NZ[model.Res[1].ModelIndex, "x"] = 2
    model.NZs[model.Res["r"], model.Var["y"]] = 7
    assert model.NZ["r", "y"] == 7
    with pytest.raises(tarq.Error, match="Only TARQVar objects allowed as argument."):
        model.Var["x"] = model.Res["r"]


def test_repr_tells_name_and_number(model):
    column = model.Var["x"]
    assert repr(column) == "<tarq.TARQVar 'x': number 1>"
    column.Detach()
    assert repr(column) == "<tarq.TARQVar 'x'>" and repr(tarq.TARQRes()) == "<tarq.TARQRes>"
    row = model.Res["r"]
    model.DelRow("r")
    assert repr(row) == "<tarq.TARQRes: number 1>"


def test_a_familys_enumerator_counts_what_it_fetches(model):
    rows = tarq.TARQResSet()
    rows.Init(model, "rows", 1)
    enumerator = rows.Enum()
    item, fetched = enumerator.VB_Next()
    assert item.Name == "rows.1" and fetched == 1
    assert enumerator.VB_Next() == (None, 0) and tarq.last_status() == 1
