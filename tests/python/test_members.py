"""Members of every form, called in every way that Python has."""

import copy
import gc
import threading
import time
import weakref

import pytest

import _collection
import tarq


@pytest.fixture
def collection():
    return _collection.make()


@pytest.fixture
def model():
    made = tarq.TARQModel()
    made.AddCol(0, 10, tarq.Continuous, 1.5, "x")
    made.AddCol(1, 20, tarq.Integer, Name="y")
    made.AddRow(-5, 5, "r")
    return made


@pytest.mark.parametrize("name", ["TARQModel", "tarqmodel", "tarq.TARQModel", "TARQ.tarqModel.1"])
def test_objects_are_created_by_every_name_of_their_class(name):
    assert type(tarq.create(name)) is tarq.TARQModel


def test_members_are_found_in_any_case_and_listed_in_their_own(model):
    assert model.collb["x"] == model.COLLB("x") == model.ColLB["x"] == 0
    model.modelname = "plan"
    assert model.ModelName == model.MODELNAME == "plan"
    assert {"ColLB", "Optimize", "NumberOfCols"} <= set(dir(model)) and "collb" not in dir(model)


def test_hidden_members_work_but_are_not_listed(collection):
    assert collection.Secret == collection.SECRET == 42
    assert not {"Secret", "SECRET"} & set(dir(collection))


def test_methods_take_arguments_by_position_by_name_and_by_both(model):
    model.AddCol(Type=tarq.Binary, ub=4, LB=2, name="z")
    model.AddCol(3, 4, Name="w", type=0)
    assert model.ColType["z"] is tarq.Binary and model.ColUB["w"] == 4 and model.NumberOfCols == 4
    tarq.TARQModel.AddCol(model, 0, 1, 0)
    assert model.NumberOfCols == 5


def test_properties_with_arguments_are_subscripted_or_called(model):
    model.NZ["r", "x"] = 2
    model.NZ[1, 2] = 3
    assert model.NZ["r", "y"] == model.NZ(1, "y") == model.NZ(Col="y", Row="r") == 3
    model.Parameter["xminmx"] = "max"
    assert model.Parameter("XMINMX") == "max"
    bounds = model.ColUB
    bounds["x"] = 12
    assert bounds["x"] == bounds(1) == 12 and bounds == model.ColUB


def test_optional_indices_can_be_left_out_or_sliced_away(collection):
    collection.Level["a"] = 5
    assert collection.Level() == "8 a, Missing = 5 5(Missing, Missing)"
    collection.Level[:, 2] = 5
    assert collection.Level[:, :] == "Missing, 3 2 = 5 5(Missing, Missing)"
    collection.Level = 7
    assert collection.Level(None, 3) == "Missing, Missing = 5 7(Missing, 3 3)"
    with pytest.raises(TypeError, match="full slice"):
        collection.Level[1:2]


def test_the_default_member_is_the_object_itself(collection):
    collection[1, "b"] = [2]
    assert collection[3] == collection(3) == "3 1, 8 b = array of 12 0..0: 3 2(3 3, Missing)"
    assert collection(second=4, first=3) == collection[3, 4]


def test_iteration_walks_the_elements(collection):
    assert list(collection) == [1, 2, 3] and len(collection) == 3
    collection.Count = 100
    with pytest.raises(tarq.Error, match="The walk is broken"):
        list(collection)


def test_what_an_object_does_not_offer_is_no_operation(model):
    for operation in (iter, len, lambda obj: obj[1], lambda obj: obj(1), copy.copy, copy.deepcopy):
        with pytest.raises(TypeError):
            operation(model)


def test_out_parameters_are_returned_as_a_tuple(collection, model):
    assert collection.Split(47) == (4, 7)
    assert collection.Split(number=47) == (4, 7)
    assert collection.Surround(5) == ("from 0", 4, 6)
    kind, name = model.GetParameterInfo(1)[:2]
    assert (kind, name) == (5, "xabgap")


def test_success_with_a_message_gives_none_and_its_status(collection, model):
    assert collection.Split(-1) is None and tarq.last_status() == 0x0004200A
    assert model.ColLPSol["x"] is None and tarq.last_status() == 0x00042003
    assert model.NumberOfCols == 2 and tarq.last_status() == 0


def test_the_last_status_belongs_to_the_thread(model):
    with pytest.raises(tarq.Error):
        model.ColLB["nobody"]
    seen = []
    thread = threading.Thread(target=lambda: seen.append((model.NumberOfCols, tarq.last_status())))
    thread.start()
    thread.join()
    assert seen == [(2, 0)] and tarq.last_status() == 0x80041031


def test_long_calls_let_other_threads_run(collection):
    ticks = []
    sleeper = threading.Thread(target=collection.Sleep, args=(400,))
    sleeper.start()
    while sleeper.is_alive():
        ticks.append(time.monotonic())
        time.sleep(0.01)
    assert len(ticks) > 5


def test_classes_of_the_client_can_extend_a_model():
    class Plan(tarq.TARQModel):
        def __init__(self, name):
            self.ModelName = name
            self.history = []
            self.adder = self.AddRow

        @property
        def columns(self):
            return [self.ColName[i + 1] for i in range(self.NumberOfCols)]

    plan = Plan("own")
    plan.AddCol(0, 1, tarq.Binary, Name="b")
    assert plan.columns == ["b"] and plan.history == [] and plan.modelname == "own"
    with pytest.raises(AttributeError, match="columns"):
        plan.columnz
    gone = weakref.ref(plan)
    del plan
    gc.collect()
    assert gone() is None


def test_a_thousand_models_leave_nothing_behind():
    before = tarq._tarq.live_objects()
    for _ in range(1000):
        made = tarq.TARQModel()
        made.AddCol(0, 1, 0, Name="x")
        made.ColLB["x"] = 0.5
        cookie = tarq.advise(made, print)
        tarq.unadvise(made, cookie)
    del made
    assert tarq._tarq.live_objects() == before
