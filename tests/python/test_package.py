"""The package as a Python user meets it: help, repr, types."""

import inspect
import pathlib
import pydoc
import re
import subprocess
import sys

import tarq

SAMPLE = pathlib.Path(__file__).with_name("sample_client.py")


def test_a_model_shows_its_name_and_size():
    model = tarq.TARQModel()
    assert repr(model) == "<tarq.TARQModel: 0 columns, 0 rows, 0 nonzeros>"
    model.ModelName = "plan"
    model.AddCol(0, 1, 0)
    assert repr(model) == "<tarq.TARQModel 'plan': 1 column, 0 rows, 0 nonzeros>"
    assert repr(model.ColLB) == f"<property ColLB of {model!r}>" and repr(tarq.Missing) == "tarq.Missing"


def test_help_tells_signatures_and_meanings():
    text = pydoc.render_doc(tarq.TARQModel, renderer=pydoc.plaintext)
    assert "AddCol(self, LB: float, UB: float, Type: TARQColType | int, Cost: Any = None, Name: Any = None)" in text
    assert "Adds a column behind the last one." in text and "ColLB[Col]: float" in text
    assert str(inspect.signature(tarq.TARQModel().GetParameterOption)).startswith("(lParameterID: int, lOptionID: int) ->")
    assert inspect.getdoc(tarq.TARQModel.NumberOfCols).startswith("NumberOfCols: int, read-only")


def test_enumerations_are_int_enums():
    assert tarq.Binary is tarq.TARQColType.Binary and tarq.TARQColType(1) is tarq.Integer
    assert int(tarq.TARQSolutionStatusTyp.LPOptimalSolution) == 1 and tarq.TARQSolutionStatusTyp.__doc__


def checked_by_mypy(folder, text):
    """What mypy says of a client, a line a complaint."""
    client = folder / "client.py"
    client.write_text(text)
    environment = {"MYPYPATH": str(pathlib.Path(tarq.__file__).parent.parent), "PATH": "/usr/bin"}
    command = ["/usr/bin/mypy", "--strict", f"--cache-dir={folder / 'cache'}", str(client)]
    done = subprocess.run(command, capture_output=True, text=True, check=False, env=environment)
    return [line for line in done.stdout.splitlines() if ": error: " in line]


def test_the_stubs_check_a_client(tmp_path):
    wrong = {
        "model.ColLBB": 'has no attribute "ColLBB"',
        "model.AddCol('a', 1, tarq.Binary)": "incompatible type",
        "model.NumberOfCols = 3": "read-only",
        "text: str = model.ColLB['x']": "Incompatible types",
        "model.to_frame()": 'has no attribute "to_frame"',
        "Range(1, 2)": "incompatible type",
    }
    sample = SAMPLE.read_text().rstrip("\n") + "\n"
    assert checked_by_mypy(tmp_path, sample) == []
    complaints = checked_by_mypy(tmp_path, sample + "".join(f"{line}\n" for line in wrong))
    first = sample.count("\n") + 1
    for number, (line, message) in enumerate(wrong.items(), first):
        assert any(f"client.py:{number}: " in told and message in told for told in complaints), (line, complaints)


def test_the_sample_client_runs():
    ran = subprocess.run([sys.executable, str(SAMPLE)], capture_output=True, text=True, check=True)
    assert ran.stdout == "chairs 30.0 0.0\n"


def test_every_listed_member_is_in_the_stubs():
    stub = pathlib.Path(tarq.__file__).with_name("__init__.pyi").read_text()
    assert pathlib.Path(tarq.__file__).with_name("py.typed").exists()
    for name in dir(tarq.TARQModel()):
        assert name.startswith("__") or f"def {name}(" in stub, name
    assert "def to_frame(self: Any) -> Any:" in stub and "def __array__(self: Any, dtype: Any = None" in stub
    assert set(re.findall(r"def (\w+)\(.*-> Object", stub)) == {"_NewEnum"}
    for name in tarq.__all__:
        assert f"def {name}(" in stub or f"class {name}" in stub or f"{name}: " in stub, name
