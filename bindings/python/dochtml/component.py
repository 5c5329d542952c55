"""The component: its library, its class object, and the services it is given."""

import ctypes
import threading
import weakref
from ctypes import POINTER, byref, c_int32, c_void_p
from pathlib import Path
from typing import Any, Callable, Sequence

from . import abi
from .errors import ComponentError
from .finding import find_component, support_files
from .operations.table import OPERATIONS
from .services import Services
from .system import METHOD, open_library

_Table = POINTER(POINTER(c_void_p))


def _function(prototype: Any, interface: c_void_p, place: int) -> Any:
    """The function at a place of an interface's table."""
    return prototype(ctypes.cast(interface, _Table)[0][place])


def _release(interface: c_void_p) -> None:
    _function(abi.Release, interface, abi.RELEASE)(interface)


def _no_operation(*_: object) -> int:
    raise NotImplementedError


class Component:
    """A loaded library. It stays loaded until the process ends."""

    def __init__(self, file: Path) -> None:
        self.file = file
        self.support_files = support_files(file)
        self._factory = self._class_object()
        self._create = _function(abi.CreateInstance, self._factory, abi.CREATE_INSTANCE)
        self.services = Services(self._host_services())
        # Finalizers of documents run before this one, as they are made later.
        weakref.finalize(self, self.services.take_back)
        document = self.make_document()
        try:
            self._check(document)
            self.functions = self._operations(document)
        finally:
            _release(document)

    def make_document(self) -> c_void_p:
        document = c_void_p()
        iid = byref(abi.IID_DOCUMENT)
        result = self._create(self._factory, None, iid, byref(document))
        if result != abi.S_OK:
            raise self._stranger(f"it makes no document (result 0x{result & 0xFFFFFFFF:08X})")
        return document

    def _class_object(self) -> c_void_p:
        try:
            get_class_object = open_library(self.file).DllGetClassObject
        except OSError as problem:
            raise ComponentError(f"the component cannot be loaded: {problem}") from None
        except AttributeError:
            raise self._stranger("it does not export DllGetClassObject") from None
        get_class_object.argtypes = [c_void_p, c_void_p, POINTER(c_void_p)]
        get_class_object.restype = c_int32
        factory = c_void_p()
        result = get_class_object(
            byref(abi.CLASS_OF_DOCUMENTS), byref(abi.IID_CLASS_FACTORY), byref(factory)
        )
        if result != abi.S_OK:
            raise self._stranger("it has no class of documents")
        return factory

    def _host_services(self) -> c_void_p:
        query = _function(abi.QueryInterface, self._factory, abi.QUERY_INTERFACE)
        services = c_void_p()
        if query(self._factory, byref(abi.IID_HOST_SERVICES), byref(services)) != abi.S_OK:
            raise self._stranger("it takes no services of a host")
        return services

    def _check(self, document: c_void_p) -> None:
        """Every operation has the place in the interface that this package knows."""
        get_ids = _function(abi.GetIdsOfNames, document, abi.GET_IDS_OF_NAMES)
        for operation in OPERATIONS:
            name = ctypes.create_string_buffer((operation.name + "\0").encode("utf-16-le"))
            names = (c_void_p * 1)(ctypes.addressof(name))
            number = c_int32()
            result = get_ids(document, byref(abi.IID_NULL), names, 1, 0, byref(number))
            if result != abi.S_OK or number.value != operation.number:
                raise self._stranger(f"its operation {operation.number} is not {operation.name}")

    def _operations(self, document: c_void_p) -> Sequence[Callable[..., int]]:
        """The functions by dispatch identifier; there is none of number 0."""
        functions = [_no_operation]
        for operation in OPERATIONS:
            types: list[Any] = [abi.KIND_TYPES[kind] for _, kind in operation.parameters]
            prototype = METHOD(abi.Result, c_void_p, *types)
            place = abi.OPERATIONS_BEFORE_FIRST + operation.number
            functions.append(_function(prototype, document, place))
        return functions

    def release(self, document: c_void_p) -> None:
        _release(document)

    def _stranger(self, why: str) -> ComponentError:
        return ComponentError(f"{self.file} is not the component of this version: {why}")


_lock = threading.Lock()
_component: Component | None = None


def component() -> Component:
    """The component of this process, found and loaded when it is first asked for."""
    global _component
    with _lock:
        if _component is None:
            _component = Component(find_component())
        return _component
