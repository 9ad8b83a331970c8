#!/usr/bin/env python3
"""Changes one thing in core/ at a time and looks whether the tests notice.

    run_mutants.py --tests BUILD [--count N] [--share K/N] [--only FILE]

BUILD is a build folder whose test programs stand; they are run against a library built from a changed copy of the
sources. A mutant is one changed comparison, connective, sign, constant or dropped statement. The sample is the same every
time. Mutants that no test can notice are listed in equivalent.txt beside this script, each with its reason. Ends with 0
when at least 95 % of the others were noticed, and none of those.
"""
import argparse
import concurrent.futures
import glob
import os
import queue
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.dont_write_bytecode = True
sys.path.append(os.path.join(ROOT, "tests"))
import exceptions   # noqa: E402, the one beside this folder
FILES = ["wire.h", "decode.h", "decode.cpp", "layout_decoder.h", "encode.h", "picture.h", "forms.h", "run.h", "layout.h", "send.h",
         "send.cpp", "unit.h", "unit.cpp", "registration.cpp", "receive_unit.h", "send_unit.h"]
TESTS = [["codec_test", "--gtest_brief=1", "--gtest_fail_fast"], ["services_test", "--gtest_brief=1"],
         ["large_test", "--gtest_brief=1"]]

LARGEST_MODULE = "ifit_sync"
MOST_MEMORY = 2 << 30   # of a compiler

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


def runs_here(lines):
    """(number, line) of those that are not for other hosts alone, which no test here runs: hosts of the other byte order and
    hosts with narrow registers."""
    choice = other = None   # indents: of the choice between two hosts, and of the branch that is not taken here
    for number, line in enumerate(lines):
        indent = len(line) - len(line.lstrip())
        if other is not None and line.strip() and indent <= other:
            other = None
        if re.match(r"\s*if (constexpr )?\((!host_has_wire_order|piece\.bytes >= long_piece)", line):
            other = indent
        elif re.match(r"\s*if constexpr \(host_has_wire_order", line):
            choice = indent
        elif choice == indent and re.match(r"\s*else$", line):
            other, choice = indent, None
        elif other is None and not re.search(r"_long\(|copy_turned\(", line):
            yield number, line


def mutants_of(path):
    """All (line number, old, new) of one file."""
    found = []
    with open(path) as file:
        lines = file.read().split("\n")
    for number, line in runs_here(lines):
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
    """(file, line number, new) of the mutants that no test can notice."""
    path = os.path.join(HERE, "equivalent.txt")
    known = set(exceptions.read(path, 1))
    for name, line, new in known:
        if (line, new) not in {(number, exceptions.bare(changed)) for number, _, changed in
                               mutants_of(os.path.join(ROOT, "core", name))}:
            sys.exit("%s: no such mutant of %s:%d: %s" % (path, name, line + 1, new))
    return known


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))


def limit_dumps():
    """What a mutant leaves when it crashes may be as large as all memory that a test maps."""
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command, **kwargs):
    """Whether it succeeded in time. Nothing that it started goes on."""
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                          **kwargs) as process:
        try:
            return process.wait(timeout=120) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            return False


def build_largest_module(folder):
    """An archive of the module that takes as long to compile as all others: without a mutant, and in a namespace of its own,
    so that it shares nothing with theirs."""
    archive = os.path.join(folder, "largest_module.a")
    sources = glob.glob(os.path.join(ROOT, "core", "*.cpp"))
    sources += glob.glob(os.path.join(ROOT, "messages", LARGEST_MODULE, "*.cpp"))
    for number, source in enumerate(sources):
        subprocess.run(["c++", "-std=c++20", "-O1", "-w", "-fPIC", "-fno-exceptions", "-fno-rtti", "-fvisibility=hidden",
                        "-Dkesto=kesto_without_mutant", "-I" + ROOT, "-I" + os.path.join(ROOT, "include"), "-c", source,
                        "-o", os.path.join(folder, f"{number}.o")], check=True)
    subprocess.run(["ar", "rcs", archive] + glob.glob(os.path.join(folder, "*.o")), check=True)
    return archive


class Tree:
    """A copy of the sources and a build of its library."""

    def __init__(self, folder, tests, archive):
        self.root = os.path.join(folder, "tree")
        self.build = os.path.join(folder, "build")
        self.tests = tests
        for part in ("core", "messages", "platform", "include", "cmake"):
            shutil.copytree(os.path.join(ROOT, part), os.path.join(self.root, part))
        with open(os.path.join(ROOT, "CMakeLists.txt")) as whole, open(os.path.join(self.root, "CMakeLists.txt"), "w") as part:
            part.write(whole.read().replace(LARGEST_MODULE + " ", ""))
        configured = run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
                          "-DIFIT_CODEC_INSTALL=OFF", "-DCMAKE_CXX_FLAGS=-O0 -w",
                          f"-DCMAKE_SHARED_LINKER_FLAGS=-Wl,--whole-archive {archive} -Wl,--no-whole-archive"])
        if not configured:
            sys.exit("configure failed")

    def verdict(self):
        """'not built', 'noticed' or 'survived'."""
        # A constant that is off can make the compiler take all there is.
        if not run(["ninja", "-j1", "-C", self.build, "ifit_codec"], preexec_fn=limit_memory):
            return "not built"
        # The tests find the library by the path that they were linked with, unless this one comes first.
        environment = dict(os.environ, LD_LIBRARY_PATH=self.build)
        for test in TESTS:
            if not run([os.path.join(self.tests, "tests", test[0])] + test[1:], env=environment, cwd=self.root,
                       preexec_fn=limit_dumps):
                return "noticed"
        return "survived"

    def verdict_with(self, name, line, new):
        path = os.path.join(self.root, "core", name)
        with open(path) as file:
            original = file.read()
        lines = original.split("\n")
        lines[line] = new
        with open(path, "w") as file:
            file.write("\n".join(lines))
        try:
            return self.verdict()
        finally:
            with open(path, "w") as file:
                file.write(original)


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
    counts = {"not built": 0, "noticed": 0, "equivalent": 0, "survived": 0, "wrongly listed": 0}
    jobs = os.cpu_count() or 1
    with tempfile.TemporaryDirectory(prefix="kesto_mutants_") as folder:
        archive = build_largest_module(folder)
        trees = [Tree(os.path.join(folder, str(job)), tests, archive) for job in range(jobs)]
        if trees[0].verdict() != "survived":
            sys.exit("the tests fail without a mutant")
        free = queue.SimpleQueue()
        for tree in trees:
            free.put(tree)

        def judge(mutant):
            name, line, old, new = mutant
            tree = free.get()
            try:
                return mutant, tree.verdict_with(name, line, new)
            finally:
                free.put(tree)

        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            for number, ((name, line, old, new), result) in enumerate(pool.map(judge, chosen), 1):
                if (name, line, exceptions.bare(new)) in known:
                    result = "equivalent" if result == "survived" else "wrongly listed"
                counts[result] += 1
                print(f"{number}/{len(chosen)} {result:10} {name}:{line + 1}: {old.strip()}  ->  {new.strip()}", flush=True)
    judged = counts["noticed"] + counts["not built"] + counts["survived"]
    share = 100 * (judged - counts["survived"]) / judged
    print(f"{sum(counts.values())} mutants: {counts['noticed']} noticed by the tests, {counts['not built']} by the compiler, "
          f"{counts['equivalent']} equivalent, {counts['survived']} survived: {share:.1f} % noticed; "
          f"{counts['wrongly listed']} of those listed as equivalent noticed")
    sys.exit(0 if share >= 95 and counts["wrongly listed"] == 0 else 1)


main()
