#!/usr/bin/env python3
"""Draws the alarm panel's LED icons and writes them as Windows icon files.

Each icon holds a 16x16 and a 32x32 image, 32-bit with alpha (classic BMP-in-ICO, readable by every
icon loader). The LEDs are drawn analytically and supersampled for anti-aliasing: a dark bezel, a
body lit from the upper left, a soft specular highlight, and a glyph of its own for each state (a
mark, a flash, a ring, a dash, a question mark, a padlock, a hand, an "S"; normal stays plain), so
that the states differ without colour. Nine files carry the nine alarm states;
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

# File name -> (base colour, lit, glyph). The names are the ones the server's icon directories use.
# Every state differs in its glyph as well as its colour, so that operators who cannot tell red from
# green (or see no colour at all) still tell the states apart.
LEDS = [
    ("AlarmLedActiveUnacked.ico", (230, 20, 20), True, "mark"),       # active, unacknowledged: "!"
    ("AlarmLedFleeting.ico", (255, 140, 0), True, "flash"),           # fleeting: a lightning flash
    ("AlarmLedActivAcked.ico", (150, 20, 25), True, "ring"),          # active, acknowledged: a ring
    ("AlarmLedNormal.ico", (30, 190, 40), True, "plain"),             # normal: a plain lit lamp
    ("AlarmLedNotSampled.ico", (165, 165, 165), False, "dash"),       # not sampled: unlit, a dash
    ("AlarmLedUncertain.ico", (245, 215, 0), True, "question"),       # uncertain: "?"
    ("AlarmLedBlocked.ico", (30, 90, 230), True, "lock"),             # blocked: a padlock
    ("AlarmLedManual.ico", (0, 185, 190), True, "hand"),              # manually entered: a raised hand
    ("AlarmLedSubstituted.ico", (170, 50, 200), True, "letter_s"),    # substituted: "S"
]
FALLBACK = "AlarmLedFallback.ico"
SIZES = (16, 32)
SUPERSAMPLE = 6
BEZEL_INNER = 0.84


def clamp(value):
    return max(0.0, min(1.0, value))


def mix(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def segment_distance(x, y, a, b):
    ax, ay = a
    bx, by = b
    dx, dy = bx - ax, by - ay
    t = clamp(((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy))
    return math.hypot(x - ax - t * dx, y - ay - t * dy)


def arc_distance(x, y, centre, radius, start, end):
    """Distance to a circular arc from angle start to end (degrees, y pointing down, clockwise)."""
    angle = math.degrees(math.atan2(y - centre[1], x - centre[0])) % 360.0
    start, end = start % 360.0, end % 360.0
    inside = start <= angle <= end if start <= end else (angle >= start or angle <= end)
    if inside:
        return abs(math.hypot(x - centre[0], y - centre[1]) - radius)
    ends = [(centre[0] + radius * math.cos(math.radians(a)), centre[1] + radius * math.sin(math.radians(a)))
            for a in (start, end)]
    return min(math.hypot(x - ex, y - ey) for ex, ey in ends)


def polyline_distance(x, y, points):
    return min(segment_distance(x, y, points[i], points[i + 1]) for i in range(len(points) - 1))


# Glyphs in lens coordinates (the lens has radius 1, y pointing down): (distance to the strokes'
# centre lines, half the stroke width). Strokes are thick, so that they survive 16x16 pixels.
STROKE = 0.15


def glyph_coverage(glyph, u, v, pixel):
    """How much of the point (u, v) the glyph covers, anti-aliased over one pixel's width."""
    if glyph == "mark":
        d = min(segment_distance(u, v, (0.0, -0.58), (0.0, 0.12)), math.hypot(u, v - 0.5))
    elif glyph == "flash":
        d = polyline_distance(u, v, [(0.22, -0.62), (-0.2, 0.04), (0.2, 0.04), (-0.22, 0.62)])
    elif glyph == "dash":
        d = segment_distance(u, v, (-0.45, 0.0), (0.45, 0.0))
    elif glyph == "question":
        d = min(arc_distance(u, v, (0.0, -0.25), 0.3, 180.0, 90.0),
                segment_distance(u, v, (0.0, 0.05), (0.0, 0.18)), math.hypot(u, v - 0.52))
    elif glyph == "lock":
        # A filled body under a thinner shackle, whose opening must stay visible.
        body = max(abs(u) - 0.42, abs(v - 0.18) - 0.28)
        shackle = min(arc_distance(u, v, (0.0, -0.24), 0.27, 180.0, 360.0),
                      segment_distance(u, v, (-0.27, -0.24), (-0.27, -0.1)),
                      segment_distance(u, v, (0.27, -0.24), (0.27, -0.1)))
        return max(clamp(-body / pixel + 0.5), clamp((STROKE * 0.75 - shackle) / pixel + 0.5))
    elif glyph == "hand":
        d = min(segment_distance(u, v, (-0.3, -0.35), (-0.3, 0.2)),
                segment_distance(u, v, (-0.05, -0.55), (-0.05, 0.2)),
                segment_distance(u, v, (0.2, -0.45), (0.2, 0.2)),
                segment_distance(u, v, (-0.3, 0.35), (0.3, 0.35)),
                segment_distance(u, v, (0.45, -0.05), (0.3, 0.35)),
                max(abs(u) - 0.3, abs(v - 0.27) - 0.1) + STROKE)
    elif glyph == "letter_s":
        d = min(arc_distance(u, v, (0.0, -0.27), 0.27, 90.0, 335.0),
                arc_distance(u, v, (0.0, 0.27), 0.27, 270.0, 155.0))
    else:
        return 0.0
    return clamp((STROKE - d) / pixel + 0.5)


def led_sample(x, y, base, lit, hollow, glyph, pixel):
    """Colour (0..1 floats) and alpha of one point of the unit LED, centred at (0, 0), radius 1."""
    r = math.hypot(x, y)
    if r > 1.0:
        return (0.0, 0.0, 0.0), 0.0
    base_f = tuple(c / 255.0 for c in base)
    if r > BEZEL_INNER:
        # A dark metallic rim, lighter towards the lower right where it catches the light.
        t = (x + y) / 2.0 * 0.5 + 0.5
        rim = mix((0.22, 0.22, 0.24), (0.62, 0.62, 0.66), clamp(t))
        return rim, 1.0
    if hollow:
        # The fallback: an empty socket, a faint dark glass over nothing.
        return (0.35, 0.35, 0.38), 0.25
    u, v = x / BEZEL_INNER, y / BEZEL_INNER
    if glyph == "ring":
        # Acknowledged: the lamp's colour only as a thick ring, its centre a pale disc.
        if math.hypot(u, v) < 0.5:
            return mix(base_f, (1.0, 1.0, 1.0), 0.85), 1.0
        return mix(base_f, (0.0, 0.0, 0.0), 0.1), 1.0
    # The body: lit from the upper left, darker at the rim of the lens.
    d = math.hypot(u + 0.35, v + 0.35) / 1.6
    shade = mix(mix(base_f, (1.0, 1.0, 1.0), 0.35 if lit else 0.30), base_f, clamp(d * 1.4))
    shade = mix(shade, tuple(c * 0.55 for c in base_f), clamp((d - 0.55) * 1.6))
    # A light body carries a dark glyph, a dark body a white one.
    luminance = 0.299 * base_f[0] + 0.587 * base_f[1] + 0.114 * base_f[2]
    ink = (0.05, 0.05, 0.05) if luminance > 0.55 else (1.0, 1.0, 1.0)
    coverage = glyph_coverage(glyph, u, v, pixel / BEZEL_INNER)
    if coverage <= 0:
        # A soft specular highlight up and to the left, only where no glyph is drawn.
        hx, hy = (u + 0.45) / 0.3, (v + 0.5) / 0.2
        shade = mix(shade, (1.0, 1.0, 1.0), clamp(1.0 - math.hypot(hx, hy)) * 0.6)
    return mix(shade, ink, coverage), 1.0


def render(size, base, lit, hollow=False, glyph="plain"):
    """RGBA rows (top to bottom) of one LED image, anti-aliased by supersampling."""
    margin = 0.5 if size <= 16 else 1.0
    radius = size / 2.0 - margin
    centre = size / 2.0
    pixel = 1.0 / radius
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
                    colour, a = led_sample(x, y, base, lit, hollow, glyph, pixel)
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
    """One picture of every icon: each row a LED, its 32x32 and 16x16 images enlarged and the 32x32
    at its own size, on light grey."""
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
    entries = [(name, base, lit, False, glyph) for name, base, lit, glyph in LEDS]
    entries.append((FALLBACK, (128, 128, 128), False, True, "plain"))
    for name, base, lit, hollow, glyph in entries:
        images = {size: render(size, base, lit, hollow, glyph) for size in SIZES}
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
