"""Who does which job, so that all are done in the fewest hours: an assignment of people to jobs.

The rows of people and those of jobs are families; `Sum` over a slice of the columns makes each row. The linear model
suffices: its corners are whole.
"""

import sys

import tarq

JOBS = ["roof", "walls", "floor", "wiring", "pipes", "paint"]
HOURS = {
    "Ada": [13, 21, 20, 12, 8, 26],
    "Ben": [22, 26, 25, 16, 10, 23],
    "Cem": [36, 20, 17, 28, 24, 14],
    "Dora": [28, 33, 22, 25, 18, 31],
    "Emil": [15, 18, 27, 14, 9, 19],
    "Fee": [24, 19, 12, 23, 20, 11],
}


def build():
    model = tarq.TARQModel()
    model.ModelName = "assignment"
    does = tarq.TARQVarSet()
    does.Init(model, "does", list(HOURS), JOBS)
    does.Cost = list(HOURS.values())
    does.UB = 1
    works, done = tarq.TARQResSet(), tarq.TARQResSet()
    works.Init(model, "works", list(HOURS))
    done.Init(model, "done", JOBS)
    for person in HOURS:
        works.ItemByIndex[person].Sum(does.Enum(person))
    for job in JOBS:
        done.ItemByIndex[job].Sum(does.Enum(None, job))
    works.SetEQ(1)
    done.SetEQ(1)
    return model, does


if __name__ == "__main__":
    model, does = build()
    model.Optimize()
    if model.SolutionStatus != tarq.LPOptimalSolution:
        sys.exit(f"no assignment: {model.SolutionStatus.name}")
    for person in HOURS:
        job = next(job for job in JOBS if does.LPSol[person, job] > 0.5)
        print(f"  {person:5} {job:7} {does.Cost[person, job]:3g} hours")
    print(f"{model.LPObjFunctValue:g} hours in all")
