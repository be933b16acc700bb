#!/usr/bin/env python3
"""Writes a plain VRML 1.0 benchmark scene: one Coordinate3 with POINTS
points (coordinates with six decimals, on a gently waved grid) and one
IndexedFaceSet of triangles over them, as many as bring the file to about
TARGET_MB megabytes (10^6 bytes). The same arguments always give the same file.

    bench/make_scene.py POINTS TARGET_MB OUTPUT
"""

import math
import sys

HEADER = "#VRML V1.0 ascii\n\nSeparator {\n\tCoordinate3 {\n\t\tpoint [\n"
MIDDLE = "\t\t]\n\t}\n\tIndexedFaceSet {\n\t\tcoordIndex [\n"
FOOTER = "\t\t]\n\t}\n}\n"
CHUNK = 20000


def grid_size(points):
    """Columns and rows of a near-square grid holding exactly `points`."""
    columns = int(math.sqrt(points))
    while points % columns:
        columns -= 1
    return columns, points // columns


def point_lines(points, columns):
    for i in range(points):
        x = (i % columns) * 0.013579 - 1.0
        y = (i // columns) * 0.024681 - 2.0
        z = 0.25 * math.sin(3.1 * x) * math.cos(2.3 * y) + 1e-6 * (i % 7)
        yield f"\t\t\t{x:.6f} {y:.6f} {z:.6f},\n"


def triangle_lines(columns, rows):
    """Two triangles per grid cell, cell by cell, row by row."""
    for row in range(rows - 1):
        for column in range(columns - 1):
            a = row * columns + column
            b = a + 1
            c = a + columns
            d = c + 1
            yield f"\t\t\t{a}, {b}, {d}, -1,\n"
            yield f"\t\t\t{a}, {d}, {c}, -1,\n"


def write_lines(out, lines, budget=None):
    """Writes lines, stopping before `budget` bytes are exceeded; returns the
    number of bytes written."""
    written = 0
    chunk = []
    chunk_bytes = 0
    for line in lines:
        if budget is not None and written + chunk_bytes + len(line) > budget:
            break
        chunk.append(line)
        chunk_bytes += len(line)
        if len(chunk) == CHUNK:
            out.write("".join(chunk))
            written += chunk_bytes
            chunk, chunk_bytes = [], 0
    out.write("".join(chunk))
    return written + chunk_bytes


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    points = int(sys.argv[1])
    target = int(float(sys.argv[2]) * 1_000_000)
    columns, rows = grid_size(points)
    with open(sys.argv[3], "w", encoding="ascii", newline="\n") as out:
        size = out.write(HEADER)
        size += write_lines(out, point_lines(points, columns))
        size += out.write(MIDDLE)
        budget = max(0, target - size - len(FOOTER))
        size += write_lines(out, triangle_lines(columns, rows), budget)
        size += out.write(FOOTER)
    print(f"{sys.argv[3]}: {points} points, {size / 1e6:.1f} MB")


if __name__ == "__main__":
    main()
