"""Late-bound calls of the component, to hold the package's table against the component's own."""

import ctypes
from ctypes import POINTER, byref, c_int32, c_uint16, c_uint32, c_void_p

from dochtml import abi, component
from dochtml.system import METHOD

VT_I8, VT_BSTR, VT_BYREF = 20, 8, 0x4000
DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW = -0x7FFDFFFB, -0x7FFDFFF6
_INVOKE = 6
_DISPATCH_METHOD = 1


class Variant(ctypes.Structure):
    _fields_ = [
        ("kind", c_uint16),
        ("reserved", c_uint16 * 3),
        ("value", ctypes.c_int64),
        ("more", c_void_p),
    ]


class Parameters(ctypes.Structure):
    _fields_ = [
        ("arguments", POINTER(Variant)),
        ("named", POINTER(c_int32)),
        ("count", c_uint32),
        ("named_count", c_uint32),
    ]


_Invoke = METHOD(
    abi.Result, c_void_p, c_int32, c_void_p, c_uint32, c_uint16, POINTER(Parameters),
    c_void_p, c_void_p, c_void_p,
)


def text_block(text: str) -> "ctypes.Array[ctypes.c_char]":
    """A text of the boundary; it begins 4 bytes into the block."""
    units = text.encode("utf-16-le")
    return ctypes.create_string_buffer(len(units).to_bytes(4, "little") + units + b"\0")


class LateBound:
    """A document that is reached by name."""

    def __init__(self) -> None:
        self.pointer = component().make_document()
        self._table = ctypes.cast(self.pointer, POINTER(POINTER(c_void_p)))[0]

    def release(self) -> None:
        component().release(self.pointer)

    def ids_of(self, *names: str) -> list[int]:
        """The numbers of an operation and of its parameters."""
        blocks = [ctypes.create_string_buffer((name + "\0").encode("utf-16-le")) for name in names]
        addresses = (c_void_p * len(names))(*(ctypes.addressof(block) for block in blocks))
        ids = (c_int32 * len(names))()
        ask = abi.GetIdsOfNames(self._table[abi.GET_IDS_OF_NAMES] or 0)
        result = ask(self.pointer, byref(abi.IID_NULL), addresses, len(names), 0, ids)
        assert result == abi.S_OK, names
        return list(ids)

    def invoke(self, number: int, *arguments: Variant) -> int:
        """The result of a call with arguments in the operation's order."""
        count = len(arguments)
        values = (Variant * count)(*reversed(arguments))
        parameters = Parameters(values, None, count, 0)
        call = _Invoke(self._table[_INVOKE] or 0)
        null = byref(abi.IID_NULL)
        return int(
            call(self.pointer, number, null, 0, _DISPATCH_METHOD, byref(parameters), *[None] * 3)
        )
