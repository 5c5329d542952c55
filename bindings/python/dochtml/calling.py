"""From a Python call to a call of the component."""

import codecs
import ctypes
import struct
from _thread import get_ident
from ctypes import c_void_p
from typing import Any, Callable, NoReturn, Sequence

from .errors import ClosedError, WrongThreadError
from .mailbox import ACTIVE, Mailbox
from .system import free_text

_PREFIX = struct.Struct("<I")
_lay_size = _PREFIX.pack_into
_units_of = codecs.utf_16_le_encode
_ROOM = 4096


class Arguments:
    """Turns arguments into what crosses the boundary, after a look at their kinds.

    Texts are laid into a room of their own: their length in bytes, UTF-16 units and a zero. They
    stay there until the next call.
    """

    def __init__(self) -> None:
        self._room = bytearray(_ROOM)
        # While this exists, the room cannot move.
        self._pin = ctypes.c_char.from_buffer(self._room)
        self._base = ctypes.addressof(self._pin)
        # How much of the room is taken; a call begins with 0.
        self.used = 0
        self._large: list[object] = []

    def text(self, name: str, value: str) -> int:
        if not isinstance(value, str):
            _refuse(name, "a str", value)
        units = _units_of(value, "surrogatepass")[0]
        size = len(units)
        start = self.used + 4
        end = start + size
        if end >= _ROOM - 1:
            return self._large_text(units)
        room = self._room
        _lay_size(room, start - 4, size)
        room[start : end + 2] = units + b"\0\0"
        # The next text begins where its length is aligned.
        self.used = (end + 5) & ~3
        return self._base + start

    def _large_text(self, units: bytes) -> int:
        """A text that the room is too small for has a block of its own until the next one comes."""
        if self.used == 0:
            self._large.clear()
            self.used = 4
        block = ctypes.create_string_buffer(_PREFIX.pack(len(units)) + units + b"\0")
        self._large.append(block)
        return ctypes.addressof(block) + 4

    def short(self, name: str, value: int) -> int:
        return _integer(name, value, 0x8000, "16")

    def long(self, name: str, value: int) -> int:
        return _integer(name, value, 0x80000000, "32")

    def boolean(self, name: str, value: bool) -> int:
        if not isinstance(value, int):
            _refuse(name, "a bool", value)
        return -1 if value else 0


def _integer(name: str, value: int, limit: int, bits: str) -> int:
    if not isinstance(value, int) or isinstance(value, bool):
        _refuse(name, "an int", value)
    if not -limit <= value < limit:
        raise OverflowError(f"{name} does not fit into {bits} bits: {value}")
    return value


def _refuse(name: str, wanted: str, value: object) -> NoReturn:
    raise TypeError(f"{name} must be {wanted}, not {type(value).__name__}")


class Caller:
    """Makes the calls of one document, on the thread that the document belongs to."""

    def __init__(
        self, pointer: c_void_p, functions: Sequence[Callable[..., Any]], mailbox: Mailbox
    ) -> None:
        self._pointer = pointer.value or 0
        self._functions = functions
        self._mailbox = mailbox
        self._take = Arguments()
        self._thread = get_ident()
        # The thread that may call now; none when the document is closed.
        self._caller: int | None = self._thread

    def _arguments(self) -> Arguments:
        """Comes first in every operation: who calls, and room for the arguments."""
        thread = get_ident()
        if thread != self._caller:
            self._refuse_call(thread)
        ACTIVE[thread] = self._mailbox
        take = self._take
        take.used = 0
        return take

    def _refuse_call(self, thread: int) -> NoReturn:
        if thread == self._thread:
            raise ClosedError("the document is closed")
        raise WrongThreadError(
            "a document is used on the thread that made it; make one document per thread"
        )


def taken_text(address: int | None) -> str:
    """An out text, which is freed."""
    if not address:
        return ""
    (size,) = _PREFIX.unpack(ctypes.string_at(address - 4, 4))
    text = ctypes.string_at(address, size).decode("utf-16-le", "surrogatepass")
    free_text(address)
    return text
