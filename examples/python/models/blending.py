"""The cheapest feed for cattle: a mixture that holds what the animals need and not too much of what harms them.

Columns are the parts of the ingredients in one tonne of feed. A row for each nutrient bounds what the mixture holds of it, on
both sides.
"""

import sys

import tarq

INGREDIENTS = ["barley", "maize", "rapeseed", "soya", "bran", "chalk"]
PRICES = [182, 205, 260, 410, 150, 60]  # euros a tonne
LIMITS = [0.6, 0.5, 0.15, 1, 0.25, 0.03]  # largest part in the mixture
# smallest and largest content of the mixture in grams a kilogram (energy: megajoules), and that of each ingredient
NUTRIENTS = {
    "protein": (160, 190, [106, 88, 343, 449, 141, 0]),
    "energy": (11.8, 12.6, [12.9, 13.3, 12.0, 13.8, 9.9, 0]),
    "fibre": (40, 75, [46, 22, 115, 60, 114, 0]),
    "calcium": (7, 11, [0.6, 0.3, 7.0, 2.9, 1.6, 380]),
    "phosphorus": (4, 6.5, [3.6, 3.0, 11.0, 6.4, 11.5, 0.2]),
}


def build():
    model = tarq.TARQModel()
    model.ModelName = "feed"
    part = tarq.TARQVarSet()
    part.Init(model, "part", INGREDIENTS)
    part.Cost = PRICES
    part.UB = LIMITS

    whole = tarq.TARQRes()
    whole.Name = "whole"
    whole.SetEQ(1)
    model.AddRes(whole)
    whole.Sum(part)

    content = tarq.TARQResSet()
    content.Init(model, "content", list(NUTRIENTS))
    content.LB = [least for least, _, _ in NUTRIENTS.values()]
    content.UB = [most for _, most, _ in NUTRIENTS.values()]
    for nutrient, (_, _, amounts) in NUTRIENTS.items():
        content.ItemByIndex[nutrient].Sum(amounts, part)
    return model, part, content


if __name__ == "__main__":
    model, part, content = build()
    model.Optimize()
    if model.SolutionStatus != tarq.LPOptimalSolution:
        sys.exit(f"no mixture: {model.SolutionStatus.name}")
    for ingredient in INGREDIENTS:
        print(f"  {ingredient:10} {100 * part.LPSol[ingredient]:6.2f} %")
    for nutrient in NUTRIENTS:
        print(f"  {nutrient:10} {content.LPSol[nutrient]:8.3f}   one more costs {content.Dual[nutrient] + 0.0:9.4f}")
    print(f"a tonne of feed costs {model.LPObjFunctValue:.4f} euros")
