"""Reads lists of exceptions to a check. Each exception is for one line in core/.

A list consists of blocks and comments, separated by blank lines. A block is:

    FILE
    [preceding lines, if LINE occurs more than once in the file]
    LINE
    [further lines that the check needs]
    REASON

Comments and indentation in the source are ignored.
"""
import os
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def bare(line):
    return line.split("//")[0].strip()


def read(path, more):
    """Returns [(FILE, line number from 0, further lines...)]. `more` is the number of further lines.

    Exits if a block matches no line, or more than one.
    """
    with open(path) as file:
        blocks = [block.strip().split("\n") for block in file.read().split("\n\n")]
    found = []
    for block in blocks:
        if block[0] == "" or block[0].startswith("#"):
            continue
        name, place, rest = block[0], block[1:-1 - more], block[-1 - more:-1]
        with open(os.path.join(ROOT, "core", name)) as file:
            lines = [bare(line) for line in file]
        at = [last for last in range(len(place) - 1, len(lines)) if lines[last - len(place) + 1:last + 1] == [bare(line) for line in place]]
        if len(at) != 1:
            sys.exit("%s: core/%s: %d matches for: %s" % (path, name, len(at), " / ".join(place)))
        found.append((name, at[0], *rest))
    return found
