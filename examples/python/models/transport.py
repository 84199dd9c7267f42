"""What to ship from which plant to which city: transport.py [FILE].

Reads costs, supplies and demands from the sheet "transport" of FILE (made in a temporary folder when none is given), finds
the cheapest shipments, and writes them with the shadow prices into a second sheet, "plan". Needs openpyxl.
"""

import pathlib
import sys
import tempfile

import openpyxl
import tarq
from tarq.spreadsheet import Range, write

# euros a pallet, pallets that a plant has and that a city wants
CITIES = ["Bremen", "Erfurt", "Kassel", "Leipzig"]
COSTS = {"Ulm": [18, 11, 12, 14], "Trier": [14, 13, 9, 17], "Halle": [12, 5, 8, 2]}
SUPPLY = {"Ulm": 310, "Trier": 260, "Halle": 280}
DEMAND = [220, 190, 150, 240]


def make_workbook(path):
    book = openpyxl.Workbook()
    sheet = book.active
    sheet.title = "transport"
    sheet.append([None, *CITIES, "supply"])
    for plant, costs in COSTS.items():
        sheet.append([plant, *costs, SUPPLY[plant]])
    sheet.append(["demand", *DEMAND])
    book.save(path)


def build(sheet):
    """The model and its columns. The names stand beside and above the costs, supplies right of them, demands below."""
    bottom, right = sheet.max_row, sheet.max_column
    last = sheet.cell(bottom - 1, right - 1).column_letter
    supplies = sheet.cell(1, right).column_letter
    plants = list(Range(sheet, f"A2:A{bottom - 1}"))
    cities = list(Range(sheet, f"B1:{last}1"))

    model = tarq.TARQModel()
    model.ModelName = "transport"
    ship = tarq.TARQVarSet()
    ship.Init(model, "ship", plants, cities)
    ship.Cost = Range(sheet, f"B2:{last}{bottom - 1}")

    supply = tarq.TARQResSet()
    supply.Init(model, "supply", plants)
    supply.SetLT(Range(sheet, f"{supplies}2:{supplies}{bottom - 1}"))
    for plant in plants:
        supply.ItemByIndex[plant].Sum(ship.Enum(plant))

    demand = tarq.TARQResSet()
    demand.Init(model, "demand", cities)
    demand.SetGT(Range(sheet, f"B{bottom}:{last}{bottom}"))
    for city in cities:
        demand.ItemByIndex[city].Sum(ship.Enum(None, city))
    return model, ship, demand


def write_plan(sheet, ship, demand):
    plants = [ship.IndexsetElement[1, number + 1] for number in range(ship.SizeOfIndexset[1])]
    cities = [ship.IndexsetElement[2, number + 1] for number in range(ship.SizeOfIndexset[2])]
    plan = tarq.TARQArray()
    plan.Init(plants, cities)
    plan.Value = ship.LPSol()
    write(sheet, "A1", plan, headers=True)
    prices = [demand.Dual[city] for city in cities]
    write(sheet, f"A{len(plants) + 2}", [["one pallet more", *prices]])


def main(path):
    model, ship, demand = build(openpyxl.load_workbook(path, data_only=True)["transport"])
    model.Optimize()
    if model.SolutionStatus != tarq.LPOptimalSolution:
        sys.exit(f"no plan: {model.SolutionStatus.name}")
    book = openpyxl.load_workbook(path)  # once more, as a book of results alone would be saved without its formulas
    if "plan" in book:
        del book["plan"]
    sheet = book.create_sheet("plan")
    write_plan(sheet, ship, demand)
    book.save(path)
    for row in sheet.iter_rows(values_only=True):
        print("".join(f"{'' if cell is None else cell:>22}" for cell in row))
    print(f"shipping costs {model.LPObjFunctValue:.2f} euros, says {path.name}")


if __name__ == "__main__":
    if len(sys.argv) > 1:
        main(pathlib.Path(sys.argv[1]))
    else:
        with tempfile.TemporaryDirectory() as folder:
            workbook = pathlib.Path(folder) / "transport.xlsx"
            make_workbook(workbook)
            main(workbook)
