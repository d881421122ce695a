#!/usr/bin/env python3
"""Makes the palettes in this folder. With --check, fails when a file is not as it would be made."""

import itertools
import pathlib
import struct
import sys

# For each file: temperatures in degrees C, their colours, and what is seen there. From one temperature to the
# next, the colour changes evenly to the eye; where a temperature stands twice, it changes at once.
PALETTES = {
    "weather-map/thermal.bmp": [
        (-110, "#3b1f5e", "the coldest tops ever seen"),
        (-85, "#7a4f9e", "domes of tropical storms"),
        (-70, "#c9a9d6", "domes that rise above their anvils"),
        (-58, "#f6f2fa", "anvils"),
        (-40, "#d5e0f2", "ice clouds"),
        (-20, "#93b4dc", "rain clouds"),
        (0, "#4f86bb", "low clouds, frost"),
        (0, "#2f7f86", "cold sea"),
        (10, "#5fa27c", "cool"),
        (18, "#a5be78", "mild"),
        (25, "#e6d58c", "warm"),
        (33, "#e0a262", "hot"),
        (42, "#b85c42", "deserts"),
        (49.5, "#7a2c30", "deserts at noon"),
    ],
    "weather-map/sea.bmp": [
        (-10, "#ffffff", "clouds"),
        (-1.8, "#cfd9e6", "ice"),
        (-1.8, "#42337f", "sea water about to freeze"),
        (4, "#3a62ad", "polar currents"),
        (10, "#3f9cc0", "cold currents"),
        (15, "#62bfa5", "temperate seas"),
        (20, "#b9d68a", "good for a bath"),
        (24, "#f3de87", "subtropical seas"),
        (27, "#efb866", "tropical seas"),
        (30, "#d9693f", "the warmest oceans"),
        (34, "#a02f3c", "shallow gulfs in summer"),
        (39.8, "#5b1a35", "land"),
    ],
    "weather-map/hvc.bmp": [
        (-60, "#8a78b4", "anvils"),
        (-40, "#7f95c6", "ice clouds"),
        (-15, "#6f9cc0", "rain clouds"),
        (0, "#4f8fb0", "low clouds, snow"),
        (12, "#4a8f96", "sea, cool land"),
        (20, "#7aa070", "green land"),
        (28, "#b5a868", "dry grass"),
        (39, "#c07848", "bare ground"),
    ],
    "storms/thermal.bmp": [
        (-110, "#ffffff", "the coldest tops ever seen"),
        (-90, "#f4c8f0", "seldom seen"),
        (-90, "#5a1478", "domes of tropical storms"),
        (-80, "#e48ae4", ""),
        (-80, "#5e0a22", "domes that rise above their anvils"),
        (-70, "#e8382e", ""),
        (-70, "#f08a1d", "the heart of strong storms"),
        (-60, "#ffe96a", ""),
        (-60, "#135c33", "anvils"),
        (-50, "#8fdc7a", ""),
        (-50, "#10357e", "the edge of anvils"),
        (-40, "#7fd0f2", "all drops are frozen"),
        (-40, "#d6d6d6", "other clouds, without colours"),
        (0, "#7c7c7c", "freezing level"),
        (30, "#2a2a2a", "ground and sea"),
        (49.5, "#000000", "deserts"),
    ],
    "storms/sea.bmp": [
        (-10, "#ffffff", "clouds"),
        (-1.8, "#cfd3d8", "ice"),
        (-1.8, "#0e1a33", "polar seas"),
        (20, "#2c6a8e", "temperate seas"),
        (26.5, "#9fd0d4", "not warm enough"),
        (26.5, "#ffe884", "tropical storms can grow"),
        (29, "#f08a2c", "they can grow fast"),
        (31, "#cf2f2a", "the warmest oceans"),
        (34, "#7a0f3c", "shallow gulfs in summer"),
        (39.8, "#2a0820", "land"),
    ],
    "storms/hvc.bmp": [
        (-58, "#960010", "the heart of storms, and all that is colder"),
        (-54, "#a84600", "anvils"),
        (-50, "#967800", "anvils"),
        (-46, "#0c7820", "the edge of anvils"),
        (-42, "#0050a0", "all drops are frozen"),
        (-40, "#8890a0", "other clouds, nearly as the visible channel has them"),
        (0, "#788490", "freezing level"),
        (39, "#8c8468", "ground"),
    ],
    "clear-to-all/thermal.bmp": [
        (-110, "#fffef8", "the coldest tops ever seen"),
        (-85, "#f9eab0", "domes of tropical storms"),
        (-70, "#ecd570", "domes that rise above their anvils"),
        (-55, "#acc878", "anvils"),
        (-40, "#68b89c", "ice clouds"),
        (-20, "#3f94b4", "rain clouds"),
        (0, "#4a68b0", "freezing level"),
        (14, "#664090", "mild"),
        (26, "#722858", "warm"),
        (36, "#601828", "hot"),
        (49.5, "#2a0604", "deserts"),
    ],
    "clear-to-all/sea.bmp": [
        (-10, "#ffffff", "clouds"),
        (-1.8, "#dcf0ee", "ice"),
        (8, "#7cc6e0", "cold currents"),
        (16, "#4f90d8", "temperate seas"),
        (22, "#6a5cc0", "good for a bath"),
        (26.5, "#8a2f90", "tropical storms can grow"),
        (31, "#801850", "the warmest oceans"),
        (39.8, "#2a0808", "land"),
    ],
    "clear-to-all/hvc.bmp": [
        (-60, "#2c5690", "anvils"),
        (-30, "#3c76ac", "ice clouds, rain clouds"),
        (0, "#4c96ac", "freezing level"),
        (15, "#6ea68c", "sea, cool land"),
        (27, "#afaa5f", "warm land"),
        (39, "#f0b950", "hot, bare ground"),
    ],
    "greys/thermal.bmp": [
        (-110, "#ffffff", "the coldest tops ever seen"),
        (-70, "#dcdcdc", "domes that rise above their anvils"),
        (-40, "#b8b8b8", "ice clouds"),
        (-15, "#8c8c8c", "rain clouds"),
        (10, "#5c5c5c", "ground and sea"),
        (49.5, "#000000", "deserts at noon"),
    ],
    "greys/sea.bmp": [
        (-10, "#ffffff", "clouds"),
        (-1.8, "#e0e0e0", "ice"),
        (32, "#181818", "the warmest oceans"),
        (39.8, "#000000", "land"),
    ],
    "greys/hvc.bmp": [
        (-60, "#949494", "anvils"),
        (0, "#808080", "freezing level: just as the visible channel has it"),
        (39, "#6c6c6c", "hot, bare ground"),
    ],
}

# So that a temperature can be read, there are steps: from one temperature up to another, so many degrees wide.
STEPS = {
    "weather-map/sea.bmp": (-10, 40, 1),
    "storms/thermal.bmp": (-110, -40, 2),
    "storms/sea.bmp": (26.5, 33.5, 1),
    "storms/hvc.bmp": (-60, -40, 4),
}

# The temperature of the first cell and the step to the next, in tenths of a degree; the cells; the rows.
SCALES = {"thermal": (-1100, 5, 320, 1), "sea": (-100, 2, 250, 1), "hvc": (-600, 10, 100, 256)}

# OKLab and its numbers: Björn Ottosson, "A perceptual color space for image processing", 2020.
TO_LMS = ((0.4122214708, 0.5363325363, 0.0514459929), (0.2119034982, 0.6806995451, 0.1073969566),
          (0.0883024619, 0.2817188376, 0.6299787005))
TO_LAB = ((0.2104542553, 0.7936177850, -0.0040720468), (1.9779984951, -2.4285922050, 0.4505937099),
          (0.0259040371, 0.7827717662, -0.8086757660))
FROM_LAB = ((1, 0.3963377774, 0.2158037573), (1, -0.1055613458, -0.0638541728), (1, -0.0894841775, -1.2914855480))
FROM_LMS = ((4.0767416621, -3.3077115913, 0.2309699292), (-1.2684380046, 2.6097574011, -0.3413193965),
            (-0.0041960863, -0.7034186147, 1.7076147010))


def times(matrix, vector):
    return [sum(a * b for a, b in zip(row, vector)) for row in matrix]


def light(level):
    """The amount of light, 0 to 1, of a level of 0 to 255 (IEC 61966-2-1, sRGB)."""
    part = level / 255
    return part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4


def level(amount):
    """The level of an amount of light."""
    amount = min(max(amount, 0), 1)
    return 255 * (12.92 * amount if amount <= 0.0031308 else 1.055 * amount ** (1 / 2.4) - 0.055)


def luminance(levels):
    return sum(share * light(level) for share, level in zip((0.2126, 0.7152, 0.0722), levels))


def lab(colour):
    lms = times(TO_LMS, [light(level) for level in bytes.fromhex(colour[1:])])
    return times(TO_LAB, [part ** (1 / 3) for part in lms])


def mixed(stops, temperature):
    """Red, green and blue at this temperature, not rounded yet."""
    i = min(sum(stop[0] <= temperature for stop in stops), len(stops) - 1)
    (cold, cold_colour, _), (warm, warm_colour, _) = stops[i - 1 : i + 1]
    share = (temperature - cold) / (warm - cold)
    between = [a + share * (b - a) for a, b in zip(lab(cold_colour), lab(warm_colour))]
    return [level(root) for root in times(FROM_LMS, [part**3 for part in times(FROM_LAB, between)])]


def rounded(levels, steady):
    # Machines differ in last digits of powers. A colour for which these could matter must be moved.
    assert all(abs(level % 1 - 0.5) > 1e-6 for level in levels)
    nearest = [round(level) for level in levels]
    if not steady:
        return nearest
    # Neighbours differ by less than rounding does. Of the colours nearby, this takes the one of the right lightness.
    nearby = set(itertools.product(*[(max(n - 1, 0), n, min(n + 1, 255)) for n in nearest]))
    best, second = sorted((abs(luminance(colour) - luminance(levels)), colour) for colour in nearby)[:2]
    assert second[0] - best[0] > 1e-12
    return best[1]


def colours(name):
    first, step, cells, _ = SCALES[pathlib.Path(name).stem]
    start, end, width = STEPS.get(name, (0, 0, 0))
    steady = name.startswith("clear-to-all/")
    row = []
    for tenths in range(first, first + cells * step, step):
        temperature = tenths / 10
        if start <= temperature < end:
            temperature = start + ((temperature - start) // width + 0.5) * width
        row.append(rounded(mixed(PALETTES[name], temperature), steady))
    lightness = [luminance(colour) for colour in row]
    assert not steady or sorted(set(lightness)) in (lightness, lightness[::-1])
    return row


def image(name):
    _, _, cells, rows = SCALES[pathlib.Path(name).stem]
    levels = [level for colour in colours(name) for level in reversed(colour)]
    headers = struct.pack("<2s6i2h6i", b"BM", 0, 0, 54, 40, cells, rows, 1, 24, 0, 0, 2834, 2834, 0, 0)
    # The bottom row comes first. An HVC image has the cells' own colours in row 127 from the top.
    shifts = range(-128, 128) if rows > 1 else [0]
    pixels = [bytes(min(max(level + shift, 0), 255) for level in levels) for shift in shifts]
    return headers + b"".join(row + bytes(-len(row) % 4) for row in pixels)


if __name__ == "__main__":
    if sys.argv[1:] not in ([], ["--check"]):
        sys.exit(f"usage: {sys.argv[0]} [--check]")
    for name in PALETTES:
        path = pathlib.Path(__file__).parent / name
        if sys.argv[1:]:
            if not path.is_file() or path.read_bytes() != image(name):
                sys.exit(f"{path} is not as this program makes it")
        else:
            path.parent.mkdir(exist_ok=True)
            path.write_bytes(image(name))
