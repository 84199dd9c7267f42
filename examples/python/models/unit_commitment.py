"""Which power stations run at which hours of a day, so that the load is covered at the least cost.

A station that runs makes at least so much and at most so much; starting it costs, and in the hour of its start it is not
above `ramp`. Stations that run keep a reserve. Families over stations and hours hold the columns; a start is what runs now
and did not run an hour before, entered with a shifted index.
"""

import sys

import tarq

HOURS = list(range(1, 13))
LOAD = [340, 310, 300, 330, 420, 560, 680, 730, 700, 620, 520, 410]  # megawatts
RESERVE = 0.08  # of the load
# least and most megawatts, euros a megawatt hour, euros an hour, euros a start, megawatts in the hour of a start, runs before
STATIONS = {
    "lignite": (150, 320, 28, 900, 12000, 200, True),
    "coal": (90, 250, 36, 650, 6000, 150, True),
    "gas": (40, 180, 58, 300, 1800, 120, False),
    "turbine": (10, 90, 96, 80, 250, 90, False),
}
LEAST, MOST, COST, RUNNING, STARTING, RAMP, BEFORE = range(7)


def family(kind, model, name, *indexsets):
    made = kind()
    made.Init(model, name, *indexsets)
    return made


def build():
    model = tarq.TARQModel()
    model.ModelName = "day"
    model.Parameter["xglgap"] = 0
    names = list(STATIONS)
    power = family(tarq.TARQVarSet, model, "power", names, HOURS)
    runs = family(tarq.TARQVarSet, model, "runs", names, HOURS)
    starts = family(tarq.TARQVarSet, model, "starts", names, HOURS)
    runs.Type = tarq.Binary
    starts.UB = 1

    load = family(tarq.TARQResSet, model, "load", HOURS)
    load.SetEQ(LOAD)
    reserve = family(tarq.TARQResSet, model, "reserve", HOURS)
    reserve.SetGT([(1 + RESERVE) * megawatts for megawatts in LOAD])
    least = family(tarq.TARQResSet, model, "least", names, HOURS)  # power - least * runs >= 0
    least.SetGT(0)
    most = family(tarq.TARQResSet, model, "most", names, HOURS)  # power - most * runs + (most - ramp) * starts <= 0
    most.SetLT(0)
    begin = family(tarq.TARQResSet, model, "begin", names, HOURS)  # starts - runs + runs an hour before >= 0
    begin.SetGT(0)
    for rows in (least, most):
        model.SetNZStair(rows, power, 1)
    model.SetNZStair(begin, starts, 1)
    model.SetNZStair(begin, runs, -1)
    model.SetNZStair(begin.Enum(None, HOURS[1:]), runs.Enum(None, HOURS[:-1]), 1)

    for name, station in STATIONS.items():
        power.Cost[name], runs.Cost[name], starts.Cost[name] = station[COST], station[RUNNING], station[STARTING]
        model.SetNZStair(load, power.Enum(name), 1)
        model.SetNZStair(reserve, runs.Enum(name), station[MOST])
        model.SetNZStair(least.Enum(name), runs.Enum(name), -station[LEAST])
        model.SetNZStair(most.Enum(name), runs.Enum(name), -station[MOST])
        model.SetNZStair(most.Enum(name), starts.Enum(name), station[MOST] - station[RAMP])
        begin.LB[name, HOURS[0]] = -1 if station[BEFORE] else 0
    return model, power, runs


if __name__ == "__main__":
    model, power, runs = build()
    model.Optimize()
    if model.SolutionStatus != tarq.IPOptimalSolution:
        sys.exit(f"no plan: {model.SolutionStatus.name}")
    for name in STATIONS:
        print(f"{name:8}" + "".join(f"{power.IPSol[name, str(hour)]:7.1f}" for hour in HOURS))
    print(f"the day costs {model.IPObjFunctValue:.2f} euros")
