#!/usr/bin/python3
"""Gives every message of a Russian catalogue its source text (the //% text) as its translation:
the sources are Russian, so a translation that differs from them is stale."""
import re
import sys

path = sys.argv[1]
text = open(path, encoding='utf-8').read()


def fill(match):
    block = match.group(0)
    source = re.search(r'<source>(.*?)</source>', block, re.S)
    if not source:
        return block
    if not source.group(1):
        # Form texts carry only their id; their translation is kept as written.
        return re.sub(r'<translation type="unfinished">(.*?)</translation>', r'<translation>\1</translation>',
                      block, flags=re.S)
    return re.sub(r'<translation[^>]*?(?:/>|>.*?</translation>)',
                  lambda _: '<translation>' + source.group(1) + '</translation>', block, flags=re.S)


text = re.sub(r'<message id=.*?</message>', fill, text, flags=re.S)
open(path, 'w', encoding='utf-8').write(text)
