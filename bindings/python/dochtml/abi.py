"""The component's boundary in terms of ctypes: identifiers, records and function types.

It mirrors the headers dochtml/automation.h, callbacks.h, document.h and host_services.h.
"""

import ctypes
import uuid
from ctypes import CFUNCTYPE, POINTER, c_int16, c_int32, c_size_t, c_uint32, c_uint64, c_void_p

from .system import METHOD


class Guid(ctypes.Structure):
    _fields_ = [("bytes", ctypes.c_ubyte * 16)]


def guid(text: str) -> Guid:
    return Guid.from_buffer_copy(uuid.UUID(text).bytes_le)


CLASS_OF_DOCUMENTS = guid("474BDD91-0170-11D3-A6BF-00104B2AEFE1")
IID_CLASS_FACTORY = guid("00000001-0000-0000-C000-000000000046")
IID_DOCUMENT = guid("3F65DC20-B90B-11D1-8472-00409526217E")
IID_HOST_SERVICES = guid("8A6C1F52-3B0E-4D7A-9C41-5E27D0B8F6A3")
IID_NULL = Guid()

S_OK = 0
E_FAIL = -0x7FFFBFFB

Result = c_int32

# The places of functions in the tables of the interfaces.
QUERY_INTERFACE, RELEASE = 0, 2
CREATE_INSTANCE = 3
GET_IDS_OF_NAMES = 5
OPERATIONS_BEFORE_FIRST = 6
SET_SETTINGS_STORE, SET_IMAGE_MAPS, SET_MODEL, SET_SCHEMA_TYPE = 3, 5, 6, 7
SET_TRACE_LISTENER, SET_EXCEPTION_LOG, SET_OBSERVER = 9, 10, 11

QueryInterface = METHOD(Result, c_void_p, c_void_p, POINTER(c_void_p))
Release = METHOD(c_uint32, c_void_p)
CreateInstance = METHOD(Result, c_void_p, c_void_p, c_void_p, POINTER(c_void_p))
GetIdsOfNames = METHOD(
    Result, c_void_p, c_void_p, POINTER(c_void_p), c_uint32, c_uint32, POINTER(c_int32)
)
SetService = METHOD(Result, c_void_p, c_void_p)
SetNumber = METHOD(Result, c_void_p, c_int32)

# How the kinds of the table of operations cross the boundary.
KIND_TYPES = {
    "text": c_void_p,
    "short": c_int16,
    "long": c_int32,
    "boolean": c_int16,
    "out": POINTER(c_void_p),
}


class Text(ctypes.Structure):
    """A text on loan for the time of a call."""

    _fields_ = [("data", c_void_p), ("size", c_size_t)]
    data: int | None
    size: int

    def read(self) -> bytes:
        return ctypes.string_at(self.data, self.size) if self.data else b""


TextPointer = POINTER(Text)
Put = CFUNCTYPE(None, c_void_p, TextPointer)


class Sink(ctypes.Structure):
    """Takes the texts that a callback answers with."""

    _fields_ = [("context", c_void_p), ("put_text", Put)]

    def put(self, text: bytes) -> None:
        argument = Text(ctypes.cast(ctypes.c_char_p(text), c_void_p), len(text))
        self.put_text(self.context, ctypes.byref(argument))


SinkPointer = POINTER(Sink)

_Number = POINTER(c_int32)
_Handle = POINTER(c_void_p)

# The callbacks; the names are those of the records' members.
ReadSetting = CFUNCTYPE(c_int32, c_void_p, TextPointer, TextPointer, SinkPointer)
WriteSetting = CFUNCTYPE(c_int32, c_void_p, TextPointer, TextPointer, TextPointer)
PutRegions = CFUNCTYPE(None, c_void_p, TextPointer, SinkPointer)
FindObject = CFUNCTYPE(Result, c_void_p, c_uint64, _Handle)
FindClass = CFUNCTYPE(Result, c_void_p, TextPointer, _Handle)
ClassOf = CFUNCTYPE(Result, c_void_p, c_void_p, _Handle)
ClassName = CFUNCTYPE(Result, c_void_p, c_void_p, SinkPointer)
AskNumber = CFUNCTYPE(Result, c_void_p, c_void_p, TextPointer, _Number)
AskText = CFUNCTYPE(Result, c_void_p, c_void_p, TextPointer, SinkPointer)
AskDouble = CFUNCTYPE(Result, c_void_p, c_void_p, TextPointer, POINTER(ctypes.c_double))
Associated = CFUNCTYPE(Result, c_void_p, c_void_p, TextPointer, c_uint32, _Handle)
HearLine = CFUNCTYPE(None, c_void_p, c_int32, TextPointer)
WantsCategory = CFUNCTYPE(c_int32, c_void_p, TextPointer)
HearText = CFUNCTYPE(None, c_void_p, TextPointer)
HearEntry = CFUNCTYPE(None, c_void_p)
HearReferences = CFUNCTYPE(None, c_void_p, TextPointer, c_size_t)


class SettingsStore(ctypes.Structure):
    _fields_ = [("context", c_void_p), ("read", ReadSetting), ("write", WriteSetting)]


class ImageMaps(ctypes.Structure):
    _fields_ = [("context", c_void_p), ("regions", PutRegions)]


class Model(ctypes.Structure):
    _fields_ = [
        ("context", c_void_p),
        ("object", FindObject),
        ("findClass", FindClass),
        ("classOf", ClassOf),
        ("className", ClassName),
        ("attributeExists", AskNumber),
        ("associationExists", AskNumber),
        ("hasAttribute", AskNumber),
        ("attributeText", AskText),
        ("attributeBoolean", AskNumber),
        ("attributeLong", AskNumber),
        ("attributeDouble", AskDouble),
        ("associated", Associated),
    ]


class TraceListener(ctypes.Structure):
    _fields_ = [("context", c_void_p), ("level", c_int32), ("line", HearLine)]


class ExceptionLog(ctypes.Structure):
    _fields_ = [("context", c_void_p), ("records", WantsCategory), ("write", HearText)]


class Observer(ctypes.Structure):
    _fields_ = [
        ("context", c_void_p),
        ("pageWritten", HearText),
        ("fileCopied", HearText),
        ("contentsEntryAdded", HearEntry),
        ("unresolvedReferences", HearReferences),
    ]
