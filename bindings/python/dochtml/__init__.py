"""Documents of linked HTML pages, written by the driver `dochtml`.

    from dochtml import Document

    with Document("report.htm") as report:
        report.heading(1, "Introduction")
        report.text("See ").link("the class", to="GUID-7").endl()

A document has the operations of the driver under their own names (`insertText`, `startTable`) and
shorter ways over them (`text`, `table`). docs/operations.md describes the former.
"""

from .component import component
from .document import Document
from .errors import (
    ClosedError,
    ComponentError,
    DochtmlError,
    DocumentError,
    SettingError,
    WrongThreadError,
)
from .model import Element, Model, ModelElement
from .problems import Problem
from .regions import ImageMaps, Region
from .settings import find_setting
from .settings_table import SETTINGS, Setting
from .writing import escaped

__all__ = [
    "SETTINGS",
    "ClosedError",
    "ComponentError",
    "DochtmlError",
    "Document",
    "DocumentError",
    "Element",
    "ImageMaps",
    "Model",
    "ModelElement",
    "Problem",
    "Region",
    "Setting",
    "SettingError",
    "WrongThreadError",
    "component",
    "escaped",
    "find_setting",
]
