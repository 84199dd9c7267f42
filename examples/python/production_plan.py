"""A week in a furniture workshop: what to make of the wood, the hours and the varnish at hand.

Columns are the pieces to make, with their profit; rows are what they use up. The shadow price of a row says what one
more unit of it would be worth.
"""

import tarq

# profit in euros and the largest number that sells
PIECES = {"chair": (45, 60), "table": (120, 30), "shelf": (80, 40), "cabinet": (200, 15)}
# what there is, and what one of each piece takes
RESOURCES = {
    "wood": (1200, {"chair": 5, "table": 20, "shelf": 12, "cabinet": 35}),
    "saw hours": (150, {"chair": 0.8, "table": 2.0, "shelf": 1.5, "cabinet": 4.0}),
    "assembly hours": (170, {"chair": 1.5, "table": 2.5, "shelf": 1.0, "cabinet": 6.0}),
    "varnish": (110, {"chair": 0.5, "table": 2.0, "shelf": 1.0, "cabinet": 3.0}),
}


def build():
    model = tarq.TARQModel()
    model.ModelName = "workshop"
    model.Parameter["xminmx"] = "max"
    for piece, (profit, demand) in PIECES.items():
        model.AddCol(0, demand, tarq.Continuous, profit, piece)
    for resource, (available, needs) in RESOURCES.items():
        model.AddRow(-model.INF, available, resource)
        for piece, amount in needs.items():
            model.NZ[resource, piece] = amount
    return model


def show(model):
    print(f"{model.ModelName}: profit {model.LPObjFunctValue:.2f}")
    for piece in PIECES:
        print(f"  {piece:15} {model.ColLPSol[piece]:8.2f}   one more brings {model.ColRedCost[piece] + 0.0:7.2f}")
    for resource in RESOURCES:
        print(f"  {resource:15} {model.RowLPSol[resource]:8.2f}   one more is worth {model.RowDual[resource] + 0.0:7.2f}")


if __name__ == "__main__":
    plan = build()
    plan.Optimize()
    if plan.SolutionStatus == tarq.LPOptimalSolution:
        show(plan)
    else:
        print("no plan:", plan.SolutionStatus.name)
