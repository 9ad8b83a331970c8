#!/usr/bin/env python3
"""Computes the maximum stack usage of each operation within the library from the compiler's call graphs.

    stack.py COLUMN BUILD_FOLDER

Fails if one exceeds the value in this column of the table in docs/integrating.md. BUILD_FOLDER must be compiled with
KESTO_CALL_GRAPHS. The stack used by MESH, services and libc is not counted.
"""
import functools
import pathlib
import re
import sys

OPERATION = "(__unpack|_free__unpacked|__pack|__sendsingle|__sendbatch|__sendmsg|__sendtomsg|_recv_init|_send_init)"
NODE = re.compile(r'node: \{ title: "(.*?)" label: ".*\\n(\d+) bytes \((.*?)\)')
EDGE = re.compile(r'edge: \{ sourcename: "(.*?)" targetname: "(.*?)"(?: label: "(.*?):(\d+):\d+")?')
SERVICE = re.compile(r"\b(allocate|release)\(")
# These functions and those called through pointers may be mutually recursive. The catalogue's nesting bounds the depth.
NESTED = re.compile(r"_ZN5kesto\d+(decode_any_nested|clear_and_decode_nested|release_record)E")
ANY = "__indirect_call"


def nesting():
    """Returns the length of the longest chain of nested messages."""
    depth = {}
    for line in open("tests/data/messages.txt"):
        if " : " in line and not line.startswith("#"):
            head, slots = line.split(" : ")
            depth[head.split()[0]] = 1 + max((depth[slot.split(":")[1]] for slot in slots.split() if ":" in slot), default=0)
    return max(depth.values())


# True for a call through a pointer to one of the process's services.
def leaves_the_library(file, line):
    return file.endswith("core/unit.cpp") or SERVICE.search(pathlib.Path(file).read_text().splitlines()[int(line) - 1])


column, folder = sys.argv[1], pathlib.Path(sys.argv[2]) / "CMakeFiles/ifit_codec.dir"
objects, graphs = [sorted(f.with_suffix("") for f in folder.glob("**/*" + suffix)) for suffix in (".o", ".ci")]
if not objects or objects != graphs:
    sys.exit(f"{folder}: {len(objects)} objects, {len(graphs)} call graphs")
frames, calls, half = {}, {}, {}
for graph in graphs:
    for line in graph.with_suffix(graph.suffix + ".ci").read_text().splitlines():
        if node := NODE.match(line):
            if node[3] == "dynamic":
                sys.exit(f"{node[1]}: a frame of unbounded size")
            frames[node[1]] = int(node[2])
            half[node[1]] = "send" in graph.name
        if (edge := EDGE.match(line)) and not (edge[2] == ANY and leaves_the_library(edge[3], edge[4])):
            calls.setdefault(edge[1], set()).add(edge[2])


def operation(name):
    match = re.fullmatch(r"[a-z]\w*?" + OPERATION, name)
    return match and match[1]


def template(name):
    return name.split(":")[-1].split("I")[0]


# A function without direct calls must be called through a pointer. All instances of its template then count as such.
named = set().union(*calls.values())
pointed = {template(f) for f in frames if f not in named and not operation(f)} | {"_ZN5kesto11send_single"}
targets = {side: [f for f in frames if template(f) in pointed and half[f] == side] for side in (False, True)}


@functools.cache
def deepest(name, messages):
    most = 0
    for callee in calls.get(name, ()):
        inner = targets[half[name]] if callee == ANY else [callee] if callee in frames else []
        left = messages - (callee == ANY or bool(NESTED.match(callee)))
        if left >= 0:
            most = max([most] + [deepest(each, left) for each in inner])
    return frames[name] + most


found = {}
for name in filter(operation, frames):
    found[operation(name)] = max(found.get(operation(name), 0), deepest(name, nesting()))

table = [[cell.strip() for cell in line.split("|")[1:-1]] for line in open("docs/integrating.md") if line.startswith("|")]
place = next((row.index(column, 1) for row in table if column in row[1:]), None)
stated = {name: int(row[place].replace(",", "")) for row in table for name in re.findall(OPERATION, row[0])
          if place is not None and len(row) > place and re.fullmatch(r"[\d,]+", row[place])}
wrong = [f"{column}, {name}: {found[name]} bytes, documented as {stated.get(name)}" for name in sorted(found)
         if found[name] > stated.get(name, 0)]
print("\n".join(wrong) or f"{column}, maximum bytes: {found}")
sys.exit(bool(wrong) or len(found) < 9)
