"""Models in GNU MathProg, read through GLPK."""

import concurrent.futures

import pytest

import tarq

MODEL = """
set I; param c{I}; var x{I} integer, >= 0, <= 5; var b{I} binary; var f >= 2; display c;
s.t. lim: sum{i in I} x[i] <= 7; s.t. link{i in I}: x[i] <= 5 * b[i];
maximize z: sum{i in I} (c[i] * x[i] - b[i]) - f; s.t. both: 1 <= f + x['a'] <= 9;
"""
DATA = "data; set I := a b; param c := a 3 b 2; end;"


@pytest.fixture
def read(tmp_path, monkeypatch):
    """Reads a text into a model; checks that no temporary file stays."""
    folder = tmp_path / "temporary"
    folder.mkdir()
    monkeypatch.setenv("TMPDIR", str(folder))

    def read_text(text, data=None, model=None):
        (tmp_path / "a.mod").write_bytes(text.encode())
        if data:
            (tmp_path / "a.dat").write_text(data)
        model = model or tarq.TARQModel()
        model.ReadMathProgModel(str(tmp_path / "a.mod"), str(tmp_path / "a.dat") if data else None)
        return model

    yield read_text
    assert list(folder.iterdir()) == []


@pytest.mark.parametrize("model, data", [(MODEL + "end;", DATA), (MODEL + DATA, None), (MODEL + "data; end;", DATA)])
def test_a_model_is_read_and_solved(read, capfd, model, data):
    m = read(model, data)
    assert [m.ColName[j] for j in range(1, 6)] == ["x[a]", "x[b]", "b[a]", "b[b]", "f"]
    assert [m.ColType[j] for j in (1, 3, 5)] == [tarq.Integer, tarq.Binary, tarq.Continuous]
    assert [m.RowName[i] for i in range(1, m.NumberOfRows + 1)] == ["lim", "link[a]", "link[b]", "both"]
    assert (m.RowLHS["both"], m.RowRHS["both"], m.NZ["both", "f"], m.NZ["link[b]", "b[b]"]) == (1, 9, 1, -5)
    m.Optimize()
    assert m.Parameter["xminmx"] == "max" and m.IPObjFunctValue == pytest.approx(3 * 5 + 2 * 2 - 2 - 2)
    assert "c[a] = 3" in m.AMPLOutputBuffer and "successfully generated" in m.AMPLOutputBuffer
    assert capfd.readouterr() == ("", "")


@pytest.mark.parametrize("text, words", [
    ("var x >= 0;\nminimize z: y;\nend;", "a.mod:2: y not defined"),
    ("param p; var x; minimize z: p * x; end;", "a.mod:1: no value for p"),
    ("var x; minimize z: x * x; end;", "a.mod:1: "),
    ('var x; minimize z: x; printf "%2000d", 5; end;', "ended before"),
    ("param f{i in 1..2} := f[i]; var x; minimize z: f[1] * x; end;", "ended before"),
    ("var x; minimize z: x; for {i in 1..1e12} display i; end;", "set too large"),
    ("\0\xff", "a.mod:1: "),
])
def test_a_text_that_is_no_model_harms_nothing(read, text, words):
    model = tarq.TARQModel()
    model.AddCol(0, 1, tarq.Continuous)
    with pytest.raises(tarq.Error, match="Error in MathProg model.") as caught:
        read(text, model=model)
    assert caught.value.status == 0x80041021 and words in model.AMPLOutputBuffer
    assert model.NumberOfCols == 1


def test_recursion_goes_deep(read):
    text = "param f{n in 0..50000} := if n = 0 then 1 else f[n-1] + 1; var x <= f[50000]; maximize z: x; end;"
    assert read(text).ColUB["x"] == 50001


def test_two_threads_get_each_their_own(tmp_path):
    def columns_of(size):
        file = tmp_path / f"{size}.mod"
        file.write_text(f"var x{{1..{size}}}; minimize z: sum{{i in 1..{size}}} x[i]; end;")
        model = tarq.TARQModel()
        model.ReadMathProgModel(str(file))
        return model.NumberOfCols

    sizes = [1, 300, 20_000, 50]
    with concurrent.futures.ThreadPoolExecutor(4) as threads:
        assert list(threads.map(columns_of, sizes)) == sizes


def test_the_library_is_found_by_its_location(read):
    model = tarq.TARQModel()
    for name, text in (("nosuch", "Could not find MathProg.DLL."), ("tarq", "Could not get MathProg.DLL function handles.")):
        model.LocationOfMathProgDLL = f"{name}.dll"
        with pytest.raises(tarq.Error, match=text):
            read(MODEL, DATA, model)
