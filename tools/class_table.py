"""What tools/class_tables.cpp prints, as objects."""

import subprocess


class Property:
    """`kept` is the type as which a property bag keeps it, empty for none; `missing` is the value of a bag without the
    key, and `unwritten` the one that a bag does not get."""

    def __init__(self, name, type, access, kept, fresh, missing, unwritten):
        self.name = name
        self.type = type
        self.writable = access == "writable"
        self.kept = kept
        self.fresh = fresh
        self.missing = missing
        self.unwritten = unwritten


class ClassTable:
    def __init__(self, name, prog_id):
        self.name = name
        self.prog_id = prog_id
        self.properties = []
        self.methods = []
        self.events = []

    def names(self):
        return [one.name for one in self.properties] + self.methods + self.events


def read_tables(program):
    tables = []
    printed = subprocess.run([str(program)], check=True, capture_output=True, text=True).stdout
    for line in printed.splitlines():
        kind, *fields = line.split("\t")
        if kind == "class":
            tables.append(ClassTable(*fields))
        elif kind == "property":
            tables[-1].properties.append(Property(*fields))
        elif kind == "method":
            tables[-1].methods += fields
        else:
            tables[-1].events += fields
    return tables
