"""What to take along: the most valuable things that a rucksack holds, a model of yes-or-no columns with one row."""

import sys

import tarq

# value and weight in decagrams
THINGS = {
    "tent": (95, 210),
    "stove": (60, 85),
    "sleeping bag": (88, 140),
    "camera": (52, 76),
    "lens": (31, 49),
    "book": (18, 33),
    "rope": (64, 127),
    "water": (90, 200),
    "bread": (47, 62),
    "rain jacket": (58, 71),
    "boots": (71, 155),
    "map": (20, 9),
    "lamp": (26, 21),
    "first aid": (45, 48),
}
HOLDS = 790


def build():
    model = tarq.TARQModel()
    model.ModelName = "rucksack"
    model.Parameter["xminmx"] = "max"
    model.Parameter["xglgap"] = 0  # not only nearly the best
    take = tarq.TARQVarSet()
    take.Init(model, "take", list(THINGS))
    take.Type = tarq.Binary
    take.Cost = [value for value, _ in THINGS.values()]
    weight = tarq.TARQRes()
    weight.Name = "weight"
    weight.SetLT(HOLDS)
    model.AddRes(weight)
    weight.Sum([weight for _, weight in THINGS.values()], take)
    return model, take, weight


if __name__ == "__main__":
    model, take, weight = build()
    model.Optimize()
    if model.SolutionStatus != tarq.IPOptimalSolution:
        sys.exit(f"nothing to take: {model.SolutionStatus.name}")
    print("  " + ", ".join(thing for thing in THINGS if take.IPSol[thing] > 0.5))
    print(f"worth {model.IPObjFunctValue:g}, {weight.IPSol:g} of {HOLDS} decagrams")
