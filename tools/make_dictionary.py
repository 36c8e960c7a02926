#!/usr/bin/env python3
"""Turns resources/dicom_dictionary.tsv into the tables that QvxDictionary.cpp includes.

    make_dictionary.py dicom_dictionary.tsv QvxDictionaryRows.inc

Refuses, with the line's number: rows out of order or twice, private or command groups, a VR or VM
that has no code, a name that is empty or not plain ASCII.
"""
import re
import sys

# The standard's VR column, by the code that the reader has for it.
PLAIN_VRS = (
    "AE AS AT CS DA DS DT FL FD IS LO LT OB OF OW PN SH SL SQ SS ST TM UI UL UN US UT".split())
VR_CODES = {vr: vr for vr in PLAIN_VRS} | {
    "-": "  ",
    "UC": "UT", "UR": "UT",
    "OD": "UN", "OL": "UN", "OV": "UN", "SV": "UN", "UV": "UN",
    "US or SS": "U2", "US or SS or OW": "U2",
    "US or OW": "U3",
    "OB or OW": "O2",
}
OPEN_MAXIMA = {"n": -4, "2n": -3, "3n": -2, "4n": -4}
NONE_STATED = (-1, -1)
STATUS_CODES = {"": 1, "RET": 0}
WORD = 0xFFFFFFFF
BUCKET_BITS = 11


class TableError(Exception):
    pass


def multiplicity(text):
    """(minimum, maximum) of a VM column; "1-n or 1" counts as 1-n."""
    if text == "-":
        return NONE_STATED
    match = re.fullmatch(r"(\d{1,2})(?:-(\d{1,2}|[234]?n))?(?: or 1)?", text)
    if not match or match[1] == "0":
        raise TableError(f"bad VM {text!r}")
    low, high = int(match[1]), match[2] or match[1]
    high = OPEN_MAXIMA[high] if high in OPEN_MAXIMA else int(high)
    if 0 <= high < low:
        raise TableError(f"bad VM {text!r}")
    return low, high


def parse_row(line):
    fields = line.split("\t")
    if len(fields) != 6:
        raise TableError(f"{len(fields)} columns, not 6")
    group, element, vr, vm, status, name = fields
    if not all(re.fullmatch("[0-9A-F]{4}", part) for part in (group, element)):
        raise TableError(f"bad tag {group},{element}")
    if int(group, 16) % 2 or group == "0000":
        raise TableError(f"group {group} has no place here")
    if vr not in VR_CODES:
        raise TableError(f"bad VR {vr!r}")
    if status not in STATUS_CODES:
        raise TableError(f"bad status {status!r}")
    if not re.fullmatch(r"[!-~]([ -~]{0,253}[!-~])?", name) or '"' in name or "\\" in name:
        raise TableError(f"bad name {name!r}")
    key = int(group + element, 16)
    return key, VR_CODES[vr], *multiplicity(vm), STATUS_CODES[status], name


def read_rows(path):
    rows = []
    with open(path, encoding="ascii") as table:
        for number, line in enumerate(table, 1):
            if line.startswith("#"):
                continue
            try:
                row = parse_row(line.rstrip("\n"))
                if rows and row[0] <= rows[-1][0]:
                    raise TableError(f"tag {row[0]:08X} out of order or twice")
            except TableError as error:
                raise TableError(f"{path}:{number}: {error}") from None
            rows.append(row)
    if not rows:
        raise TableError(f"{path}: no rows")
    return rows


def place(keys, multipliers, slot_bits):
    """Displacements and slots of a hash without collisions; None if these multipliers have none."""
    slot_count = 1 << slot_bits
    buckets = [[] for _ in range(1 << BUCKET_BITS)]
    for row, key in enumerate(keys):
        bucket = (key * multipliers[0] & WORD) >> (32 - BUCKET_BITS)
        home = (key * multipliers[1] & WORD) >> (32 - slot_bits)
        buckets[bucket].append((home, row))
    slots, displacements = [None] * slot_count, [0] * len(buckets)
    for bucket in sorted(range(len(buckets)), key=lambda b: -len(buckets[b])):
        homes = [home for home, _ in buckets[bucket]]
        if len(set(homes)) != len(homes):
            return None
        for shift in range(slot_count):
            if all(slots[(home + shift) % slot_count] is None for home in homes):
                break
        else:
            return None
        displacements[bucket] = shift
        for home, row in buckets[bucket]:
            slots[(home + shift) % slot_count] = row
    # A free slot leads to row 0, whose key can't be the one sought: that has its own slot.
    return displacements, [row or 0 for row in slots]


def perfect_hash(keys):
    slot_bits = (len(keys) * 5 // 4 - 1).bit_length()
    first, second = 0x9E3779B1, 0x85EBCA77
    for _ in range(1000):
        placed = place(keys, (first, second), slot_bits)
        if placed:
            return (first, second), slot_bits, *placed
        first, second = (first * 0x2C1B3C6D + 2) & WORD, (second * 0x297A2D39 + 2) & WORD
    raise TableError("no hash without collisions found")


def numbers(values):
    lines = (values[i:i + 16] for i in range(0, len(values), 16))
    return "\n".join("    " + ", ".join(str(value) for value in line) + "," for line in lines)


def generated_text(rows):
    offsets, blob_size = {}, 0
    for row in rows:
        if row[5] not in offsets:
            offsets[row[5]] = blob_size
            blob_size += len(row[5])
    multipliers, slot_bits, displacements, slots = perfect_hash([row[0] for row in rows])
    lines = ["// Made by tools/make_dictionary.py from resources/dicom_dictionary.tsv.",
             "constexpr char kNames[] ="]
    lines += [f'    "{name}"' for name in offsets]
    lines += ["    ;", "constexpr PackedRow DICOM_Dictionary[] = {"]
    lines += [f'    {{0x{key:08X}u, {offsets[name]}u << 8 | {len(name)}u, Index("{vr}"), '
              f"{low}, {high}, {status}}}," for key, vr, low, high, status, name in rows]
    lines += ["};",
              f"constexpr std::uint32_t kBucketMultiplier = 0x{multipliers[0]:08X}u;",
              f"constexpr std::uint32_t kSlotMultiplier = 0x{multipliers[1]:08X}u;",
              f"constexpr int kBucketShift = {32 - BUCKET_BITS};",
              f"constexpr int kSlotShift = {32 - slot_bits};",
              "constexpr std::uint16_t kDisplacements[] = {", numbers(displacements), "};",
              "constexpr std::uint16_t kSlots[] = {", numbers(slots), "};", ""]
    return "\n".join(lines)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    try:
        text = generated_text(read_rows(sys.argv[1]))
        with open(sys.argv[2], "w", encoding="ascii") as output:
            output.write(text)
    except (TableError, OSError, UnicodeError) as error:
        sys.exit(f"make_dictionary.py: {error}")


if __name__ == "__main__":
    main()
