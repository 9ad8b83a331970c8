"""Prints the size of the built library on each target, in bytes. Fails if its code is larger than its goal."""

import pathlib
import re
import subprocess
import sys
import tempfile

from goals import CODE

ROOT = pathlib.Path(__file__).resolve().parent.parent
TARGETS = {"x86_64": ("dev", "strip"), "i686": ("i686", "strip"), "arm": ("arm", "arm-linux-gnueabihf-strip")}
UNWINDING = {".eh_frame", ".eh_frame_hdr", ".gcc_except_table", ".ARM.exidx", ".ARM.extab"}
HEAD = ["library", "code (.text)", "at most", "relocations", "stripped file", "of that, unwind tables", "without them"]


def sections(library):
    listing = subprocess.run(["readelf", "-SW", library], capture_output=True, text=True, check=True).stdout
    found = re.findall(r"^ *\[ *\d+\] (\.\S+) +\S+ +[0-9a-f]+ [0-9a-f]+ ([0-9a-f]+)", listing, re.MULTILINE)
    return {name: int(size, 16) for name, size in found}


def rows():
    """One row for each target that is built, and whether all are within their goals."""
    lines, within = [], True
    for target, (folder, strip) in TARGETS.items():
        library = ROOT / "build" / folder / "libifit_codec.so"
        if not library.exists():
            continue
        size = sections(library)
        with tempfile.TemporaryDirectory() as made:
            stripped = pathlib.Path(made) / library.name
            subprocess.run([strip, "-o", stripped, library], check=True)
            whole = stripped.stat().st_size
        relocations = sum(bytes for name, bytes in size.items() if name.startswith(".rel"))
        unwinding = sum(bytes for name, bytes in size.items() if name in UNWINDING)
        figures = [size[".text"], CODE[target], relocations, whole, unwinding, whole - unwinding]
        lines.append([target, *(f"{figure:,}" for figure in figures)])
        within = within and size[".text"] <= CODE[target]
    return lines, within


def main():
    lines, within = rows()
    for line in [HEAD, *lines]:
        print("".join(f"{cell:>{len(title) + 2}}" for cell, title in zip(line, HEAD)))
    print("; ".join(f"{line[0]} {line[1]} bytes of code, at most {line[2]}" for line in lines))
    return 0 if within and len(lines) == len(TARGETS) else 1


if __name__ == "__main__":
    sys.exit(main())
