"""Reports the benchmark's JSON files as tables and goals, and writes the measured part of docs/performance.md.

  report.py FILE...           prints the tables and the goals
  report.py --docs FILE...    also writes the summary and the measured part of docs/performance.md, with the
                              allocations.txt in the folder of the first file

A case's time is the median CPU time over all repetitions in all files. The limit is the faster of the two copies. On an
idle machine medians differ by a few percent between runs, single repetitions by more. On a busy machine the minimum is
more reliable, so the goals are also judged by it.
"""

import argparse
import json
import pathlib
import re
import statistics
import subprocess
import sys

import sizes
from goals import COLOUR, EVEN, FLOW, HASH, INSTRUCTIONS, LIST, ROOM, SESSION, SINGLE, STATISTICS, TIMES, UPDATE

ROOT = pathlib.Path(__file__).resolve().parent.parent

OPERATIONS = ["send", "pack", "unpack", "unpack_sent"]
COUNTERPART = {"send": "pack", "unpack_sent": "unpack"}   # the matching operation of the peers and the limit
CONTENDERS = ["ours", "limit", "protobuf", "capnp", "nanopb"]
PEERS = ["protobuf", "capnp"]   # `best` is the faster one
FILLS = ["full", "sparse", "varied", "uniform"]
ROWS = [1, 4, 16, 64, 256, 1024, 4096]
SUMMARY = [*SINGLE, f"{UPDATE}:1", f"{UPDATE}:256", HASH, LIST]
SHOWN = [*SINGLE, *(f"{UPDATE}:{rows}" for rows in ROWS), HASH, LIST]


class Results:
    """Times in nanoseconds by (operation, set, contender), reduced over all repetitions by `pick`, and mean lengths."""

    def __init__(self, paths, pick=statistics.median):
        times, lengths, rates = {}, {}, {}
        for path in paths:
            with open(path, encoding="utf-8") as file:
                content = json.load(file)
            self.context = content["context"]
            for run in content["benchmarks"]:
                if run.get("run_type") != "iteration":
                    continue
                if run["name"].startswith("threads_"):
                    rates.setdefault((run["name"].split("/")[0], run["threads"]), []).append(run["items_per_second"])
                    continue
                operation, message, fill, contender = run["name"].split("/")[:4]
                key = operation, f"{message}/{fill}", contender
                times.setdefault(key, []).append(run["cpu_time"])
                lengths[key] = run["bytes"]
        self.processes = len(paths)
        self.repetitions = max(map(len, times.values()), default=0) // len(paths)
        self.times = {key: pick(values) for key, values in times.items()}
        self.rates = {key: statistics.median(values) for key, values in rates.items()}
        self.lengths = lengths
        for operation, records, contender in list(self.times):
            if contender.startswith("limit_"):
                key = operation, records, "limit"
                time = self.times[operation, records, contender]
                self.times[key] = min(time, self.times.get(key, time))

    def time(self, operation, records, contender):
        """None if it was not measured."""
        if contender != "ours":
            operation = COUNTERPART.get(operation, operation)
        return self.times.get((operation, records, contender))

    def ratio(self, operation, records, contenders):
        ours = self.time(operation, records, "ours")
        others = [self.time(operation, records, each) for each in contenders]
        others = [each for each in others if each]
        return ours / min(others) if ours and others else None

    def sets(self, operation):
        sets = [f"{message}/{fill}" for message in SHOWN for fill in FILLS]
        return [records for records in sets if (operation, records, "ours") in self.times]


def number(value):
    """Rounds to about three digits."""
    if value is None:
        return "-"
    return f"{value:.0f}" if value >= 100 else f"{value:.1f}" if value >= 10 else f"{value:.2f}"


def table(results, operation):
    head = ["case", *CONTENDERS, "/ limit", "/ best", "/ protobuf", "bytes"]
    rows = []
    for records in results.sets(operation):
        row = [records]
        row += [number(results.time(operation, records, contender)) for contender in CONTENDERS]
        row += [number(results.ratio(operation, records, others))
                for others in (["limit"], PEERS, ["protobuf"])]
        row.append(f"{results.lengths[operation, records, 'ours']:.0f}")
        rows.append(row)
    return head, rows


def goals_of_times(results):
    head = ["time", "/ limit", "at most", "/ best", "at most", "/ protobuf", "at most", ""]
    rows = []
    for operation, records, *bounds in TIMES:
        row, held = [f"{operation}/{records}"], []
        for bound, others in zip(bounds, (["limit"], PEERS, ["protobuf"])):
            ratio = results.ratio(operation, records, others) if bound else None
            row += [number(ratio), f"{bound:g}"] if ratio else ["", ""]
            if bound:
                held.append(ratio and ratio <= bound)
        known = None not in held
        rows.append([*row, "not measured" if not known else "met" if all(held) else "NOT MET"])
    for message in SINGLE:
        full, sparse = (results.time("send", f"{message}/{fill}", "ours") for fill in ("full", "sparse"))
        if full and sparse:
            ratio = sparse / full
            met = 1 / EVEN <= ratio <= EVEN
            rows.append([f"send/{message}, sparse / full: {ratio:.3f}", *[""] * 6, "met" if met else "NOT MET"])
    for records in results.sets("verify"):   # libkesto_verify.so beside the decoder
        flat = results.time("unpack_general", records, "ours")
        decoder, beside, most = (flat, "unpack_general", 1) if flat else (
            results.time("unpack", records, "ours"), "unpack", 3)
        if decoder:
            ratio = results.time("verify", records, "ours") / decoder
            rows.append([f"verify/{records} / {beside}: {ratio:.2f}, at most {most}", *[""] * 6,
                         "met" if ratio <= most else "NOT MET"])
    return head, [row for row in rows if any(row[1:-1]) or ", at most" in row[0] or "/ full" in row[0]]   # without cases that were not measured


def rows_in(records):
    rows = re.search(r":(\d+)/", records)
    return int(rows[1]) if rows else 1


class Counts:
    """The instructions per operation on a target, from bench/instructions-TARGET.txt."""

    def __init__(self, target):
        lines = (ROOT / f"bench/instructions-{target}.txt").read_text(encoding="utf-8").splitlines()
        self.counts = {line.split()[0]: float(line.split()[1]) for line in lines if line and line[0] != "#"}

    def of(self, operation, records, contender="ours"):
        """Per row of rows or per element of a list."""
        if contender != "ours":
            operation, records = COUNTERPART.get(operation, operation), f"{records}/{contender}"
        return self.counts[f"{operation}/{records}"] / rows_in(records)


TARGETS = [("x86-64", "x86_64", None), ("i686", "i686", "SSE2"), ("ARM", "arm", "NEON")]


def goals_of_instructions():
    head = ["instructions", "i686", "at most", "ARM", "at most", ""]
    targets = Counts("i686"), Counts("arm")
    rows = []
    for case, *bounds in INSTRUCTIONS:
        counts = [target.of(*case.split("/", 1)) for target in targets]
        met = [count <= bound * ROOM for count, bound in zip(counts, bounds)]
        missed = " and ".join(name for name, good in zip(("i686", "ARM"), met) if not good)
        row = [cell for count, bound in zip(counts, bounds) for cell in (number(count), str(bound))]
        rows.append([case, *row, f"NOT MET on {missed}" if missed else "met"])
    return head, rows


def summary_of_times(results):
    head = ["x86-64, nanoseconds", "copy", "pack", "/ copy", "best peer", "send", "/ copy", "copy back", "unpack",
            "/ copy", "best peer"]
    rows = []
    for message in SUMMARY:
        records = f"{message}/full"
        row = [message]
        for operation in ("pack", "send", "unpack"):
            copy, ours, *peers = (results.time(operation, records, each) for each in ("limit", "ours", *PEERS))
            best = min((peer for peer in peers if peer), default=None)
            copy, ours, best = (time and time / rows_in(records) for time in (copy, ours, best))
            beside = operation != "send"
            row += [number(copy)] * beside + [number(ours), number(ours / copy)] + [number(best)] * beside
        rows.append(row)
    return head, rows


def summary_of_instructions(name, target, variant):
    head = [f"{name}, instructions", "copy", "pack", "/ copy", "send", "/ copy", "copy back", "unpack", "/ copy"]
    counts = Counts(target)
    other = Counts(f"{target}-{variant.lower()}") if variant else None
    if other:
        head += [f"with {variant}: pack", "send", "unpack"]
    rows = []
    for message in SUMMARY:
        records = f"{message}/full"
        row = [message]
        for operation in ("pack", "send", "unpack"):
            ours, copy = counts.of(operation, records), counts.of(operation, records, "limit")
            row += [number(copy)] * (operation != "send") + [number(ours), number(ours / copy)]
        if other:
            row += [number(other.of(operation, records)) for operation in ("pack", "send", "unpack")]
        rows.append(row)
    return head, rows


def as_text(head, rows):
    widths = [max(len(row[column]) for row in [head, *rows]) for column in range(len(head))]
    lines = []
    for row in [head, *rows]:
        cells = [row[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
        lines.append("  ".join(cells).rstrip())
    return "\n".join(lines)


def threads(results):
    head = ["million per second", "1 thread", "2 threads", "times"]
    rows = []
    for operation in ("pack", "unpack"):
        one, two = (results.rates.get((f"threads_{operation}", count)) for count in (1, 2))
        if one and two:
            rows.append([f"{operation}/{FLOW}/full", number(one / 1e6), number(two / 1e6), number(two / one)])
    return head, rows


def parts(results, minima):
    """The parts of the report, each a title and a table."""
    for operation in OPERATIONS:
        if results.sets(operation):
            yield f"{operation}: nanoseconds, and the ratio of ours to the others", table(results, operation)
    head, rows = goals_of_times(results)
    met, missed = (sum(row[-1] == word for row in rows) for word in ("met", "NOT MET"))
    by_minimum = goals_of_times(minima)[1]
    met_by_minimum = sum(row[-1] == "met" for row in by_minimum)
    for row, other in zip(rows, by_minimum):
        if row[-1] != other[-1]:
            row[-1] += f" ({other[-1]} by the minima)"
    yield (f"Goals of time: {met} of {met + missed} met; {met_by_minimum} by the minima instead of the medians",
           (head, rows))
    head, rows = goals_of_instructions()
    met = sum(row[-1] == "met" for row in rows)
    yield f"Goals of instructions, with {ROOM - 1:.0%} of room: {met} of {len(rows)} met on both targets", (head, rows)
    lines, within = sizes.rows()
    yield f"Size in bytes: {'within' if within else 'NOT within'} the goals", (sizes.HEAD, lines)
    if results.rates:
        yield "Threads", threads(results)


# ---- docs/performance.md ----

def output_of(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


def machine():
    info = pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8")

    def first(key):
        found = re.search(rf"^{key}\s*: (.*)", info, re.MULTILINE)
        return found[1] if found else "unknown"

    # The processor name reported by a virtual machine does not identify the model.
    return (f"{first('model name')}, family {first('cpu family')}, model {first('model')}, {first('cpu MHz')} MHz, "
            f"{len(re.findall('^processor', info, re.MULTILINE))} processors")


def versions():
    packages = output_of("dpkg-query", "-W", "-f", "${Package} ${Version}\n", "libprotobuf-dev", "libcapnp-dev",
                         "libnanopb-dev", "libbenchmark-dev")
    return ", ".join([output_of("c++", "--version").split("\n")[0], *packages.strip().split("\n")])


def as_markdown(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|---|" + "---:|" * (len(head) - 1)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows])


def replace(part, text):
    """Writes a part of docs/performance.md, between two comments."""
    path = ROOT / "docs/performance.md"
    before, rest = path.read_text(encoding="utf-8").split(f"<!-- {part} -->\n")
    after = rest.split(f"<!-- end of {part} -->\n")[1]
    path.write_text(f"{before}<!-- {part} -->\n{text}\n<!-- end of {part} -->\n{after}", encoding="utf-8")


def write_document(results, tables, allocations):
    text = [
        f"- machine: {machine()}",
        f"- with: {versions()}",
        f"- date: {results.context['date'][:10]}; load at the start: {results.context['load_avg'][0]:.1f}",
        f"- command: `./run bench`; {results.processes} processes, {results.repetitions} repetitions in each",
    ]
    for title, content in tables:
        text += ["", f"### {title}", "", as_markdown(*content)]
    text += ["", "### Allocations in one operation", "", "```", allocations.strip(), "```"]
    replace("measured", "\n".join(text))
    replace("summary", "\n\n".join(as_markdown(*table) for table in (
        summary_of_times(results), *(summary_of_instructions(*target) for target in TARGETS))))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--docs", action="store_true")
    parser.add_argument("files", nargs="+")
    options = parser.parse_args()
    results = Results(options.files)
    tables = list(parts(results, Results(options.files, min)))
    for title, content in tables:
        print(f"\n{title}\n\n{as_text(*content)}")
    if options.docs:
        allocations = pathlib.Path(options.files[0]).parent / "allocations.txt"
        write_document(results, tables, allocations.read_text(encoding="utf-8"))
    return 0


if __name__ == "__main__":
    sys.exit(main())
