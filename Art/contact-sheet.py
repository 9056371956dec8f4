#!/usr/bin/env python3
"""Write the contact sheet of the icon set as SVG to stdout.

Run from the plugin root (render-icons.sh does this). Every icon is embedded
as a data URI at its real size; the 16 px versions are also shown enlarged
4x with nearest-neighbour scaling so their pixel grid can be judged.
"""
import base64
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import pngtool  # noqa: E402

# (title, small file, large file)
ENTRIES = [
    ("Logo", "Resources/Logo/Logo_40x.png", "Resources/Logo/Logo_80x.png"),
    ("Wizard", "Resources/Wizard/Wizard_16x.png", "Resources/Wizard/Wizard_128x.png"),
] + [
    (n, f"Resources/ClassIcons/{n}_16x.png", f"Resources/ClassIcons/{n}_64x.png")
    for n in ["CineCapture", "360Capture", "SpoutSender", "SpoutReceiver", "NDI",
              "ViewportCapture", "MediaOutput", "VirtualCam", "ScreenCapture",
              "CGElement", "CGMatte", "VideoPlacementPlane"]
]

SHEET_BG = "#1a1a1a"
CARD_BG = "#242424"
LABEL = "#bdbdbd"
DIM = "#7a7a7a"
COLS, CARD_W, CARD_H, GAP, MARGIN, HEADER = 2, 520, 200, 16, 24, 56
BASE = 150  # icon bottom edge inside a card


def data_uri(png_bytes):
    return "data:image/png;base64," + base64.b64encode(png_bytes).decode("ascii")


def image(x, y, w, h, uri):
    return (f'<image x="{x}" y="{y}" width="{w}" height="{h}" '
            f'xlink:href="{uri}"/>')


def text(x, y, s, size=12, fill=LABEL, anchor="middle", weight="normal"):
    return (f'<text x="{x}" y="{y}" font-family="DejaVu Sans" font-size="{size}" '
            f'font-weight="{weight}" fill="{fill}" text-anchor="{anchor}">{s}</text>')


def card(cx, cy, title, small, large):
    out = [f'<rect x="{cx}" y="{cy}" width="{CARD_W}" height="{CARD_H}" rx="6" fill="{CARD_BG}"/>',
           text(cx + 14, cy + 24, title, 14, "#e6e6e6", "start", "bold")]
    x = cx + 24
    views = [(small, 1), (large, 1)]
    if pngtool.read_png(small)[0] <= 16:
        views.insert(1, (small, 4))
    for path, factor in views:
        w, h, _, rows = pngtool.read_png(path)
        if factor == 1:
            with open(path, "rb") as f:
                uri = data_uri(f.read())
        else:
            zw, zh, zrows = pngtool.zoomed(path, factor)
            uri = data_uri(pngtool.encode_png(zw, zh, zrows))
        dw, dh = w * factor, h * factor
        slot = max(dw, 150)
        out.append(image(x + (slot - dw) // 2, cy + BASE - dh, dw, dh, uri))
        name = os.path.basename(path)
        label = name
        out.append(text(x + slot // 2, cy + BASE + 22, label, 10,
                        LABEL if factor == 1 else DIM))
        size = f"{w}x{h}" if factor == 1 else f"{w}x{h} shown at {factor}x"
        out.append(text(x + slot // 2, cy + BASE + 37, size, 10, DIM))
        x += slot + 12
    return out


def main():
    rows = (len(ENTRIES) + COLS - 1) // COLS
    width = MARGIN * 2 + COLS * CARD_W + (COLS - 1) * GAP
    height = MARGIN * 2 + HEADER + rows * CARD_H + (rows - 1) * GAP
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" '
           f'xmlns:xlink="http://www.w3.org/1999/xlink" '
           f'width="{width}" height="{height}" viewBox="0 0 {width} {height}">',
           f'<rect width="{width}" height="{height}" fill="{SHEET_BG}"/>',
           text(MARGIN, MARGIN + 22, "KyroCastellan editor icons", 20, "#f0f0f0", "start", "bold"),
           text(MARGIN, MARGIN + 42, "Resources/ — real size, 16 px also at 4x (nearest neighbour)",
                12, DIM, "start")]
    for i, (title, small, large) in enumerate(ENTRIES):
        cx = MARGIN + (i % COLS) * (CARD_W + GAP)
        cy = MARGIN + HEADER + (i // COLS) * (CARD_H + GAP)
        out += card(cx, cy, title, small, large)
    out.append("</svg>")
    sys.stdout.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main()
