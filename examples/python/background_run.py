"""Loads a courier's vans by value while the program goes on: progress once a second, and a stop after SECONDS.

usage: background_run.py [SECONDS]

Which of 250 parcels go along is limited by 30 things at once. Good loads are found soon; to prove the best one takes
longer than anybody waits.
"""

import random
import sys
import threading

import tarq

PARCELS, LIMITS = 250, 30


def build():
    made_up = random.Random(7)
    model = tarq.TARQModel()
    model.ModelName = "courier"
    model.Parameter["xminmx"] = "max"
    for limit in range(1, LIMITS + 1):
        model.AddRow(0, 0, f"limit {limit}")
    for parcel in range(1, PARCELS + 1):
        model.AddCol(0, 1, tarq.Binary, made_up.randint(40, 120), f"parcel {parcel}")
        for limit in range(1, LIMITS + 1):
            model.NZ[limit, parcel] = made_up.randint(5, 100)
    for limit in range(1, LIMITS + 1):
        model.RowRHS[limit] = 0.4 * sum(model.NZ[limit, parcel] for parcel in range(1, PARCELS + 1))
    return model


def watch(model, finished, seconds):
    """Waits for the end of the run, and asks for it when the time is up."""
    waited = 0
    while not finished.wait(1):
        waited += 1
        nodes, best, bound = model.NumberOfNodesProcessed, model.IPObjFunctValue, model.IPObjFunctBestPossible
        print(f"{waited:3} s  {nodes:6} nodes  best load {best:.0f}  bound {bound:.1f}", flush=True)
        if waited == seconds:
            print("that will do")
            model.StopOptimizeAsync()


def main(seconds):
    model = build()
    finished = threading.Event()
    tarq.advise(model, finished.set)  # called on the thread of the run
    model.OptimizeAsync()
    try:
        watch(model, finished, seconds)
    except KeyboardInterrupt:
        model.StopOptimizeAsync()
        finished.wait()
    if model.SolutionStatus not in (tarq.IPOptimalSolution, tarq.IPSubOptimalSolution):
        sys.exit(f"no load was found: {model.SolutionStatus.name}")
    loaded = sum(model.ColIPSol[parcel] > 0.5 for parcel in range(1, PARCELS + 1))
    print(f"{model.SolutionStatus.name}: {loaded} parcels, value {model.IPObjFunctValue:.0f}")


if __name__ == "__main__":
    main(int(sys.argv[1]) if len(sys.argv) > 1 else 10)
