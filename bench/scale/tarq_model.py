"""Builds and solves the model with the package tarq: tarq_model.py SIZE."""

import sys

import tarq
from stages import Stages, draw_costs, tell_result


def main():
    size = int(sys.argv[1])
    stages = Stages()
    costs = draw_costs(size)
    stages.end(1)

    model = tarq.TARQModel()
    does, person, task = tarq.TARQVarSet(), tarq.TARQResSet(), tarq.TARQResSet()
    does.Init(model, "does", size, size)
    person.Init(model, "person", size)
    task.Init(model, "task", size)
    stages.end(2)

    for i in range(1, size + 1):
        does.Cost[i] = costs[i - 1]
        does.UB[i] = 1
    person.SetEQ(1)
    task.SetEQ(1)
    stages.end(3)

    for i in range(1, size + 1):
        person.ItemByIndex[i].Sum(does.Enum(i))
        task.ItemByIndex[i].Sum(does.Enum(None, i))
    stages.end(4)

    model.Optimize()
    stages.end(5)

    solution = does.LPSol()
    stages.end(6)
    tell_result(costs, solution, model.Parameter["xlptim"], model.LPObjFunctValue)


if __name__ == "__main__":
    main()
