"""Packages that are wanted only where they are used."""

import importlib
from typing import Any


def load(module: str, use: str) -> Any:
    """The module; `use` is what needs it, for those who don't have it."""
    try:
        return importlib.import_module(module)
    except ImportError as failure:
        package = module.partition(".")[0]
        raise ImportError(f"{use} needs the Python package {package}, which can't be imported", name=package) from failure
