"""The pages of docs/controls as Markdown."""

import re

import headers
from class_table import read_tables
from headers import SOURCES

# How the types of C++ are called on the pages; whatever else there is goes by its own name.
TYPES = {
    "bool": "Boolean",
    "std::int16_t": "Integer",
    "std::int32_t": "Long",
    "float": "Single",
    "double": "Double",
    "std::string": "String",
    "std::string_view": "String",
    "Variant": "Variant",
    "host::Color": "Color",
    "host::FontPtr": "Font",
    "host::PicturePtr": "Picture",
    "void": "",
    "ObjectPtr": "Object",
    "PanelItemPtr": "clsQRNParam or clsQRNAction",
    "ButtonPtr": "clsQRNButton",
    "EventArgs": "list of its arguments",
}


# What an image list holds is shown elsewhere already, and an array shows nothing.
PICTURES = {"QRNImageList": "../pictures.png", "QRNArray": ""}

# A member without a comment is like the one that this makes of its name.
SIBLINGS = [("2", "1"), ("Unit", "Label"), ("Top", "Left"), ("Right", "Left"), ("Bottom", "Left")]


class Library:
    """All that pages are about, and what keeps them from being written."""

    def __init__(self, class_tables, records):
        self.tables = read_tables(class_tables)
        self.records = {name: headers.find_class(name) for name in records}
        self.enumerations = headers.enumerations(SOURCES / "enums/enumerations.h")
        self.complaints = []
        self.classes = {}
        self.links = {one.name: one.name + ".md" for one in self.tables}
        self.links |= {name: name + ".md" for name in records}
        self.links |= {name: f"enumerations.md#{name.lower()}" for name, _, _ in self.enumerations}

    def header(self, name):
        if name not in self.classes:
            self.classes[name] = headers.find_class(name)
        return self.classes[name]

    def lines_up(self, name):
        """The class, the one that has its events, and those that it is made from."""
        result = [self.header(name)]
        events = result[0].find("events")
        if events:
            result.append(self.header(events.result.rstrip("& ")))
        for base in result[0].bases:
            if base in ("PanelItem", "CompositeEditor", "UserControl", "ContainerControl", "Control"):
                result += self.lines_up(base)
        return result

    def find(self, name, member):
        return next((found for one in self.lines_up(name) if (found := one.find(member))), None)

    def value(self, type, text):
        """Numbers of an enumeration by their names."""
        for name, _, values in self.enumerations:
            names = [value for number, value, _ in values if str(number) == text]
            if name == type and names:
                return f"`{names[0]}`"
        return f"`{text}`" if text and text[0] in '"&-0123456789TF' else text

    def linked(self, text):
        link = lambda word: f"[{word}]({self.links[word]})" if word in self.links else word
        return re.sub(r"\w+", lambda match: link(match[0]), text)

    def type(self, cpp):
        """As it is called on the pages."""
        optional = re.search(r"std::optional<(.*)>", cpp)
        plain = optional.group(1) if optional else cpp
        plain = re.sub(r"\bconst\b|[&*]|std::shared_ptr<(.*)>", r"\1", plain).strip()
        name = TYPES.get(plain) if plain in TYPES else plain.removeprefix("host::")
        return ("optional " if optional else "") + self.linked(name)


def escaped(text):
    """For a cell; names in camel case are code."""
    text = text.replace("|", "\\|").replace("<", "&lt;").strip()
    return re.sub(r"\b(?:\w+::)?(?:[a-z]+|[A-Z]\w*[a-z]\w*)[A-Z]\w*", r"`\g<0>`", text)


def table(columns, rows):
    if not rows:
        return ""
    lines = ["| " + " | ".join(columns) + " |", "|" + "---|" * len(columns)]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines).replace("|  |", "| |").replace("|  |", "| |") + "\n"


class Page:
    def __init__(self, library, name):
        self.library = library
        self.name = name

    def says(self, member, *others):
        """What the comments say; the second of two members that are alike may leave it to the first."""
        docs = [one.doc for one in (member, *others) if one and one.doc]
        if docs:
            return escaped(" ".join(docs))
        for part, other in SIBLINGS:
            first = self.find(member.name.replace(part, other, 1))
            if first and first.doc:
                return f"As `{first.name}`."
        below = self.library.header("QRNDisplay").find(member.name) if self.name == "QRNDisplayStack" else None
        if below and below.doc:
            return escaped(below.doc)
        self.library.complaints.append(f"{self.name}::{member.name} has no comment")
        return ""

    def find(self, name):
        return self.library.find(self.name, name)

    def setter_of(self, name):
        return self.find("Set" + name[0].upper() + name[1:])

    def beside(self, entry):
        """Properties of C++ only, which are not in the class table."""
        members = self.library.header(self.name).members
        return [one for one in members if self.setter_of(one.name) and one.name not in entry.names()]

    def arguments(self, member):
        changed = lambda type: ", is changed" if member.result is not None and type == "std::string&" else ""
        return "<br>".join(f"`{name}` {self.library.type(type)}{changed(type)}" for type, name in member.arguments)

    def property_row(self, one):
        getter = self.find(one.name)
        setter = self.setter_of(one.name)
        type = self.library.type(getter.result)
        plain = re.sub(r"\[(\w+)\].*", r"\1", type)
        value = lambda text: self.library.value(plain, text)
        kept = "yes" if one.kept else "no"
        if one.kept and one.kept != one.type:
            kept += f", as {one.kept}"
        if one.kept and one.missing != one.fresh:
            kept += f"; {value(one.missing)} where missing"
        if one.kept and one.unwritten != one.missing:
            kept += f"; {value(one.unwritten)} is not written"
        about = self.says(getter, setter) + ("" if one.writable else " Read-only.")
        return [f"`{one.name}`", type, value(one.fresh), kept, about.strip()]

    def accessor_row(self, getter):
        """Of a property that is no entry of the class table."""
        setter = self.setter_of(getter.name)
        about = self.says(getter, setter) + ("" if setter else " Read-only.")
        index = ", ".join(name for _, name in getter.arguments)
        name = f"`{getter.name}({index})`" if index else f"`{getter.name}`"
        return [name, self.library.type(getter.result), "", "no", about]

    def is_accessor(self, member):
        if self.setter_of(member.name):
            return True
        reads = not member.name.startswith("Get") and member.result not in ("void", None)
        return reads and not member.arguments

    def methods(self, members):
        return [
            [f"`{one.name}`", self.arguments(one), self.library.type(one.result), self.says(one)] for one in members
        ]

    def events(self, members):
        return [[f"`{one.name}`", self.arguments(one), self.says(one)] for one in members]


PROPERTIES = ["property", "type", "default", "kept", "what it is"]
METHODS = ["method", "arguments", "result", "what it does"]
EVENTS = ["event", "arguments", "when, and what for"]


def section(title, text):
    return f"\n## {title}\n\n{text}" if text else ""


def grouped(page, rows):
    """Rows of properties under the headings of the header."""
    groups = {}
    for row in rows:
        name = re.match(r"`(\w+)", row[0]).group(1)
        own = page.library.header(page.name).find(name)
        groups.setdefault(own.section if own else next(iter(groups), ""), []).append(row)
    parts = []
    for heading, rows in groups.items():
        title = f"### {heading[0].upper()}{heading[1:]}\n\n" if heading and len(groups) > 1 else ""
        parts.append(title + table(PROPERTIES, rows))
    return "\n".join(parts)


def control_page(library, entry):
    page = Page(library, entry.name)
    missing = [name for name in entry.names() if not page.find(name)]
    library.complaints += [f"{entry.name}::{name} is not in a header" for name in missing]
    if missing:
        return ""
    header = library.header(entry.name)
    members = [page.find(name) for name in entry.methods]
    accessors = [one for one in members if page.is_accessor(one)] + page.beside(entry)
    rows = [page.property_row(one) for one in entry.properties] + [page.accessor_row(one) for one in accessors]
    picture = PICTURES.get(entry.name, f"{entry.name}.png")
    text = f"# {entry.name}\n\n{escaped(header.doc)}\n\n" + (f"![{entry.name}]({picture})\n\n" if picture else "")
    text += f"`{entry.prog_id}`, in `{header.path}`. Its name, its place, the focus and the like are those of\n"
    text += "[every control](Control.md).\n"
    text += section("Properties", grouped(page, rows))
    text += section("Methods", table(METHODS, page.methods([one for one in members if one not in accessors])))
    events = header.find("events")
    where = f"`events()` has them. {escaped(events.doc)}\n\n" if events else ""
    text += section("Events", where + table(EVENTS, page.events([page.find(name) for name in entry.events])))
    return text


def is_public_name(member):
    return member.name[0].isupper() and not member.overrides


def record_page(library, header):
    page = Page(library, header.name)
    classes = library.lines_up(header.name) if header.name != "Control" else [header]
    members = [one for each in classes for one in each.members if is_public_name(one)]
    if header.name == "Control":
        members = [one for one in members if not one.section]
    names = {one.name for one in members}
    functions = [one for one in members if one.result is not None]
    setters = [one for one in functions if one.name.startswith("Set") and one.name[3:] in names]
    accessors = [one for one in functions if page.is_accessor(one) and one not in setters]
    others = [one for one in functions if one not in setters and one not in accessors]
    rows = [[row[0], row[1], row[4]] for row in map(page.accessor_row, accessors)]
    text = f"# {header.name}\n\n{escaped(header.doc)}\n\nIn `{header.path}`.\n"
    text += section("Properties", table(["property", "type", "what it is"], rows))
    text += section("Methods", table(METHODS, page.methods(others)))
    text += section("Events", table(EVENTS, page.events([one for one in members if one.result is None])))
    return text
