#!/usr/bin/env python3
"""Builds an assignment model of SIZE by SIZE columns in several ways and shows what each stage took.

usage: table.py BUILD [SIZE [WAY ...]]

BUILD is the folder of a build, SIZE 1000 where it isn't given. Each way runs in a process of its own, one after the
other, with the same engine options where the engine is HiGHS: presolve, dual simplex method, one thread. Their optima
have to agree.
"""

import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SKIPPED = 77
STAGES = {
    1: "1 draw costs",
    2: "2 create columns, rows",
    3: "3 write costs, bounds",
    4: "4 fill rows",
    5: "5 transfer and solve",
    6: "6 read the solution",
}


def ways(build):
    """Each way's title and command."""
    program = os.path.join(build, "bin", "tarq_scale")
    python = "/usr/bin/python3", "-B"
    return {
        "tarq": ("TARQ", [program, "tarq"]),
        "highs-rows": ("HiGHS by rows", [program, "highs-rows"]),
        "highs-arrays": ("HiGHS arrays", [program, "highs-arrays"]),
        "python-tarq": ("Python TARQ", [*python, os.path.join(HERE, "tarq_model.py")]),
        "python-pulp": ("PuLP, CBC", [*python, os.path.join(HERE, "pulp_model.py")]),
    }


class Run:
    """What one way told."""

    def __init__(self, title, lines):
        self.title = title
        self.stages = {}
        for words in map(str.split, lines):
            if words[0] == "stage":
                self.stages[int(words[1])] = tuple(map(float, words[2:]))
            elif words[0] == "engine":
                self.engine = float(words[1])
            elif words[0] == "objective":
                self.objective = float(words[1])

    def total(self, measure):
        return sum(values[measure] for values in self.stages.values())


def run(title, command, size, environment):
    """The Run, or None where the way is left out."""
    result = subprocess.run([*command, str(size)], env=environment, stdout=subprocess.PIPE, text=True, check=False)
    if result.returncode == SKIPPED:
        print(f"{title}: left out")
        return None
    if result.returncode != 0:
        sys.exit(f"{title}: failed with status {result.returncode}")
    return Run(title, result.stdout.splitlines())


def show(heading, rows, runs):
    print(f"\n{heading:30}" + "".join(f"{run.title:>15}" for run in runs))
    for name, value in rows.items():
        print(f"{name:30}" + "".join(f"{value(run):15.2f}" for run in runs))


def stage_rows(measure, unit=1.0):
    return {name: lambda run, number=number: run.stages[number][measure] / unit for number, name in STAGES.items()}


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    build, size = os.path.abspath(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    environment = {**os.environ, "PYTHONPATH": os.path.join(build, "python")}
    known = ways(build)
    chosen = sys.argv[3:] or known
    if unknown := [way for way in chosen if way not in known]:
        sys.exit(f"The ways are {', '.join(known)}, and not {', '.join(unknown)}.")
    runs = [made for way in chosen if (made := run(*known[way], size, environment))]
    print(f"An assignment of {size} by {size}: {size * size} columns, {2 * size} rows, {2 * size * size} nonzeros.")
    seconds = {
        **stage_rows(0),
        "all": lambda run: run.total(0),
        "  of it the engine's solving": lambda run: run.engine,
        "  all but that": lambda run: run.total(0) - run.engine,
    }
    show("seconds", seconds, runs)
    show("processor seconds", {**stage_rows(1), "all": lambda run: run.total(1)}, runs)
    show("highest resident MB", stage_rows(2, 1e6), runs)
    if len({round(run.objective, 3) for run in runs}) > 1:
        sys.exit(f"The optima differ: {[run.objective for run in runs]}")


if __name__ == "__main__":
    main()
