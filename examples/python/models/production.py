"""What to make and what to store over half a year, so that every month's demand is met at the least cost.

Columns and rows are families over products and months. What is in store at the end of one month is there at the start of
the next: the balance of a month has the store of the month before it, a shifted index that one call enters.
"""

import sys

import tarq

MONTHS = ["Jan", "Feb", "Mar", "Apr", "May", "Jun"]
PRODUCTS = ["bicycle", "trailer"]
DEMAND = [[180, 220, 410, 650, 720, 480], [40, 60, 120, 200, 190, 110]]
COST = [[240, 240, 250, 255, 255, 250], [130, 130, 130, 138, 138, 135]]  # euros to make one
STORING = {"bicycle": 4, "trailer": 2.5}  # euros a piece and month
HOURS_EACH = {"bicycle": 2.5, "trailer": 1.5}
HOURS = [1150, 1100, 1250, 1250, 1200, 1250]  # at the normal wage
OVERTIME, WAGE = 260, 12  # hours a month, and what one costs more
AT_FIRST = {"bicycle": 60, "trailer": 25}  # in store
STORE = 420  # pieces of both that fit in


def family(kind, model, name, *indexsets):
    made = kind()
    made.Init(model, name, *indexsets)
    return made


def build():
    model = tarq.TARQModel()
    model.ModelName = "half a year"
    make = family(tarq.TARQVarSet, model, "make", PRODUCTS, MONTHS)
    make.Cost = COST
    store = family(tarq.TARQVarSet, model, "store", PRODUCTS, MONTHS)
    overtime = family(tarq.TARQVarSet, model, "overtime", MONTHS)
    overtime.UB, overtime.Cost = OVERTIME, WAGE

    # In store before, and made, less in store afterwards is what was sold.
    balance = family(tarq.TARQResSet, model, "balance", PRODUCTS, MONTHS)
    balance.SetEQ(DEMAND)
    model.SetNZStair(balance, make, 1)
    model.SetNZStair(balance, store, -1)
    model.SetNZStair(balance.Enum(None, MONTHS[1:]), store.Enum(None, MONTHS[:-1]), 1)

    hours = family(tarq.TARQResSet, model, "hours", MONTHS)
    hours.SetLT(HOURS)
    model.SetNZStair(hours, overtime, -1)
    room = family(tarq.TARQResSet, model, "room", MONTHS)
    room.SetLT(STORE)
    for number, product in enumerate(PRODUCTS):
        store.Cost[product] = STORING[product]
        balance.SetEQ(DEMAND[number][0] - AT_FIRST[product], product, MONTHS[0])
        model.SetNZStair(hours, make.Enum(product), HOURS_EACH[product])
        model.SetNZStair(room, store.Enum(product), 1)
    return model, make, store, overtime


if __name__ == "__main__":
    model, make, store, overtime = build()
    model.Optimize()
    if model.SolutionStatus != tarq.LPOptimalSolution:
        sys.exit(f"no plan: {model.SolutionStatus.name}")
    print(" " * 16 + "".join(f"{month:>9}" for month in MONTHS))
    for product in PRODUCTS:
        for what, block in (("make", make), ("store", store)):
            print(f"{product:9}{what:7}" + "".join(f"{block.LPSol[product, month]:9.1f}" for month in MONTHS))
    print(f"{'overtime':16}" + "".join(f"{overtime.LPSol[month]:9.1f}" for month in MONTHS))
    print(f"half a year costs {model.LPObjFunctValue:.2f} euros")
