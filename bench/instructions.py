"""Counts the library's instructions per operation, and compares them with bench/instructions-TARGET.txt.

  instructions.py TARGET PROGRAM            fails if a case takes over 3 % more instructions than before
  instructions.py TARGET PROGRAM --write    writes the file

Native x86-64 programs run under Valgrind. For other targets, --emulator is the command that runs the program and
--plugin the emulator plugin that counts.

The counts include calls into libc, so they depend on the compiler and on libc, but not on the load of the machine.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TOLERANCE = 0.03
# libc selects its memcpy by processor features. With these off it selects the same one on every machine.
LIBC = "glibc.cpu.hwcaps=-AVX2,-AVX512VL,-ERMS,-FSRM"


def under_callgrind(program, folder):
    """Returns the program's output and the number of instructions between each begin and end."""
    output = subprocess.run(["valgrind", "--tool=callgrind", "--instr-atstart=no", "-q",
                             f"--callgrind-out-file={folder}/dump", program], check=True, capture_output=True,
                            text=True, env={**os.environ, "GLIBC_TUNABLES": LIBC}).stdout
    dumps = sorted(pathlib.Path(folder).glob("dump.*"), key=lambda path: int(path.suffix[1:]))
    totals = [re.search(r"^(?:summary|totals): (\d+)", path.read_text(encoding="utf-8"), re.M) for path in dumps]
    return output, [int(total[1]) for total in totals]


def under_emulator(program, folder, emulator, plugin):
    log = pathlib.Path(folder) / "log"
    output = subprocess.run([*emulator.split(), "-plugin", plugin, "-d", "plugin", "-D", log, program], check=True,
                            capture_output=True, text=True).stdout
    return output, [int(line) for line in log.read_text(encoding="utf-8").split()]


def count(options):
    """Returns the instructions per operation, by case."""
    with tempfile.TemporaryDirectory() as folder:
        output, totals = (under_emulator(options.program, folder, options.emulator, options.plugin)
                          if options.emulator else under_callgrind(options.program, folder))
    cases = [line.split() for line in output.splitlines()]
    if len(cases) != len(totals):   # callgrind's dump at exit has no number and is not counted
        sys.exit(f"{len(cases)} cases and {len(totals)} counts")
    counts = {}
    for (name, operations), total in zip(cases, totals):
        name = re.sub("/limit_.*", "/limit", name)   # the better of the two copies
        counts[name] = min(total / int(operations), counts.get(name, float("inf")))
    return dict(sorted(counts.items()))


def read_committed(path):
    lines = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
    return {line.split()[0]: float(line.split()[1]) for line in lines if line and not line.startswith("#")}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("target")
    parser.add_argument("program")
    parser.add_argument("--emulator")
    parser.add_argument("--plugin")
    parser.add_argument("--compiler", default="c++")
    parser.add_argument("--write", action="store_true")
    options = parser.parse_args()
    path = pathlib.Path(__file__).parent / f"instructions-{options.target}.txt"
    counts = count(options)
    if not counts:
        print("no cases were counted")
        return 1
    if options.write:
        compiler = subprocess.run([options.compiler, "--version"], capture_output=True, text=True, check=True).stdout.split("\n")[0]
        libc = subprocess.run(["ldd", "--version"], capture_output=True, text=True, check=True).stdout.split("\n")[0]
        lines = ["# Instructions per operation. Renewed by `./run instructions --write`.", f"# {compiler}; {libc}", ""]
        lines += [f"{name:58} {instructions:10.1f}" for name, instructions in counts.items()]
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")
        print(f"{len(counts)} cases written to {path}")
        return 0
    committed = read_committed(path)
    more = fewer = 0
    for name, instructions in counts.items():
        before = committed.get(name)
        remark = "  not in the file" if before is None else ""
        if before is not None and instructions > before * (1 + TOLERANCE):
            more += 1
            remark = f"  MORE than {before:.1f}"
        if before is not None and instructions < before * (1 - TOLERANCE):
            fewer += 1
            remark = f"  fewer than {before:.1f}"
        print(f"{name:58} {instructions:10.1f}{remark}")
    if fewer:
        print(f"{fewer} cases improved by more than {TOLERANCE:.0%}: update the file with ./run instructions --write")
    if counts.keys() != committed.keys():
        print(f"the file lists other cases; the first difference is {min(counts.keys() ^ committed.keys())}: update it")
        return 1
    print(f"{len(counts)} cases: {more} over by more than {TOLERANCE:.0%}, {fewer} under")
    return 1 if more else 0


if __name__ == "__main__":
    sys.exit(main())
