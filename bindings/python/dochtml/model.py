"""The model behind the icons of the contents."""

import itertools
from _thread import get_ident
from dataclasses import dataclass, field
from typing import Any, Callable, Mapping, Protocol, Sequence, Union

from . import abi
from .mailbox import ACTIVE, Mailbox

Value = Union[str, bool, int, float]


class Element(Protocol):
    """An element of a host's model."""

    @property
    def metaclass(self) -> str: ...

    @property
    def attributes(self) -> Mapping[str, Value]: ...

    @property
    def associations(self) -> Mapping[str, Sequence["Element"]]: ...


@dataclass(frozen=True)
class ModelElement:
    """An element that is nothing but its data."""

    metaclass: str
    attributes: Mapping[str, Value] = field(default_factory=dict)
    associations: Mapping[str, Sequence[Element]] = field(default_factory=dict)


# Gives the element of a handle, or None. The `get` of a dictionary is one.
Model = Callable[[int], Element | None]


def _text_of(value: Value) -> str:
    return str(value).upper() if isinstance(value, bool) else str(value)


class CallbackModel:
    """The record of callbacks. Elements and classes cross the boundary as numbers of ours.

    An element says itself what it has. So every class is said to have every attribute, and the
    element is asked.
    """

    def __init__(self) -> None:
        self._numbers = itertools.count(1)
        self._by_number: dict[int, Any] = {}
        self._by_identity: dict[object, int] = {}
        self.record = abi.Model(
            None,
            abi.FindObject(_guarded(self._object)),
            abi.FindClass(_guarded(self._find_class)),
            abi.ClassOf(_guarded(self._class_of)),
            abi.ClassName(_guarded(self._class_name)),
            abi.AskNumber(_guarded(self._exists)),
            abi.AskNumber(_guarded(self._exists)),
            abi.AskNumber(_guarded(self._has_attribute)),
            abi.AskText(_guarded(self._attribute_text)),
            abi.AskNumber(_guarded(self._attribute_as(bool))),
            abi.AskNumber(_guarded(self._attribute_as(int))),
            abi.AskDouble(_guarded(self._attribute_as(float))),
            abi.Associated(_guarded(self._associated)),
        )

    def _number(self, key: object, what: Any) -> int:
        number = self._by_identity.get(key)
        if number is None:
            number = next(self._numbers)
            self._by_number[number] = what
            self._by_identity[key] = number
        return number

    def _object(self, mailbox: Mailbox, handle: int, found: Any) -> None:
        element = mailbox.model(handle) if mailbox.model is not None else None
        found[0] = None if element is None else self._number(id(element), element)

    def _find_class(self, mailbox: Mailbox, name: Any, found: Any) -> None:
        text = mailbox.decode(name[0].read())
        found[0] = self._number(text, text)

    def _class_of(self, _mailbox: Mailbox, element: int, found: Any) -> None:
        name = self._by_number[element].metaclass
        found[0] = self._number(name, name)

    def _class_name(self, mailbox: Mailbox, model_class: int, name: Any) -> None:
        name[0].put(mailbox.encode(self._by_number[model_class]))

    def _exists(self, _mailbox: Mailbox, _class: int, _name: Any, exists: Any) -> None:
        exists[0] = 1

    def _attribute(self, mailbox: Mailbox, element: int, name: Any) -> Value | None:
        attributes: Mapping[str, Value] = self._by_number[element].attributes
        return attributes.get(mailbox.decode(name[0].read()))

    def _has_attribute(self, mailbox: Mailbox, element: int, name: Any, exists: Any) -> None:
        exists[0] = int(self._attribute(mailbox, element, name) is not None)

    def _attribute_text(self, mailbox: Mailbox, element: int, name: Any, value: Any) -> None:
        found = self._attribute(mailbox, element, name)
        value[0].put(mailbox.encode("" if found is None else _text_of(found)))

    def _attribute_as(self, kind: Callable[[Any], Any]) -> Callable[..., None]:
        def answer(mailbox: Mailbox, element: int, name: Any, value: Any) -> None:
            value[0] = kind(self._attribute(mailbox, element, name) or 0)

        return answer

    def _associated(
        self, mailbox: Mailbox, element: int, name: Any, index: int, other: Any
    ) -> None:
        associations: Mapping[str, Sequence[Element]] = self._by_number[element].associations
        ends = associations.get(mailbox.decode(name[0].read()), ())
        other[0] = self._number(id(ends[index]), ends[index]) if index < len(ends) else None


def _guarded(body: Callable[..., None]) -> Callable[..., int]:
    """A callback that answers with a result; its exceptions stay on this side of the boundary."""

    def called(_context: object, *arguments: Any) -> int:
        mailbox = ACTIVE.get(get_ident())
        if mailbox is None:
            return abi.E_FAIL
        try:
            body(mailbox, *arguments)
            return abi.S_OK
        except BaseException as exception:
            mailbox.take_exception(exception)
            return abi.E_FAIL

    return called
