"""Counts the library's instructions per operation, as valgrind sees them, and compares them with bench/instructions.txt.

  instructions.py PROGRAM            fails where a case got dearer by more than 3 %
  instructions.py PROGRAM --write    renews the file

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

COMMITTED = pathlib.Path(__file__).parent / "instructions.txt"
ROOM = 0.03
# libc picks its memcpy by the processor; without these it picks the same one everywhere.
LIBC = "glibc.cpu.hwcaps=-AVX2,-AVX512VL,-ERMS,-FSRM"


def count(program):
    """Instructions per operation, by case."""
    counts = {}
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["valgrind", "--tool=callgrind", "--instr-atstart=no", "-q",
                        f"--callgrind-out-file={folder}/dump", program],
                       check=True, env={**os.environ, "GLIBC_TUNABLES": LIBC})
        for path in pathlib.Path(folder).iterdir():
            text = path.read_text(encoding="utf-8")
            name = re.search(r"^desc: Trigger: Client Request: (\S+) (\d+)$", text, re.MULTILINE)
            if name:   # the last dump is that of the program's end
                total = re.search(r"^(?:summary|totals): (\d+)", text, re.MULTILINE)
                counts[name[1]] = int(total[1]) / int(name[2])
    return dict(sorted(counts.items()))


def read_committed():
    lines = COMMITTED.read_text(encoding="utf-8").splitlines() if COMMITTED.exists() else []
    return {line.split()[0]: float(line.split()[1]) for line in lines if line and not line.startswith("#")}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--write", action="store_true")
    options = parser.parse_args()
    counts = count(options.program)
    if not counts:
        print("nothing was counted")
        return 1
    if options.write:
        compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=True).stdout.split("\n")[0]
        libc = subprocess.run(["ldd", "--version"], capture_output=True, text=True, check=True).stdout.split("\n")[0]
        lines = ["# Instructions per operation. Renewed by `./run instructions --write`.", f"# {compiler}; {libc}", ""]
        lines += [f"{name:58} {instructions:10.1f}" for name, instructions in counts.items()]
        COMMITTED.write_text("\n".join(lines) + "\n", encoding="utf-8")
        print(f"{len(counts)} cases written to {COMMITTED}")
        return 0
    committed = read_committed()
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
