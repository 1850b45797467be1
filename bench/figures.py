"""The figures of a run, as bench/measure_panels writes them and bench/performance_page shows them."""
import csv
from typing import NamedTuple

COLUMNS = ["contender", "display", "workload", "rows", "median", "lowest", "highest", "unit", "ratio"]

# In the order in which they are shown.
WORKLOADS = {
    "W1": "build, lay out and paint a form",
    "W2": "a caption grows, until laid out",
    "W2.painted": "the same, until painted",
    "W3": "write a value, until painted",
    "W4": "scroll by a page, until painted",
    "W5": "memory allocated",
    "W5.resident": "memory of the process",
    "layout.unchanged": "lay out again, nothing changed",
    "ticks": "1,000 values, ten times a second",
    "W6.format": "format a number as 0.000",
    "W6.read": "read it back",
}
# Of these there is the processor time as well, under the name with this ending.
TIMED = ["W1", "W2", "W2.painted", "W3", "W4", "layout.unchanged"]
PROCESSOR = ".cpu"
NAMES = {"panel": "panel", "grid": "Qt widgets in a grid", "table": "Qt table, styled", "fltk": "FLTK"}
DISPLAYS = {"headless": "headless", "offscreen": "Qt offscreen", "xcb": "Xvfb"}


class Figure(NamedTuple):
    contender: str
    display: str
    workload: str
    rows: int
    median: float
    lowest: float
    highest: float
    unit: str
    ratio: float | None  # of the panel's figure to this one

    @property
    def key(self):
        return self.contender, self.display, self.workload, self.rows


def processor(workload):
    """The name under which the processor time of a workload stands: its own where there is no other time."""
    return workload + PROCESSOR if workload in TIMED else workload


def read(path):
    with open(path, newline="", encoding="utf-8") as file:
        lines = list(csv.DictReader(file, delimiter="\t"))
    figures = [
        Figure(line["contender"], line["display"], line["workload"], int(line["rows"]), float(line["median"]),
               float(line["lowest"]), float(line["highest"]), line["unit"],
               float(line["ratio"]) if line["ratio"] else None)
        for line in lines
    ]
    return {figure.key: figure for figure in figures}


def write(path, figures):
    with open(path, "w", newline="", encoding="utf-8") as file:
        writer = csv.writer(file, delimiter="\t", lineterminator="\n")
        writer.writerow(COLUMNS)
        for figure in figures:
            writer.writerow([*figure[:4], *(f"{value:.4g}" for value in figure[4:7]), figure.unit,
                             "" if figure.ratio is None else f"{figure.ratio:.3g}"])
