#!/usr/bin/python3
"""git merge driver for id-based .ts catalogues: the union of both sides' messages.

Usage (set up by scripts/setup-git.sh): ts-merge.py BASE OURS THEIRS. Writes the result to OURS.
A message both sides have keeps our text unless only theirs changed it since the base. Nothing is
dropped: a message that is really gone from the sources leaves with the next lupdate run.
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


def unfinished(block):
    return 'type="unfinished"' in block or '<translation></translation>' in block


base_text, base, _ = messages(sys.argv[1])
ours_text, ours, ours_order = messages(sys.argv[2])
_, theirs, theirs_order = messages(sys.argv[3])
if not ours_text:
    sys.exit(1)

result = []
for mid in ours_order:
    block = ours[mid]
    if mid in theirs and theirs[mid] != block and (block == base.get(mid) or unfinished(block)):
        block = theirs[mid]
    result.append(block)
for mid in theirs_order:
    if mid in ours:
        continue
    result.append(theirs[mid])

head = ours_text[:MSG.search(ours_text).start()] if MSG.search(ours_text) else ours_text.split('</context>')[0]
tail = ours_text[ours_text.rfind('</message>\n') + len('</message>\n'):] if '</message>' in ours_text else '</context>\n</TS>\n'
open(sys.argv[2], 'w', encoding='utf-8').write(head + ''.join(result) + tail)
