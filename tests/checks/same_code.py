#!/usr/bin/env python3
"""Compiles pairs of functions c_NAME and cpp_NAME and compares how many instructions each has, padding left out.

  same_code.py SOURCE_FOLDER COMPILER...

Fails if a C++ one has more than its C counterpart, or calls a function that the other does not.
"""
import re
import subprocess
import sys
import tempfile


def functions(listing):
    """Of each function: the number of instructions, and what it calls or jumps to outside."""
    found = {}
    for line in listing.splitlines():
        if start := re.match(r"[0-9a-f]+ <(\w+)>:$", line):
            current = found.setdefault(start[1], [0, set()])
        elif target := re.search(r"R_\w+\s+(\w+__\w+)", line):
            current[1].add(target[1])
        elif re.match(r"\s+[0-9a-f]+:", line) and not re.search(r"\bnop|xchg\s+%ax,%ax", line):
            current[0] += 1
    return found


def main():
    folder, *compiler = sys.argv[1:]
    with tempfile.NamedTemporaryFile(suffix=".o") as made:
        subprocess.run([*compiler, "-std=c++20", "-O2", "-fPIC", "-Wall", "-Wextra", "-Wconversion", "-Wsign-conversion",
                        "-Werror", f"-I{folder}/include", "-c", f"{folder}/tests/cpp/same_code.cpp", "-o", made.name],
                       check=True)
        listing = subprocess.run(["objdump", "-dr", "--no-show-raw-insn", made.name], check=True, text=True,
                                 capture_output=True).stdout
    found, failed, pairs = functions(listing), False, 0
    for name in sorted(n[2:] for n in found if n.startswith("c_")):
        (c, c_calls), (cpp, cpp_calls) = found["c_" + name], found["cpp_" + name]
        verdict = "same code" if cpp <= c and cpp_calls == c_calls and c_calls else "FAILED"
        failed |= verdict == "FAILED"
        pairs += 1
        print(f"{name:8} C {c:3}  C++ {cpp:3}  {verdict}")
    return 1 if failed or pairs == 0 else 0


sys.exit(main())
