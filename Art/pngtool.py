#!/usr/bin/env python3
"""Tiny stdlib-only PNG helper for the icon art.

  pngtool.py zoom IN.png FACTOR OUT.png   nearest-neighbour enlargement
  pngtool.py info IN.png                  print "WIDTH HEIGHT COLOURTYPE"

Only reads 8-bit RGBA, non-interlaced PNGs (what rsvg-convert writes).
"""
import struct
import sys
import zlib


def read_png(path):
    with open(path, "rb") as f:
        data = f.read()
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise SystemExit(f"{path}: not a PNG")
    pos, idat, hdr = 8, b"", None
    while pos < len(data):
        (length,) = struct.unpack(">I", data[pos:pos + 4])
        kind = data[pos + 4:pos + 8]
        body = data[pos + 8:pos + 8 + length]
        pos += 12 + length
        if kind == b"IHDR":
            hdr = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            idat += body
    width, height, depth, ctype, _, _, interlace = hdr
    if depth != 8 or ctype != 6 or interlace != 0:
        raise SystemExit(f"{path}: expected 8-bit RGBA non-interlaced PNG")
    raw = zlib.decompress(idat)
    bpp, stride = 4, width * 4
    rows, prev, i = [], bytearray(stride), 0
    for _ in range(height):
        ftype = raw[i]
        line = bytearray(raw[i + 1:i + 1 + stride])
        i += 1 + stride
        for x in range(stride):
            a = line[x - bpp] if x >= bpp else 0
            b = prev[x]
            c = prev[x - bpp] if x >= bpp else 0
            if ftype == 1:
                line[x] = (line[x] + a) & 0xFF
            elif ftype == 2:
                line[x] = (line[x] + b) & 0xFF
            elif ftype == 3:
                line[x] = (line[x] + ((a + b) >> 1)) & 0xFF
            elif ftype == 4:
                p = a + b - c
                pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
                pred = a if pa <= pb and pa <= pc else (b if pb <= pc else c)
                line[x] = (line[x] + pred) & 0xFF
        rows.append(bytes(line))
        prev = line
    return width, height, ctype, rows


def encode_png(width, height, rows):
    def chunk(kind, body):
        crc = zlib.crc32(kind + body) & 0xFFFFFFFF
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", crc)

    raw = b"".join(b"\x00" + r for r in rows)
    out = b"\x89PNG\r\n\x1a\n"
    out += chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
    out += chunk(b"IDAT", zlib.compress(raw, 9))
    out += chunk(b"IEND", b"")
    return out


def write_png(path, width, height, rows):
    with open(path, "wb") as f:
        f.write(encode_png(width, height, rows))


def zoomed(src, factor):
    """Return (width, height, rows) of SRC enlarged FACTOR times, nearest-neighbour."""
    width, height, _, rows = read_png(src)
    big = []
    for r in rows:
        line = b"".join(r[x * 4:x * 4 + 4] * factor for x in range(width))
        big.extend([line] * factor)
    return width * factor, height * factor, big


def zoom(src, factor, dst):
    write_png(dst, *zoomed(src, factor))


if __name__ == "__main__":
    if len(sys.argv) == 5 and sys.argv[1] == "zoom":
        zoom(sys.argv[2], int(sys.argv[3]), sys.argv[4])
    elif len(sys.argv) == 3 and sys.argv[1] == "info":
        w, h, t, _ = read_png(sys.argv[2])
        print(w, h, t)
    else:
        raise SystemExit(__doc__)
