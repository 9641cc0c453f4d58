#!/usr/bin/env python3
"""Writes the pan cursor of the library, Source/resources/ZemPan.cur.

The cursor is a black four-headed arrow with a white rim on a transparent
ground, 32 by 32 pixels, its hot spot in the crossing of the shafts. Run it
from anywhere; with --print it shows the picture instead of writing it.
"""
import os
import struct
import sys

SIZE = 32
CENTRE = 15
REACH = 13      # from the centre to each arrow tip
HEAD = 6        # length of an arrow head
SHAFT = 1       # half width of a shaft


def on_arrow(x, y):
    """Whether (x, y) lies on the black figure."""
    dx, dy = x - CENTRE, y - CENTRE
    for along, across in ((dx, dy), (dy, dx)):
        distance = abs(along)
        if distance > REACH or abs(across) > REACH:
            continue
        if distance <= REACH - HEAD and abs(across) <= SHAFT:
            return True
        # Each head narrows by one pixel a step from its base to its tip.
        if distance > REACH - HEAD and abs(across) <= REACH - distance:
            return True
    return False


def picture():
    """Rows of 'B' (black), 'W' (white rim) and '.' (transparent)."""
    black = {(x, y) for y in range(SIZE) for x in range(SIZE) if on_arrow(x, y)}
    rows = []
    for y in range(SIZE):
        row = ''
        for x in range(SIZE):
            if (x, y) in black:
                row += 'B'
            elif any((x + i, y + j) in black for i in (-1, 0, 1) for j in (-1, 0, 1)):
                row += 'W'
            else:
                row += '.'
        rows.append(row)
    return rows


def mask_bytes(rows, bit_of):
    """A 1-bit bitmap of the rows, bottom row first, leftmost pixel in the high bit."""
    out = bytearray()
    for row in reversed(rows):
        value = 0
        for x, cell in enumerate(row):
            if bit_of(cell):
                value |= 1 << (31 - x)
        out += struct.pack('>I', value)
    return bytes(out)


def cursor_file(rows):
    # The colour plane is white for the rim; the AND plane keeps the screen
    # where the cursor is transparent.
    colour = mask_bytes(rows, lambda c: c == 'W')
    keep = mask_bytes(rows, lambda c: c == '.')
    header = struct.pack('<IiiHHIIiiII', 40, SIZE, 2 * SIZE, 1, 1, 0, len(colour) + len(keep), 0, 0, 2, 0)
    palette = bytes((0, 0, 0, 0, 255, 255, 255, 0))
    image = header + palette + colour + keep
    directory = struct.pack('<HHH', 0, 2, 1)
    entry = struct.pack('<BBBBHHII', SIZE, SIZE, 0, 0, CENTRE, CENTRE, len(image), 6 + 16)
    return directory + entry + image


def main():
    rows = picture()
    if '--print' in sys.argv:
        print('\n'.join(rows))
        return
    here = os.path.dirname(os.path.abspath(__file__))
    target = os.path.join(here, '..', '..', 'Source', 'resources', 'ZemPan.cur')
    with open(target, 'wb') as f:
        f.write(cursor_file(rows))


if __name__ == '__main__':
    main()
