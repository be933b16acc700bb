#!/usr/bin/env python3
"""Checks lumeric's exports of a scene against independent readers.

For each input (a corpus file, an example, a golden scene of tests/scenes/,
or a scene of tests/export/scenes/), lumeric writes the scene as VRML 1.0 and as .glb,
.gltf, .stl, .obj and .x3d. Then:

- every run ends as the VRML 1.0 run does (same exit status), without a
  crash or a sanitizer report;
- the Khronos glTF validator finds no error in the .glb and the .gltf;
- admesh reads the .stl with the facet count its header gives, and that
  count is the number of triangles three.js reads; assimp loads the .obj;
  tovrmlx3d converts the .x3d without a warning and view3dscene loads it;
- when the VRML 1.0 run posted no error, the figures of each export
  (figures.mjs) agree with Coin's figures of lumeric's VRML 1.0 output
  (vrml1check figures, at the scene's own Complexity and at Complexity 1),
  or for a scene of tests/export/scenes/ with the figures stored beside it
  (made by Coin from the scene; --refresh-scenes remakes them). compare()
  below says what agreeing means and why each leniency is there.

Until the command line offers exports (its --help mentions --format), every
check is skipped: exit status 77, CTest's SKIP_RETURN_CODE.

  run_export_checks.py --lumeric L --vrml1check V [--node N] --source-dir S \\
      [--formats F,...] (--corpus NAME | --example NAME | --golden NAME | --scene NAME)...
  run_export_checks.py --vrml1check V --refresh-scenes
  run_export_checks.py --vrml1check V --check-scene-expectations
"""

import argparse
import json
import math
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
EXPORT_DIR = HERE.parent
SCENES_DIR = EXPORT_DIR / "scenes"
sys.path.insert(0, str(EXPORT_DIR.parent / "corpus"))
from run_corpus import LUMERIC_ENV, READER_ENV, SANITIZER_MARKS, find_corpus, run  # noqa: E402

SKIP = 77
FORMATS = ("glb", "gltf", "stl", "obj", "x3d")

# Tolerances (see compare()).
BOX_TOLERANCE = 1e-4      # of the scene's diagonal
AREA_TOLERANCE = 0.002    # relative, for areas and volumes
COLOUR_MATCH = 0.0015     # largest difference of a colour component between keys
TOOL_TIMEOUT = 300

# admesh refuses a binary STL of fewer than 4 facets (284 bytes), and takes a
# file whose first 128 bytes are all below 128 for text STL (and may then
# read on forever).
ADMESH_LEAST_FACETS = 4
ADMESH_SNIFF_BYTES = 128
ADMESH_TIMEOUT = 60

# tovrmlx3d warnings that concern a missing image, not the X3D text.
IMAGE_WARNING = re.compile(r"texture|image|\.png|\.jpe?g|\.gif", re.IGNORECASE)


def node_modules_ready():
    return (EXPORT_DIR / "node_modules" / "@gltf-transform" / "core").is_dir()


def exports_supported(lumeric):
    code, out, err = run([lumeric, "--help"], LUMERIC_ENV, timeout=60)
    return code == 0 and "--format" in out + err


# ---------------------------------------------------------------------------
# Comparison of figures


def diagonal(box):
    if not box:
        return 0.0
    return math.dist(box["min"], box["max"])


def box_union(a, b):
    if not a:
        return b
    if not b:
        return a
    return {"min": [min(x, y) for x, y in zip(a["min"], b["min"])],
            "max": [max(x, y) for x, y in zip(a["max"], b["max"])]}


def check_box(problems, label, got, inner, outer, tolerance):
    """`got` must contain `inner` and lie inside `outer`, within tolerance."""
    if not got or not outer:
        # Nothing, where Coin has only degenerate triangles, is right.
        if bool(got) != bool(outer) and (got or inner):
            problems.append(f"{label}: {got} where Coin has {outer}")
        return
    for axis, name in enumerate("xyz"):
        lo, hi = got["min"][axis], got["max"][axis]
        if not (outer["min"][axis] - tolerance <= lo <= inner["min"][axis] + tolerance):
            problems.append(f"{label}: min {name} {lo:.9g} not in "
                            f"[{outer['min'][axis]:.9g}, {inner['min'][axis]:.9g}] (± {tolerance:.3g})")
        if not (inner["max"][axis] - tolerance <= hi <= outer["max"][axis] + tolerance):
            problems.append(f"{label}: max {name} {hi:.9g} not in "
                            f"[{inner['max'][axis]:.9g}, {outer['max'][axis]:.9g}] (± {tolerance:.3g})")


def within(value, lo, hi, absolute):
    return lo * (1 - AREA_TOLERANCE) - absolute <= value <= hi * (1 + AREA_TOLERANCE) + absolute


def parse_key(key):
    return [float(v) for v in key.split()]


def match_colour(key, keys):
    if key == "blended":
        return key if key in keys else None
    rgb = parse_key(key)
    best = None
    for candidate in keys:
        if candidate == "blended":
            continue
        gap = max(abs(a - b) for a, b in zip(rgb, parse_key(candidate)))
        if gap <= COLOUR_MATCH and (best is None or gap < best[0]):
            best = (gap, candidate)
    return best[1] if best else None


def compare(coin, coin_fine, got, fmt):
    """Problems (a list of texts) of an export's figures `got` against Coin's
    figures at the scene's Complexity (`coin`) and at Complexity 1
    (`coin_fine`). `fmt` is the export's format; STL and OBJ hold only the
    faces (lines and points are left out of them).

    - Boxes: the export's box must contain Coin's inner box and lie inside its
      outer box, within 1e-4 of the scene's diagonal. For flat geometry both
      are the box of Coin's primitives; a Sphere, Cone or Cylinder widens the
      outer box to its exact box and the inner box to what a tessellation as
      fine as Coin's is sure to reach (short of the radius r by
      r(1 - cos(pi/n)) for n segments).
    - Areas (total, per colour, of the single- and the double-sided faces):
      within 0.2% of the interval that Coin's two figures span; for flat
      geometry both are the same figure, for curved shapes the export's
      tessellation must lie between Coin's default one and Complexity 1's.
    - Volume of the single-sided faces: as the areas, and the sign must be
      Coin's (faces turned inside out, e.g. under a mirror, flip it).
    - Counts: segments and points exactly (glTF only); triangles at most
      Coin's (twice for STL and OBJ with open faces), when no curved shape
      makes them depend on the tessellation.

    Leniencies for where Coin departs from VRML 1.0 (see SceneFigures.cpp):
    faces that Coin's triangles cover more than once or not as a plane (it
    fans concave faces under faceType CONVEX, and concave quadrilaterals
    whatever the face type: the export's area may be lower by that excess,
    and the volume is then compared by its sign), faces after a face of fewer than three corners (the
    export has them: its area may be higher by their area, its box reach
    their box, the volume is compared by its sign), text (Coin draws it with its own font: the export may leave it
    out or draw other glyphs, so only lower bounds hold), faces with an index
    out of range (no figure of Coin's can be trusted: only the counts of lines
    and points are compared). STL and OBJ have no double-sided faces: an
    export may write an open face twice, once per side, so their area may
    include the open area twice and their volume is compared only when every
    shape is closed.
    """
    problems = []
    faces_only = fmt in ("stl", "obj")
    lo_fig = lambda key: min(coin[key], coin_fine[key])  # noqa: E731
    hi_fig = lambda key: max(coin[key], coin_fine[key])  # noqa: E731
    has_text = coin["text"]["shapes"] > 0
    excess = coin["excess_area"]
    dropped = coin["dropped_area"]
    curved = coin["curved"]["shapes"] > 0

    if not faces_only:
        for key in ("segments", "points"):
            if got[key] != coin[key]:
                problems.append(f"{key}: {got[key]} where Coin has {coin[key]}")
    if coin["bad_index_faces"]:
        return problems

    box_key = "triangle_box" if faces_only else "box"
    outer = box_union(coin["outer_" + box_key], coin["dropped_box"])
    outer = box_union(outer, coin_fine["outer_" + box_key])
    inner = coin["inner_" + box_key]
    tolerance = BOX_TOLERANCE * max(diagonal(outer), 1e-6)
    if has_text:
        # Only the geometry besides the text must be there.
        if inner:
            everywhere = {"min": [-math.inf] * 3, "max": [math.inf] * 3}
            check_box(problems, box_key, got[box_key], inner, everywhere, tolerance)
    else:
        check_box(problems, box_key, got[box_key], inner, outer, tolerance)

    scale = max(diagonal(outer) if not has_text else diagonal(inner), 1e-6)
    absolute = 1e-9 * scale * scale
    lo = lo_fig("area") - excess
    hi = math.inf if has_text else hi_fig("area") + dropped
    doubled = faces_only and within(got["area"], lo + lo_fig("open_area"), hi + hi_fig("open_area"), absolute)
    if not within(got["area"], lo, hi, absolute) and not doubled:
        problems.append(f"area {got['area']:.9g} not in [{lo:.9g}, {hi:.9g}] (Coin's figures, ± 0.2%)")

    if got.get("area_by_colour") is not None:
        problems += compare_colours(coin, coin_fine, got, has_text, excess + dropped, absolute,
                                    faces_only)

    if not faces_only and not has_text:
        for key, coin_key in (("single_sided_area", "solid_area"), ("double_sided_area", "open_area")):
            s_lo, s_hi = lo_fig(coin_key) - excess, hi_fig(coin_key) + dropped
            if not within(got[key], s_lo, s_hi, absolute):
                problems.append(f"{key} {got[key]:.9g} not in [{s_lo:.9g}, {s_hi:.9g}], the area of "
                                f"Coin's {'closed' if coin_key == 'solid_area' else 'open'} shapes "
                                "(faces of shapes not known to be solid must be double-sided)")
    closed_only = hi_fig("open_area") == 0
    if not has_text and (not faces_only or closed_only):
        v_lo, v_hi = lo_fig("volume"), hi_fig("volume")
        volume_absolute = 1e-9 * scale ** 3
        if excess or dropped:
            if abs(v_lo) > volume_absolute and got["volume"] * v_lo <= 0:
                problems.append(f"volume {got['volume']:.9g} has not the sign of Coin's {v_lo:.9g}")
        elif not within(got["volume"], v_lo, v_hi, volume_absolute):
            problems.append(f"volume {got['volume']:.9g} not in [{v_lo:.9g}, {v_hi:.9g}] (Coin's oriented "
                            "volume of the closed shapes: faces turned inside out change it)")

    if not curved and not has_text and not excess and not dropped:
        # A tessellator may make fewer triangles than Coin: GLU's covers a
        # polygon with a corner on a diagonal by one triangle across it, and
        # degenerate faces may be skipped. STL and OBJ may double open faces.
        most = coin["triangles"] + (coin["triangles"] if faces_only and hi_fig("open_area") else 0)
        least = 1 if coin["triangles"] > coin["degenerate_triangles"] else 0
        if not least <= got["triangles"] <= most:
            problems.append(f"triangles: {got['triangles']} where Coin has {coin['triangles']} "
                            f"(at most {most} allowed)")
    return problems


def compare_colours(coin, coin_fine, got, has_text, lenient_area, absolute, faces_only):
    problems = []
    expected = {}
    for figures in (coin, coin_fine):
        for key, area in figures["area_by_colour"].items():
            expected.setdefault(key, []).append(area)
    got_colours = dict(got["area_by_colour"])
    for key, areas in sorted(expected.items()):
        match = match_colour(key, got_colours)
        area = got_colours.pop(match) if match else 0.0
        lo = min(areas) if len(areas) == 2 else 0.0
        lo -= lenient_area
        # STL and OBJ may hold an open face twice (see compare()).
        hi = math.inf if has_text else (2 if faces_only else 1) * max(areas) + lenient_area
        if not within(area, lo, hi, absolute):
            problems.append(f"colour {key}: area {area:.9g} not in [{lo:.9g}, {hi:.9g}]")
    for key, area in sorted(got_colours.items()):
        if has_text or area <= absolute + lenient_area:
            continue
        problems.append(f"colour {key}: area {area:.9g}, a colour Coin does not show")
    return problems


# ---------------------------------------------------------------------------
# One input


class ExportCheck:
    def __init__(self, args, kind, name):
        self.args = args
        self.kind = kind
        self.name = name
        self.problems = []
        self.notes = []
        self.options = []
        if kind == "corpus":
            self.directory = args.corpus_dir
            self.input = name
        elif kind == "example":
            self.directory = pathlib.Path(args.source_dir) / "examples"
            self.input = name
        elif kind == "golden":
            self.directory = pathlib.Path(args.source_dir) / "tests" / "scenes"
            self.input = name
        else:
            self.directory = SCENES_DIR
            self.input = name

    def fail(self, text):
        self.problems.append(text)

    def tool(self, command, env=None, cwd=None, timeout=TOOL_TIMEOUT):
        code, out, err = run(command, env or {}, cwd=cwd, timeout=timeout)
        if code is None:
            self.fail(f"{' '.join(map(str, command))}: {err}")
        return code, out, err

    def lumeric(self, output):
        code, out, err = run([self.args.lumeric, *self.options, "-o", str(output), self.input], LUMERIC_ENV,
                             cwd=self.directory)
        if code is None:
            self.fail(f"lumeric -o {output.name}: {err}")
            return None
        if any(mark in err for mark in SANITIZER_MARKS) or code not in (0, 1):
            self.fail(f"lumeric -o {output.name} ended with status {code}:\n{err}")
            return None
        return code

    def coin_figures(self, path, *options):
        code, out, err = run([self.args.vrml1check, "figures", str(path), *options], READER_ENV,
                             timeout=TOOL_TIMEOUT)
        if code != 0:
            return None, err.strip()
        return json.loads(out), ""

    def expected_figures(self, temp, wrl):
        """Coin's figures (scene's Complexity, Complexity 1), or None."""
        if self.kind == "scene":
            stored = SCENES_DIR / (pathlib.Path(self.name).stem + ".figures.json")
            if not stored.exists():
                self.fail(f"no {stored.name}: make it with --refresh-scenes")
                return None
            data = json.loads(stored.read_text(encoding="utf-8"))
            return data["default"], data["complexity_1"]
        if self.kind == "corpus":
            code, _, err = run([self.args.vrml1check, "read", str(self.directory / self.name)],
                               READER_ENV, timeout=TOOL_TIMEOUT)
            if code != 0:
                self.notes.append("Coin does not read the original: figures not compared")
                return None
        coin, why = self.coin_figures(wrl)
        fine, why_fine = self.coin_figures(wrl, "--complexity", "1")
        if coin is None or fine is None:
            self.fail(f"Coin does not read lumeric's VRML 1.0 output: {why or why_fine}")
            return None
        return coin, fine

    def node(self, script, *files):
        return self.tool([self.args.node, str(HERE / script), *map(str, files)])

    def check_gltf(self, outputs):
        files = [outputs[f] for f in ("glb", "gltf") if f in outputs]
        code, out, err = self.node("validate.mjs", *files)
        if code != 0:
            self.fail(f"the glTF validator reports errors:\n{out}{err}")

    def check_stl(self, stl):
        """admesh's reading; returns the facet count of the header."""
        data = stl.read_bytes()
        header = int.from_bytes(data[80:84], "little") if len(data) >= 84 else None
        if header is None:
            self.fail("the STL is shorter than its header")
        elif len(data) != 84 + 50 * header:
            self.fail(f"the STL holds {len(data)} bytes, not the {84 + 50 * header} its header's "
                      f"{header} facets take")
        elif header < ADMESH_LEAST_FACETS:
            self.notes.append(f"admesh reads no STL of fewer than {ADMESH_LEAST_FACETS} facets: not run")
        elif not any(byte > 127 for byte in data[:ADMESH_SNIFF_BYTES]):
            self.notes.append(f"admesh would take this STL for text (no byte above 127 in its first "
                              f"{ADMESH_SNIFF_BYTES}): not run")
        else:
            code, out, err = self.tool(["admesh", str(stl)], timeout=ADMESH_TIMEOUT)
            facets = re.search(r"Number of facets\s*:\s*(\d+)", out)
            if code != 0 or not facets:
                self.fail(f"admesh does not read the STL (status {code}):\n{out}{err}")
            elif int(facets.group(1)) != header:
                self.fail(f"admesh reads {facets.group(1)} facets, the STL header says {header}")
        return header

    def check_obj(self, obj):
        if not re.search(r"^f\s", obj.read_text(encoding="utf-8", errors="replace"), re.MULTILINE):
            # assimp refuses an OBJ without faces ("OBJ-file is too small").
            self.notes.append("the OBJ has no face: assimp not run")
            return
        code, out, err = self.tool(["assimp", "info", str(obj)])
        if code != 0 or "Importing file ...                   OK" not in out:
            self.fail(f"assimp does not load the OBJ (status {code}):\n{err or out[-2000:]}")

    def check_x3d(self, x3d):
        code, out, err = self.tool(["tovrmlx3d", str(x3d)])
        warnings = [line for line in err.splitlines() if line.strip() and not IMAGE_WARNING.search(line)]
        if code != 0 or warnings:
            self.fail(f"tovrmlx3d does not read the X3D cleanly (status {code}):\n{err}")
        shot = x3d.with_suffix(".png")
        # Two X servers started at once may pick the same display: then again.
        for _ in range(3):
            code, out, err = self.tool(["xvfb-run", "-a", "view3dscene", str(x3d), "--screenshot", "0", str(shot)])
            if "Xvfb failed to start" not in out + err:
                break
        if code != 0 or "Error" in out + err or not shot.exists():
            self.fail(f"view3dscene does not load the X3D (status {code}):\n{out}{err}")

    def check(self):
        if self.kind == "golden":
            # A golden scene's NAME.args holds the options it is run with.
            options = self.directory / (pathlib.Path(self.name).stem + ".args")
            self.options = options.read_text(encoding="utf-8").split() if options.exists() else []
            if "--check" in self.options:
                self.notes.append("the scene is only checked, never written: nothing to export")
                return
        with tempfile.TemporaryDirectory(prefix="lumeric-export-") as temp:
            temp = pathlib.Path(temp)
            wrl = temp / "out.wrl"
            status = self.lumeric(wrl)
            if status is None:
                return
            outputs = {}
            for fmt in self.args.formats:
                outputs[fmt] = temp / f"out.{fmt}"
                code = self.lumeric(outputs[fmt])
                if code is None:
                    continue
                if code != status:
                    self.fail(f"lumeric -o out.{fmt} ends with status {code}, the VRML 1.0 run with {status}")
                if not outputs[fmt].exists():
                    self.fail(f"lumeric -o out.{fmt} wrote no file")
            if self.problems:
                return
            if "glb" in outputs or "gltf" in outputs:
                self.check_gltf(outputs)
            stl_header = self.check_stl(outputs["stl"]) if "stl" in outputs else None
            if "obj" in outputs:
                self.check_obj(outputs["obj"])
            if "x3d" in outputs:
                self.check_x3d(outputs["x3d"])
            if status == 0 and not wrl.exists():
                self.notes.append("no VRML 1.0 output (an empty scene): the exports must hold nothing")
                expected = None
            elif status != 0:
                # The exports hold what was translated, as the VRML 1.0 output
                # does: compared when Coin reads that partial output.
                if not wrl.exists() or self.coin_figures(wrl)[0] is None:
                    self.notes.append("the scene has errors and Coin does not read the partial VRML 1.0 "
                                      "output: the figures are not compared")
                    return
                self.notes.append("the scene has errors: the figures of what was translated are compared")
            if wrl.exists():
                expected = self.expected_figures(temp, wrl)
            measured = [f for f in ("glb", "gltf", "obj", "stl") if f in outputs]
            code, out, err = self.node("figures.mjs", *(outputs[f] for f in measured))
            if code != 0:
                self.fail(f"the export figures cannot be read:\n{err}")
                return
            figures = json.loads(out)
            if stl_header is not None and figures[str(outputs["stl"])]["triangles"] != stl_header:
                self.fail(f"three.js reads {figures[str(outputs['stl'])]['triangles']} STL triangles, "
                          f"the header says {stl_header}")
            if not wrl.exists():
                for fmt in measured:
                    held = {k: figures[str(outputs[fmt])][k] for k in ("triangles", "segments", "points")}
                    if any(held.values()):
                        self.fail(f"{fmt}: {held} in the export of an empty scene")
                return
            if expected is None:
                return
            for fmt in measured:
                for text in compare(*expected, figures[str(outputs[fmt])], fmt):
                    self.fail(f"{fmt}: {text}")


# ---------------------------------------------------------------------------
# Scene expectations


def scene_figures(vrml1check, scene):
    result = {}
    for label, options in (("default", []), ("complexity_1", ["--complexity", "1"])):
        code, out, err = run([vrml1check, "figures", str(scene), *options], READER_ENV, timeout=TOOL_TIMEOUT)
        if code != 0:
            raise RuntimeError(f"vrml1check figures {scene.name} failed:\n{err}")
        result[label] = json.loads(out)
    return result


def scene_expectations(args, refresh):
    failed = 0
    for scene in sorted(SCENES_DIR.glob("*.wrl")):
        stored = scene.with_suffix(".figures.json")
        text = json.dumps(scene_figures(args.vrml1check, scene), indent=2) + "\n"
        if refresh:
            stored.write_text(text, encoding="utf-8")
            print(f"{stored.name}: recorded")
        elif not stored.exists() or stored.read_text(encoding="utf-8") != text:
            print(f"{stored.name}: not what Coin gives for {scene.name} now (--refresh-scenes, then review)")
            failed += 1
        else:
            print(f"{stored.name}: ok")
    count = len(list(SCENES_DIR.glob("*.wrl")))
    print(f"{count - failed} passed, {failed} failed")
    return 1 if failed else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--lumeric")
    parser.add_argument("--vrml1check", required=True)
    parser.add_argument("--node", default=shutil.which("node") or "node")
    parser.add_argument("--source-dir", default=str(EXPORT_DIR.parent.parent))
    parser.add_argument("--corpus", action="append", default=[], metavar="NAME")
    parser.add_argument("--example", action="append", default=[], metavar="NAME")
    parser.add_argument("--scene", action="append", default=[], metavar="NAME")
    parser.add_argument("--golden", action="append", default=[], metavar="NAME",
                        help="a scene of tests/scenes/ (run with the options of its NAME.args)")
    parser.add_argument("--formats", default=",".join(FORMATS),
                        help="the export formats to check, comma-separated (default: all)")
    parser.add_argument("--refresh-scenes", action="store_true",
                        help="rewrite tests/export/scenes/*.figures.json from Coin")
    parser.add_argument("--check-scene-expectations", action="store_true",
                        help="check that the stored scene figures are Coin's figures now")
    args = parser.parse_args()
    args.vrml1check = os.path.abspath(args.vrml1check)
    args.formats = [f for f in args.formats.split(",") if f]
    if any(f not in FORMATS for f in args.formats):
        parser.error(f"--formats takes some of {','.join(FORMATS)}")
    if args.refresh_scenes or args.check_scene_expectations:
        return scene_expectations(args, args.refresh_scenes)

    if not args.lumeric:
        parser.error("--lumeric is needed")
    args.lumeric = os.path.abspath(args.lumeric)
    if not exports_supported(args.lumeric):
        print("SKIP: this lumeric offers no exports (its --help does not mention --format)")
        return SKIP
    if not node_modules_ready():
        print("the Node packages of tests/export are not installed: run scripts/install-deps.sh")
        return 1
    for tool in ("admesh", "assimp", "tovrmlx3d", "view3dscene", "xvfb-run"):
        if shutil.which(tool) is None:
            print(f"{tool} is not installed: run scripts/install-deps.sh")
            return 1

    inputs = [("example", n) for n in args.example] + [("scene", n) for n in args.scene]
    inputs += [("golden", n) for n in args.golden]
    if args.corpus:
        args.corpus_dir = find_corpus(args.source_dir)
        if args.corpus_dir is None:
            print("SKIP: VRML 1.0 corpus not found (set LUMERIC_CORPUS_DIR)")
            return SKIP
        inputs += [("corpus", n) for n in args.corpus]

    failed = 0
    for kind, name in inputs:
        check = ExportCheck(args, kind, name)
        check.check()
        print(f"{kind} {name}: {'FAIL' if check.problems else 'ok'}")
        for text in check.notes:
            print(f"  note: {text}")
        for text in check.problems:
            print("  " + text.replace("\n", "\n  "))
        failed += bool(check.problems)
    print(f"{len(inputs) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
