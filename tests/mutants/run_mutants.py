#!/usr/bin/env python3
"""Changes one thing in core/ at a time and looks whether the tests notice.

    run_mutants.py --tests BUILD [--count N] [--share K/N] [--only FILE]

BUILD is a build folder whose test programs stand; they are run against a library built from a changed copy of the
sources. A mutant is one changed comparison, connective, sign, constant or dropped statement. The sample is the same every
time. Mutants that no test can notice are listed in equivalent.txt beside this script, each with its reason. Ends with 0
when at least 95 % of the others were noticed.
"""
import argparse
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
FILES = ["wire.h", "decode.h", "decode.cpp", "encode.h", "fixed.h", "run.h", "layout.h", "send.cpp", "unit.h", "unit.cpp",
         "registration.cpp", "receive_unit.h", "send_unit.h"]
TESTS = [["codec_test", "--gtest_brief=1", "--gtest_fail_fast"], ["services_test", "--gtest_brief=1"]]

# What is looked for in a line without its comment, and what it becomes.
CHANGES = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" == ", " != "), (r" != ", " == "), (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " + "), (r" / ", " * "), (r" << ", " >> "), (r" >> ", " << "),
    (r" \+= ", " -= "), (r"\b1\b", "2"), (r"\b0\b", "1"), (r"\b4\b", "3"), (r"\b4\b", "5"), (r"\b2\b", "3"),
    (r"\breturn true;", "return false;"), (r"\breturn false;", "return true;"),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"^(\s+)(?!return|using|const |constexpr|static|if|for|else|case)[a-z_:]+[^=;{}]*\(.*\);$", r"\1;"),
]
# Lines without behaviour of their own.
LEFT_OUT = re.compile(r"^\s*(#|//|template|namespace|using|\[\[gnu|enum|struct)|static_assert|__attribute__|\[\[nodiscard")


def mutants_of(path):
    """All (line number, old, new) of one file."""
    found = []
    with open(path) as file:
        lines = file.read().split("\n")
    for number, line in enumerate(lines):
        code = line.split("//")[0].rstrip()
        if not code or LEFT_OUT.search(code):
            continue
        for pattern, replacement in CHANGES:
            for match in re.finditer(pattern, code):
                if '"' in code[:match.start()] or re.search(r"<[a-z_:0-9 ]*$", code[:match.start()]):
                    continue   # in a text, or an argument of a template more often than a comparison
                changed = code[:match.start()] + match.expand(replacement) + code[match.end():]
                found.append((number, code, changed + line[len(code):]))
    return found


def sample(count, only):
    """As many from each file as its share of all mutants, but at least four."""
    by_file = {name: mutants_of(os.path.join(ROOT, "core", name)) for name in FILES if only in (None, name)}
    total = sum(len(mutants) for mutants in by_file.values())
    chosen = []
    for name, mutants in by_file.items():
        number = min(len(mutants), max(4, round(count * len(mutants) / total)))
        chosen += [(name,) + mutant for mutant in random.Random(name).sample(mutants, number)]
    return chosen


def equivalents():
    """{(file, old, new): reason} of the mutants that no test can notice."""
    known = {}
    with open(os.path.join(HERE, "equivalent.txt")) as file:
        blocks = [block.strip() for block in file.read().split("\n\n")]
    for block in blocks:
        if block and not block.startswith("#"):
            name, old, new, reason = block.split("\n", 3)
            known[(name, old.strip(), new.strip())] = reason
    return known


def run(command, **kwargs):
    try:
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=240, **kwargs)
    except subprocess.TimeoutExpired:
        return None


def verdict(tree, build, tests):
    """'not built', 'noticed' or 'survived'."""
    built = run(["ninja", "-C", build, "ifit_codec"])
    if built is None or built.returncode != 0:
        return "not built"
    # The tests find the library by the path that they were linked with, unless this one comes first.
    environment = dict(os.environ, LD_LIBRARY_PATH=build)
    for test in TESTS:
        result = run([os.path.join(tests, "tests", test[0])] + test[1:], env=environment, cwd=tree)
        if result is None or result.returncode != 0:
            return "noticed"
    return "survived"


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("--tests", required=True)
    arguments.add_argument("--count", type=int, default=110)
    arguments.add_argument("--share", default="1/1", help="every N-th mutant, from the K-th on")
    arguments.add_argument("--only", help="one file of core/")
    options = arguments.parse_args()

    first, step = (int(part) for part in options.share.split("/"))
    chosen = sample(options.count, options.only)[first - 1::step]
    known = equivalents()
    tests = os.path.abspath(options.tests)
    counts = {"not built": 0, "noticed": 0, "equivalent": 0, "survived": 0}
    with tempfile.TemporaryDirectory(prefix="kesto_mutants_") as folder:
        tree = os.path.join(folder, "tree")
        for part in ("core", "messages", "platform", "include", "cmake"):
            shutil.copytree(os.path.join(ROOT, part), os.path.join(tree, part))
        shutil.copy(os.path.join(ROOT, "CMakeLists.txt"), tree)
        build = os.path.join(folder, "build")
        configured = run(["cmake", "-S", tree, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O0 -w"])
        if configured is None or configured.returncode != 0:
            sys.exit("configure failed")
        if verdict(tree, build, tests) != "survived":
            sys.exit("the tests fail without a mutant")
        for number, (name, line, old, new) in enumerate(chosen, 1):
            path = os.path.join(tree, "core", name)
            with open(path) as file:
                original = file.read()
            lines = original.split("\n")
            lines[line] = new
            with open(path, "w") as file:
                file.write("\n".join(lines))
            result = verdict(tree, build, tests)
            with open(path, "w") as file:
                file.write(original)
            if result == "survived" and (name, old.strip(), new.split("//")[0].strip()) in known:
                result = "equivalent"
            counts[result] += 1
            print(f"{number}/{len(chosen)} {result:10} {name}:{line + 1}: {old.strip()}  ->  {new.strip()}", flush=True)
    judged = counts["noticed"] + counts["not built"] + counts["survived"]
    share = 100 * (judged - counts["survived"]) / judged
    print(f"{sum(counts.values())} mutants: {counts['noticed']} noticed by the tests, {counts['not built']} by the compiler, "
          f"{counts['equivalent']} equivalent, {counts['survived']} survived: {share:.1f} % noticed")
    sys.exit(0 if share >= 95 else 1)


main()
