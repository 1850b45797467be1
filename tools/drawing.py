"""What the scripts that draw pictures from SVG sources share: rendering, and whether what they made is up to date."""

import hashlib
import re
import shutil
import struct
import subprocess
import sys
import zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WIDTH, HEIGHT = 16, 15


def fail(why):
    sys.exit(f"{Path(sys.argv[0]).name}: {why}")


class Sources:
    """The SVG files of a folder, in the order of their names as given."""

    def __init__(self, folder, names):
        self.folder, self.names = folder, names

    def path(self, name):
        path = self.folder / f"{name}.svg"
        if not path.is_file():
            fail(f"{path.relative_to(ROOT)} is missing")
        return path

    def text(self, name):
        return self.path(name).read_text(encoding="utf-8")

    def title(self, name):
        return re.search("<title>(.*)</title>", self.text(name)).group(1)

    def digest(self, version):
        digest = hashlib.sha256(f"table version {version}\n".encode())
        for name in self.names:
            digest.update(f"{name}\n{self.text(name)}\n".encode())
        return digest.hexdigest()

    def render(self, name, scale):
        """The pixels of a picture, row by row, as (red, green, blue, alpha)."""
        width, height = WIDTH * scale, HEIGHT * scale
        command = ["rsvg-convert", "--format=png", f"--width={width}", f"--height={height}", str(self.path(name))]
        done = subprocess.run(command, capture_output=True, check=False)
        if done.returncode != 0:
            fail(f"{name}.svg: rsvg-convert says: {done.stderr.decode(errors='replace').strip()}")
        rows = decode_png(done.stdout, name)
        if len(rows) != height or any(len(row) != width for row in rows):
            fail(f"{name}.svg does not fill {width} x {height} pixels; is its viewBox 0 0 16 15?")
        return rows


def decode_png(png, name):
    """Reads the PNGs that rsvg-convert writes: 8 bits a channel, not interlaced, without alpha if all is opaque."""
    width, height, *kind = struct.unpack(">IIBBBBB", png[16:29])
    if kind not in ([8, 6, 0, 0, 0], [8, 2, 0, 0, 0]):
        fail(f"{name}.svg: rsvg-convert wrote a PNG of another kind than expected")
    channels = 4 if kind[1] == 6 else 3
    packed, at = b"", 8
    while at < len(png):
        length, tag = struct.unpack(">I4s", png[at : at + 8])
        if tag == b"IDAT":
            packed += png[at + 8 : at + 8 + length]
        at += length + 12
    data, stride = zlib.decompress(packed), width * channels
    rows, above = [], bytes(stride)
    for y in range(height):
        line = data[y * (stride + 1) : (y + 1) * (stride + 1)]
        above = unfilter(line[0], line[1:], above, channels)
        pixels = (tuple(above[x : x + channels]) for x in range(0, stride, channels))
        rows.append([(*pixel, 255)[:4] for pixel in pixels])
    return rows


def unfilter(kind, line, above, channels):
    """Undoes the filter of one row of a PNG of so many bytes a pixel."""
    out = bytearray(line)
    for i in range(len(out)):
        is_first = i < channels
        left, up, corner = (0 if is_first else out[i - channels]), above[i], (0 if is_first else above[i - channels])
        out[i] = (out[i] + (0, left, up, (left + up) // 2, paeth(left, up, corner))[kind]) & 255
    return bytes(out)


def paeth(left, up, corner):
    guess = left + up - corner
    return min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]


def constant(name):
    return "k" + "".join(word.capitalize() for word in name.split("_"))


def digest_of(text):
    return hashlib.sha256(text.encode()).hexdigest()


def is_up_to_date(table, sources_digest):
    """Same sources as when the table was made, and nobody has edited the table since."""
    if not table.is_file():
        return False
    text = table.read_text(encoding="utf-8")
    digests = dict(re.findall(r"^// (sources|table) ([0-9a-f]{64})$", text, re.MULTILINE))
    body = re.search(r"^// clang-format off\n(.*)^// clang-format on$", text, re.MULTILINE | re.DOTALL)
    if not body or digests.get("sources") != sources_digest:
        return False
    return digests.get("table") == digest_of(body.group(1))


def make_or_check(table, sources_digest, check, make):
    """What a script does with its --check option: only look, or write what `make` answers."""
    name = table.relative_to(ROOT)
    if check:
        if not is_up_to_date(table, sources_digest):
            fail(f"{name} is out of date; run tools/{Path(sys.argv[0]).name}")
        print(f"{name} is up to date")
        return
    if not shutil.which("rsvg-convert"):
        fail("rsvg-convert is missing; on Debian it is in the package librsvg2-bin")
    table.write_text(make(), encoding="utf-8")
