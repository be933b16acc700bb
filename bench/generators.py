#!/usr/bin/env python3
"""Benchmark of the geometry generators.

    bench/generators.py LUMERIC [REPEAT]

The job users compare us on: a loop of 10^5 balls at computed positions
(centre (i*2, sin(i), 0), radius 0.5) expanded into an output scene, in
lumeric, in OpenSCAD (a `for` loop exported with `openscad -o out.csg`) and
in POV-Ray (a `#while` loop parsed and rendered at one pixel), side by side.
Then lumeric alone on two jobs at two sizes ten times apart, whose time must
grow linearly: a Wall along a path of 10^4 and 10^5 points (thickened, with
a bend at every point), and a LOOP of 10^3 and 10^4 Balls joined by
Connects.

Each run is repeated REPEAT times (default 3; environment BENCH_REPEAT); the
table gives the shortest wall time and the largest peak resident memory,
the peak measured by /usr/bin/time.  Tools that are not installed get a row
saying so (apt-get install openscad povray time).
"""
import math
import os
import shutil
import subprocess
import sys
import tempfile
import time

BALLS = 100000
SIZES = {"wall": (10000, 100000), "bonds": (1000, 10000)}
HEADER = "#VRML V1.0 ascii\n"
LOOP = "LOOP { fields [ SFFloat start, SFFloat end, SFFloat position ] start %d end %d position 0\n"


def balls_vlm(n):
    return (HEADER + "Separator {\n" + LOOP % (0, n) +
            "\tBall { fields [ SFVec3f center, SFFloat radius ] center =(position*2,sin(position),0) radius 0.5 }\n"
            "}\n}\n")


def balls_scad(n):
    # OpenSCAD refuses ranges of 10^5 elements: two nested ranges instead.
    # Its sin() takes degrees.
    outer = max(1, n // 1000)
    return ("for (j = [0:%d], k = [0:999]) let (i = j * 1000 + k)\n"
            "  translate([i * 2, sin(i * 180 / PI), 0]) sphere(r = 0.5);\n" % (outer - 1))


def balls_pov(n):
    return ("#declare I = 0;\n#while (I < %d)\n  sphere { <I * 2, sin(I), 0>, 0.5 }\n"
            "  #declare I = I + 1;\n#end\n" % n)


def wall_vlm(n):
    # A meandering path: every point is a bend, so every corner is mitred.
    rows = ",\n".join("%g %g" % (i * 0.1, math.sin(i * 0.3)) for i in range(n))
    return (HEADER + "Separator {\n\tWall { fields [ MFVec2f data, MFFloat height, MFFloat elevation, "
            "SFFloat width, SFFloat placement ]\n\t\tdata [ " + rows +
            " ]\n\t\theight [ 2.5 ] elevation [ 0 ] width 0.2 placement 1 }\n}\n")


def bonds_vlm(n):
    return (HEADER + "Separator {\n" + LOOP % (0, n) +
            "\tVARNAME Atom~`position` Ball { fields [ SFVec3f center, SFFloat radius ] "
            "center =(position,sin(position),cos(position)) radius 0.3 }\n}\n" + LOOP % (1, n) +
            "\tConnect { fields [ SFNode first, SFNode second, SFFloat radius ] "
            "first Atom~`position-1` second Atom~`position` radius 0.1 }\n}\n}\n")


def measure(command, cwd):
    """Wall seconds, peak resident MiB, exit status and processor seconds
    (user and system) of one run."""
    # /usr/bin/time gives the peak and the processor time; its own seconds
    # have two decimals only.
    report = os.path.join(cwd, "time.txt")
    start = time.perf_counter()
    code = subprocess.call(["/usr/bin/time", "-f", "%U %S %M", "-o", report, *command], cwd=cwd,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    seconds = time.perf_counter() - start
    with open(report) as text:
        user, system, peak = text.read().split()[-3:]
    return seconds, int(peak) / 1024.0, code, float(user) + float(system)


def best(command, cwd, repeat):
    runs = [measure(command, cwd) for _ in range(repeat)]
    failed = [code for _, _, code in runs if code != 0]
    return min(r[0] for r in runs), max(r[1] for r in runs), failed[0] if failed else 0


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    lumeric = os.path.abspath(sys.argv[1])
    repeat = int(sys.argv[2]) if len(sys.argv) > 2 else int(os.environ.get("BENCH_REPEAT", "3"))
    if not os.path.exists("/usr/bin/time"):
        sys.exit("bench/generators.py needs /usr/bin/time (apt-get install time)")
    work = tempfile.mkdtemp(prefix="lumeric-generators-")
    try:
        run(lumeric, repeat, work)
    finally:
        shutil.rmtree(work)


def write(work, name, text):
    with open(os.path.join(work, name), "w") as out:
        out.write(text)
    return name


def run(lumeric, repeat, work):
    jobs = [
        ("balls-1e5", "lumeric", [lumeric, "-o", "out.wrl", write(work, "balls.vlm", balls_vlm(BALLS))]),
        ("balls-1e5", "openscad", ["openscad", "-o", "out.csg", write(work, "balls.scad", balls_scad(BALLS))]),
        ("balls-1e5", "povray", ["povray", "+W1", "+H1", "-D", "-V", "-GA",
                                 "+I" + write(work, "balls.pov", balls_pov(BALLS)), "+Oout.png"]),
    ]
    for kind, make in (("wall", wall_vlm), ("bonds", bonds_vlm)):
        for n in SIZES[kind]:
            name = "%s-%.0e" % (kind, n)
            jobs.append((name.replace("+0", ""), "lumeric", [lumeric, "-o", "out.wrl",
                                                             write(work, name + ".vlm", make(n))]))
    results = {}
    print(f"{'job':<12} {'tool':<9} {'seconds':>8} {'peak MiB':>9}")
    for job, tool, command in jobs:
        if shutil.which(command[0]) is None:
            print(f"{job:<12} {tool:<9} {'not installed':>18}")
            continue
        seconds, peak, code = best(command, work, repeat)
        results[(job, tool)] = (seconds, peak)
        note = "" if code == 0 else f"  (exit status {code})"
        print(f"{job:<12} {tool:<9} {seconds:8.3f} {peak:9.1f}{note}")
    print()
    summarise(results)


def summarise(results):
    ours = results.get(("balls-1e5", "lumeric"))
    others = [(tool, results[("balls-1e5", tool)]) for tool in ("openscad", "povray") if ("balls-1e5", tool) in results]
    if ours and others:
        fastest = min(others, key=lambda item: item[1][0])
        print(f"balls-1e5: lumeric is {fastest[1][0] / max(ours[0], 1e-9):.1f} times as fast as {fastest[0]} "
              f"(goal: 3); peak {ours[1]:.1f} MiB against "
              + ", ".join(f"{tool} {values[1]:.1f} MiB" for tool, values in others))
    for kind in SIZES:
        small, large = ("%s-%.0e" % (kind, n) for n in SIZES[kind])
        small, large = small.replace("+0", ""), large.replace("+0", "")
        if (small, "lumeric") in results and (large, "lumeric") in results:
            a, b = results[(small, "lumeric")][0], results[(large, "lumeric")][0]
            print(f"{kind}: ten times the size takes {b / max(a, 1e-9):.1f} times as long "
                  f"({a:.3f} s to {b:.3f} s)")


if __name__ == "__main__":
    main()
