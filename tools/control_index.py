"""The pages of docs/controls that lead to the others, and the one of the enumerations."""

from control_page import escaped, table


def enumerations_page(library):
    text = "# Enumerations\n\nIn `enums/enumerations.h`. A setter takes any number; one that is in no list counts as\n"
    text += "none of its values.\n"
    for name, doc, values in library.enumerations:
        rows = [[str(number), f"`{value}`", escaped(says)] for number, value, says in values]
        columns = ["number", "name", "meaning"]
        if not any(row[2] for row in rows):
            columns, rows = columns[:2], [row[:2] for row in rows]
        doc += " They are shown [here](../pictures.md)." if name == "qrnImageId" else ""
        text += f"\n## {name}\n\n{doc}\n\n" + table(columns, rows)
    return text


def index_page(library):
    first = lambda name: library.header(name).doc.split(". ")[0].rstrip(".") + "."
    rows = lambda names: [[f"[{name}]({name}.md)", first(name)] for name in names]
    controls = table(["control", "what it is"], rows([one.name for one in library.tables]))
    records = table(["class", "what it is"], rows(library.records))
    return INDEX.format(controls=controls, records=records)


INDEX = """# The controls

{controls}
What hosts get from them, and what all of them have:

{records}
The numbers that they take and answer are [enumerations](enumerations.md); the pictures that rows and buttons show
are [here](../pictures.md).

## How to read the pages

A property `Title` is read with `Title()` and set with `SetTitle(value)`; one with an index, such as
`ValueNames(i)`, with `ValueNames(i)` and `SetValueNames(i, value)`. An event is listened to with
`panel.ParameterChange.connect(listener)`, for as long as the connection lives, and its arguments are references: what
a listener writes into a key code, or into the cancel of `PageClose`, counts. `ObjectEvent` tells of every event by its
name.

The default is the value of a new control. What is kept goes into a property bag, unless it is the default, and comes
back from there; where a bag without it means something else, the page says so. Everything else is of run time only.

| on the pages | in C++ |
|---|---|
| Boolean | `bool` |
| Integer, Long | `std::int16_t`, `std::int32_t` |
| Single, Double | `float`, `double` |
| String | `std::string`, in UTF-8 |
| Variant | `qrn::Variant`, any of these, or Empty, Null, a date, a currency amount, a decimal number or an object |
| Color | `host::Color`, 0x00BBGGRR, or the number of a system colour such as &H8000000F, the face of buttons |
| Font, Picture | `host::FontPtr`, `host::PicturePtr` |

Errors are `RunTimeError`s with these numbers. Positions count from 1 unless said otherwise.

The pages are made by `tools/make_control_pages` from class tables and headers; `./test` fails when they are not up
to date.
"""
