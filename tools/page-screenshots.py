"""page-screenshots.py FOLDER: writes pictures of the parameter page to FOLDER, taken on a display in memory."""

import subprocess
import sys
import time
from pathlib import Path

from virtualdisplay import VirtualDisplay

host = """
import tarq
model = tarq.TARQModel()
model.Parameter["xmxmin"] = 5
model.Parameter["xglgap"] = 0.01
model.Parameter["xheutp"] = 3
model.ShowPropertyPage()
"""

# What a person does before each picture is taken.
pictures = {
    "parameterpage.png": [["mousemove", "100", "95", "click", "1"], ["mousemove", "330", "135", "click", "1"]],
    "parameterpage-search.png": [["type", "heuristic"], ["key", "Down"], ["key", *["Tab"] * 4], ["key", "ctrl+a"], ["type", "--", "-2"]],
}


def take(path, steps):
    with VirtualDisplay(910, 720) as display:
        program = subprocess.Popen([sys.executable, "-c", host], env=display.environment)
        window = display.wait_for("TARQ Control")
        for step in [*steps, ["mousemove", "905", "715"]]:
            time.sleep(0.5)  # until the window has followed
            display.do(*step)
        time.sleep(0.5)
        display.save_picture(path, window)
        display.do("key", "Escape")
        program.wait(30)


folder = Path(sys.argv[1])
folder.mkdir(parents=True, exist_ok=True)
for name, steps in pictures.items():
    take(folder / name, steps)
    print(folder / name)
