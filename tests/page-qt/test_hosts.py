"""Hosts without Qt: the window is in a process of its own, and a person, a display or a program may do anything."""

import ctypes
import os
import signal
import socket
import struct
import subprocess
import sys
import textwrap
import time
from pathlib import Path

import pytest
import tarq

root = Path(__file__).parents[2]
sys.path.insert(0, str(root / "tools"))
from virtualdisplay import VirtualDisplay  # noqa: E402

library = Path(tarq.__file__).parents[2] / "lib" / "libtarqpage.so"
title = "TARQ Control"
show = """
import tarq
m = tarq.TARQModel()
try:
    print(m.ShowPropertyPage(), m.Parameter["xmiter"], flush=True)
except tarq.Error as error:
    print(error, flush=True)
"""
not_shown = "Could not show property page."


@pytest.fixture
def display():
    with VirtualDisplay() as made:
        yield made


def start(code, environment, folder):
    return subprocess.Popen([sys.executable, "-c", textwrap.dedent(code)], env=environment, cwd=folder, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE)


def end(host):
    out, err = host.communicate(timeout=60)
    assert host.returncode == 0, err
    return out


def children(process):
    """The processes that one has started, as folders that are there as long as they live."""
    return [Path("/proc", word) for word in Path(f"/proc/{process}/task/{process}/children").read_text().split()]


def wait_until(condition):
    end_of_patience = time.monotonic() + 30
    while not condition() and time.monotonic() < end_of_patience:
        time.sleep(0.05)
    return condition()


def silent_display():
    """A display that takes connections and never answers."""
    for number in range(400, 500):
        server = socket.socket(socket.AF_UNIX)
        try:
            os.makedirs("/tmp/.X11-unix", exist_ok=True)
            server.bind(f"/tmp/.X11-unix/X{number}")
        except OSError:
            continue
        server.listen()
        return server, {"DISPLAY": f":{number}"}
    raise RuntimeError("no number is free")


@pytest.mark.parametrize("surroundings", [{}, {"QT_QPA_PLATFORM": "nosuchplatform"}, {"DISPLAY": ":9999"}, "silent"],
                         ids=["none", "no such platform", "refusing", "silent"])
def test_display_that_cannot_be_reached(surroundings, tmp_path):
    server = None
    if surroundings == "silent":
        server, surroundings = silent_display()
    bare = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    begin = time.monotonic()
    assert not_shown in end(start(show, {**bare, **surroundings}, tmp_path))
    assert time.monotonic() - begin < 30
    assert list(tmp_path.iterdir()) == [], "no image of a process that aborted"
    if server:
        os.unlink(server.getsockname())


def test_typed_on_a_real_display(display, tmp_path):
    host = start(show, display.environment, tmp_path)
    display.wait_for(title)
    display.do("type", "xmiter")
    display.do("key", "Down", "ctrl+a")
    display.do("type", "77")
    display.do("key", "Return")
    assert end(host) == "(1,) 77\n"


def test_profile_is_written_on_ok_only(display, tmp_path):
    profile = tmp_path / "mine.pro"
    for key, expected in ("Escape", False), ("Return", True):
        host = subprocess.Popen([os.environ["TARQ"], "parameters", "--page", "--profile", profile], env=display.environment)
        display.wait_for(title)
        display.do("key", "alt+s")
        display.do("type", "xmiter")
        display.do("key", "Down", "ctrl+a")
        display.do("type", "78")
        display.do("key", key)
        assert host.wait(60) == 0
        assert (profile.exists() and "78" in profile.read_text()) == expected


def test_display_that_goes_away_and_hosts_that_do(display, tmp_path):
    watching = show + "import os\ntry: print(os.waitpid(-1, os.WNOHANG))\nexcept ChildProcessError: print('no child left')\n"
    killed = start(show, display.environment, tmp_path)
    display.wait_for(title)
    (page,) = children(killed.pid)
    killed.send_signal(signal.SIGKILL)
    killed.communicate()
    assert wait_until(lambda: not page.exists()), "the window goes with its host"
    host = start(watching, display.environment, tmp_path)
    display.wait_for(title)
    display.close()
    out = end(host)
    assert not_shown in out and "no child left" in out


def test_glib_loop_goes_on_and_other_calls_fail(display, tmp_path):
    host = start("""
        import ctypes, threading, tarq
        glib = ctypes.CDLL("libglib-2.0.so.0")
        glib.g_main_loop_new.restype = ctypes.c_void_p
        glib.g_main_loop_run.argtypes = glib.g_main_loop_quit.argtypes = [ctypes.c_void_p]
        callback = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p)
        loop = glib.g_main_loop_new(None, 0)
        m = tarq.TARQModel()
        ticks = 0
        answers = []
        def fails():
            try: m.ShowPropertyPage()
            except tarq.Error: return True
        def tick(_):
            global ticks
            ticks += 1
            if ticks == 50:
                answers.append(fails())
                print("ticked", flush=True)
            return 1
        def ask(_):
            thread = threading.Thread(target=lambda: answers.append(fails()))
            thread.start()
            thread.join()
            answers.append(m.ShowPropertyPage())
            glib.g_main_loop_quit(loop)
            return 0
        kept = callback(tick), callback(ask)
        glib.g_timeout_add(10, kept[0], None)
        glib.g_timeout_add(1, kept[1], None)
        glib.g_main_loop_run(loop)
        print(answers)
        """, display.environment, tmp_path)
    assert host.stdout.readline() == "ticked\n"
    display.wait_for(title)
    display.do("key", "Escape")
    assert end(host) == "[True, True, (0,)]\n"


def frame(kind, body=b""):
    return struct.pack("II", 0x54515001 + kind, len(body)) + body


def edit(name):
    return frame(4, struct.pack("II", 1, len(name)) + name + struct.pack("I", 1) + b"5")


shown, closed, no_edits = frame(2) + frame(3), frame(5), frame(4, struct.pack("I", 0))


@pytest.mark.parametrize("said, then, expected, applied", [
    (shown + closed, "", 1, 0),
    (shown + no_edits + closed, "cat", 1, 1),
    (shown + no_edits, "sleep 1; kill -9 $$", 0, 1),
    (shown, "", 0, 0),
    (closed, "cat", 0, 0),
    (frame(2) + no_edits + closed, "cat", 0, 0),
    (shown + shown + closed, "cat", 0, 0),
    (b"Gtk-Message: hello\n", "cat", 0, 0),
    (shown + edit(b"nosuch") + closed, "cat", 0, 0),
    (shown + edit(b"no\0such") + closed, "cat", 0, 0),
    (shown + frame(4, b"\xff" * 9) + closed, "cat", 0, 0),
    (shown + frame(4)[:4] + b"\xff" * 4, "cat", 0, 0),
    (shown + closed + closed, "cat", 0, 0),
])
def test_program_that_lies_or_dies(said, then, expected, applied, tmp_path, monkeypatch):
    (tmp_path / "lib").mkdir()
    (tmp_path / "lib" / library.name).write_bytes(library.read_bytes())
    (tmp_path / "said").write_bytes(said)
    program = tmp_path / "lib" / "tarq-page"
    program.write_text(f"#!/bin/sh\ncat {tmp_path}/said\n{then} >/dev/null\n")
    program.chmod(0o755)
    calls = []
    apply = ctypes.CFUNCTYPE(None, *[ctypes.c_void_p] * 5)(lambda *_: calls.append(1))

    class Page(ctypes.Structure):
        _fields_ = [("caption", ctypes.c_char_p), ("left", ctypes.c_int32), ("top", ctypes.c_int32),
                    ("sectionCount", ctypes.c_int32), ("sections", ctypes.c_void_p), ("context", ctypes.c_void_p),
                    ("apply", type(apply))]

    monkeypatch.setenv("DISPLAY", ":0")
    page = Page(b"caption", 10, 10, 0, None, None, apply)
    begin = time.monotonic()
    assert ctypes.CDLL(str(tmp_path / "lib" / library.name)).ShowTARQPage(ctypes.byref(page)) == expected
    assert len(calls) == applied
    assert time.monotonic() - begin < 30
