"""Reads what the headers of the library declare for their users: members with their comments, and enumerations."""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"


# What a reader of the pages has no use for: types, constructors, operators.
NO_USE = re.compile(
    r"(using|friend|template|enum|struct|static constexpr|explicit|virtual ~\w+\(\)) |~?\w+\(|.* operator|.*= delete;"
)


class Member:
    """A function, or an event, which has no result."""

    def __init__(self, name, result, arguments, doc, section, overrides):
        self.name = name
        self.result = result  # as it is written in C++; None for an event
        self.arguments = arguments  # pairs of type and name
        self.doc = doc
        self.section = section
        self.overrides = overrides


class Class:
    def __init__(self, name, path, doc, bases, members):
        self.name = name
        self.path = path
        self.doc = doc
        self.bases = bases
        self.members = members

    def find(self, name):
        """The overload that reads, where there are several."""
        found = [one for one in self.members if one.name == name]
        return next((one for one in found if one.doc), found[0] if found else None)


def split(text):
    """At the commas that are in no brackets."""
    parts, depth = [""], 0
    for character in text:
        depth += (character in "<({[") - (character in ">)}]")
        if character == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += character
    return [part.strip() for part in parts if part.strip()]


def argument(text):
    """Of a function ("std::int32_t Index = 0"), or of an event, where the name is a comment."""
    text = text.split(" = ")[0]
    match = re.fullmatch(r"(.*?[\s&*])\s*(?:/\*)?(\w+)(?:\*/)?", text)
    return (match.group(1).strip(), match.group(2)) if match else (text, "")


def member(declaration, doc, section):
    event = re.match(r"Event<(.*)> (\w+);", declaration)
    if event:
        arguments = [argument(part) for part in split(event.group(1))]
        return Member(event.group(2), None, arguments, doc, section, False)
    if NO_USE.match(declaration):
        return None
    head = declaration.replace(" = {}", "").split("{")[0].rstrip("; ")
    head = re.sub(r"/\*\w+\*/", "", head).removesuffix(" = 0")
    function = re.fullmatch(r"(?:virtual )?(.*?[\s&*])(\w+)\((.*)\)( const)?( override| final)?", head)
    if not function:
        raise ValueError(f"can't read the declaration {declaration}")
    result, name, arguments, _, overrides = function.groups()
    arguments = [argument(part) for part in split(arguments)]
    return Member(name, result.strip(), arguments, doc, section, bool(overrides))


def public_members(body):
    members, doc, section, declaration, visible = [], [], "", "", False
    for line in body.splitlines():
        text = line.strip()
        if not declaration:
            heading = re.match(r"// ---- (.*?) ----", text)
            if re.fullmatch(r"(public|protected|private):", text):
                visible = text == "public:"
            elif text.startswith("///"):
                doc.append(text[3:].strip())
                continue
            elif heading:
                section = heading.group(1)
            elif text and not text.startswith("//"):
                declaration = text
            if not declaration:
                doc = []
                continue
        else:
            declaration += " " + text
        code = re.sub(r"\s*//.*$", "", declaration) if declaration == text else declaration
        if any(code.count(a) != code.count(b) for a, b in ("()", "{}")) or code[-1] not in ";}":
            continue
        found = visible and member(code, " ".join(doc), section)
        if found:
            members.append(found)
        doc, declaration = [], ""
    return members


def read_class(path, name):
    """Errors: LookupError when the file has no such class."""
    text = path.read_text()
    pattern = rf"((?:^///[^\n]*\n)*)^class {name}(?: final)?((?: :[^{{]*)?) \{{\n(.*?)^\}};"
    match = re.search(pattern, text, re.MULTILINE | re.DOTALL)
    if not match:
        raise LookupError(f"{path.relative_to(ROOT)} has no class {name}")
    doc = " ".join(line[3:].strip() for line in match.group(1).splitlines())
    bases = re.findall(r"public (?:\w+::)?(\w+)", match.group(2))
    return Class(name, path.relative_to(SOURCES), doc, bases, public_members(match.group(3)))


def find_class(name):
    """In the file that is called like it, or else in the one that has it."""
    for path in sorted(SOURCES.rglob("*.h"), key=lambda each: (each.stem != name, each)):
        if re.search(rf"^class {name}\b[^;]*{{$", path.read_text(), re.MULTILINE):
            return read_class(path, name)
    raise LookupError(f"no header has the class {name}")


def enumerations(path):
    """Of each its name, its comment, and its values: number, name, comment."""
    result = []
    for doc, name, body in re.findall(r"((?:^///[^\n]*\n)*)^enum (\w+)[^{]*\{(.*?)\};", path.read_text(), re.M | re.S):
        values = re.findall(r"(\w+) = (\d+),(?:[ ]*// (.*))?", body)
        doc = " ".join(line[3:].strip() for line in doc.splitlines())
        result.append((name, doc, [(int(number), value, says) for value, number, says in values]))
    return result
