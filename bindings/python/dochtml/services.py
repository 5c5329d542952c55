"""The services the component is given: the records of callbacks, and their way to a document.

The component knows each service once per process. It calls on the thread that drives a document,
so every callback goes to the mailbox that this thread is working with.
"""

import ctypes
import threading
from _thread import get_ident
from ctypes import c_void_p
from typing import Any, Callable

from . import abi
from .mailbox import ACTIVE, Mailbox
from .model import CallbackModel
from .regions import region_texts

_ERRORS, _REPORTS = 1, 11
_CAUGHT = "Exception catch: "


def _with_mailbox(body: Callable[..., Any], otherwise: Any = None) -> Callable[..., Any]:
    """A callback for the thread's mailbox; its exceptions stay on this side of the boundary."""

    def called(_context: object, *arguments: Any) -> Any:
        mailbox = ACTIVE.get(get_ident())
        if mailbox is None:
            return otherwise
        try:
            return body(mailbox, *arguments)
        except BaseException as exception:
            mailbox.take_exception(exception)
            return otherwise

    return called


def _read_setting(mailbox: Mailbox, group: Any, name: Any, value: Any) -> int:
    found = mailbox.store.value(mailbox.decode(group[0].read()), mailbox.decode(name[0].read()))
    if found is None:
        return 0
    value[0].put(mailbox.encode(found))
    return 1


def _put_regions(mailbox: Mailbox, picture: Any, texts: Any) -> None:
    if mailbox.image_maps is not None:
        for text in region_texts(mailbox.image_maps, mailbox.decode(picture[0].read())):
            texts[0].put(mailbox.encode(text))


def _wants_category(_mailbox: Mailbox, category: Any) -> int:
    return int(category[0].read() == b"Catch")


def _take_exception_line(mailbox: Mailbox, message: Any) -> None:
    text = mailbox.decode(message[0].read())
    mailbox.take_failure(text.removeprefix(_CAUGHT).rstrip())


class Services:
    """Lends the services of all documents, and takes them back in the end."""

    def __init__(self, interface: c_void_p) -> None:
        self._interface = interface
        self._table = ctypes.cast(interface, ctypes.POINTER(ctypes.POINTER(c_void_p)))[0]
        self._lock = threading.Lock()
        self._model: CallbackModel | None = None
        self._model_users = 0
        self._quiet = self._listener(_ERRORS)
        self._curious = self._listener(_REPORTS)
        self._report_readers: set[Mailbox] = set()
        self._records = {
            abi.SET_SETTINGS_STORE: self._store(),
            abi.SET_IMAGE_MAPS: self._image_maps(),
            abi.SET_EXCEPTION_LOG: self._exception_log(),
            abi.SET_OBSERVER: self._observer(),
            abi.SET_TRACE_LISTENER: self._quiet,
        }
        for place, record in self._records.items():
            self._lend(place, record)

    def take_back(self) -> None:
        for place in (*self._records, abi.SET_MODEL):
            self._lend(place, None)

    def set_schema_type(self, schema_type: int) -> None:
        abi.SetNumber(self._table[abi.SET_SCHEMA_TYPE] or 0)(self._interface, schema_type)

    def open_model(self) -> None:
        """From now on a document with a model is there."""
        with self._lock:
            self._model_users += 1
            if self._model is None:
                self._model = CallbackModel()
                self._lend(abi.SET_MODEL, self._model.record)

    def close_model(self) -> None:
        """Without a document that has one, the model goes, with all that the driver kept of it."""
        with self._lock:
            self._model_users -= 1
            if self._model_users == 0:
                self._lend(abi.SET_MODEL, None)
                self._model = None

    def stop_reports(self, mailbox: Mailbox) -> None:
        """At the end of a document: no reports for it any more."""
        with self._lock:
            if mailbox in self._report_readers:
                self._report_readers.remove(mailbox)
                if not self._report_readers:
                    self._lend(abi.SET_TRACE_LISTENER, self._quiet)

    def _hear_reports(self, mailbox: Mailbox, _page: Any, _count: int) -> None:
        # The driver is about to say which references found no target, to those who want reports.
        # Nobody wants them all the time: they come with a line for every call.
        with self._lock:
            if not self._report_readers:
                self._lend(abi.SET_TRACE_LISTENER, self._curious)
            self._report_readers.add(mailbox)

    def _lend(self, place: int, record: ctypes.Structure | None) -> None:
        set_service = abi.SetService(self._table[place] or 0)
        set_service(self._interface, None if record is None else ctypes.byref(record))

    def _listener(self, level: int) -> abi.TraceListener:
        def take_line(mailbox: Mailbox, _level: int, text: Any) -> None:
            mailbox.take_line(mailbox.decode(text[0].read()))

        return abi.TraceListener(None, level, abi.HearLine(_with_mailbox(take_line)))

    def _store(self) -> abi.SettingsStore:
        read = abi.ReadSetting(_with_mailbox(_read_setting, 0))
        return abi.SettingsStore(None, read, abi.WriteSetting(lambda *_: 0))

    def _image_maps(self) -> abi.ImageMaps:
        return abi.ImageMaps(None, abi.PutRegions(_with_mailbox(_put_regions)))

    def _exception_log(self) -> abi.ExceptionLog:
        records = abi.WantsCategory(_with_mailbox(_wants_category, 0))
        write = abi.HearText(_with_mailbox(_take_exception_line))
        return abi.ExceptionLog(None, records, write)

    def _observer(self) -> abi.Observer:
        def take_page(mailbox: Mailbox, name: Any) -> None:
            mailbox.take_page(name[0].read())

        return abi.Observer(
            pageWritten=abi.HearText(_with_mailbox(take_page)),
            unresolvedReferences=abi.HearReferences(_with_mailbox(self._hear_reports)),
        )
