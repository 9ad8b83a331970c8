"""Messages of the IFIT control software in Python: decode, encode and explain byte strings, and read captures.

A record is a dictionary from field names to values:

    u8 u16 u32 u64    an int
    string            a str; None if it is absent; bytes if it is not UTF-8 or holds a NUL
    bytes             bytes; None if it is absent or empty
    u8[N]             bytes, N of them
    u32[N]            a list of N ints
    table             a dictionary
    vector            a list of dictionaries

A message is named by its name, its id or its `Message`.

    >>> import kesto
    >>> data = kesto.encode("ifit_dfx_query_glbdata_item_mesh", {"f0": "hello"})
    >>> kesto.decode("ifit_dfx_query_glbdata_item_mesh", data)
    {'f0': 'hello'}
"""

from __future__ import annotations

import functools
import json
import os
from collections.abc import Iterator, Mapping
from dataclasses import dataclass
from typing import Any, Literal, Union

from kesto import _kesto
from kesto._errors import CaptureError, DecodeError, EncodeError, Error, UnknownMessage

__all__ = ["Call", "CaptureError", "DecodeError", "EncodeError", "Error", "Explanation", "Field", "Message", "Note",
           "Packet", "Range", "Refusal", "UnknownMessage", "decode", "encode", "explain", "message", "messages",
           "read_capture", "refusal"]

Kind = Literal["scalar", "string", "bytes", "array", "table", "vector"]
Form = Literal["as_sent", "compact", "fixed"]


@dataclass(frozen=True)
class Field:
    """A field of a record: `type` as the documents write it, such as "u8[50]"; `message` of a table or of a vector's
    elements; `width` in bytes of a scalar or an array's element; `count` of an array's elements."""

    name: str
    type: str
    kind: Kind
    width: int
    count: int
    message: str | None


@dataclass(frozen=True)
class Message:
    """A message. Lengths are in bytes; `fixed_length` is 0 if there is no fixed form, and `compact_most` is 0 if texts,
    bytes and vectors can make the compact form longer than any limit."""

    name: str
    module: str
    id: int
    fields: tuple[Field, ...]
    fixed_length: int
    compact_least: int
    compact_most: int


@dataclass(frozen=True)
class Refusal:
    """Why the decoder refuses a byte string: the check `code`, with its `rule` in words and the numbers compared, on the
    field at `path`, reading at `position`."""

    code: str
    path: str
    position: int
    value: int
    limit: int
    rule: str
    comparison: str

    def __str__(self) -> str:
        numbers = f": {self.comparison}" if self.comparison else ""
        return f"{self.code} at {self.path}, position {self.position}: {self.rule}{numbers}"


@dataclass(frozen=True)
class Range:
    """Bytes with one meaning: `length` of them from `position`, of the field at `path`, read `reads` times."""

    position: int
    length: int
    path: str
    kind: str
    value: str
    reads: int


@dataclass(frozen=True)
class Note:
    """An oddity that the decoder accepts silently."""

    code: str
    position: int
    length: int
    path: str
    text: str


@dataclass(frozen=True)
class Explanation:
    """What every byte of a byte string means, and the decoder's verdict.

    `refusal` is None if the decoder accepts the bytes; `ignored` is the refusal of a nested table that does not refuse
    the message. `origin` says which writer makes exactly these bytes, and `written_for` names other messages whose
    writers make them. `memory` is what the decoder asks for, in bytes. The ranges cover all bytes, in order.
    """

    message: str
    accepted: bool
    refusal: Refusal | None
    ignored: Refusal | None
    ranges: tuple[Range, ...]
    notes: tuple[Note, ...]
    origin: str
    written_for: tuple[str, ...]
    memory: int


@dataclass(frozen=True)
class Call:
    """The call that sent or received a packet. What is not known of it is None; `result` is that of the send operation,
    and `began` is in nanoseconds since 1970."""

    direction: Literal["sent", "received"]
    channel: int | None
    destination: int | None
    result: int | None
    began: int


@dataclass(frozen=True)
class Packet:
    """A packet of a capture. `message` is None for an unknown id. `fault` says why the packet is not a whole message,
    and is None if it is one. `time` is in seconds since 1970. `call` is None, the default, if the capture has no call
    heads (link type USER0)."""

    number: int
    time: float
    id: int
    message: Message | None
    data: bytes
    fault: str | None
    call: Call | None = None


MessageLike = Union[str, int, Message]


@functools.cache
def messages() -> tuple[Message, ...]:
    """All messages, module by module in the order of registration."""
    return tuple(Message(name, module, id, tuple(Field(*field) for field in fields), *lengths)  # type: ignore[arg-type]
                 for name, module, id, fields, *lengths in _kesto.messages())


@functools.cache
def _index() -> dict[str | int, Message]:
    index: dict[str | int, Message] = {each.name: each for each in messages()}
    index.update((each.id, each) for each in messages())
    return index


def message(name_or_id: MessageLike) -> Message:
    """The message of this name or id. Raises UnknownMessage."""
    if isinstance(name_or_id, Message):
        return name_or_id
    try:
        return _index()[name_or_id]
    except KeyError:
        shown = f"{name_or_id:#010x}" if isinstance(name_or_id, int) else repr(name_or_id)
        raise UnknownMessage(f"no message {shown}") from None


def _refusal(found: Mapping[str, Any] | None) -> Refusal | None:
    if found is None:
        return None
    return Refusal(**{name: found[name] for name in Refusal.__dataclass_fields__})


def _octets(data: bytes) -> bytes:
    return memoryview(data).tobytes()   # bytes(5) would be five zeros


def refusal(message_like: MessageLike, data: bytes) -> Refusal | None:
    """Why the decoder refuses `data`, or None if it accepts it."""
    found = _kesto.refusal(message(message_like).name, _octets(data))
    return _refusal(json.loads(found)) if found else None


def decode(message_like: MessageLike, data: bytes, *, most_memory: int = 256 << 20) -> dict[str, Any]:
    """The record in `data`. Raises DecodeError if the decoder refuses it, or if the record would take more than
    `most_memory` bytes here: short byte strings can ask for large records."""
    which = message(message_like)
    try:
        record = _kesto.decode(which.name, _octets(data), most_memory)
    except ValueError:   # the extension's std::length_error
        raise DecodeError(f"{which.name}: decoding takes more than {most_memory} bytes of memory") from None
    if record is None:
        why = refusal(which, data)
        raise DecodeError(f"{which.name}: {why}", why)
    return record


def encode(message_like: MessageLike, record: Mapping[str, Any], form: Form = "as_sent") -> bytes:
    """The byte string of `record`: in the form that it is sent in, in compact form or in fixed form.

    Fields that are missing are zero or absent. Raises EncodeError, which names the field, for a value that does not fit,
    for an unknown field, and for a fixed form where there is none.
    """
    which = message(message_like)
    if form not in ("as_sent", "compact", "fixed"):
        raise ValueError(f"form is {form!r}, not 'as_sent', 'compact' or 'fixed'")
    if form == "fixed" and which.fixed_length == 0:
        raise EncodeError(".", f"{which.name} has no fixed form: it holds a string, bytes or a vector")
    return _kesto.encode(which.name, dict(record), form)


def explain(message_like: MessageLike, data: bytes) -> Explanation:
    """What every byte means, and the verdict. Never raises for any `data`."""
    found = json.loads(_kesto.explain(message(message_like).name, _octets(data)))
    return Explanation(
        message=found["message"], accepted=found["accepted"], refusal=_refusal(found["refused"]),
        ignored=_refusal(found["ignored"]), ranges=tuple(Range(**each) for each in found["ranges"]),
        notes=tuple(Note(**each) for each in found["notes"]), origin=found["origin"],
        written_for=tuple(found["written_for"]), memory=found["memory"]["bytes"])


def read_capture(path: str | os.PathLike[str]) -> Iterator[Packet]:
    """The packets of a capture file, one after the other. Raises CaptureError for a file that is not one, and, after the
    last whole packet, for one that is cut off."""
    try:
        capture = _kesto.Capture(os.fspath(path))
        while (packet := capture.next()) is not None:
            number, seconds, microseconds, id, data, fault, call = packet
            yield Packet(number, seconds + microseconds / 1e6, id, _index().get(id), data, fault,
                         Call(*call) if call else None)
    except RuntimeError as error:
        raise CaptureError(str(error)) from None
