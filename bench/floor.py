"""Shows what an operation takes at least: counts the instructions of libraries with parts left out.

  floor.py TARGET    i686 or arm, after ./run instructions; takes some minutes

The libraries are built from changed copies of the sources in a temporary folder, and are of no other use: most of them
read out of bounds. The cases are those of goals.py that miss their goal.
"""

import argparse
import pathlib
import shutil
import subprocess
import sys
import tempfile

import instructions
from goals import INSTRUCTIONS, ROOM
from report import ROOT, Counts

EMULATORS = {"i686": "qemu-i386", "arm": "qemu-arm -L /usr/arm-linux-gnueabihf"}

# Each variant changes (file, text, replacement) in addition to those before it.
VARIANTS = [
    ("all code inline, nothing shared", [
        ("CMakeLists.txt", "-Wshadow -Werror)", "-Wshadow)"),   # what is left out leaves parameters unused
        ("core/layout.h", "shares_entries = pointer_bytes == 4;", "shares_entries = false;"),
        ("core/layout.h", "is_short = slots <= 14 && pointer_bytes == 8;", "is_short = true;"),
    ]),
    ("no stack protector", [
        ("CMakeLists.txt", "-fstack-protector-strong", "-fno-stack-protector"),
    ]),
    ("no test of the services", [
        ("core/unit.h", "{ return unit.memory_ready.load(std::memory_order_acquire) != 0; }", "{ (void)unit; return true; }"),
    ]),
    ("no bounds", [
        ("core/wire.h", "return static_cast<bool>(offset + n <= view.bytes_after_table);", "return true;"),
        ("core/wire.h", "return static_cast<bool>(count <= (in.length - payload) / width);", "return true;"),
        ("core/wire.h", "if (distance > in.length - cell - count_bytes)", "if (false)"),
        ("core/wire.h", "if (room < needed || distance > room - needed)", "if (false)"),
        ("core/wire.h", "if (target < cell)", "if (false)"),
    ]),
    ("rows with branches", [
        ("core/pack.h", "branchless_rows = true;", "branchless_rows = false;"),
    ]),
]


def build(sources, target, changes):
    for file, text, replacement in changes:
        path = sources / file
        content = path.read_text(encoding="utf-8")
        if text not in content:
            sys.exit(f"{file} does not have: {text}")
        path.write_text(content.replace(text, replacement), encoding="utf-8")
    folder = sources / "build"
    subprocess.run(["cmake", "-S", sources, "-B", folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                    f"-DCMAKE_TOOLCHAIN_FILE=cmake/{target}.cmake", "-DIFIT_CODEC_INSTALL=OFF", "--no-warn-unused-cli"],
                   check=True, stdout=subprocess.DEVNULL)
    built = subprocess.run(["cmake", "--build", folder, "--target", "ifit_codec"], check=False, capture_output=True, text=True)
    if built.returncode != 0:
        sys.exit(built.stdout[-4000:])
    return folder


def count(target, library):
    return instructions.count(argparse.Namespace(
        program=ROOT / f"build/{target}/bench/instructions", plugin=ROOT / "build/dev/bench/libcount_plugin.so",
        emulator=f"{EMULATORS[target]} -E LD_LIBRARY_PATH={library}"))


def main():
    target = sys.argv[1]
    now = Counts(target)
    column = list(EMULATORS).index(target)
    goals = {case: bounds[column] for case, *bounds in INSTRUCTIONS}
    missed = {case: bound for case, bound in goals.items() if now.of(*case.split("/", 1)) > bound * ROOM}
    columns = [("as it is", now)]
    with tempfile.TemporaryDirectory() as folder:
        sources = pathlib.Path(folder) / "sources"
        shutil.copytree(ROOT, sources, ignore=shutil.ignore_patterns("build*", ".git"))
        for name, changes in VARIANTS:
            counted = Counts(target)
            counted.counts = count(target, build(sources, target, changes))
            columns.append((name, counted))
            print(f"built: {name}", file=sys.stderr)
    for number, (name, _) in enumerate(columns):
        print(f"{number}  {'and ' * (number > 1)}{name}")
    print(f"{'':50}" + "".join(f"{number:7}" for number in range(len(columns))) + "   goal")
    for case, bound in missed.items():
        print(f"{case:50}" + "".join(f"{counted.of(*case.split('/', 1)):7.0f}" for _, counted in columns) + f"{bound:7}")


if __name__ == "__main__":
    main()
