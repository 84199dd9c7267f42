"""Reads a model file, solves it, tightens an upper bound, solves it again, and tells what the bound costs.

usage: tighten_bound.py FILE COLUMN BOUND, such as tighten_bound.py refinery_blend.mps SELLP 10
"""

import sys

import tarq


def solve(model):
    model.Optimize()
    if model.SolutionStatus not in (tarq.LPOptimalSolution, tarq.IPOptimalSolution):
        sys.exit(f"no optimum: {model.SolutionStatus.name}")
    is_integer = model.SolutionStatus == tarq.IPOptimalSolution
    return model.IPObjFunctValue if is_integer else model.LPObjFunctValue


def main(file, column, bound):
    model = tarq.TARQModel()
    model.ReadModel(file, tarq.MPS)
    before = solve(model)
    print(f"{model.ModelName}: {before:.6f} with {column} up to {model.ColUB[column]:g}")
    model.ColUB[column] = bound
    after = solve(model)
    print(f"{model.ModelName}: {after:.6f} with {column} up to {bound:g}, a difference of {after - before:.6f}")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    try:
        main(sys.argv[1], sys.argv[2], float(sys.argv[3]))
    except tarq.Error as error:
        sys.exit(str(error))
