#!/usr/bin/python3
"""Writes the seed records of the ORBA fuzz targets, assembled field by field from the widths of
include/zrk/orba_fields.def: python3 fuzz/corpus/make_orba_seeds.py (from the source root)."""
import os
import re
import struct

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
WIDTH = {}
for line in open(os.path.join(ROOT, "include", "zrk", "orba_fields.def")):
    m = re.match(r"ORBA_FIELD(?:_V[23])?\((\d+), (\w+), (\d+),", line)
    if m:
        WIDTH[int(m.group(1))] = int(m.group(3))
assert len(WIDTH) == 255 and sum(WIDTH.values()) == 734


def value(no):
    return bytes((no * 37 + i * 11 + 1) & 0xFF for i in range(WIDTH[no]))


def current(version_byte, fields, values=None, cut=0):
    mask = bytearray(32)
    body = b""
    for no in sorted(fields):
        mask[(no - 1) // 8] |= 0x80 >> ((no - 1) % 8)
        body += (values or {}).get(no, value(no))
    if cut:
        body = body[:-cut]
    return bytes([0xB0, version_byte]) + bytes(mask) + body


def extended(dynamic):
    visible = struct.pack("<IHIBIiiifHf", 12, 1, 1700000000, 3, 1699999990, 33456789, -22200001, -15, 12.5, 270, 1.5)
    hidden = struct.pack("<BBIII", 0x99, 0x81, 100000, 7, 3600)
    after = bytes([1, len(visible)]) + visible + bytes([2, len(hidden)]) + hidden + dynamic
    return bytes([0xB1]) + struct.pack("<H", len(after)) + after


def fixed_packet(length=128):
    p = bytearray((i * 3 + 1) & 0xFF for i in range(128))
    p[0] = 0x08
    return bytes(p[:length])


DEFAULT = [p + 1 for p in list(range(15)) + [18, 19, 28, 30, 36, 70, 122, 123, 124, 138, 199, 205]]
DYNAMIC = bytes([1, 8]) + struct.pack("<Q", 42) + bytes([2, 16]) + b"LOG".ljust(16, b"\0") + bytes([7, 5, 3, 8]) + struct.pack("<Q", 9)
LATITUDE = {10: struct.pack("<i", 33456789)}

SEEDS = {
    "fuzz_orba3": {
        "all_fields": current(30, range(1, 256)),
        "default_set": current(30, DEFAULT),
        "latitude_only": current(30, [10], LATITUDE),
        "short_body": current(30, range(1, 256), cut=400),
        "extended": extended(DYNAMIC),
        "extended_lying_size": extended(DYNAMIC)[:3] + bytes([0, 200]) + extended(DYNAMIC)[5:],
    },
    "fuzz_orba2": {
        "all_fields_v2": current(20, range(1, 123)),
        "bits_above_122": current(20, range(100, 256)),
        "extended": extended(DYNAMIC),
    },
    "fuzz_orba1": {
        "fixed_packet": fixed_packet(),
        "fixed_packet_short": fixed_packet(60),
        "all_fields_v1": current(10, range(1, 70)),
        "bit_70": current(10, [1, 10, 69, 70], LATITUDE),
    },
    "fuzz_orba_dispatch": {
        "v1": current(10, [1, 10], LATITUDE),
        "v2": current(20, [1, 10, 73], LATITUDE),
        "v3": current(30, DEFAULT),
        "extended": extended(DYNAMIC),
        "unknown_version": current(40, [1]),
        "fixed_packet": fixed_packet(),
    },
}

for target, seeds in SEEDS.items():
    folder = os.path.join(ROOT, "fuzz", "corpus", target)
    os.makedirs(folder, exist_ok=True)
    for name, data in seeds.items():
        with open(os.path.join(folder, name + ".bin"), "wb") as f:
            f.write(data)
