"""The Python module against the vectors, against itself for any record, and with the examples' receiver."""

import json
import os
import pathlib
import runpy
import struct
import subprocess
import sys

import kesto
import pytest
from hypothesis import HealthCheck, given, settings, strategies as st

SOURCES = pathlib.Path(__file__).resolve().parents[2]
NAMES = [message.name for message in kesto.messages()]
COUNTS = {1: 2**8, 2: 2**16, 4: 2**32, 8: 2**64}


def from_json(message, record):
    """A record as the vectors write it, as Python has it."""
    def value(field, given):
        if field.kind in ("bytes", "array") and isinstance(given, str):
            return bytes.fromhex(given)
        if field.kind == "string" and isinstance(given, dict):
            return bytes.fromhex(given["hex"])
        if field.kind == "table":
            return from_json(kesto.message(field.message), given)
        if field.kind == "vector":
            return [from_json(kesto.message(field.message), element) for element in given]
        return int(given) if field.kind == "scalar" else given
    return {field.name: value(field, record[field.name]) for field in message.fields}


def vectors(pattern):
    for path in sorted((SOURCES / "vectors").glob(pattern)):
        for line in path.read_text().splitlines():
            yield json.loads(line)


def test_every_vector_decodes_and_encodes_as_it_says():
    seen = set()
    for vector in vectors("*ifit*.jsonl"):
        message = kesto.message(vector["message"])
        assert message is kesto.message(int(vector["id"], 16))
        record = from_json(message, vector["record"])
        seen.add(message.name)
        for form in ("compact", "fixed"):
            if vector[form] is not None:
                data = bytes.fromhex(vector[form])
                assert kesto.decode(message, data) == record
                assert kesto.encode(message, record, form) == data
    assert seen >= {name for name in NAMES if kesto.message(name).module != "synthetic"}


def test_hostile_vectors_are_refused_where_they_say():
    refused = 0
    for vector in vectors("hostile.jsonl"):
        data, expected = bytes.fromhex(vector["hex"]), vector["refused"]
        why = kesto.refusal(vector["message"], data)
        explanation = kesto.explain(vector["message"], data)
        assert explanation.refusal == why and explanation.accepted == (expected is None)
        if expected is None:
            assert kesto.decode(vector["message"], data) == from_json(kesto.message(vector["message"]), vector["record"])
            continue
        refused += 1
        with pytest.raises(kesto.DecodeError, match=f"position {expected['position']}") as raised:
            kesto.decode(vector["message"], data)
        assert raised.value.refusal == why
        assert (why.code, why.path, why.position) == tuple(expected[key] for key in ("code", "path", "position"))
    assert refused > 100


def records(name):
    """Any record of the message, and dictionaries that lack fields."""
    def values(field):
        scalar = st.integers(0, COUNTS.get(field.width, 2) - 1)
        return {"scalar": lambda: scalar,
                "string": lambda: st.none() | st.text(st.characters(blacklist_categories=["Cs"], min_codepoint=1)),
                "bytes": lambda: st.none() | st.binary(min_size=1, max_size=40),
                "array": lambda: st.binary(min_size=field.count, max_size=field.count) if field.width == 1
                else st.lists(scalar, min_size=field.count, max_size=field.count),
                "table": lambda: records(field.message),
                "vector": lambda: st.lists(records(field.message), max_size=3)}[field.kind]()
    return st.fixed_dictionaries({}, optional={field.name: values(field) for field in kesto.message(name).fields})


def holds(larger, smaller):
    """Whether `larger` has all that `smaller` says, and zeros or nothing where that is silent."""
    if isinstance(larger, dict):
        return all(holds(value, smaller[key]) if key in smaller else empty(value) for key, value in larger.items())
    if isinstance(larger, list) and larger and isinstance(larger[0], dict):
        return len(larger) == len(smaller) and all(map(holds, larger, smaller))
    return larger == smaller


def empty(value):
    if isinstance(value, dict):
        return all(map(empty, value.values()))
    return not any(value) if isinstance(value, (bytes, list)) else not value


@pytest.mark.parametrize("name", NAMES)
def test_any_record_survives_both_forms(name):
    message = kesto.message(name)

    @settings(max_examples=6, deadline=None, database=None, derandomize=True, suppress_health_check=list(HealthCheck))
    @given(records(name))
    def there_and_back(record):
        for form in ["compact"] + ["fixed"] * (message.fixed_length != 0):
            data = kesto.encode(message, record, form)
            assert holds(kesto.decode(message, data), record)
            explained = kesto.explain(message, data)
            assert explained.accepted and explained.ranges[-1].position + explained.ranges[-1].length == len(data)
    there_and_back()


@pytest.mark.parametrize("record, path", [
    ({"f9": 0}, ".f9"), ({"f1": 3}, ".f1"), ({"f0": -1}, ".f0"), ({"f0": True, "f1": [{}, {"f0": 2**32}]}, ".f1[1].f0"),
    ({"f1": [None]}, ".f1[0]"), ({"f0": 2**16}, ".f0"), ({"f0": 1.0}, ".f0")])
def test_an_encode_error_names_the_field(record, path):
    with pytest.raises(kesto.EncodeError) as raised:
        kesto.encode("ifit_mcp_mesh_update", record)
    assert raised.value.path == path


@pytest.mark.parametrize("name, record, reason", [
    ("ntvifit_flow_tuples", {"f4": bytes(5)}, "5 values"), ("ntvifit_app_data", {"f1": "text"}, "not bytes"),
    ("ifit_dfx_query_glbdata_item_mesh", {"f0": "a\0b"}, "NUL at 1"),
    ("ifit_dfx_query_glbdata_item_mesh", {"f0": "\ud800"}, "surrogate"),
    ("ifit_dfx_query_glbdata_item_mesh", {"f0": 5}, "not a str")])
def test_what_no_writer_can_carry_is_refused(name, record, reason):
    with pytest.raises(kesto.EncodeError, match=reason):
        kesto.encode(name, record)


def test_small_strings_cannot_take_all_memory():
    shared = kesto.encode("ifit_mcp_mesh_update", {"f1": [{}] * 1000})
    with pytest.raises(kesto.DecodeError, match="memory"):
        kesto.decode("ifit_mcp_mesh_update", shared, most_memory=1000)
    with pytest.raises(kesto.UnknownMessage):
        kesto.decode("nobody", b"")


def capture(path, packets):
    """A capture of (id, data) pairs, as docs/capturing.md describes it."""
    body = b"".join(struct.pack("<4I", 1700000000, 500000, 8 + len(data), 8 + len(data)) +
                    struct.pack("<2I", id, len(data)) + data for id, data in packets)
    path.write_bytes(struct.pack("<I2H4I", 0xA1B2C3D4, 2, 4, 0, 0, 262144, 147) + body)


def test_captures_are_read_to_the_last_whole_packet(tmp_path):
    path, greeting = tmp_path / "talk.pcap", kesto.message("ifit_dfx_query_glbdata_item_mesh")
    capture(path, [(greeting.id, kesto.encode(greeting, {"f0": "hello"})), (5, b"12345")])
    first, second = kesto.read_capture(path)
    assert first == kesto.Packet(1, 1700000000.5, greeting.id, greeting, kesto.encode(greeting, {"f0": "hello"}), None)
    assert (second.number, second.id, second.message, second.data) == (2, 5, None, b"12345")
    path.write_bytes(path.read_bytes()[:20] + struct.pack("<5I", 148, 1, 0, 32, 32) +   # a refused send
                     struct.pack("<BBHIIiQ2I", 1, 0, 5, 3, 0, -2, 1_700_000_000_000_000_001, 5, 0))
    assert next(kesto.read_capture(path)).call == kesto.Call("sent", 3, None, -2, 1_700_000_000_000_000_001)
    capture(path, [(greeting.id, first.data), (5, b"12345")])
    path.write_bytes(path.read_bytes()[:-2])
    packets = kesto.read_capture(path)
    assert next(packets) == first
    with pytest.raises(kesto.CaptureError):
        next(packets)
    with pytest.raises(kesto.CaptureError):
        next(kesto.read_capture(tmp_path / "none"))


@pytest.mark.skipif("KESTO_EXAMPLES" not in os.environ, reason="needs the programs of examples/")
def test_the_example_sends_an_edited_message_to_a_receiver(tmp_path, monkeypatch, capsys):
    greeting = kesto.message("ifit_dfx_query_glbdata_item_mesh")
    capture(tmp_path / "talk.pcap", [(greeting.id, kesto.encode(greeting, {"f0": text})) for text in ("hello", "bye")])
    socket = tmp_path / "socket"
    with subprocess.Popen([os.environ["KESTO_EXAMPLES"] + "/receiver", socket], stdout=subprocess.PIPE, text=True) as peer:
        monkeypatch.setattr(sys, "argv", ["edit_and_send.py", str(tmp_path / "talk.pcap"), str(socket)])
        runpy.run_path(str(SOURCES / "examples/edit_and_send.py"), run_name="__main__")
        printed = peer.communicate(timeout=20)[0]
    assert printed == "channel 1, 29 bytes: HELLO!\nchannel 1, 26 bytes: bye\n"
