#!/usr/bin/env python3
"""Memory per copied node.

    bench/copies.py LUMERIC

A LOOP of N and of 2N repetitions of one body, translated to VRML 1.0; the
difference of the two peaks (resident memory, /usr/bin/time), divided by N,
is what one repetition costs while the scene is held: the repetition's own
container, the copied node with its fields, and its place in the lists.
The bodies: an empty Group (the container and the copy alone), a Cube, a
Translation (one SFVec3f), a Ball (two declared fields), and a node of a
class of its own with one to four SFFloat fields, whose steps give the cost
of a declared field.
"""
import os
import shutil
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from generators import HEADER, LOOP, measure  # noqa: E402

N = 100000


def declared(count):
    names = ", ".join("SFFloat f%d" % k for k in range(count))
    values = " ".join("f%d =position" % k for k in range(count))
    return "Thing { fields [ %s ] %s }" % (names, values)


BODIES = [
    ("Group", "Group {}"),
    ("Cube", "Cube { width =position }"),
    ("Translation", "Translation { translation =(position,0,0) }"),
    ("Ball", "Ball { fields [ SFVec3f center, SFFloat radius ] center =(position*2,sin(position),0) radius 0.5 }"),
] + [("Thing/%d" % k, declared(k)) for k in range(1, 5)]


def scene(body, n):
    return HEADER + "Separator {\n" + LOOP % (0, n) + "\t" + body + "\n}\n}\n"


def peak(lumeric, work, body, n):
    with open(os.path.join(work, "scene.vlm"), "w") as out:
        out.write(scene(body, n))
    _, mib, code, _ = measure([lumeric, "-o", "out.wrl", "scene.vlm"], work)
    if code != 0:
        sys.exit("lumeric failed on: " + body)
    return mib


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    lumeric = os.path.abspath(sys.argv[1])
    work = tempfile.mkdtemp(prefix="lumeric-copies-")
    try:
        print(f"{'body':<14} {'bytes per repetition':>21}")
        for name, body in BODIES:
            # The smaller of two runs at each size: other processes only add.
            small = min(peak(lumeric, work, body, N) for _ in range(2))
            large = min(peak(lumeric, work, body, 2 * N) for _ in range(2))
            print(f"{name:<14} {(large - small) * 1024 * 1024 / N:21.0f}")
    finally:
        shutil.rmtree(work)


if __name__ == "__main__":
    main()
