#!/usr/bin/env python3
"""Draws the pictograms of the delivered galleries. Run: pictograms.py FOLDER

Each is a 24-bit .bmp of 128 by 128 in a gallery folder "CAT_IMG_<gallery>". A picture is a list of shapes in
a square of 100 by 100, painted one over the other and smoothed by 3 by 3 samples a pixel.
"""

import math
import struct
import sys
from pathlib import Path

SIZE = 128
SAMPLES = 3

WHITE, INK = (255, 255, 255), (40, 48, 60)
RED, GREEN, BLUE, YELLOW = (205, 60, 55), (60, 150, 85), (60, 125, 200), (245, 195, 60)
BROWN, SKIN, PALE = (150, 100, 60), (240, 200, 165), (200, 225, 245)


def circle(x, y, radius, color):
    return lambda px, py: color if (px - x) ** 2 + (py - y) ** 2 <= radius ** 2 else None


def polygon(color, *points):
    def inside(px, py):
        odd = False
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 > py) != (y2 > py) and px < (x2 - x1) * (py - y1) / (y2 - y1) + x1:
                odd = not odd
        return color if odd else None
    return inside


def box(x1, y1, x2, y2, color):
    return polygon(color, (x1, y1), (x2, y1), (x2, y2), (x1, y2))


def line(x1, y1, x2, y2, width, color):
    """A straight stroke with round ends."""
    length = math.hypot(x2 - x1, y2 - y1) or 1.0

    def inside(px, py):
        t = max(0.0, min(1.0, ((px - x1) * (x2 - x1) + (py - y1) * (y2 - y1)) / length ** 2))
        distance = math.hypot(px - x1 - t * (x2 - x1), py - y1 - t * (y2 - y1))
        return color if distance <= width / 2 else None
    return inside


def arc(x, y, radius, start, end, width, color):
    """Part of a ring, from `start` to `end` degrees, clockwise from the right."""
    def inside(px, py):
        angle = math.degrees(math.atan2(py - y, px - x)) % 360
        on_ring = abs(math.hypot(px - x, py - y) - radius) <= width / 2
        return color if on_ring and start <= angle <= end else None
    return inside


def face(mouth):
    return [circle(50, 50, 42, INK), circle(50, 50, 39, YELLOW), circle(35, 42, 5, INK), circle(65, 42, 5, INK), mouth]


def drop(x, y, size, color):
    return [circle(x, y, size, color),
            polygon(color, (x - size * 0.9, y - size * 0.45), (x, y - size * 2.3), (x + size * 0.9, y - size * 0.45))]


GALLERIES = {
    'Respostas': {
        'sim': [line(18, 55, 42, 78, 13, GREEN), line(42, 78, 84, 24, 13, GREEN)],
        'nao': [line(22, 22, 78, 78, 13, RED), line(78, 22, 22, 78, 13, RED)],
        'parar': [polygon(RED, (32, 8), (68, 8), (92, 32), (92, 68), (68, 92), (32, 92), (8, 68), (8, 32)),
                  box(24, 44, 76, 56, WHITE)],
        'ajuda': [circle(50, 50, 42, BLUE), circle(50, 50, 22, WHITE),
                  *[line(50 + 24 * math.cos(a), 50 + 24 * math.sin(a), 50 + 40 * math.cos(a), 50 + 40 * math.sin(a),
                         11, WHITE) for a in (math.pi / 4 * n for n in (1, 3, 5, 7))]],
    },
    'Sentimentos': {
        'contente': face(arc(50, 52, 23, 20, 160, 6, INK)),
        'triste': face(arc(50, 82, 20, 205, 335, 6, INK)),
        'assim-assim': face(line(33, 68, 67, 68, 6, INK)),
        'gostar': [circle(33, 36, 21, RED), circle(67, 36, 21, RED), polygon(RED, (14, 45), (50, 92), (86, 45), (50, 30))],
    },
    'Casa': {
        'casa': [box(22, 46, 78, 90, (235, 215, 180)), polygon(RED, (10, 50), (50, 12), (90, 50)), box(42, 60, 58, 90, BROWN),
                 box(28, 56, 38, 68, PALE), box(62, 56, 72, 68, PALE)],
        'porta': [box(28, 8, 72, 92, BROWN), box(34, 15, 66, 45, (175, 125, 80)), box(34, 52, 66, 86, (175, 125, 80)),
                  circle(63, 49, 4, YELLOW)],
        'cama': [box(8, 30, 15, 85, BROWN), box(85, 50, 92, 85, BROWN), box(15, 55, 85, 72, BLUE), box(15, 46, 40, 56, PALE)],
        'agua': drop(50, 62, 27, BLUE) + [arc(50, 62, 18, 100, 170, 5, PALE)],
        'comer': [circle(50, 52, 32, INK), circle(50, 52, 30, WHITE), circle(50, 52, 20, PALE), line(12, 20, 12, 85, 5, INK),
                  line(7, 18, 7, 38, 3, INK), line(17, 18, 17, 38, 3, INK), line(88, 20, 88, 85, 6, INK)],
        'dormir': [circle(46, 50, 38, (55, 65, 120)), circle(62, 40, 32, WHITE), line(60, 20, 76, 20, 4, INK),
                   line(76, 20, 60, 38, 4, INK), line(60, 38, 76, 38, 4, INK)],
    },
    'Rua': {
        'sol': [circle(50, 50, 22, YELLOW)] +
               [line(50 + 30 * math.cos(a), 50 + 30 * math.sin(a), 50 + 43 * math.cos(a), 50 + 43 * math.sin(a), 6, YELLOW)
                for a in (math.pi / 4 * n for n in range(8))],
        'chuva': [circle(34, 40, 18, (150, 165, 185)), circle(58, 34, 22, (150, 165, 185)), circle(74, 44, 14, (150, 165, 185)),
                  box(34, 40, 74, 58, (150, 165, 185)), *[line(x, 66, x - 6, 86, 5, BLUE) for x in (36, 54, 72)]],
        'carro': [box(8, 46, 92, 70, BLUE), polygon(BLUE, (24, 48), (36, 28), (68, 28), (80, 48)),
                  polygon(PALE, (32, 46), (40, 33), (50, 33), (50, 46)), polygon(PALE, (54, 46), (54, 33), (65, 33), (72, 46)),
                  circle(28, 70, 11, INK), circle(72, 70, 11, INK), circle(28, 70, 4, WHITE), circle(72, 70, 4, WHITE)],
        'flor': [line(50, 50, 50, 94, 5, GREEN)] +
                [circle(50 + 17 * math.cos(a), 36 + 17 * math.sin(a), 12, RED) for a in (math.pi / 3 * n for n in range(6))] +
                [circle(50, 36, 10, YELLOW)],
    },
}


def paint(shapes):
    """The pixels of a picture, bottom row first, blue-green-red, as the file wants them."""
    shapes = shapes[::-1]
    step = 100 / (SIZE * SAMPLES)

    def color_at(x, y):
        for shape in shapes:
            color = shape(x, y)
            if color:
                return color
        return WHITE

    rows = bytearray()
    for row in reversed(range(SIZE)):
        for column in range(SIZE):
            hits = [color_at((column * SAMPLES + i + 0.5) * step, (row * SAMPLES + j + 0.5) * step)
                    for i in range(SAMPLES) for j in range(SAMPLES)]
            rows += bytes(sum(h[c] for h in hits) // len(hits) for c in (2, 1, 0))
    return rows


def main():
    for gallery, pictures in GALLERIES.items():
        folder = Path(sys.argv[1]) / ('CAT_IMG_' + gallery)
        folder.mkdir(parents=True, exist_ok=True)
        for name, shapes in pictures.items():
            pixels = paint(shapes)
            header = struct.pack('<2sIHHIIiiHHIIiiII', b'BM', 54 + len(pixels), 0, 0, 54,
                                 40, SIZE, SIZE, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
            (folder / (name + '.bmp')).write_bytes(header + pixels)


if __name__ == '__main__':
    main()
