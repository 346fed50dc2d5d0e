#!/usr/bin/env python3
"""Writes the media files of the sample project into the folder Media beside this script.

The same bytes every time; nothing but the standard library is needed.
"""

import math
import struct
import zlib
from pathlib import Path

WIDTH, HEIGHT = 32, 18  # pixels of the moving pictures; a row is a multiple of four bytes


def night_sky(x, y, width, height, step=0.0):
    """The colour of one pixel: a dark sky over water, with a light that moves from left to right."""
    horizon = y / (height - 1)
    red, green, blue = (12, 20, 60 + 40 * horizon) if horizon < 0.6 else (6, 40 - 20 * horizon, 50)
    distance = math.hypot(x - step * (width - 1), (y - 0.55 * height) * 2)
    glow = max(0.0, 1.0 - distance / (0.3 * width))
    return tuple(min(255, int(part + glow * light)) for part, light in zip((red, green, blue), (235, 190, 90)))


def picture(width, height, step=0.0):
    """Rows of (red, green, blue), the top row first."""
    return [[night_sky(x, y, width, height, step) for x in range(width)] for y in range(height)]


def rgb_bytes(rows):
    return b"".join(bytes(pixel) for row in rows for pixel in row)


# Stills


def png(rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 2, 0, 0, 0)
    lines = b"".join(b"\0" + rgb_bytes([row]) for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(lines, 9))
            + chunk(b"IEND", b""))


def tiff(rows):
    """Little-endian, one uncompressed strip of RGB."""
    width, height, data = len(rows[0]), len(rows), rgb_bytes(rows)
    bits_at = 8 + 2 + 10 * 12 + 4
    data_at = bits_at + 6
    short, long = 3, 4
    entries = [(256, short, 1, width), (257, short, 1, height), (258, short, 3, bits_at), (259, short, 1, 1),
               (262, short, 1, 2), (273, long, 1, data_at), (277, short, 1, 3), (278, short, 1, height),
               (279, long, 1, len(data)), (284, short, 1, 1)]
    directory = b"".join(struct.pack("<HHII", *entry) for entry in entries)
    return (b"II*\0" + struct.pack("<IH", 8, len(entries)) + directory + struct.pack("<I", 0)
            + struct.pack("<HHH", 8, 8, 8) + data)


def jpeg(rows):
    """Baseline, each block of 8 × 8 pixels in one colour (that of its first pixel)."""
    def segment(marker, data):
        return struct.pack(">BBH", 0xFF, marker, len(data) + 2) + data

    width, height = len(rows[0]), len(rows)
    # Lengths of the codes for the sizes 0 to 11 of a difference, and codes in order of length.
    lengths = [0, 1, 5, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0]
    codes, code = [], 0
    for bits, count in enumerate(lengths, start=1):
        for _ in range(count):
            codes.append((code, bits))
            code += 1
        code <<= 1

    stream = []
    previous = [0, 0, 0]
    for top in range(0, height, 8):
        for left in range(0, width, 8):
            red, green, blue = rows[top][left]
            luma = 0.299 * red + 0.587 * green + 0.114 * blue
            for part, level in enumerate((luma - 128, (blue - luma) / 1.772, (red - luma) / 1.402)):
                value = max(-128, min(127, round(level)))
                difference, previous[part] = value - previous[part], value
                size = abs(difference).bit_length()
                stream.append("{:0{}b}".format(*codes[size]))
                if size:
                    bits = difference if difference > 0 else difference + (1 << size) - 1
                    stream.append("{:0{}b}".format(bits, size))
                stream.append("0")  # end of block
    bits = "".join(stream)
    bits += "1" * (-len(bits) % 8)
    data = bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8)).replace(b"\xff", b"\xff\0")

    parts = b"".join(bytes((part, 0x11, 0)) for part in (1, 2, 3))
    return (b"\xff\xd8" + segment(0xE0, b"JFIF\0\1\1\0\0\1\0\1\0\0")
            + segment(0xDB, b"\0" + bytes([8] * 64))
            + segment(0xC0, struct.pack(">BHHB", 8, height, width, 3) + parts)
            + segment(0xC4, b"\0" + bytes(lengths) + bytes(range(12)))
            + segment(0xC4, b"\x10" + bytes([1] + [0] * 15) + b"\0")
            + segment(0xDA, b"\3\1\0\2\0\3\0\0\x3f\0") + data + b"\xff\xd9")


# Sound


def wav(seconds, rate, frequency):
    """One channel of 16 bits: a soft tone that swells and fades, or silence for the frequency 0."""
    count = int(seconds * rate)
    samples = [round(9000 * math.sin(math.pi * i / count) * math.sin(2 * math.pi * frequency * i / rate))
               for i in range(count)]
    data = struct.pack("<{}h".format(count), *samples)
    form = struct.pack("<HHIIHH", 1, 1, rate, rate * 2, 2, 16)
    body = b"WAVEfmt " + struct.pack("<I", len(form)) + form + b"data" + struct.pack("<I", len(data)) + data
    return b"RIFF" + struct.pack("<I", len(body)) + body


# Moving pictures


def avi(frames, rate):
    """Uncompressed, 24 bits a pixel, rows from the bottom up, blue first."""
    def chunk(kind, data):
        return kind + struct.pack("<I", len(data)) + data

    def listed(kind, data):
        return chunk(b"LIST", kind + data)

    images = [b"".join(bytes(pixel[::-1]) for row in reversed(rows) for pixel in row) for rows in frames]
    size = len(images[0])
    main = struct.pack("<14I", 1000000 // rate, size * rate, 0, 0x10, len(images), 0, 1, size, WIDTH, HEIGHT,
                       0, 0, 0, 0)
    stream = b"vidsDIB " + struct.pack("<IHHIIIIIIII4H", 0, 0, 0, 0, 1, rate, 0, len(images), size, 10000, 0,
                                       0, 0, WIDTH, HEIGHT)
    form = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, size, 0, 0, 0, 0)
    header = listed(b"hdrl", chunk(b"avih", main)
                    + listed(b"strl", chunk(b"strh", stream) + chunk(b"strf", form)))
    movie = listed(b"movi", b"".join(chunk(b"00db", image) for image in images))
    index = b"".join(b"00db" + struct.pack("<III", 0x10, 4 + i * (size + 8), size) for i in range(len(images)))
    return chunk(b"RIFF", b"AVI " + header + movie + chunk(b"idx1", index))


def mov(frames, timescale, ticks):
    """Uncompressed, 24 bits a pixel; each frame lasts that many ticks of the time scale."""
    def atom(kind, *parts):
        data = b"".join(parts)
        return struct.pack(">I", len(data) + 8) + kind + data

    def full(kind, form, *values):
        return atom(kind, struct.pack(">I" + form, 0, *values))

    def handler(kind, subtype, name):
        return atom(b"hdlr", b"\0\0\0\0" + kind + subtype + bytes(12) + bytes((len(name),)) + name)

    images = [rgb_bytes(rows) for rows in frames]
    duration = len(images) * ticks
    matrix = struct.pack(">9I", 0x10000, 0, 0, 0, 0x10000, 0, 0, 0, 0x40000000)
    kind = atom(b"ftyp", b"qt  \0\0\0\0qt  ")
    data = atom(b"mdat", *images)
    entry = atom(b"raw ", bytes(6), struct.pack(">H", 1), bytes(16),
                 struct.pack(">HHIIIH", WIDTH, HEIGHT, 0x480000, 0x480000, 0, 1), bytes(32),
                 struct.pack(">Hh", 24, -1))
    table = atom(b"stbl",
                 atom(b"stsd", struct.pack(">II", 0, 1), entry),
                 full(b"stts", "III", 1, len(images), ticks),
                 full(b"stsc", "IIII", 1, 1, len(images), 1),
                 full(b"stsz", "II", len(images[0]), len(images)),
                 full(b"stco", "II", 1, len(kind) + 8))
    information = atom(b"minf", atom(b"vmhd", struct.pack(">IHHHH", 1, 0, 0, 0, 0)),
                       handler(b"dhlr", b"alis", b"Data"),
                       atom(b"dinf", atom(b"dref", struct.pack(">II", 0, 1),
                                          atom(b"alis", struct.pack(">I", 1)))), table)
    media = atom(b"mdia", full(b"mdhd", "IIIIHH", 0, 0, timescale, duration, 0, 0),
                 handler(b"mhlr", b"vide", b"Video"), information)
    track = atom(b"trak", atom(b"tkhd", struct.pack(">IIIIII", 15, 0, 0, 1, 0, duration), bytes(16), matrix,
                               struct.pack(">II", WIDTH << 16, HEIGHT << 16)), media)
    header = atom(b"mvhd", struct.pack(">IIIIIIH", 0, 0, 0, timescale, duration, 0x10000, 0x100), bytes(10),
                  matrix, bytes(24), struct.pack(">I", 2))
    return kind + data + atom(b"moov", header, track)


def moving(count):
    return [picture(WIDTH, HEIGHT, i / (count - 1)) for i in range(count)]


def main():
    folder = Path(__file__).resolve().parent / "Media"
    folder.mkdir(exist_ok=True)
    files = {
        "Harbour Wide.avi": avi(moving(25), 25),
        "Boat crossing #2.mov": mov(moving(15), 30000, 1001),
        "Quay camera A.mov": mov(moving(10), 30000, 1001),
        "Quay camera B.mov": mov(list(reversed(moving(10))), 30000, 1001),
        "Harbour map.jpg": jpeg(picture(64, 48, 0.5)),
        "Küste bei Nacht.png": png(picture(96, 54, 0.25)),
        "Гавань.tif": tiff(picture(64, 36, 0.75)),
        "Fête du port.wav": wav(1, 22050, 440),
        "Narration.wav": wav(1, 16000, 0),
        "Room tone 50%.wav": wav(0.5, 16000, 60),
    }
    for name, data in files.items():
        (folder / name).write_bytes(data)


if __name__ == "__main__":
    main()
