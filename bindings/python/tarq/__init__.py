"""TARQ: build, store and solve linear and mixed-integer models.

    import tarq

    m = tarq.TARQModel()
    m.AddCol(0, 40, tarq.Continuous, 3.0, "chairs")
    m.AddRow(-m.INF, 120, "wood")
    m.NZ["wood", "chairs"] = 4
    m.Parameter["xminmx"] = "max"
    m.Optimize()
    print(m.LPObjFunctValue, m.ColLPSol["chairs"])

Every member of the component's objects is there under its own name, in any case; help(tarq.TARQModel) lists them.
A property with arguments is subscripted or called. A call that fails raises tarq.Error.
"""

import atexit

from . import _enumerations, _tarq
from ._dispatch import Dispatch
from ._errors import ArgumentError, Error, MemberError
from ._missing import Missing, MissingType
from ._tarq import Object, advise, create, last_status, register_server, unadvise, unregister_server

__version__ = _tarq.version

globals().update(_tarq.class_types())
globals().update(_enumerations.make_enumerations())

for function in (advise, create, last_status, register_server, unadvise, unregister_server):
    function.__module__ = __name__
del function

__all__ = [name for name in globals() if not name.startswith("_") and name != "atexit"]

from . import spreadsheet  # noqa: E402  it wants the names above

# No sink is called once the interpreter begins to shut down.
atexit.register(_tarq.close)
