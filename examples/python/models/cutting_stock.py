"""How to cut rolls of paper so that the orders are met from the fewest rolls, by column generation.

A column of the master problem is a pattern: how many pieces of each width are cut from one roll. The shadow prices of the
orders say what a piece is worth; a rucksack problem, a model of its own, looks for the pattern that is worth more than a
roll. When there is none the linear master is solved, and its patterns are used in whole rolls.
"""

import sys

import tarq

ROLL = 560  # centimetres
ORDERS = {138: 22, 152: 25, 156: 12, 171: 14, 182: 18, 188: 18, 200: 20, 205: 10, 210: 12, 214: 14, 220: 16}


def solve(model, wanted):
    model.Optimize()
    if model.SolutionStatus != wanted:
        sys.exit(f"{model.ModelName} has no solution: {model.SolutionStatus.name}")


class Master(tarq.TARQModel):
    """The fewest rolls with the patterns known so far. To begin with, each pattern cuts one width only."""

    def __init__(self):
        super().__init__()
        self.ModelName = "cutting stock"
        self.orders = tarq.TARQResSet()
        self.orders.Init(self, "order", list(ORDERS))
        self.orders.SetGT(list(ORDERS.values()))
        self.patterns = []
        for width in ORDERS:
            self.add({width: ROLL // width})

    def add(self, pattern):
        self.patterns.append(pattern)
        name = f"pattern.{len(self.patterns)}"
        self.AddCol(0, self.INF, tarq.Continuous, 1, name)
        self.SetNZStair([f"order.{width}" for width in pattern], [name] * len(pattern), list(pattern.values()))


class PatternSearch(tarq.TARQModel):
    """The pattern that is worth the most when a piece of each width has a price."""

    def __init__(self):
        super().__init__()
        self.ModelName = "pattern"
        self.Parameter["xminmx"] = "max"
        self.Parameter["xglgap"] = 0
        self.pieces = tarq.TARQVarSet()
        self.pieces.Init(self, "pieces", list(ORDERS))
        self.pieces.UB = [ROLL // width for width in ORDERS]
        self.pieces.Type = tarq.Integer
        self.AddRow(-self.INF, ROLL, "roll")
        roll = tarq.TARQRes()
        roll.Attach(self, "roll")
        roll.Sum(list(ORDERS), self.pieces)

    def best(self, prices):
        self.pieces.Cost = prices
        solve(self, tarq.IPOptimalSolution)
        found = {width: round(self.pieces.IPSol[str(width)]) for width in ORDERS}
        return self.IPObjFunctValue, {width: count for width, count in found.items() if count > 0}


def generate(master):
    """Adds patterns until none is worth more than a roll, and gives the bound that this proves."""
    search = PatternSearch()
    while True:
        solve(master, tarq.LPOptimalSolution)
        worth, pattern = search.best([master.orders.Dual[str(width)] for width in ORDERS])
        if worth <= 1 + 1e-7:
            return master.LPObjFunctValue
        master.add(pattern)


if __name__ == "__main__":
    master = Master()
    bound = generate(master)
    for number in range(len(master.patterns)):
        master.ColType[f"pattern.{number + 1}"] = tarq.Integer
    master.Parameter["xglgap"] = 0
    solve(master, tarq.IPOptimalSolution)
    for number, pattern in enumerate(master.patterns):
        rolls = round(master.ColIPSol[f"pattern.{number + 1}"])
        if rolls > 0:
            print(f"  {rolls:3} rolls into " + ", ".join(f"{count} x {width}" for width, count in pattern.items()))
    print(f"{master.IPObjFunctValue:g} rolls, {bound:.4f} at least")
