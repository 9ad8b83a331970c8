#!/usr/bin/env python3
"""Mutation tests of core/: changes one thing at a time and checks whether the tests detect it.

    run_mutants.py --tests BUILD [--i686] [--count N | --mutants FILE] [--share K/N] [--only FILE] [--list FILE]

BUILD is a build folder with the test programs, which run against a library built from a changed copy of the sources. A
mutant is one changed comparison, connective, sign or constant, or one dropped statement; the sample is the same in every
run. A mutant that survives the tests is also run through some of the exhaustive tests and, in the reader, the proof.
Mutants that no test can detect are listed in equivalent.txt in this folder, each with its reason. The exit status is 0
if at least 95 % of the others were noticed, and none of the listed ones.

With --list, every mutant runs against every program, and FILE gets a line with the programs that noticed it and the
mutant; PROGRAM(time) means that the program exceeded its time limit. With --mutants, the mutants are those in FILE, such
a list; each runs against the programs listed for it and then against the others, until one notices it. The exit status is
0 if all were noticed again, and the lost ones are printed; this compares two states of the tests. An entry without line
number stands for every matching line. With --i686, BUILD must be an i686 build, and the mutants are those of lines that
run only on hosts with narrow registers.
"""
import argparse
import concurrent.futures
import contextlib
import glob
import json
import os
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.dont_write_bytecode = True
sys.path.append(os.path.join(ROOT, "tests"))
import exceptions   # noqa: E402, the module in the parent folder
FILES = ["wire.h", "lanes.h", "copy.h", "layout.h", "image.h", "image_forms.h", "decode.h", "decode.cpp", "decode_fast.h",
         "measure.h", "pack.h", "send.h", "send.cpp", "unit.h", "unit.cpp", "registration.cpp", "receive_unit.h", "send_unit.h"]
TESTS = ["codec_test", "services_test", "large_test", "first_use_test", "unwinding_test"]
LAST = ["exhaustive_test", "proof_test"]   # run only if the others noticed nothing

# A wrong constant can make the compiler use all memory, and a crashing test can dump all the memory that it maps. CPU
# seconds do not depend on the load of the machine.
COMPILER_LIMITS = {resource.RLIMIT_AS: 2 << 30}
TEST_LIMITS = {resource.RLIMIT_CORE: 0, resource.RLIMIT_CPU: 60}
MAX_SECONDS = 600   # wall-clock limit of any process, in case it hangs

# Patterns searched in a line without its comment, and their replacements.
CHANGES = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" == ", " != "), (r" != ", " == "), (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " + "), (r" / ", " * "), (r" << ", " >> "), (r" >> ", " << "),
    (r" \+= ", " -= "), (r"\b1\b", "2"), (r"\b0\b", "1"), (r"\b4\b", "3"), (r"\b4\b", "5"), (r"\b2\b", "3"),
    (r"\breturn true;", "return false;"), (r"\breturn false;", "return true;"),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"^(\s+)(?!return|using|const |constexpr|static|if|for|else|case)[a-z_:]+[^=;{}]*\(.*\);$", r"\1;"),
]
# Lines without run-time behaviour.
EXCLUDED = re.compile(r"^\s*(#|//|template|namespace|using|\[\[gnu|enum|struct)|static_assert|__attribute__|\[\[nodiscard")
# Branches and functions that no test runs here: first those for big-endian hosts, and for ARM alone; then those for narrow
# registers.
NOT_HERE = re.compile(r"(\s*if (?:constexpr )?\(!host_has_wire_order|\S.* equal_here\()|"
                      r"\s*if (?:constexpr )?\((?:piece\.bytes >= |N >= detail::long_stretch)|"
                      r"\S.* (?:unpack_flat|pack_owning|pack_flat)\(|(?:\S.* )?send_single_fixed\(")


def runs_here(lines):
    """Yields (number, line, narrow) of all lines except those for big-endian hosts or ARM only, which no test runs here.

    `narrow` is true for lines that run only on hosts with narrow registers.
    """
    choice = other = None   # indentation of the host-dependent branch, and of the side that is not taken here
    narrow = False          # whether that side is for narrow registers
    for number, line in enumerate(lines):
        indent = len(line) - len(line.lstrip())
        if other is not None and line.strip() not in ("", "{") and indent <= other:
            other = None
        if match := NOT_HERE.match(line):
            other, narrow = indent, match[1] is None
            continue
        if match := re.match(r"\s*if constexpr \((host_has_wire_order|detail::move_bytes == 16)", line):
            choice, narrow_choice = indent, match[1].startswith("detail")
        elif choice == indent and re.match(r"\s*(} )?else( {)?$", line):
            other, choice, narrow = indent, None, narrow_choice
        elif other is None or narrow:
            yield number, line, other is not None or "_long(" in line


def mutants_of(path, narrow=False):
    """Returns (line number, old, new) for each mutant of a file: of its narrow lines, or of all others."""
    found = []
    with open(path) as file:
        lines = file.read().split("\n")
    for number, line, is_narrow in runs_here(lines):
        if is_narrow != narrow:
            continue
        code = line.split("//")[0].rstrip()
        if not code or EXCLUDED.search(code):
            continue
        for pattern, replacement in CHANGES:
            for match in re.finditer(pattern, code):
                if '"' in code[:match.start()] or re.search(r"<[a-z_:0-9 ]*$", code[:match.start()]):
                    continue   # in a string, or probably a template argument list
                changed = code[:match.start()] + match.expand(replacement) + code[match.end():]
                found.append((number, code, changed + line[len(code):]))
    return found


def sample(count, only, narrow):
    """Samples each file in proportion to its number of mutants, but takes at least four."""
    by_file = {name: mutants_of(os.path.join(ROOT, "core", name), narrow) for name in FILES if only in (None, name)}
    total = sum(len(mutants) for mutants in by_file.values())
    chosen = []
    for name, mutants in by_file.items():
        number = min(len(mutants), max(4, round(count * len(mutants) / total)))
        chosen += [(name,) + mutant for mutant in random.Random(name).sample(mutants, number)]
    return chosen


def listed(path, narrow):
    """Reads a list made by --list. Returns {(file, line number, old, new): programs that noticed it}."""
    found = {}
    with open(path) as file:
        entries = re.findall(r"^(?!#|survived|equivalent)(.*)\t(\S+?):(\d*):? (.*)  ->  (.*)$", file.read(), re.MULTILINE)
    for programs, name, number, *texts in entries:
        places = [(name,) + mutant for mutant in mutants_of(os.path.join(ROOT, "core", name), narrow)
                  if [mutant[1].strip(), exceptions.bare(mutant[2])] == texts and number in ("", str(mutant[0] + 1))]
        for mutant in places:
            found.setdefault(mutant, set()).update(programs.replace("(time)", "").split(","))
        if not places:
            print("no such mutant of", name + ":", number, *texts)
    return found


def equivalents():
    """Returns (file, line number, new) of the mutants that no test can detect."""
    path = os.path.join(HERE, "equivalent.txt")
    known = set(exceptions.read(path, 1))
    for name, line, new in known:
        if (line, new) not in {(number, exceptions.bare(changed)) for number, _, changed in
                               mutants_of(os.path.join(ROOT, "core", name))}:
            sys.exit("%s: no such mutant of %s:%d: %s" % (path, name, line + 1, new))
    return known


def run(command, limits={}, **kwargs):
    """Returns 'passed', 'failed' or 'time'. A timeout kills the whole process group."""
    def limit():
        for kind, value in limits.items():
            resource.setrlimit(kind, (value, resource.getrlimit(kind)[1]))
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                          preexec_fn=limit, **kwargs) as process:
        with contextlib.suppress(subprocess.TimeoutExpired):
            process.wait(timeout=MAX_SECONDS)
        if process.returncode in (None, -signal.SIGXCPU):
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            return "time"
        return "passed" if process.returncode == 0 else "failed"


def kernel_runs_i686():
    try:
        return subprocess.run(["/usr/i686-linux-gnu/lib/ld-linux.so.2", "--version"], capture_output=True).returncode == 0
    except OSError:
        return False


class Tree:
    """A copy of the sources and a build of its library."""

    def __init__(self, folder, tests, toolchain, emulator, thorough):
        self.emulator = emulator
        self.thorough = thorough   # run every program even if one has noticed the mutant
        self.root = os.path.join(folder, "tree")
        self.build = os.path.join(folder, "build")
        self.tests = tests
        for part in ("core", "messages", "platform", "verify", "model", "include", "cmake", "tests/module"):
            shutil.copytree(os.path.join(ROOT, part), os.path.join(self.root, part))
        shutil.copy(os.path.join(ROOT, "CMakeLists.txt"), self.root)
        with open(os.path.join(tests, "CMakeCache.txt")) as cache:
            modules = re.search(r"^KESTO_MODULES:STRING=(.*)$", cache.read(), re.MULTILINE)[1]
        if run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
                "-DIFIT_CODEC_INSTALL=OFF", "-DCMAKE_CXX_FLAGS=-O0 -w", "-DKESTO_MODULES=" + modules, *toolchain]) != "passed":
            sys.exit("configure failed")

    def run_test(self, test):
        # LD_LIBRARY_PATH takes precedence over the path that the tests were linked with.
        return run([*self.emulator, os.path.join(self.tests, "tests", test), "--gtest_brief=1", "--gtest_fail_fast"], TEST_LIMITS, cwd=self.root,
                   env=dict(os.environ, LD_LIBRARY_PATH=self.build, KESTO_SHARE="1/25"))

    def run_proof(self):
        """Builds the proof with this tree's reader and the flags of the build folder, and runs it."""
        with open(os.path.join(self.tests, "compile_commands.json")) as file:
            commands = [shlex.split(each["command"]) + [each["file"]] for each in json.load(file)
                        if "proof_test.dir" in each["command"]]
        if not commands:   # the proof exists only in native builds
            return "passed"
        objects = []
        for command in commands:
            source = command[-1]
            objects.append(os.path.join(self.build, os.path.basename(source) + ".o"))
            options = [word for word in command if word.startswith(("-D", "-I", "-std"))]
            system = [word for at, word in enumerate(command) if "-isystem" in command[max(at - 1, 0):at + 1]]
            if run(["c++", "-O1", "-w", "-I" + self.root, *options, *system, "-c", source, "-o", objects[-1]]) != "passed":
                return "failed"
        program = os.path.join(self.build, "proof_test")
        if run(["c++", *objects, "-lgtest_main", "-lgtest", "-lz3", "-pthread", "-o", program]) != "passed":
            return "failed"
        return run([program, "--gtest_brief=1", "--gtest_fail_fast"], TEST_LIMITS)

    def verdict(self, name, first=()):
        """Returns 'not built', 'noticed' or 'survived', and the programs that noticed. Runs the programs in `first` first."""
        if run(["ninja", "-j1", "-C", self.build, "ifit_codec"], COMPILER_LIMITS) != "passed":
            return "not built", ["compiler"]
        by = []
        for test in sorted(TESTS + LAST, key=lambda test: test not in first):   # stable: the others keep their order
            if by and (test in LAST or not self.thorough) or test == "proof_test" and name not in ("wire.h", "lanes.h"):
                continue
            result = self.run_proof() if test == "proof_test" else self.run_test(test)
            if result != "passed":
                by.append(test + ("(time)" if result == "time" else ""))
        return "noticed" if by else "survived", by

    def verdict_with(self, mutant, first):
        name, line, _, new = mutant
        path = os.path.join(self.root, "core", name)
        with open(path) as file:
            original = file.read()
        lines = original.split("\n")
        lines[line] = new
        with open(path, "w") as file:
            file.write("\n".join(lines))
        try:
            return self.verdict(name, first)
        finally:
            with open(path, "w") as file:
                file.write(original)


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("--tests", required=True)
    arguments.add_argument("--count", type=int, default=110)
    arguments.add_argument("--share", default="1/1", help="every N-th mutant, starting with the K-th")
    arguments.add_argument("--only", help="limit to one file of core/")
    arguments.add_argument("--i686", action="store_true")
    arguments.add_argument("--mutants", metavar="FILE", help="a list made by --list")
    arguments.add_argument("--list", metavar="FILE")
    options = arguments.parse_args()

    first, step = (int(part) for part in options.share.split("/"))
    before = listed(options.mutants, options.i686) if options.mutants else {}
    chosen = list(before) if options.mutants else sample(options.count, options.only, options.i686)
    chosen = [mutant for mutant in chosen if options.only in (None, mutant[0])][first - 1::step]
    known = equivalents()
    counts = {"not built": 0, "noticed": 0, "equivalent": 0, "survived": 0, "wrongly listed": 0}
    lost, jobs = [], os.cpu_count() or 1
    with tempfile.TemporaryDirectory(prefix="kesto_mutants_") as folder:
        toolchain = ["-DCMAKE_TOOLCHAIN_FILE=" + os.path.join(ROOT, "cmake", "i686.cmake")] if options.i686 else []
        emulator = ["qemu-i386"] if options.i686 and not kernel_runs_i686() else []
        trees = [Tree(os.path.join(folder, str(job)), os.path.abspath(options.tests), toolchain, emulator,
                      options.list and not options.mutants) for job in range(jobs)]
        result, by = trees[0].verdict("wire.h")
        if result != "survived":
            sys.exit("the unchanged sources: %s by %s" % (result, by))

        def judge(mutant):
            tree = trees.pop()   # there is one per job
            try:
                return mutant, tree.verdict_with(mutant, before.get(mutant, ()))
            finally:
                trees.append(tree)

        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            for number, ((name, line, old, new), (result, by)) in enumerate(pool.map(judge, chosen), 1):
                if (name, line, exceptions.bare(new)) in known:
                    result = "equivalent" if result == "survived" else "wrongly listed"
                counts[result] += 1
                text = f"{name}:{line + 1}: {old.strip()}  ->  {exceptions.bare(new)}"
                if options.mutants and not by:
                    lost.append(f"{','.join(sorted(before[name, line, old, new]))}\t{text}")
                print(f"{number}/{len(chosen)} {result:10} {','.join(by)} {text}", flush=True)
                if options.list:
                    with open(options.list, "a") as file:
                        file.write(f"{','.join(by) or result}\t{text}\n")
    if options.mutants:
        print(f"{len(chosen)} mutants of {options.mutants}, {len(lost)} of them no longer noticed", *lost, sep="\n")
        sys.exit(1 if lost else 0)
    judged = counts["noticed"] + counts["not built"] + counts["survived"]
    share = 100 * (judged - counts["survived"]) / judged
    print(f"{sum(counts.values())} mutants: {counts['noticed']} noticed by the tests, {counts['not built']} by the compiler, "
          f"{counts['equivalent']} equivalent, {counts['survived']} survived: {share:.1f} % noticed; "
          f"{counts['wrongly listed']} of those listed as equivalent noticed")
    sys.exit(0 if share >= 95 and counts["wrongly listed"] == 0 else 1)


main()
