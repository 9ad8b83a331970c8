"""Lists of exceptions to a check, each for one place in core/: blocks of lines with a blank line between two, or comments.

    FILE
    [lines before it, where the line itself stands in the file more than once]
    LINE
    what else the check needs, a line each
    REASON

Comments and indents do not count.
"""
import os
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def bare(line):
    return line.split("//")[0].strip()


def read(path, more):
    """[(FILE, number of the line from 0, what else there is...)]. Ends the process where one names no place, or several."""
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
            sys.exit("%s: core/%s has %d such places: %s" % (path, name, len(at), " / ".join(place)))
        found.append((name, at[0], *rest))
    return found
