#!/usr/bin/python3
"""Checks that the numbers of all menu commands differ.

usage: check_commands.py

A command's number is a hash of its name (frame/command_id.h), and no form knows the commands of all
others. So the names are looked for where they stand, in the product's sources: texts that begin
with "mnu". Arrays of commands, whose names end in "SUB" or stand in a call that makes or finds an
element, are counted with ARRAY_LENGTH elements.
"""

import re
import sys

from sources import ROOT, product_sources, read_source, report

ARRAY_LENGTH = 8
NAME = re.compile(r'L"(mnu[A-Z]\w*)"')
ELEMENT = re.compile(r'\bArray\w+\(\s*L"(mnu\w+)"')


def command_id(name):
    """The number that the program gives the command."""
    value = 2166136261
    for unit in name:
        value = (value ^ ord(unit)) * 16777619 & 0xFFFFFFFF
    return 0x1000 + ((value >> 16 ^ value) & 0xFFFF) % 0xC000


def names_in(source):
    """The names of all commands in a source, elements of arrays by their numbers."""
    arrays = set(ELEMENT.findall(source))
    for name in NAME.findall(source):
        if name in arrays or name.endswith("SUB"):
            yield from (f"{name}({i})" for i in range(ARRAY_LENGTH))
        else:
            yield name


def check(root):
    """Returns a line for every two commands that share a number."""
    names = {name for path in product_sources(root) for name in names_in(read_source(root / path))}
    first = {}
    breaches = []
    for name in sorted(names):
        other = first.setdefault(command_id(name), name)
        if other != name:
            breaches.append(f"{other} and {name} share the number {command_id(name)}")
    return breaches


if __name__ == "__main__":
    sys.exit(report(check(ROOT), "The numbers of all commands differ"))
