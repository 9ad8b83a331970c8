#!/usr/bin/env python3
"""Says for each change of the catalogue since the last release who lives with it, and fails on a breaking change that
abi/breaking.txt does not declare.

  compat.py SOURCE_FOLDER              compare with abi/catalogue.txt
  compat.py SOURCE_FOLDER --release    make the catalogue of today the one of the last release; nothing stays declared

Who lives with a change:
  old readers    programs of the last release that are sent today's byte strings
  new readers    today's programs that are sent byte strings of the last release
  old binaries   programs compiled against the last release's headers that load today's library
"""
import dataclasses
import difflib
import pathlib
import re
import sys

WORDS = {"U8": "u8", "U16": "u16", "U32": "u32", "U64": "u64", "String": "string", "Bytes": "bytes"}
SIZES = {"u8": 1, "u16": 2, "u32": 4, "u64": 8}


@dataclasses.dataclass
class Message:
    name: str
    module: str
    id: str
    slots: list
    fields: list


@dataclasses.dataclass
class Change:
    kind: str
    message: str
    text: str
    old_readers: bool
    new_readers: bool
    old_binaries: bool

    @property
    def breaks(self):
        return not (self.old_readers and self.new_readers and self.old_binaries)


# ---- the catalogue, from messages/<module>/<module>.def and as text ----

def slot_of(word):
    word = word.strip()
    kind, _, argument = word.rstrip(">").partition("<")
    if kind in ("U8Array", "U32Array"):
        return f"{kind[:-5].lower()}[{argument}]"
    return {"Table": "table:", "LenientTable": "table?:", "Vector": "vector:"}[kind] + argument if argument else WORDS[word]


def parse_definitions(module, text):
    text = re.sub(r"//.*", "", text)
    messages = {}
    for macro, arguments in re.findall(r"\b(MESSAGE|NAMED_FIELDS)\(([^()]*)\)", text):
        name, *rest = [each.strip() for each in arguments.split(",")]
        if macro == "MESSAGE":
            slots = [slot_of(each) for each in rest[1:]]
            messages[name] = Message(name, module, rest[0], slots, [f"f{k}" for k in range(len(slots))])
        else:
            messages[name].fields = rest
    return messages


def parse_text(text):
    messages, module = {}, None
    for line in text.splitlines():
        words = line.split()
        if not words or words[0].startswith("#"):
            continue
        if words[0] == "module":
            module = words[1]
            continue
        slots = [re.sub(r"=.*", "", word) for word in words[3:]]
        fields = [word.partition("=")[2] or f"f{k}" for k, word in enumerate(words[3:])]
        messages[words[0]] = Message(words[0], module, words[1], slots, fields)
    return messages


def as_text(messages, version):
    lines, module = [f"# The catalogue of release {version}, printed by `./run compat --release`; do not edit."], None
    for each in messages.values():
        if each.module != module:
            module = each.module
            lines += ["", f"module {module}"]
        slots = [slot if field == f"f{k}" else f"{slot}={field}"
                 for k, (slot, field) in enumerate(zip(each.slots, each.fields))]
        lines.append(" ".join([each.name, each.id, ":", *slots]))
    return "\n".join(lines) + "\n"


# ---- records ----

def record(messages, name, pointer):
    """Size, alignment and offsets, with what stands there: all that a compiled program knows of a record."""
    offsets, at, most = [], 0, 1
    for slot in messages[name].slots:
        inner = slot.partition(":")[2]
        array = re.fullmatch(r"(u\d+)\[(\d+)\]", slot)
        what = slot
        if slot in SIZES:
            size = align = SIZES[slot]
        elif array:
            align, size = SIZES[array[1]], SIZES[array[1]] * int(array[2])
        elif slot == "string":
            size = align = pointer
        elif slot.startswith("table"):
            size, align, what = record(messages, inner, pointer)
        else:
            size, align = 2 * pointer, pointer
            if slot.startswith("vector"):
                what = ("vector", record(messages, inner, pointer))
        at = (at + align - 1) // align * align
        offsets.append((at, what))
        at, most = at + size, max(most, align)
    return (at + most - 1) // most * most, most, tuple(offsets)


# ---- the comparison ----

def slot_changes(old, new):
    """(kind, text, old readers live, new readers live) for each change between two lists of slots."""
    if new.slots[:len(old.slots)] == old.slots:
        for k in range(len(old.slots), len(new.slots)):
            yield "slot-added", f"{new.slots[k]} is slot {k}, the last: old readers skip it, new ones may find it absent", \
                True, True
        return
    if old.slots[:len(new.slots)] == new.slots:
        for k in range(len(new.slots), len(old.slots)):
            yield "last-slot-removed", f"{old.slots[k]} was slot {k}, the last: old readers find it absent", True, True
        return
    for tag, a, b, c, d in difflib.SequenceMatcher(None, old.slots, new.slots, autojunk=False).get_opcodes():
        if tag == "replace":
            for k in range(min(b - a, d - c)):
                yield retyped(a + k, old.slots[a + k], new.slots[c + k])
            a, c = a + min(b - a, d - c), c + min(b - a, d - c)
        if tag != "equal":
            for k in range(a, b):
                yield "slot-removed", f"{old.slots[k]} was slot {k}; later slots move", False, False
            for k in range(c, d):
                yield "slot-inserted", f"{new.slots[k]} is slot {k}; later slots move", False, False


def retyped(k, was, now):
    array = r"(u\d+)\[\d+\]"
    if re.fullmatch(array, was) and re.fullmatch(array, now) and was.split("[")[0] == now.split("[")[0]:
        return "array-length", f"slot {k} was {was}, is {now}: readers refuse an array of another length", False, False
    if was.replace("?", "") == now.replace("?", ""):
        return "leniency", f"slot {k} was {was}, is {now}: readers disagree on a message whose table is refused", True, True
    return "slot-retyped", f"slot {k} was {was}, is {now}", False, False


def compare(old, new):
    changes = []
    by_id = {each.id: each.name for each in new.values()}
    renamed = {name: by_id[each.id] for name, each in old.items()
               if name not in new and each.id in by_id and by_id[each.id] not in old}
    for name, was in old.items():
        now = new.get(name)
        if now is None:
            to = renamed.get(name)
            changes.append(Change("message-renamed", name, f"is {to} now, with its id: the bytes stay", True, True, False)
                           if to else Change("message-removed", name, f"{was.id} is unknown now", False, False, False))
            continue
        same_id = was.id == now.id
        if not same_id:
            changes.append(Change("id", name, f"was {was.id}, is {now.id}: neither side knows the other's", False, False,
                                  False))
        if was.module != now.module:
            changes.append(Change("module", name, f"moved from {was.module} to {now.module}: a program that registers "
                                  f"only {was.module} no longer receives it", True, True, False))
        records = [(record(old, name, pointer), record(new, name, pointer)) for pointer in (4, 8)]
        same_record = all(a == b for a, b in records)
        for kind, text, old_live, new_live in slot_changes(was, now):
            changes.append(Change(kind, name, text, old_live, new_live, same_record))
        if not same_record:
            (a4, b4), (a8, b8) = records
            sizes = (f"from {a4[0]} and {a8[0]} bytes (32 and 64 bits) to {b4[0]} and {b8[0]}"
                     if (a4[0], a8[0]) != (b4[0], b8[0]) else "at equal size")
            inside = "" if was.slots != now.slots else ", through a message inside it"
            changes.append(Change("record", name, f"another record, {sizes}{inside}", True, True, False))
        if was.fields != now.fields and was.slots == now.slots:
            changes.append(Change("field-name", name, "fields have other names: sources have to be edited", True, True,
                                  True))
    changes += [Change("message-added", name, f"{each.id} is new", True, True, True)
                for name, each in new.items() if name not in old and name not in renamed.values()]
    for module in dict.fromkeys(each.module for each in old.values()):
        before, after = ([name for name, each in side.items() if each.module == module and name in other]
                         for side, other in ((old, new), (new, old)))
        if before != after:
            changes.append(Change("registration-order", module, "messages are registered in another order", True, True,
                                  True))
    return changes


# ---- the command ----

def declared(text):
    """Lines `MESSAGE KIND reason`; a reason is needed."""
    entries = {}
    for line in text.splitlines():
        if line.strip() and not line.startswith("#"):
            name, kind, reason = line.split(maxsplit=2)
            entries[name, kind] = reason
    return entries


def judge(changes, declarations, released, version):
    """The lines to print, and whether all is well."""
    lines, well = [], True
    for each in changes:
        lives = ", ".join(f"{who} {'live' if lives else 'BREAK'}" for who, lives in (
            ("old readers", each.old_readers), ("new readers", each.new_readers), ("old binaries", each.old_binaries)))
        lines.append(f"{each.kind:18} {each.message}: {each.text}\n{'':18} {lives}")
        if each.breaks and (each.message, each.kind) not in declarations:
            well = False
            lines.append(f"{'':18} NOT DECLARED: `{each.message} {each.kind} REASON` in abi/breaking.txt")
    found = {(each.message, each.kind) for each in changes if each.breaks}
    for name, kind in declarations:
        if (name, kind) not in found:
            well = False
            lines.append(f"abi/breaking.txt declares `{name} {kind}`, and there is no such change")
    if any(not each.old_binaries for each in changes) and version.split(".")[0] == released.split(".")[0]:
        well = False
        lines.append(f"old binaries break, so MAJOR has to change: released {released}, now {version}")
    return lines, well


def main():
    folder = pathlib.Path(sys.argv[1])
    catalogue, breaking = folder / "abi/catalogue.txt", folder / "abi/breaking.txt"
    build = (folder / "CMakeLists.txt").read_text()
    version = re.search(r"project\(IfitCodec VERSION ([\d.]+)", build)[1]
    new = {}
    for module in re.search(r"set\(KESTO_MODULES ([\w ]+) CACHE", build)[1].split():
        new |= parse_definitions(module, (folder / f"messages/{module}/{module}.def").read_text())
    if sys.argv[2:] == ["--release"]:
        catalogue.write_text(as_text(new, version))
        head = [line for line in breaking.read_text().splitlines() if line.startswith("#")]
        breaking.write_text("\n".join(head) + "\n")
        print(f"abi/catalogue.txt: {len(new)} messages of {version}")
        return 0
    text = catalogue.read_text()
    changes = compare(parse_text(text), new)
    lines, well = judge(changes, declared(breaking.read_text()), re.search(r"release ([\d.]+)", text)[1], version)
    plural = "" if len(changes) == 1 else "s"
    print("\n".join(lines + [f"{len(new)} messages: {len(changes)} change{plural} since the last release, "
                             f"{sum(each.breaks for each in changes)} of them breaking" +
                             ("" if well else "; FAILED")]))
    return 0 if well else 1


if __name__ == "__main__":
    sys.exit(main())
