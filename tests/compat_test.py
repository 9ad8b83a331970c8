"""Each kind of change once, with who lives with it: old readers, new readers, old binaries."""
import pathlib
import re
import sys
import unittest

sys.dont_write_bytecode = True
SOURCES = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(SOURCES / "tools"))
import compat   # noqa: E402

OLD = """
MESSAGE(point, 0x1, U32, U8, U8Array<4>)
MESSAGE(line, 0x2, Table<point>, U16)   // a comment
MESSAGE(path, 0x3, Vector<point>, String)
NAMED_FIELDS(path, points, title)
"""
POINT, LINE, PATH, NAMES = OLD.strip().splitlines()

# The edit, the message and kind that are reported for it, and who lives.
CASES = [
    ("slot added at the end", ("U8Array<4>)", "U8Array<4>, U64)"), "point slot-added", "readers both"),
    ("and what holds the record", ("U8Array<4>)", "U8Array<4>, U64)"), "path record", "readers both"),
    ("last slot removed", (", U16)", ")"), "line last-slot-removed", "readers both"),
    ("slot inserted", ("U32, U8,", "U32, U16, U8,"), "point slot-inserted", ""),
    ("slot removed", ("U32, U8,", "U32,"), "point slot-removed", ""),
    ("slot retyped", ("U32, U8,", "U64, U8,"), "point slot-retyped", ""),
    ("table becomes lenient", ("Table<point>", "LenientTable<point>"), "line leniency", "all"),
    ("array length", ("U8Array<4>", "U8Array<5>"), "point array-length", ""),
    ("id", ("0x2", "0x9"), "line id", ""),
    ("order of registration", (f"{LINE}\n{PATH}\n{NAMES}", f"{PATH}\n{NAMES}\n{LINE}"), "m registration-order", "all"),
    ("record size through padding", ("U32, U8,", "U32, U32,"), "line record", "readers both"),
    ("message added", (NAMES, NAMES + "\nMESSAGE(area, 0x4, U8)"), "area message-added", "all"),
    ("message removed", (LINE, ""), "line message-removed", ""),
    ("message renamed", ("MESSAGE(line,", "MESSAGE(stroke,"), "line message-renamed", "readers both"),
    ("field renamed", ("points, title", "points, name"), "path field-name", "all"),
]
LIVES = {"": (False, False, False), "readers both": (True, True, False), "all": (True, True, True)}


class Compat(unittest.TestCase):
    def test_every_kind_of_change_is_found_and_judged(self):
        old = compat.parse_definitions("m", OLD)
        self.assertEqual(compat.compare(old, compat.parse_text(compat.as_text(old, "1.0.0"))), [])
        for name, (was, now), expected, lives in CASES:
            with self.subTest(name):
                self.assertIn(was, OLD)
                changes = compat.compare(old, compat.parse_definitions("m", OLD.replace(was, now, 1)))
                found = {f"{each.message} {each.kind}": (each.old_readers, each.new_readers, each.old_binaries)
                         for each in changes}
                self.assertEqual(found.get(expected), LIVES[lives], found)

    def test_a_breaking_change_fails_unless_it_is_declared_and_major_is_raised(self):
        old = compat.parse_definitions("m", OLD)
        changes = compat.compare(old, compat.parse_definitions("m", OLD.replace(", U16)", ", U16, U32)")))
        kinds = {(each.message, each.kind): "meant" for each in changes}
        self.assertEqual(set(kinds), {("line", "slot-added"), ("line", "record")})
        for declarations, version, well in (({}, "2.0.0", False), (kinds, "2.0.0", True), (kinds, "1.1.0", False),
                                            ({**kinds, ("path", "id"): "old"}, "2.0.0", False)):
            self.assertEqual(compat.judge(changes, declarations, "1.0.0", version)[1], well, (declarations, version))

    def test_sizes_are_those_of_the_printed_pages(self):
        for path in sorted((SOURCES / "docs/messages").glob("*ifit*.md")):
            messages = compat.parse_definitions(
                path.stem, (SOURCES / f"messages/{path.stem}/{path.stem}.def").read_text())
            rows = [line.split("|")[1:-1] for line in path.read_text().splitlines() if re.match(r"\| \[\w+\] *\| 0x", line)]
            self.assertEqual(len(rows), len(messages))
            for row in rows:
                name = row[0].strip(" []")
                self.assertEqual((compat.record(messages, name, 4)[0], compat.record(messages, name, 8)[0]),
                                 (int(row[5]), int(row[6])), name)


unittest.main()
