"""Events and background runs."""

import os
import signal
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
# As the interpreter ends it lets this go, and other threads come back meanwhile.
SLOW_END = """
class Slow:
    def __del__(self, sleep=time.sleep):
        sleep(0.5)
slow = Slow()
"""
ENDINGS = {
    "with a run under way": MARKET_SPLIT + "m.OptimizeAsync(); time.sleep(0.5); assert m.IsBusy",
    "with a run that was killed": MARKET_SPLIT + "m.OptimizeAsync(); time.sleep(0.5); m.KillThread()",
    "with a foreground run on another thread": (
        MARKET_SPLIT + "threading.Thread(target=m.Optimize, daemon=True).start(); time.sleep(0.5)"
    ),
    "with a sink that is called at the end": "tarq.advise(m, lambda: time.sleep(0.2)); m.OptimizeAsync()",
    "from within a sink": "tarq.advise(m, lambda: sys.exit(3)); m.Optimize()",
    "with a thread that comes back from the component": (
        SLOW_END + "threading.Thread(target=_collection.make().Sleep, args=(300,), daemon=True).start()"
    ),
    "with a sink that never ends": "tarq.advise(m, lambda: [0 for _ in iter(int, 1)]); m.OptimizeAsync(); time.sleep(0.3)",
    "with a sink's model in a circle": "tarq.advise(m, lambda: m); m.Optimize()",
}


@pytest.mark.parametrize("ending", ENDINGS)
def test_the_interpreter_can_end(ending):
    code = "import random, sys, threading, time, tarq, _collection\nm = tarq.TARQModel()\n{}\nprint('done')\n"
    result = subprocess.run(
        [sys.executable, "-c", code.format(ENDINGS[ending])],
        env=os.environ, capture_output=True, text=True, timeout=WAIT, check=False,
    )
    assert result.stdout == "done\n" and result.returncode == 0, result.stderr


INTERRUPTED = """
import random, signal, socket, tarq
m = tarq.TARQModel()
{}
reader, writer = socket.socketpair()
writer.setblocking(False)
signal.set_wakeup_fd(writer.fileno())
tarq.advise(m, lambda: print("finished"))
print("running", flush=True)
try:
    m.Optimize()
except KeyboardInterrupt:
    print("interrupted", m.NumberOfLPIterations > 0, reader.recv(9), signal.set_wakeup_fd(-1) == writer.fileno())
"""


def test_an_interrupt_stops_a_run_and_is_raised_when_it_has_ended():
    command = [sys.executable, "-c", INTERRUPTED.format(MARKET_SPLIT)]
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True) as process:
        assert process.stdout.readline() == "running\n"
        time.sleep(1)
        process.send_signal(signal.SIGINT)
        told, wrong = process.communicate(timeout=WAIT)
    assert told == "finished\ninterrupted True b'\\x02' True\n" and process.returncode == 0, wrong
