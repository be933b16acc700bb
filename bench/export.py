#!/usr/bin/env python3
"""Benchmark of the exporter.

    bench/export.py LUMERIC [CORPUS_DIR]

The 10^5-Ball LOOP job (the one of bench/generators.py) translated to VRML
1.0 and exported to each format, with the ratio of time and of peak memory
to the translation; then the time of exporting every file of the VRML 1.0
corpus (default ../shared/vrml1-corpus beside the project) to .glb.

Each run is repeated BENCH_REPEAT times (default 3); the table gives the
least processor time (user and system, which other work on a shared
machine disturbs less than the wall time), the shortest wall time and the
largest peak resident memory.
"""
import glob
import os
import resource
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from generators import BALLS, balls_vlm, measure  # noqa: E402


def best(command, cwd, repeat):
    """Least processor seconds, shortest wall seconds, largest peak MiB and
    the first failing status of `repeat` runs."""
    runs = [measure(command, cwd) for _ in range(repeat)]
    failed = [r[2] for r in runs if r[2] != 0]
    return min(r[3] for r in runs), min(r[0] for r in runs), max(r[1] for r in runs), failed[0] if failed else 0


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    lumeric = os.path.abspath(sys.argv[1])
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    corpus = sys.argv[2] if len(sys.argv) > 2 else os.path.join(root, "..", "shared", "vrml1-corpus")
    repeat = int(os.environ.get("BENCH_REPEAT", "3"))
    work = tempfile.mkdtemp(prefix="lumeric-export-bench-")
    try:
        with open(os.path.join(work, "balls.vlm"), "w") as out:
            out.write(balls_vlm(BALLS))
        print(f"{'job':<12} {'output':<7} {'cpu s':>8} {'wall s':>8} {'peak MiB':>9} {'cpu/wrl':>8} {'peak/wrl':>9}")
        base = None
        for fmt in ("wrl", "glb", "gltf", "stl", "obj", "x3d"):
            cpu, wall, peak, code = best([lumeric, "-o", "out." + fmt, "balls.vlm"], work, repeat)
            if base is None:
                base = (cpu, peak)
            note = "" if code == 0 else f"  (exit status {code})"
            print(f"{'balls-1e5':<12} {fmt:<7} {cpu:8.3f} {wall:8.3f} {peak:9.1f} {cpu / base[0]:8.2f} "
                  f"{peak / base[1]:9.2f}{note}")
        files = sorted(glob.glob(os.path.join(corpus, "*.wrl")))
        if not files:
            print(f"\ncorpus: no .wrl files in {corpus}")
            return
        # Each file takes milliseconds, below what /usr/bin/time resolves:
        # the corpus is timed whole, by the children's processor time.
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        start = time.perf_counter()
        for path in files:
            subprocess.call([lumeric, "-o", "out.glb", os.path.abspath(path)], cwd=work,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wall = time.perf_counter() - start
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        cpu = (after.ru_utime - before.ru_utime) + (after.ru_stime - before.ru_stime)
        print(f"\ncorpus: {len(files)} files exported to .glb in {cpu:.2f} s of processor time "
              f"({wall:.2f} s wall, each file a process of its own)")
    finally:
        shutil.rmtree(work)


if __name__ == "__main__":
    main()
