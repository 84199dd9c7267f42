"""Python objects that the component calls."""

from . import _tarq


class Dispatch(_tarq.StandIn):
    """Base of classes whose objects stand in where the component itself calls late-bound.

    _interfaces_  the identifiers of the interfaces that the object answers to, as text such as
                  "{00020846-0000-0000-C000-000000000046}"
    _dispids_     a dict from dispatch id to member name

    A member that is a plain attribute or a property is a property; a method gets the call's arguments, also for a
    property get with arguments. A put sets the attribute, or calls put_NAME(*arguments, value) where there is one.
    """

    _interfaces_ = ()
    _dispids_ = {}


Dispatch.__module__ = "tarq"
