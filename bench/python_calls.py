"""Times single calls from Python, beside the same loop over a peer's binding: python_calls.py [REPEATS].

The peer is swiglpk, whose functions are the shortest way from Python into a solver's C library that is packaged; a loop
that only adds up the numbers is the floor of both. Prints the median time of a call in nanoseconds, loop included.
"""

import statistics
import sys
import time

import swiglpk
import tarq

COLUMNS = 100_000


def make_model():
    model = tarq.TARQModel()
    for number in range(1, COLUMNS + 1):
        model.AddCol(number, 2 * number, tarq.Continuous)
    return model


def make_peer():
    problem = swiglpk.glp_create_prob()
    swiglpk.glp_add_cols(problem, COLUMNS)
    for number in range(1, COLUMNS + 1):
        swiglpk.glp_set_col_bnds(problem, number, swiglpk.GLP_DB, number, 2 * number)
    return problem


def read_subscripted(model, _):
    total = 0.0
    for number in range(1, COLUMNS + 1):
        total += model.ColLB[number]
    return total


def read_bound(model, _):
    lower = model.ColLB
    total = 0.0
    for number in range(1, COLUMNS + 1):
        total += lower[number]
    return total


def read_peer(_, problem):
    total = 0.0
    for number in range(1, COLUMNS + 1):
        total += swiglpk.glp_get_col_lb(problem, number)
    return total


def read_nothing(*_):
    total = 0.0
    for number in range(1, COLUMNS + 1):
        total += number
    return total


LOOPS = {
    "model.ColLB[number]": read_subscripted,
    "lower[number], with lower = model.ColLB": read_bound,
    "swiglpk.glp_get_col_lb(problem, number)": read_peer,
    "nothing but the loop": read_nothing,
}


def main():
    repeats = int(sys.argv[1]) if len(sys.argv) > 1 else 21
    model, problem = make_model(), make_peer()
    times = {name: [] for name in LOOPS}
    for _ in range(repeats):
        for name, loop in LOOPS.items():
            started = time.perf_counter()
            total = loop(model, problem)
            times[name].append(time.perf_counter() - started)
            assert total == COLUMNS * (COLUMNS + 1) / 2
    for name, seconds in times.items():
        print(f"{name:42}{1e9 * statistics.median(seconds) / COLUMNS:8.1f} ns")


if __name__ == "__main__":
    main()
