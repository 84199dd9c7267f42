"""Model files, listings and profiles: what comes back, and what a refused write leaves."""

import pytest

import tarq

FILE_ACCESS = (0x80041028, "Error while opening, reading or writing to a file.")


@pytest.fixture
def plan():
    model = tarq.TARQModel()
    model.ModelName = "plan"
    model.AddCol(0, 4, tarq.Integer, 3, "chairs")
    model.AddCol(1, model.INF, tarq.Continuous, 2.5, "TABLES")
    model.AddRow(-model.INF, 12, "wood")
    model.AddRow(2, 2, "hours")
    for row, column, value in (("wood", 1, 1.5), ("wood", 2, -4), ("hours", 2, 1)):
        model.NZ[row, column] = value
    model.Parameter["xminmx"] = "max"
    return model


@pytest.mark.parametrize(
    "kind, names",
    [
        (tarq.MPS, ["chairs", "TABLES", "wood", "hours"]),
        (tarq.Triplet, ["chairs", "TABLES", "wood", "hours"]),
        (tarq.Lindo, ["CHAIRS", "TABLES", "WOOD", "HOURS"]),
    ],
)
def test_a_model_comes_back_from_its_file(plan, tmp_path, kind, names):
    path = str(tmp_path / "model")
    plan.WriteModel(path, kind)
    read = tarq.TARQModel()
    read.ReadModel(path, kind)
    columns, rows = names[:2], names[2:]
    assert [read.ColName[i] for i in (1, 2)] == columns and [read.RowName[i] for i in (1, 2)] == rows
    assert [(read.ColLB[n], read.ColUB[n], read.ColCost[n]) for n in columns] == [(0, 4, 3), (1, read.INF, 2.5)]
    assert [read.ColType[n] for n in columns] == [tarq.Integer, tarq.Continuous]
    assert [(read.RowLHS[n], read.RowRHS[n]) for n in rows] == [(-read.INF, 12), (2, 2)]
    assert [read.NZ[r, c] for r in rows for c in columns] == [1.5, -4, 0, 1]


def test_a_write_that_is_refused_leaves_the_file_as_it_was(plan, tmp_path):
    path = tmp_path / "kept"
    path.write_text("precious")
    plan.RowLHS["wood"] = 3  # a range, which Lindo has no form for
    for kind, name, status in (
        (tarq.MPS, "far too long", 0x80041026),
        (tarq.Lindo, "far too long", 0x80041026),
        (tarq.Lindo, "short", 0x80041000),
        (9, "short", 0x80041031),
    ):
        plan.ColName[1] = name
        with pytest.raises(tarq.Error) as caught:
            plan.WriteModel(str(path), kind)
        assert caught.value.status == status
        assert path.read_text() == "precious"
    with pytest.raises(tarq.Error):
        plan.WriteDebugModel(str(path), 1, 3)
    assert path.read_text() == "precious"


@pytest.mark.parametrize("write", ["WriteProfile", "WriteDebugModel"])
def test_what_can_not_be_written_says_so(plan, tmp_path, write):
    for path in (tmp_path, tmp_path / "no" / "folder", "/dev/full"):
        with pytest.raises(tarq.Error) as caught:
            getattr(plan, write)(str(path))
        assert caught.value.status == FILE_ACCESS[0]


def test_a_listing_shows_the_cutout_that_was_asked_for(plan, tmp_path):
    path = tmp_path / "listing"
    plan.WriteDebugModel(str(path), "hours", "hours", StartCol=2)
    text = path.read_text()
    assert "hours" in text and "TABLES" in text
    assert "wood" not in text and "chairs" not in text


def test_a_profile_restores_every_parameter(plan, tmp_path):
    path = str(tmp_path / "profile")
    plan.Parameter["xobj"] = "total cost"
    plan.Parameter["xglgap"] = 0.125
    plan.WriteProfile(path)
    read = tarq.TARQModel()
    read.ReadProfile(path)
    for number in range(1, read.NumberOfParameters + 1):
        name = read.GetParameterInfo(number)[1]
        assert read.Parameter[name] == plan.Parameter[name], name


def test_a_profile_keeps_what_stands_before_its_mistake(plan, tmp_path):
    path = tmp_path / "profile"
    path.write_text("xglgap = 0.5 ! close\nxmiter = many\nxabgap=7\n")
    with pytest.raises(tarq.Error) as caught:
        plan.ReadProfile(str(path))
    assert caught.value.description == "Type mismatch for parameter 'xmiter'! Error in line: xmiter = many"
    assert (plan.Parameter["xglgap"], plan.Parameter["xabgap"]) == (0.5, 0)


def test_names_and_paths_in_another_encoding_come_back_as_they_were(plan, tmp_path):
    path = str(tmp_path / "gr\udcfcn")
    plan.ColName[1] = "gr\udcfcn"
    plan.WriteModel(path, tarq.Triplet)
    with open(path, "rb") as file:
        assert b"gr\xfcn" in file.read()
    read = tarq.TARQModel()
    read.ReadModel(path, tarq.Triplet)
    assert read.ColName[1] == "gr\udcfcn" and read.ColUB["gr\udcfcn"] == 4
    with pytest.raises(tarq.Error) as caught:
        read.ColUB["\udcfc"]
    assert caught.value.description == "Column name '\udcfc' could not be found."
