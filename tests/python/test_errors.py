"""Failures: what is raised, and what it tells."""

import pytest

import _collection
import tarq

CASES = [
    (lambda m: m.ColLB["nobody"], tarq.Error, 0x80041031, "Column name 'nobody' could not be found."),
    (lambda m: m.AddCol(1), TypeError, 0x8002000E, "Wrong number of arguments for AddCol."),
    (lambda m: m.AddCol(1, 2, 0, 0, "a", 9), TypeError, 0x8002000E, "Wrong number of arguments for AddCol."),
    (lambda m: m.AddCol(1, "many", 0), TypeError, 0x80020005, "Argument 2 of AddCol can't be converted."),
    (lambda m: m.AddCol(1, 2, 0, Price=3), TypeError, 0x80020006, "AddCol has no argument 'Price'."),
    (lambda m: m.AddCol(1, 2, 0, lb=3), TypeError, 0x80020004, "An argument of AddCol was given twice."),
    (lambda m: setattr(m, "ColLB", 3), TypeError, 0x8002000E, "Wrong number of arguments for ColLB."),
    (lambda m: m.Optimise(), AttributeError, 0x80020006, "TARQModel has no member 'Optimise'. Did you mean 'Optimize'?"),
    (lambda m: setattr(m, "zzz", 1), AttributeError, 0x80020006, "TARQModel has no member 'zzz'."),
    (lambda m: m.ReadModel("/nowhere/model.mps", tarq.MPS), tarq.Error, 0x80041028, None),
    (lambda m: m.ShowPropertyPage(), tarq.Error, 0x80041027, "Could not show property page."),
]


@pytest.mark.parametrize("call, kind, status, description", CASES)
def test_a_failing_status_raises_with_all_it_tells(monkeypatch, call, kind, status, description):
    for display in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
        monkeypatch.delenv(display, raising=False)
    model = tarq.TARQModel()
    model.AddCol(0, 1, 0, Name="x")
    with pytest.raises(kind) as caught:
        call(model)
    error = caught.value
    assert isinstance(error, tarq.Error) and error.status == status == tarq.last_status()
    assert error.source == "tarq.TARQModel.1"
    assert error.description and str(error) == f"{error.description} (0x{status:08X})"
    if description is not None:
        assert error.description == description


def test_classes_that_are_not_there_say_so():
    with pytest.raises(tarq.Error, match="no class") as caught:
        tarq.create("Nothing")
    assert caught.value.status == 0x80040154 == tarq.last_status()


def test_plain_misuse_raises_what_python_raises():
    model = tarq.TARQModel()
    for misuse, kind in [
        (lambda: setattr(model, "NumberOfCols", 3), AttributeError),
        (lambda: delattr(model, "ModelName"), AttributeError),
        (lambda: model.ColLB.__delitem__("x"), TypeError),
        (lambda: model.AddCol[1], TypeError),
        (lambda: tarq.TARQModel.AddCol(), TypeError),
        (lambda: tarq.TARQModel.AddCol(_collection.make(), 1, 2, 0), TypeError),
        (lambda: tarq.TARQModel(1), TypeError),
        (lambda: tarq.Object(), TypeError),
        (lambda: type(_collection.make())(), TypeError),
        (lambda: setattr(model, "__class__", tarq.TARQSet), TypeError),
        (lambda: vars(object)["__class__"].__set__(model, tarq.TARQSet) or model[1], TypeError),
        (lambda: type("Both", (tarq.TARQModel, tarq.TARQSet), {})(), TypeError),
    ]:
        with pytest.raises(kind) as caught:
            misuse()
        assert not isinstance(caught.value, tarq.Error)
    model = tarq.TARQModel()
    assert not hasattr(model, "nothing") and getattr(model, "nothing", 5) == 5


def test_a_refused_model_notes_the_reason_and_the_name():
    model = tarq.TARQModel()
    model.AddCol(0, 1, 0, 1, "oak")
    model.AddCol(0, 1, 0, float("nan"), "ash")
    model.ColUB[1] = 1
    for _ in range(2):
        with pytest.raises(tarq.Error) as caught:
            model.Optimize()
        assert caught.value.__notes__ == [f"{model.LastSolverMessage} Column 2 is 'ash'."]
    model.LocationOfTARQDLL = "/nowhere/engine.so"
    with pytest.raises(tarq.Error) as caught:
        model.Optimize()
    assert tarq.last_status() == 0x80041011 and not hasattr(caught.value, "__notes__")
