"""Python objects that the component calls."""

import gc
import weakref

import pytest

import _collection
import tarq

METHOD, GET, PUT = 1, 2, 4
RANGE = "{00020846-0000-0000-C000-000000000046}"
CALLED_DIRECTLY = [
    "{00020404-0000-0000-C000-000000000046}",  # IEnumVARIANT
    "{77EA8057-44AB-4FCC-9FE4-60B4BC79373E}",  # ITARQSet
    "{7758AB12-984D-4F44-9155-4A7B1AB04604}",  # ITARQSetEnum
    "{C69D863D-A459-467E-82DE-1A4527638803}",  # ITARQSeries
    "{1E88BCB6-EE7E-4C0C-B367-D595F04675AA}",  # ITARQSeriesEnum
    "{74D0E56B-43B2-42C3-BD55-896A79F95E5A}",  # ITARQArray
    "{3FF09D21-8458-4728-B017-1126AED846A5}",  # ITARQArrayEnum
    "{FF331FE1-5C77-4FFD-9202-559521D6EBEA}",  # ITARQModel
]


class Cells(tarq.Dispatch):
    """A spreadsheet range, as far as somebody asks."""

    _interfaces_ = [RANGE]
    _dispids_ = {0: "Value", 1: "Count", 2: "Cell", 3: "Total", 4: "Broken", 5: "Refused", 6: "Nothing", 7: "Odd", 8: "Stopped"}

    def __init__(self, rows):
        self.rows = rows
        self.Value = "all"

    @property
    def Count(self):
        return len(self.rows)

    def Cell(self, row, column=0):
        return self.rows[row][column]

    def put_Cell(self, row, column, value):
        self.rows[row][column] = value

    def Total(self, *more):
        return sum(map(sum, self.rows)) + sum(more)

    def Broken(self):
        raise KeyError("gone")

    def Refused(self):
        raise tarq.Error(0x80041031, "Not this one.")

    def Odd(self):
        raise ValueError("gr\udcfcn")

    def Stopped(self):
        raise KeyboardInterrupt


@pytest.fixture
def caller():
    return _collection.make()


@pytest.fixture
def cells():
    return Cells([[1, 2], [3, 4]])


def test_a_stand_in_answers_to_the_interfaces_that_it_lists(caller, cells):
    other = "{00020847-0000-0000-C000-000000000046}"
    dispatch = "{00020400-0000-0000-C000-000000000046}"
    assert [caller.Offers(cells, interface) for interface in (RANGE, dispatch, other)] == [1, 1, 0]
    assert caller.Offers(object(), dispatch) == 0


def test_attributes_and_properties_are_got_and_methods_get_the_arguments(caller, cells):
    assert caller.Call(cells, 0, GET) == "all"
    assert caller.Call(cells, 1, METHOD | GET) == 2
    assert caller.Call(cells, 2, GET, 1, 1) == 4
    assert caller.Call(cells, 2, GET, 1) == 3
    assert caller.Call(cells, 3, METHOD, 10, 20) == 40


def test_a_put_sets_the_attribute_or_calls_the_putter(caller, cells):
    caller.Call(cells, 0, PUT, [[1, 2]])
    assert cells.Value == [[1, 2]]
    caller.Call(cells, 2, PUT, 1, 0, 9)
    assert cells.rows[1][0] == 9


def test_members_are_numbered_by_their_names(caller, cells):
    assert caller.NumberOf(cells, "value") == 0 and caller.NumberOf(cells, "TOTAL") == 3
    with pytest.raises(tarq.Error) as caught:
        caller.NumberOf(cells, "nothing else")
    assert caught.value.status == 0x80020006


@pytest.mark.parametrize(
    "member, arguments, status, words, cause",
    [
        (4, (), 0x80004005, "KeyError: 'gone'", KeyError),
        (5, (), 0x80041031, "Not this one.", tarq.Error),
        (6, (), 0x80004005, "AttributeError", AttributeError),
        (7, (), 0x80004005, "ValueError: gr\udcfcn", ValueError),
        (2, (), 0x80004005, "TypeError", TypeError),
        (9, (), 0x80020003, "", None),
        (1, (5,), 0x8002000E, "", None),
    ],
)
def test_failures_of_a_stand_in_reach_the_caller_with_their_cause(caller, cells, member, arguments, status, words, cause):
    with pytest.raises(tarq.Error) as caught:
        caller.Call(cells, member, METHOD | GET, *arguments)
    assert caught.value.status == status and words in caught.value.description
    assert str(caught.value).encode()
    assert caught.value.__cause__ is None if cause is None else isinstance(caught.value.__cause__, cause)


def test_what_ends_the_program_passes_through(caller, cells):
    with pytest.raises(KeyboardInterrupt):
        caller.Call(cells, 8, METHOD)


def test_a_stand_in_is_the_same_object_while_it_is_held_and_free_afterwards(caller):
    cells = Cells([[1]])
    caller.Keep(cells)
    assert caller.Kept is cells
    gone = weakref.ref(cells)
    del cells
    gc.collect()
    assert caller.Kept is gone()
    caller.Drop(10)  # on another thread
    gc.collect()
    assert gone() is None


class Cell(tarq.Dispatch):
    _dispids_ = {0: "Value"}

    def __init__(self, value):
        self.Value = value


def test_an_object_gives_its_value_where_a_number_is_wanted():
    model, order = tarq.TARQModel(), tarq.TARQSet().Set(1, 2)
    model.AddCol(0, Cell(10.5), 0, Cell("3"), "x")
    assert (model.ColUB[Cell(1)], model.ColCost["x"]) == (10.5, 3)
    model.Parameter["xmiter"], model.Parameter["xminmx"] = Cell(7), Cell("max")
    assert (model.Parameter["xmiter"], model.Parameter["xminmx"]) == (7, "max")
    for no_number in (Cell("x"), Cell("1"), Cell([1]), Cell(Cell(1)), Cells([[1]]), object(), order):
        with pytest.raises(tarq.Error, match="Col index is not convertible"):
            model.ColLB[no_number]
    with pytest.raises(tarq.Error, match="Col name is of wrong variant type"):
        model.AddCol(0, 1, 0, 0, Cell("y"))
    assert order.Count == 2


def test_lists_of_interfaces_that_make_no_sense_list_none(caller):
    class Odd(tarq.Dispatch):
        _interfaces_ = [5, "no identifier"]
        _dispids_ = None

    assert caller.Offers(Odd(), RANGE) == 0
    with pytest.raises(tarq.Error):
        caller.Call(Odd(), 1, GET)


def test_a_stand_in_never_passes_for_an_interface_of_the_component():
    class Pretender(tarq.Dispatch):
        _interfaces_ = CALLED_DIRECTLY
        _dispids_ = {0: "Value"}
        Value = 1

    for call in (tarq.TARQArray().Init, tarq.TARQArray().CloneFrom, tarq.TARQSet().Add, tarq.TARQModel().AddObjSum):
        with pytest.raises(tarq.Error):
            call(Pretender())
