"""Events and background runs."""

import os
import subprocess
import sys
import threading
import time

import pytest

import _collection
import tarq

WAIT = 60


@pytest.fixture
def model():
    made = tarq.TARQModel()
    made.AddCol(0, 4, tarq.Integer, 1, "x")
    made.AddRow(1.5, 10, "r")
    made.NZ["r", "x"] = 1
    return made


class Listener:
    def __init__(self):
        self.finished = threading.Event()
        self.thread = None

    def optimizationfinished(self):
        self.thread = threading.current_thread()
        self.finished.set()


def test_a_background_run_calls_its_sink_on_another_thread(model):
    listener = Listener()
    tarq.advise(model, listener)
    model.OptimizeAsync()
    assert listener.finished.wait(WAIT) and listener.thread is not threading.main_thread()
    assert model.ColIPSol["x"] == 2


def test_a_foreground_run_calls_its_sinks_in_their_order_until_they_leave(model):
    calls = []
    first = tarq.advise(model, lambda: calls.append("first"))
    tarq.advise(model, lambda: calls.append("second"))
    model.Optimize()
    tarq.unadvise(model, first)
    model.Optimize()
    assert calls == ["first", "second", "second"]
    with pytest.raises(tarq.Error) as caught:
        tarq.unadvise(model, first)
    assert caught.value.status == 0x80040200


def test_an_exception_in_a_sink_is_reported_and_ends_nothing(model, monkeypatch):
    reported = []
    monkeypatch.setattr(sys, "unraisablehook", lambda info: reported.append(info.exc_value))

    def sink():
        raise ValueError("no")

    tarq.advise(model, sink)
    model.Optimize()
    assert [str(error) for error in reported] == ["no"] and model.ColIPSol["x"] == 2


def test_what_can_not_be_subscribed_is_refused(model):
    with pytest.raises(TypeError, match="OptimizationFinished"):
        tarq.advise(model, object())
    with pytest.raises(TypeError):
        tarq.advise(object(), print)
    with pytest.raises(tarq.Error) as caught:
        tarq.advise(_collection.make(), print)
    assert caught.value.status == 0x80040200


def test_the_model_lives_until_its_run_has_ended():
    before = tarq._tarq.live_objects()
    running = tarq.TARQModel()
    running.AddCol(0, 4, tarq.Integer, 1, "x")
    finished = threading.Event()
    tarq.advise(running, finished.set)
    running.OptimizeAsync()
    del running
    assert finished.wait(WAIT)
    deadline = time.monotonic() + WAIT
    while tarq._tarq.live_objects() > before and time.monotonic() < deadline:
        time.sleep(0.01)  # the run's thread has a few steps to go
    assert tarq._tarq.live_objects() == before


# A market split: rows that must be met exactly, which takes branch and bound longer than anybody waits.
MARKET_SPLIT = """
for row in range(6):
    m.AddRow(0, 0)
for column in range(60):
    m.AddCol(0, 1, tarq.Binary)
    for row in range(6):
        m.NZ[row + 1, column + 1] = random.Random(100 * row + column).randint(0, 99)
for row in range(6):
    half = sum(m.NZ[row + 1, column + 1] for column in range(60)) // 2
    m.RowRHS[row + 1] = half
    m.RowLHS[row + 1] = half
"""
ENDINGS = {
    "with a run under way": MARKET_SPLIT + "m.OptimizeAsync(); time.sleep(0.5); assert m.IsBusy",
    "with a run that was killed": MARKET_SPLIT + "m.OptimizeAsync(); time.sleep(0.5); m.KillThread()",
    "with a foreground run on another thread": (
        MARKET_SPLIT + "threading.Thread(target=m.Optimize, daemon=True).start(); time.sleep(0.5)"
    ),
    "with a sink that is called at the end": "tarq.advise(m, lambda: time.sleep(0.2)); m.OptimizeAsync()",
    "from within a sink": "tarq.advise(m, lambda: sys.exit(3)); m.Optimize()",
    "with a sink's model in a circle": "tarq.advise(m, lambda: m); m.Optimize()",
}


@pytest.mark.parametrize("ending", ENDINGS)
def test_the_interpreter_can_end(ending):
    code = "import random, sys, threading, time, tarq\nm = tarq.TARQModel()\n{}\nprint('done')\n"
    result = subprocess.run(
        [sys.executable, "-c", code.format(ENDINGS[ending])],
        env=os.environ, capture_output=True, text=True, timeout=WAIT, check=False,
    )
    assert result.stdout == "done\n" and result.returncode == 0, result.stderr
