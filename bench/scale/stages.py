"""What each stage of a program took, told on the standard output in the lines that stages.h describes."""

import resource
import time

import numpy


def draw_costs(size):
    """The costs of drawCosts in assignment.h, as a table of persons and tasks."""
    number = numpy.arange(1, size * size + 1, dtype=numpy.uint64) * numpy.uint64(0x9E3779B97F4A7C15)
    number = (number ^ (number >> numpy.uint64(30))) * numpy.uint64(0xBF58476D1CE4E5B9)
    number = (number ^ (number >> numpy.uint64(27))) * numpy.uint64(0x94D049BB133111EB)
    number ^= number >> numpy.uint64(31)
    return (1 + number % numpy.uint64(1000)).astype(float).reshape(size, size)


def started_seconds():
    """Processor time of the programs that were started and have ended."""
    children = resource.getrusage(resource.RUSAGE_CHILDREN)
    return children.ru_utime + children.ru_stime


class Stages:
    def __init__(self):
        self._begin()

    def end(self, number):
        """Ends a stage; the next one begins. A program that was started in it counts, with its memory on top."""
        seconds = time.perf_counter() - self._start
        own, children = self._processor_seconds()
        started = children > self._processor[1]
        peak = self._peak_bytes()
        if started:
            peak += 1024 * resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
        print(f"stage {number} {seconds:.6f} {own + children - sum(self._processor):.6f} {peak}", flush=True)
        self._begin()

    def _begin(self):
        try:
            with open("/proc/self/clear_refs", "w", encoding="ascii") as file:
                file.write("5")
        except OSError:
            pass  # the peak is then that of all stages until now
        self._processor = self._processor_seconds()
        self._start = time.perf_counter()

    @staticmethod
    def _processor_seconds():
        return time.process_time(), started_seconds()

    @staticmethod
    def _peak_bytes():
        with open("/proc/self/status", encoding="ascii") as file:
            return next(1024 * int(line.split()[1]) for line in file if line.startswith("VmHWM:"))


def tell_result(costs, solution, engine_seconds, objective):
    """Tells what solving took within the stages, and the objective, which has to be that of the solution read."""
    assert solution.shape == costs.shape
    assert abs(float((costs * solution).sum()) - objective) <= 1e-6 * abs(objective)
    print(f"engine {engine_seconds:.6f}\nobjective {objective:.6f}")
