"""Counts the library's instructions per operation, and compares them with bench/instructions-TARGET.txt.

  instructions.py TARGET PROGRAM            fails where a case got dearer by more than 3 %
  instructions.py TARGET PROGRAM --write    renews the file

Valgrind counts what runs on any x86-64 machine; for other targets, --emulator says what runs the program and --plugin
names the emulator's plugin that counts.

The counts take in what the library calls in libc, and so depend on compiler and libc; they do not depend on what else
the machine is doing.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOM = 0.03
# libc selects its memcpy by processor features; with these off it selects the same one everywhere.
LIBC = "glibc.cpu.hwcaps=-AVX2,-AVX512VL,-ERMS,-FSRM"


def under_callgrind(program, folder):
    """What the program says, and how many instructions it took between each begin and end."""
    said = subprocess.run(["valgrind", "--tool=callgrind", "--instr-atstart=no", "-q",
                           f"--callgrind-out-file={folder}/dump", program], check=True, capture_output=True, text=True,
                          env={**os.environ, "GLIBC_TUNABLES": LIBC}).stdout
    dumps = sorted(pathlib.Path(folder).glob("dump.*"), key=lambda path: int(path.suffix[1:]))
    totals = [re.search(r"^(?:summary|totals): (\d+)", path.read_text(encoding="utf-8"), re.MULTILINE) for path in dumps]
    return said, [int(total[1]) for total in totals]


def under_emulator(program, folder, emulator, plugin):
    log = pathlib.Path(folder) / "log"
    said = subprocess.run([*emulator.split(), "-plugin", plugin, "-d", "plugin", "-D", log, program], check=True,
                          capture_output=True, text=True).stdout
    return said, [int(line) for line in log.read_text(encoding="utf-8").split()]


def count(options):
    """Instructions per operation, by case."""
    with tempfile.TemporaryDirectory() as folder:
        said, totals = (under_emulator(options.program, folder, options.emulator, options.plugin)
                        if options.emulator else under_callgrind(options.program, folder))
    cases = [line.split() for line in said.splitlines()]
    if len(cases) != len(totals):   # callgrind dumps once more at the end of the program
        sys.exit(f"{len(cases)} cases and {len(totals)} counts")
    return dict(sorted((name, total / int(operations)) for (name, operations), total in zip(cases, totals)))


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
        print("nothing was counted")
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
    dearer = cheaper = 0
    for name, instructions in counts.items():
        before = committed.get(name)
        remark = "  not in the file" if before is None else ""
        if before is not None and instructions > before * (1 + ROOM):
            dearer += 1
            remark = f"  DEARER than {before:.1f}"
        if before is not None and instructions < before * (1 - ROOM):
            cheaper += 1
            remark = f"  cheaper than {before:.1f}"
        print(f"{name:58} {instructions:10.1f}{remark}")
    if cheaper:
        print(f"{cheaper} cheaper by more than {ROOM:.0%}: renew the file with ./run instructions --write")
    if counts.keys() != committed.keys():
        print(f"other cases than the file has, such as {min(counts.keys() ^ committed.keys())}: renew the file")
        return 1
    print(f"{len(counts)} cases, {dearer} dearer by more than {ROOM:.0%}, {cheaper} cheaper")
    return 1 if dearer else 0


if __name__ == "__main__":
    sys.exit(main())
