#!/usr/bin/python3
"""git merge driver for id-based .ts catalogues: the union of both sides' messages.

Usage (set up by scripts/setup-git.sh): ts-merge.py BASE OURS THEIRS. Writes the result to OURS.
A message both sides have keeps our text unless only theirs changed it since the base.
"""
import re
import sys

MSG = re.compile(r'[ \t]*<message id="([^"]*)">.*?</message>\n', re.S)


def messages(path):
    try:
        text = open(path, encoding='utf-8').read()
    except OSError:
        return '', {}, []
    found = {}
    order = []
    for m in MSG.finditer(text):
        found[m.group(1)] = m.group(0)
        order.append(m.group(1))
    return text, found, order


base_text, base, _ = messages(sys.argv[1])
ours_text, ours, ours_order = messages(sys.argv[2])
_, theirs, theirs_order = messages(sys.argv[3])
if not ours_text:
    sys.exit(1)

result = []
for mid in ours_order:
    block = ours[mid]
    if mid in theirs and block == base.get(mid) and theirs[mid] != block:
        block = theirs[mid]
    if mid in base and mid not in theirs and block == base[mid]:
        continue  # removed on their side, untouched on ours
    result.append(block)
for mid in theirs_order:
    if mid in ours:
        continue
    if mid in base and theirs[mid] == base[mid]:
        continue  # removed on our side, untouched on theirs
    result.append(theirs[mid])

head = ours_text[:MSG.search(ours_text).start()] if MSG.search(ours_text) else ours_text.split('</context>')[0]
tail = ours_text[ours_text.rfind('</message>\n') + len('</message>\n'):] if '</message>' in ours_text else '</context>\n</TS>\n'
open(sys.argv[2], 'w', encoding='utf-8').write(head + ''.join(result) + tail)
