"""Times products of arrays from Python, beside NumPy's product of the same numbers: python_arrays.py [REPEATS].

NumPy runs on one thread. Prints the median time of a product in milliseconds.
"""

import os
import statistics
import sys
import time

os.environ.setdefault("OPENBLAS_NUM_THREADS", "1")

import numpy  # noqa: E402  the number of threads is read when it is imported
import tarq  # noqa: E402

SIZE = 500


def median_ms(call, repeats):
    times = []
    for _ in range(repeats):
        start = time.perf_counter()
        call()
        times.append(time.perf_counter() - start)
    return 1000 * statistics.median(times)


def main():
    repeats = int(sys.argv[1]) if len(sys.argv) > 1 else 9
    random = numpy.random.default_rng(1)
    left, right = random.random((SIZE, SIZE)), random.random((SIZE, SIZE))
    array_left, array_right, product = (tarq.TARQArray() for _ in range(3))
    array_left.CloneFrom(left)
    array_right.CloneFrom(right)
    arrays = median_ms(lambda: product.MultiplyMatrices(array_left, array_right), repeats)
    typed = median_ms(lambda: product.MultiplyMatrices(left, right), repeats)
    peer = median_ms(lambda: left @ right, repeats)
    print(f"MultiplyMatrices of two arrays, {SIZE} by {SIZE}: {arrays:8.2f} ms  {arrays / peer:5.1f} x NumPy")
    print(f"MultiplyMatrices of NumPy's arrays:         {typed:8.2f} ms  {typed / peer:5.1f} x NumPy")
    print(f"NumPy, one thread:                          {peer:8.2f} ms")


if __name__ == "__main__":
    main()
