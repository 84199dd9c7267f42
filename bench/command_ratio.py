#!/usr/bin/env python3
"""Times `tarq solve` against HiGHS's own command on the same files, both in one run, taking turns.

usage: command_ratio.py TARQ HIGHS FOLDER [REPEATS]

FOLDER holds MPS files and optima.tsv. Prints for each model the median wall time of both in milliseconds and the median
of the ratios of neighbouring runs; at the end the geometric mean of these for LPs and for integer models.
"""

import csv
import math
import os
import statistics
import subprocess
import sys
import time


def seconds(command):
    started = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return time.perf_counter() - started


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    tarq, highs, folder = sys.argv[1:4]
    repeats = int(sys.argv[4]) if len(sys.argv) > 4 else 21
    ratios = {"LP": [], "MIP": []}
    with open(os.path.join(folder, "optima.tsv"), newline="", encoding="utf-8") as table:
        for model in csv.DictReader(table, delimiter="\t"):
            path = os.path.join(folder, model["file"])
            pairs = [(seconds([tarq, "solve", path, "--quiet"]), seconds([highs, path])) for _ in range(repeats)]
            ours, theirs = (statistics.median(side) * 1e3 for side in zip(*pairs))
            ratio = statistics.median(ours / theirs for ours, theirs in pairs)
            ratios[model["kind"]].append(ratio)
            print(f"{model['file']:24} {model['kind']:4} tarq {ours:9.2f} ms  highs {theirs:9.2f} ms  ratio {ratio:5.2f}")
    for kind, values in ratios.items():
        if not values:
            continue
        mean = math.exp(statistics.fmean(map(math.log, values)))
        print(f"{kind}: geometric mean of the ratios {mean:.3f}, largest {max(values):.3f}")


if __name__ == "__main__":
    main()
