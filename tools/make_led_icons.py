#!/usr/bin/env python3
"""Draws the alarm panel's LED icons and writes them as Windows icon files.

Each icon holds a 16x16 and a 32x32 image, 32-bit with alpha (classic BMP-in-ICO, readable by every
icon loader). The LEDs are drawn analytically and supersampled for anti-aliasing: a dark bezel, a
body lit from the upper left, and a soft specular highlight. Nine files carry the nine alarm states;
a tenth, a hollow unlit ring, is the fallback picture that the panel shows when a state's file is
found in neither server directory. The fallback is also written as a C++ source so that the library
carries it built in.

Usage: make_led_icons.py [--out DIR] [--source FILE] [--preview FILE.png]
Only the Python standard library is used.
"""

import argparse
import math
import os
import struct
import zlib

# File name -> (base colour, lit). The names are the ones the server's icon directories use.
LEDS = [
    ("AlarmLedActiveUnacked.ico", (230, 20, 20), True),   # active, unacknowledged: bright red
    ("AlarmLedFleeting.ico", (255, 140, 0), True),        # fleeting: orange
    ("AlarmLedActivAcked.ico", (150, 20, 25), True),      # active, acknowledged: dark red
    ("AlarmLedNormal.ico", (30, 190, 40), True),          # normal: green
    ("AlarmLedNotSampled.ico", (165, 165, 165), False),   # not sampled: unlit grey
    ("AlarmLedUncertain.ico", (245, 215, 0), True),       # uncertain: yellow
    ("AlarmLedBlocked.ico", (30, 90, 230), True),         # blocked: blue
    ("AlarmLedManual.ico", (0, 185, 190), True),          # manually entered: cyan
    ("AlarmLedSubstituted.ico", (170, 50, 200), True),    # substituted: violet
]
FALLBACK = "AlarmLedFallback.ico"
SIZES = (16, 32)
SUPERSAMPLE = 6


def clamp(value):
    return max(0.0, min(1.0, value))


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def led_sample(x, y, base, lit, hollow):
    """Colour (0..1 floats) and alpha of one point of the unit LED, centred at (0, 0), radius 1."""
    r = math.hypot(x, y)
    if r > 1.0:
        return (0.0, 0.0, 0.0), 0.0
    bezel_inner = 0.80
    base_f = tuple(c / 255.0 for c in base)
    if r > bezel_inner:
        # A dark metallic rim, lighter towards the lower right where it catches the light.
        t = (x + y) / 2.0 * 0.5 + 0.5
        rim = mix((0.22, 0.22, 0.24), (0.62, 0.62, 0.66), clamp(t))
        return rim, 1.0
    if hollow:
        # The fallback: an empty socket, a faint dark glass over nothing.
        return (0.35, 0.35, 0.38), 0.25
    # The body: lit from the upper left, darker at the rim of the lens.
    u, v = x / bezel_inner, y / bezel_inner
    d = math.hypot(u + 0.35, v + 0.35) / 1.6
    shade = mix(mix(base_f, (1.0, 1.0, 1.0), 0.45 if lit else 0.30), base_f, clamp(d * 1.4))
    shade = mix(shade, tuple(c * 0.45 for c in base_f), clamp((d - 0.55) * 1.6))
    if lit:
        # A glow at the centre of a lit lamp.
        glow = clamp(1.0 - math.hypot(u, v) * 1.3) * 0.25
        shade = mix(shade, (1.0, 1.0, 1.0), glow)
    # Specular highlight: a soft ellipse up and to the left.
    hx, hy = (u + 0.32) / 0.42, (v + 0.40) / 0.28
    highlight = clamp(1.0 - math.hypot(hx, hy)) ** 0.8 * (0.85 if lit else 0.6)
    shade = mix(shade, (1.0, 1.0, 1.0), highlight)
    return shade, 1.0


def render(size, base, lit, hollow=False):
    """RGBA rows (top to bottom) of one LED image, anti-aliased by supersampling."""
    margin = 0.5 if size <= 16 else 1.0
    radius = size / 2.0 - margin
    centre = size / 2.0
    pixels = []
    n = SUPERSAMPLE
    for py in range(size):
        row = []
        for px in range(size):
            acc = [0.0, 0.0, 0.0]
            alpha = 0.0
            for sy in range(n):
                for sx in range(n):
                    x = (px + (sx + 0.5) / n - centre) / radius
                    y = (py + (sy + 0.5) / n - centre) / radius
                    colour, a = led_sample(x, y, base, lit, hollow)
                    alpha += a
                    for i in range(3):
                        acc[i] += colour[i] * a
            if alpha > 0:
                colour = [acc[i] / alpha for i in range(3)]
            else:
                colour = [0.0, 0.0, 0.0]
            alpha /= n * n
            row.append(tuple(int(round(c * 255)) for c in colour) + (int(round(alpha * 255)),))
        pixels.append(row)
    return pixels


def bmp_image(pixels):
    """A 32-bit icon image: BITMAPINFOHEADER, bottom-up BGRA pixels, then the 1-bit AND mask."""
    size = len(pixels)
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    colour = bytearray()
    for row in reversed(pixels):
        for r, g, b, a in row:
            colour += bytes((b, g, r, a))
    mask_stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for row in reversed(pixels):
        bits = bytearray(mask_stride)
        for x, (_, _, _, a) in enumerate(row):
            if a == 0:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    return header + bytes(colour) + bytes(mask)


def ico_file(images):
    """An icon file holding the given (size, image bytes) entries."""
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    data = b""
    for size, image in images:
        out += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
        data += image
    return out + data


def png_file(pixels):
    height, width = len(pixels), len(pixels[0])
    raw = b"".join(b"\x00" + bytes(c for p in row for c in p) for row in pixels)

    def chunk(kind, payload):
        body = kind + payload
        return struct.pack(">I", len(payload)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)

    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def preview(sheets, scale=4):
    """One picture of every icon: each row a LED, its 32x32 and 16x16 images enlarged, on light grey."""
    cell = 32 * scale + 8
    width, height = cell * 3, cell * len(sheets)
    canvas = [[(235, 235, 235, 255)] * width for _ in range(height)]
    for index, (big, small) in enumerate(sheets):
        for column, (img, factor) in enumerate(((big, scale), (small, scale), (big, 1))):
            ox, oy = column * cell + 4, index * cell + 4
            for y, row in enumerate(img):
                for x, (r, g, b, a) in enumerate(row):
                    t = a / 255.0
                    colour = tuple(int(round(c * t + 235 * (1 - t))) for c in (r, g, b)) + (255,)
                    for dy in range(factor):
                        for dx in range(factor):
                            canvas[oy + y * factor + dy][ox + x * factor + dx] = colour
    return png_file(canvas)


def cpp_source(data):
    lines = []
    for start in range(0, len(data), 16):
        lines.append("    " + ", ".join("0x%02x" % b for b in data[start:start + 16]) + ",")
    return """// Generated by tools/make_led_icons.py: the fallback LED picture built into the library. Do not edit;
// run the tool again instead.
#include "alarms/fallback_picture.h"

#include <cstdint>

namespace trovane {

namespace {
// clang-format off
const uint8_t kFallbackIcon[] = {
%s
};
// clang-format on
}  // namespace

Picture FallbackLedPicture() {
    return Picture{"%s",
                   std::vector<uint8_t>(std::begin(kFallbackIcon), std::end(kFallbackIcon))};
}

}  // namespace trovane
""" % ("\n".join(lines), FALLBACK)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    root = os.path.dirname(here)
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--out", default=os.path.join(root, "assets", "icons"))
    parser.add_argument("--source", default=os.path.join(root, "src", "alarms", "fallback_picture_data.cpp"))
    parser.add_argument("--preview", default=None)
    args = parser.parse_args()

    os.makedirs(args.out, exist_ok=True)
    sheets = []
    entries = [(name, base, lit, False) for name, base, lit in LEDS]
    entries.append((FALLBACK, (128, 128, 128), False, True))
    for name, base, lit, hollow in entries:
        images = {size: render(size, base, lit, hollow) for size in SIZES}
        data = ico_file([(size, bmp_image(images[size])) for size in SIZES])
        with open(os.path.join(args.out, name), "wb") as f:
            f.write(data)
        sheets.append((images[32], images[16]))
        if name == FALLBACK and args.source:
            with open(args.source, "w") as f:
                f.write(cpp_source(data))
    if args.preview:
        with open(args.preview, "wb") as f:
            f.write(preview(sheets))


if __name__ == "__main__":
    main()
