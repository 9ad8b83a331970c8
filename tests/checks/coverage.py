#!/usr/bin/env python3
"""Reports line and branch coverage of core/.

    coverage.py BUILD    a build of preset `coverage` whose library the tests have used

Headers are compiled for many layouts. Their code counts as covered if it ran for one of them, and of its branches only
the two directions are distinguished. Gaps must be listed in coverage_gaps.txt in this folder, each with the reason why
no test can reach it. The exit status is 1 if a gap is not listed, or if a listed one is covered.
"""
import collections
import glob
import json
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.dont_write_bytecode = True
sys.path.append(os.path.join(ROOT, "tests"))
import exceptions   # noqa: E402, the module in the parent folder

build = os.path.abspath(sys.argv[1])
lines = collections.defaultdict(int)              # (file, line) -> executions
branches = collections.defaultdict(dict)          # (file, line) -> {(number of branches, index): executions}
for data in sorted(glob.glob(build + "/CMakeFiles/ifit_codec.dir/**/*.gcda", recursive=True)):
    report = subprocess.run(["gcov", "--branch-probabilities", "--json-format", "--stdout", data], cwd=build,
                            capture_output=True, check=True).stdout
    for part in report.decode().splitlines():
        for file in json.loads(part)["files"]:
            name = os.path.relpath(os.path.join(build, file["file"]), ROOT)
            if not name.startswith("core/"):
                continue
            for line in file["lines"]:
                at = (name, line["line_number"])
                lines[at] += line["count"]
                taken = [branch for branch in line["branches"] if not branch["throw"]]
                for index, branch in enumerate(taken):
                    key = index % 2 if name.endswith(".h") else (len(taken), index)
                    branches[at][key] = branches[at].get(key, 0) + branch["count"]

listed = {("core/" + name, line + 1) for name, line in exceptions.read(os.path.join(HERE, "coverage_gaps.txt"), 0)}

unexplained = 0
gaps = set()
branching = fully = 0
for at in sorted(lines):
    source = open(os.path.join(ROOT, at[0])).read().split("\n")[at[1] - 1].strip()
    never = [key for key, count in branches[at].items() if count == 0]
    branching += bool(branches[at])
    fully += bool(branches[at]) and not never
    if lines[at] == 0 or never:
        gaps.add(at)
        if at not in listed:
            unexplained += 1
            what = "line" if lines[at] == 0 else "%d of %d branches" % (len(never), len(branches[at]))
            print("%s:%d: %s not covered: %s" % (at[0], at[1], what, source))
for name, line in sorted(listed - gaps):
    unexplained += 1
    print("%s:%d is listed as a gap but covered" % (name, line))
executed = sum(1 for count in lines.values() if count)
print("core/: %d of %d lines run, %d of the %d with branches taken in every direction; %d gaps listed, %d not"
      % (executed, len(lines), fully, branching, len(gaps & listed), unexplained))
sys.exit(1 if unexplained else 0)
