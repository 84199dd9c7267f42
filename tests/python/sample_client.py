"""A client that a type checker reads against the package's stubs."""

from typing import Any

import numpy
import tarq
from tarq.spreadsheet import Range, write


def fill(sheet: Any, table: tarq.TARQArray) -> Range:
    """Takes a worksheet's values and puts them beside it."""
    table.Init(2, ["a", "b"])
    table.Value = Range(sheet, "A1:B2")
    areas: int = Range(sheet).Areas.Count
    total: float = float(numpy.asarray(table).sum())
    return write(sheet, "D1", [areas, total, *table.to_frame().columns])


model = tarq.TARQModel()
model.ModelName = "workshop"
model.AddCol(0, 40, tarq.Continuous, 3.0, "chairs")
model.AddRow(-model.INF, 120, "wood")
model.NZ["wood", "chairs"] = 4
model.Parameter["xminmx"] = "max"
model.Optimize()
amount: float = model.ColLPSol["chairs"]
lower: float = model.ColLB("chairs")
status: tarq.TARQSolutionStatusTyp = model.SolutionStatus
kind, name = model.GetParameterInfo(1)[:2]
listener: int = tarq.advise(model, lambda: None)
tarq.unadvise(model, listener)
try:
    model.ColLB["nobody"]
except tarq.Error as error:
    code: int = error.status
if status == tarq.LPOptimalSolution:
    print("chairs", amount, lower)
