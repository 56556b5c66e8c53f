#!/usr/bin/python3
"""Writes the seed scripts of fuzz_hostile_host (from the source root: python3 fuzz/corpus/make_host_seeds.py):
sessions a well-behaved host would play (connect, telemetry records, a configuration read and
written, the geo files written to the card), which the fuzzer then bends. The byte layout is the one
fuzz/fuzz_hostile_host.cpp reads; run it with ZRK_FUZZ_TRACE=1 to see what a seed does."""
import os
import struct

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
OUT = os.path.join(ROOT, "fuzz", "corpus", "fuzz_hostile_host")

PRESS, MSG, LATER, CONNECT, DISCONNECT, OPEN_CONFIG, VIEW, TAB, FILE, TYPE, SPIN, SETTLE, NAMED, GEO, CELL = range(15)
NAMED_BUTTONS = ["pushButton_New", "pushButton_Open", "pushButton_Save", "pushButton_SaveAs", "pushButton_Read",
                 "pushButton_Load", "pushButton_Defaults", "pushButton_Compare", "pushButton_Editor",
                 "BtnWriteDevice", "BtnOpenFile", "BtnSaveFile", "ListGeo_BtnAdd", "ListGeo_BtnAdd_FileKML",
                 "ListGeo_BtnDel", "GetCurrent", "GetPrev", "GetNext", "Show", "GetAutoTmi", "OutOn", "OutOff",
                 "GuardOn", "GuardOff", "Clear", "NmeaOutput", "SetParam", "RunCommand", "ReadTouch", "ReadRfid",
                 "GetTouch", "GetRfid", "SendFlsCommand", "FirmwareUpdate", "TahoQuery", "TahoFileRequest",
                 "TahoFileRead", "FlsData", "FlsDataFile", "ShowOnMap", "SaveFile"]


IN_IDS = [int(line.split("(")[1].split(",")[0]) for line in open(os.path.join(ROOT, "include", "zrk", "zrk_messages.def"))
          if line.startswith("ZRK_MSG_IN(")]


def message(msg_id, words):
    """Any host message, by its row in the message table; words are its arguments as the fuzzer reads them."""
    return u8(MSG) + u8(IN_IDS.index(msg_id)) + words


def u8(v):
    return bytes([v & 0xFF])


def u16(v):
    return struct.pack("<H", v & 0xFFFF)


def u32(v):
    return struct.pack("<I", v & 0xFFFFFFFF)


def u64(v):
    return struct.pack("<Q", v)


def blob(b):
    return u16(len(b)) + b


def text(s):
    return blob(s.encode("utf-8"))


NO_WORD = u8(1)  # a "-" word: zero


def named(name):
    return u8(NAMED) + u8(NAMED_BUTTONS.index(name))


def connect():
    return u8(CONNECT) + u8(1) + text("861234567890123") + text("3.5.8") + u64(7) + u32(1) + NO_WORD


def quiet(n=1):
    """The host does nothing for the next n calls of the plug-in."""
    return u8(0) * n


def answer_now(reply_words, count=1):
    """Answer inside the call with the paired reply; reply_words are its arguments."""
    what = 2 | ((count - 1) << 4)
    return u8(what) + (u8(0) + reply_words) * count


def answer_later(reply_words):
    return u8(4) + blob(u8(0) + reply_words)


def record_reply(record):
    """2301/2303/2305/2307: the host's prefix (status, 16-bit size) and the record, then lParam "-"."""
    return blob(u8(1) + u16(len(record)) + record) + NO_WORD


def sd_ok():
    """2401 echoing the request with result OK (mode echo, result selector not 0 mod 6, no lying)."""
    return u8(0) + u8(1) + u8(1) + u8(1)


def sd_answer(reply):
    return u8(2) + reply


def seed(mode, *parts):
    return u8(mode) + b"".join(parts)


def read(*path):
    with open(os.path.join(ROOT, *path), "rb") as f:
        return f.read()


def main():
    os.makedirs(OUT, exist_ok=True)
    orba = os.path.join(ROOT, "fuzz", "corpus", "fuzz_orba3")
    records = [read("fuzz", "corpus", "fuzz_orba3", n) for n in sorted(os.listdir(orba))]
    config = read("host", "data", "terminal_config.xml")
    geo = read("tests", "config_model", "data", "geo", "small_full.xml")
    tmi = read("tests", "telemetry", "data", "golden.tmi")
    seeds = {}
    # Records: current, steps by number, auto-request, some answered later or twice.
    seeds["telemetry_records"] = seed(
        0, connect(), u8(VIEW),
        named("GetCurrent"), answer_now(record_reply(records[0])),
        named("GetPrev"), answer_now(record_reply(records[1])),
        named("GetNext"), answer_later(record_reply(records[2])), u8(LATER),
        u8(VIEW), answer_now(record_reply(records[3]), count=2),
        named("GetCurrent"), answer_now(record_reply(b"\xb0\x03")),
        named("SaveFile"), u8(1), u8(SETTLE))
    seeds["telemetry_production"] = seed(
        1, connect(), u8(VIEW), named("GetAutoTmi"), u8(VIEW), answer_now(record_reply(records[4])),
        u8(VIEW), answer_now(u8(1) + blob(u32(7)) + NO_WORD), named("ShowOnMap"))
    seeds["terminal_commands"] = seed(
        5, connect(), u8(VIEW),
        *[named(n) + u8(1) + answer_now(blob(b"OK")) for n in
          ["OutOn", "OutOff", "GuardOn", "GuardOff", "Clear", "NmeaOutput", "SetParam", "RunCommand",
           "ReadTouch", "ReadRfid", "TahoQuery", "FlsData", "SendFlsCommand"]])
    # A configuration: new, read from the terminal (answered with a file), written back, opened.
    seeds["configuration"] = seed(
        0, connect(), u8(FILE) + u8(0) + blob(config), u8(OPEN_CONFIG) + u8(1) + u8(0) + u8(0) + NO_WORD,
        quiet(1), named("pushButton_Read"), u8(2) + u8(0) + u8(1) + u8(1) + u8(1) + NO_WORD, quiet(1),
        named("pushButton_Load"), quiet(1), named("pushButton_Open"), u8(1), named("pushButton_Compare"),
        u8(1), named("pushButton_Editor"), named("pushButton_New"), u8(1))
    # The geo page: a geo file opened, then written to the card, each step answered well.
    seeds["geo_to_card"] = seed(
        0, connect(), u8(FILE) + u8(0) + blob(geo), u8(OPEN_CONFIG) + u8(1) + u8(0) + u8(0) + NO_WORD, quiet(1),
        u8(GEO), named("BtnOpenFile"), u8(1), named("BtnWriteDevice"),
        *[sd_answer(sd_ok()) for _ in range(8)], u8(LATER), u8(SETTLE), u8(SETTLE))
    seeds["geo_card_removed"] = seed(
        0, connect(), u8(OPEN_CONFIG) + u8(1) + u8(0) + u8(0) + NO_WORD, quiet(1), u8(GEO),
        named("ListGeo_BtnAdd"), u8(1), named("BtnWriteDevice"),
        u8(3) + u32(2) + sd_answer(u8(0) + u8(1) + u8(0) + u8(2) + u8(1)), u8(SETTLE))
    # Saved telemetry files in both viewers (2103 page, then table), and a language round trip.
    seeds["telemetry_file"] = seed(0, u8(FILE) + u8(1) + blob(tmi), message(2103, u64(0)), message(2103, u64(1)),
                                   message(2031, NO_WORD + NO_WORD))
    for name, data in seeds.items():
        with open(os.path.join(OUT, name), "wb") as f:
            f.write(data)


if __name__ == "__main__":
    main()
