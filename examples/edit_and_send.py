#!/usr/bin/env python3
"""Edits the messages of a capture and sends them again: edit_and_send.py CAPTURE SOCKET

Try it from the top of the sources, with the sender and the receiver of examples/:

    export PYTHONPATH=build/dev/python                          # unless python3-kesto is installed
    build/dev/examples/receiver /tmp/a & MESH_STANDIN_CAPTURE=/tmp/talk.pcap build/dev/examples/sender /tmp/a 0 hello bye
    build/dev/examples/receiver /tmp/b & python3 examples/edit_and_send.py /tmp/talk.pcap /tmp/b
"""
import socket
import struct
import sys
import time

import kesto

# %% Connect to the receiver, which may still be starting. The MESH stand-in takes one packet for each message.
capture, path = sys.argv[1:]
peer = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
for attempt in range(100):
    if peer.connect_ex(path) == 0:
        break
    time.sleep(0.05)
else:
    sys.exit(f"nobody listens at {path}")

# %% Read, look, edit, send.
for packet in kesto.read_capture(capture):
    if packet.message is None or packet.fault:
        print(f"packet {packet.number} is left out: {packet.fault or 'unknown message'}")
        continue
    try:
        record = kesto.decode(packet.message, packet.data)
    except kesto.DecodeError as error:
        print(f"packet {packet.number} is left out: {error}")
        continue
    print(f"packet {packet.number}: {packet.message.name} {record}")

    if packet.message.name == "ifit_dfx_query_glbdata_item_mesh" and record["f0"] == "hello":
        record["f0"] = "HELLO!"

    data = kesto.encode(packet.message, record)
    peer.send(struct.pack("<2I", packet.id, len(data)) + data)
