#!/usr/bin/python3
"""Gives every message of a Russian catalogue its source text as translation where it has none."""
import re
import sys

path = sys.argv[1]
text = open(path, encoding='utf-8').read()


def fill(match):
    block = match.group(0)
    source = re.search(r'<source>(.*?)</source>', block, re.S)
    if not source:
        return block
    block = re.sub(r'<translation type="unfinished"></translation>',
                   '<translation>' + source.group(1) + '</translation>', block)
    block = re.sub(r'<translation type="unfinished">(.*?)</translation>', r'<translation>\1</translation>',
                   block, flags=re.S)
    return block


text = re.sub(r'<message id=.*?</message>', fill, text, flags=re.S)
open(path, 'w', encoding='utf-8').write(text)
