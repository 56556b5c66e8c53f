#!/usr/bin/env bash
# make_seeds.sh [ZRK_TOOL] : regenerates the seed packets of fuzz_packet_finder with zrk-tool's
# packet builder (build/tools/zrk-tool by default).
set -euo pipefail
cd "$(dirname "$0")"
tool=${1:-../../build/tools/zrk-tool}
out=fuzz_packet_finder
pkt() { "$tool" packet build "$@" | xxd -r -p; }
pkt '*?PING 1' > "$out/ping"
pkt '*>PASS:Пароль€☺' > "$out/password_cp1251"
pkt '*!R' --args 04030201 > "$out/read_page"
pkt '' > "$out/empty_payload"
pkt '*#FUEL_UN 12,5' > "$out/reply_fuel_un"
{ pkt '*#V K-7140 1.02'; pkt '*@SETTIME'; pkt '*#DATA ' --args 00ff10; } > "$out/back_to_back"
{ printf '@ZRK\377\377\377\377\377\377\377\377\377\377\377\377'; pkt '*#H 3'; } > "$out/false_preamble"
pkt '*@SDFS ' --args 0102030405060708 | head -c 20 > "$out/truncated"
{ printf 'xy'; pkt '*#BTDEV 2'; } | head -c 26 > "$out/offset_truncated"
