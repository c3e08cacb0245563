#!/usr/bin/env python3
"""Puts pictures side by side on the stands' dark colour, large and at the sizes at which they are seen.

Usage: contact_sheet.py OUTPUT.png HEIGHT[,HEIGHT...] [NAME ...]
"""

import pathlib
import sys

from PIL import Image

RESOURCES = pathlib.Path(__file__).resolve().parent.parent.parent / "resources"
BACKGROUND = (40, 38, 52)
GAP = 12


def main(output, heights, names):
    files = [RESOURCES / f"{n}.png" for n in names] or sorted(RESOURCES.glob("Spectator*.png"))
    pictures = [Image.open(f).convert("RGBA") for f in files]
    rows = []
    for height in heights:
        rows.append([p.resize((max(1, round(p.width * height / p.height)), height), Image.LANCZOS) for p in pictures])
    width = max(sum(p.width + GAP for p in row) + GAP for row in rows)
    sheet = Image.new("RGB", (width, sum(h + GAP for h in heights) + GAP), BACKGROUND)
    y = GAP
    for row, height in zip(rows, heights):
        x = GAP
        for p in row:
            sheet.paste(p, (x, y), p)
            x += p.width + GAP
        y += height + GAP
    sheet.save(output)


if __name__ == "__main__":
    main(sys.argv[1], [int(h) for h in sys.argv[2].split(",")], sys.argv[3:])
