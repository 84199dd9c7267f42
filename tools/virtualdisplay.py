"""An X display in memory, and a person's hands and eyes on it: keys, clicks, pictures. Needs Xvfb and xdotool."""

import os
import struct
import subprocess
import tempfile
import time
import zlib
from pathlib import Path


class VirtualDisplay:
    """A context whose `environment` makes programs show their windows on the display. `close` ends it at any time."""

    def __init__(self, width=900, height=700):
        self._folder = tempfile.TemporaryDirectory()
        # What is preloaded is meant for the programs that are shown.
        self._own_environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}
        read, write = os.pipe()
        screen = f"{width}x{height}x24"
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", screen, "-fbdir", self._folder.name, "-noreset", "-nolisten", "tcp"],
            pass_fds=[write], env=self._own_environment, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()  # comes when the display is there
        if not number:
            raise RuntimeError("Xvfb doesn't start")
        self.environment = dict(os.environ)
        for name in "WAYLAND_DISPLAY", "QT_QPA_PLATFORM":
            self.environment.pop(name, None)
        self.environment["DISPLAY"] = self._own_environment["DISPLAY"] = f":{number}"

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
        self._folder.cleanup()

    def close(self):
        self._server.kill()
        self._server.wait()

    def do(self, *words):
        """Runs xdotool, which takes commands such as `key Tab` or `type 12`, and returns what it prints."""
        return subprocess.run(["xdotool", *words], env=self._own_environment, check=True, capture_output=True, text=True).stdout

    def wait_for(self, title, seconds=20):
        """Waits for a window of this title, and gives it the keyboard as a window manager would."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], text=True,
                                   env=self._own_environment, capture_output=True).stdout.split()
            if found:
                self.do("windowfocus", "--sync", found[-1])
                return found[-1]
            time.sleep(0.05)
        raise TimeoutError(f"no window {title!r}")

    def save_picture(self, path, window):
        """Writes what the display shows of a window as a PNG file."""
        shape = dict(line.split("=") for line in self.do("getwindowgeometry", "--shell", window).split())
        left, top, width, height = (int(shape[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))
        dump = (Path(self._folder.name) / "Xvfb_screen0").read_bytes()
        head = struct.unpack(">25I", dump[:100])
        head_length, row_length, colours = head[0], head[12], head[19]
        pixels = dump[head_length + 12 * colours:]
        rows = bytearray()
        for y in range(top, top + height):
            start = y * row_length + 4 * left
            row = pixels[start:start + 4 * width]  # blue, green, red, nothing
            plain = bytearray(3 * width)
            plain[0::3], plain[1::3], plain[2::3] = row[2::4], row[1::4], row[0::4]
            rows += b"\0" + plain

        def chunk(kind, data):
            body = kind + data
            return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

        Path(path).write_bytes(
            b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(bytes(rows), 9)) + chunk(b"IEND", b""))
