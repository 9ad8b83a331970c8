"""The exceptions of kesto, apart so that the extension module can import them."""

from __future__ import annotations

from typing import TYPE_CHECKING

if TYPE_CHECKING:
    from kesto import Refusal


class Error(ValueError):
    """Base of the module's exceptions."""


class UnknownMessage(Error, KeyError):
    """There is no message of this name or id."""

    def __str__(self) -> str:
        return str(self.args[0])


class DecodeError(Error):
    """The decoder refuses the byte string.

    `refusal` says which check failed, on which field and where. It is None only if the record would take more memory
    than the caller allowed.
    """

    refusal: Refusal | None

    def __init__(self, text: str, refusal: Refusal | None = None) -> None:
        super().__init__(text)
        self.refusal = refusal


class EncodeError(Error):
    """A value does not fit its field. `path` names the field, as in ".f1[0].f3"; "." is the record itself."""

    path: str

    def __init__(self, path: str, reason: str) -> None:
        super().__init__(f"{path}: {reason}")
        self.path = path


class CaptureError(Error):
    """The file is not a capture of messages, or it is damaged."""
