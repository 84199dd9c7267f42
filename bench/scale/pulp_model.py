"""Builds the model with PuLP and solves it with CBC, which PuLP starts as a program and tells the model in a file:
pulp_model.py SIZE. The status 77 tells that PuLP or CBC isn't there."""

import sys

import numpy

from stages import Stages, draw_costs, started_seconds, tell_result

try:
    import pulp
except ImportError as failure:
    print(f"PuLP can't be imported: {failure}", file=sys.stderr)
    sys.exit(77)


def main():
    size = int(sys.argv[1])
    solver = pulp.COIN_CMD(mip=False, msg=False, threads=1)
    if not solver.available():
        print("CBC isn't there", file=sys.stderr)
        sys.exit(77)
    stages = Stages()
    costs = draw_costs(size)
    stages.end(1)

    numbers = range(1, size + 1)
    problem = pulp.LpProblem("assignment", pulp.LpMinimize)
    does = pulp.LpVariable.dicts("does", (numbers, numbers), 0, 1)
    stages.end(2)

    problem += pulp.LpAffineExpression(
        (does[i][j], cost) for i, row in zip(numbers, costs.tolist()) for j, cost in zip(numbers, row)
    )
    stages.end(3)

    for i in numbers:
        problem += pulp.lpSum(does[i][j] for j in numbers) == 1, f"person_{i}"
        problem += pulp.lpSum(does[j][i] for j in numbers) == 1, f"task_{i}"
    stages.end(4)

    problem.solve(solver)
    stages.end(5)

    solution = numpy.array([[does[i][j].value() for j in numbers] for i in numbers])
    stages.end(6)
    tell_result(costs, solution, started_seconds(), problem.objective.value())


if __name__ == "__main__":
    main()
