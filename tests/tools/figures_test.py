#!/usr/bin/env python3
"""Tests `vrml1check figures` on small scenes whose figures are known.

  figures_test.py VRML1CHECK

Each case is a scene and the figures it must give (keys of the JSON object,
compared within 1e-6 for numbers); a key "*" names a check function instead.
"""

import json
import math
import os
import pathlib
import subprocess
import sys
import tempfile

HEADER = "#VRML V1.0 ascii\n"
CUBE = "Cube { width 2 height 2 depth 2 }"
CLOSED_BOX_CW = """
  ShapeHints { vertexOrdering CLOCKWISE shapeType SOLID }
  Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0, 0 0 1, 1 0 1, 1 1 1, 0 1 1 ] }
  IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1, 4, 7, 6, 5, -1, 0, 4, 5, 1, -1,
                                3, 2, 6, 7, -1, 0, 3, 7, 4, -1, 1, 5, 6, 2, -1 ] }
"""


def sphere_checks(fine):
    def check(f, _):
        exact = 4 * math.pi
        assert f["area"] < exact, f["area"]
        assert abs(f["outer_box"]["max"][0] - 1) < 1e-6
        for axis in range(3):
            assert f["inner_box"]["max"][axis] <= f["box"]["max"][axis] + 1e-9
            assert f["box"]["max"][axis] <= f["outer_box"]["max"][axis] + 1e-6
        assert f["curved"]["shapes"] == 1 and f["curved"]["area"] == f["area"]
        if fine:
            assert f["area"] > 0.99 * exact, f["area"]
    return check


def rotated_sphere_box(f, _):
    # A sphere's exact box does not grow under rotation, and a scale of 3
    # along x stretches it to 3 radii.
    assert [round(v, 5) for v in f["outer_box"]["max"]] == [3, 1, 1], f["outer_box"]


CASES = [
    ("a cube of side 2", f"Separator {{ {CUBE} }}",
     {"triangles": 12, "area": 24, "volume": 8, "solid_area": 24, "open_area": 0,
      "box": {"min": [-1, -1, -1], "max": [1, 1, 1]},
      "area_by_colour": {"0.800 0.800 0.800": 24}}),
    ("a mirrored cube keeps its volume positive",
     f"Separator {{ Scale {{ scaleFactor -1 1 1 }} Translation {{ translation 2 0 0 }} {CUBE} }}",
     {"volume": 8, "box": {"min": [-3, -1, -1], "max": [-1, 1, 1]}}),
    ("a cube under a rotation: the box of the primitives",
     f"Separator {{ Rotation {{ rotation 0 0 1 0.785398163 }} {CUBE} }}",
     {"box": {"min": [-math.sqrt(2), -math.sqrt(2), -1], "max": [math.sqrt(2), math.sqrt(2), 1]}}),
    ("a closed IndexedFaceSet listed clockwise", f"Separator {{ {CLOSED_BOX_CW} }}",
     {"volume": 1, "solid_area": 6, "open_area": 0, "triangles": 12}),
    ("faces without ShapeHints are open", """Separator {
       Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0 ] }
       IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1 ] } }""",
     {"open_area": 1, "solid_area": 0, "volume": 0, "triangles": 2}),
    ("colours per face, indexed", """Separator {
       Material { diffuseColor [ 1 0 0, 0 1 0 ] }
       MaterialBinding { value PER_FACE_INDEXED }
       Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0, 2 0 0 ] }
       IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1, 1, 4, 2, -1 ] materialIndex [ 1, 0 ] } }""",
     {"area_by_colour": {"0.000 1.000 0.000": 1, "1.000 0.000 0.000": 0.5}}),
    ("triangles with colours bound per vertex count as blended", """Separator {
       Material { diffuseColor [ 1 0 0, 0 1 0, 0 0 1 ] }
       MaterialBinding { value PER_VERTEX }
       Coordinate3 { point [ 0 0 0, 1 0 0, 0 1 0 ] }
       IndexedFaceSet { coordIndex [ 0, 1, 2, -1 ] } }""",
     {"area_by_colour": {"blended": 0.5}}),
    ("a concave face under faceType CONVEX is fanned by Coin", """Separator {
       Coordinate3 { point [ 0 0 0, 4 0 0, 1 1 0, 0 4 0 ] }
       IndexedFaceSet { coordIndex [ 1, 2, 3, 0, -1 ] } }""",
     {"area": 12, "excess_faces": 1, "excess_area": 8}),
    ("Coin fans a concave quadrilateral even of unknown face type", """Separator {
       ShapeHints { faceType UNKNOWN_FACE_TYPE }
       Coordinate3 { point [ 0 0 0, 4 0 0, 1 1 0, 0 4 0 ] }
       IndexedFaceSet { coordIndex [ 1, 2, 3, 0, -1 ] } }""",
     {"area": 12, "excess_faces": 1, "excess_area": 8}),
    ("a concave hexagon of unknown face type is split along its inside", """Separator {
       ShapeHints { faceType UNKNOWN_FACE_TYPE }
       Coordinate3 { point [ 0 0 0, 2 0 0, 2 1 0, 1 1 0, 1 2 0, 0 2 0 ] }
       IndexedFaceSet { coordIndex [ 1, 2, 3, 4, 5, 0, -1 ] } }""",
     {"area": 3, "triangles": 4, "excess_faces": 0, "excess_area": 0}),
    ("a face that is not planar has no one area", """Separator {
       Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 1, 0 1 0 ] }
       IndexedFaceSet { coordIndex [ 0, 1, 2, 3, -1 ] } }""",
     {"excess_faces": 1}),
    ("faces after a face of two corners, which Coin drops", """Separator {
       Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 0 1 0, 5 5 5 ] }
       IndexedFaceSet { coordIndex [ 0, 1, 2, -1, 0, 1, -1, 0, 2, 3, -1, 2, 3, 4, -1 ] } }""",
     {"area": 0.5, "dropped_faces": 2, "dropped_area": 0.5 + math.sqrt(41) / 2,
      "dropped_box": {"min": [0, 0, 0], "max": [5, 5, 5]}}),
    ("an index out of range", """Separator {
       Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0 ] }
       IndexedFaceSet { coordIndex [ 0, 1, 2, -1, 0, 1, 7, -1 ] } }""",
     {"bad_index_faces": 1}),
    ("lines and points", """Separator {
       Coordinate3 { point [ 0 0 0, 1 0 0, 1 1 0, 9 9 9 ] }
       IndexedLineSet { coordIndex [ 0, 1, 2, -1 ] }
       PointSet { startIndex 1 numPoints 3 } }""",
     {"segments": 2, "points": 3, "triangles": 0, "triangle_box": None, "point_sets": 1,
      "box": {"min": [0, 0, 0], "max": [9, 9, 9]}}),
    ("points past the end of the coordinates are left out", """Separator {
       Coordinate3 { point [ 0 0 0, 1 0 0, 2 0 0 ] }
       PointSet { startIndex 2 numPoints 3 } }""",
     {"points": 1, "bad_index_points": 2, "box": {"min": [2, 0, 0], "max": [2, 0, 0]}}),
    ("an LOD shows its first child", """Separator {
       LOD { range [ 0.001 ] Cube { width 4 } Cube { width 1 } } }""",
     {"lod_nodes": 1, "box": {"min": [-2, -1, -1], "max": [2, 1, 1]}}),
    ("Switch, Group and TransformSeparator state", f"""Separator {{
       Switch {{ whichChild -1 {CUBE} }}
       TransformSeparator {{ Translation {{ translation 5 0 0 }} Material {{ diffuseColor 1 0 0 }} }}
       Group {{ Translation {{ translation 0 5 0 }} }}
       {CUBE} }}""",
     {"triangles": 12, "area_by_colour": {"1.000 0.000 0.000": 24},
      "box": {"min": [-1, 4, -1], "max": [1, 6, 1]}}),
    ("text is counted apart", "Separator { AsciiText { string \"Hi\" } }",
     {"text": {"shapes": 1, "triangles": "*"}, "triangles": 0, "area": 0}),
    ("a sphere at its own complexity", "Separator { Sphere { } }", {"*": sphere_checks(False)}),
    ("a sphere at complexity 1 overrides the scene's own",
     "Separator { Complexity { value 0 } Sphere { } }", {"*": sphere_checks(True), "complexity": 1},
     ["--complexity", "1"]),
    ("a scaled, rotated sphere's exact box",
     "Separator { Scale { scaleFactor 3 1 1 } Rotation { rotation 1 0 0 0.5 } Sphere { } }",
     {"*": rotated_sphere_box}),
    ("open cylinder and cone are not closed",
     "Separator { Cylinder { parts SIDES } Cone { parts BOTTOM } }",
     {"solid_area": 0, "volume": 0}),
    ("a local WWWInline is read", "Separator { WWWInline { name \"inlined.wrl\" } }",
     {"triangles": 12, "area": 24}),
]


def close(expected, got, where):
    if expected == "*":
        return []
    if isinstance(expected, dict):
        if not isinstance(got, dict):
            return [f"{where}: {got!r}, expected {expected!r}"]
        problems = []
        # Colours must be exactly those expected; elsewhere the keys given.
        if where == "area_by_colour" and set(expected) != set(got):
            return [f"{where}: {got!r}, expected {expected!r}"]
        for key, value in expected.items():
            problems += close(value, got.get(key), f"{where}.{key}")
        return problems
    if isinstance(expected, list):
        if not isinstance(got, list) or len(got) != len(expected):
            return [f"{where}: {got!r}, expected {expected!r}"]
        return [p for i, (e, g) in enumerate(zip(expected, got)) for p in close(e, g, f"{where}[{i}]")]
    if isinstance(expected, (int, float)) and isinstance(got, (int, float)):
        return [] if abs(expected - got) <= 1e-6 * max(1, abs(expected)) else [f"{where}: {got}, expected {expected}"]
    return [] if expected == got else [f"{where}: {got!r}, expected {expected!r}"]


def main():
    if len(sys.argv) != 2:
        print(__doc__)
        return 2
    reader = os.path.abspath(sys.argv[1])
    env = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
    failed = 0
    with tempfile.TemporaryDirectory(prefix="lumeric-figures-") as temp:
        temp = pathlib.Path(temp)
        (temp / "inlined.wrl").write_text(HEADER + f"Separator {{ {CUBE} }}\n")
        for case in CASES:
            name, scene, expected = case[:3]
            options = case[3] if len(case) > 3 else []
            path = temp / "scene.wrl"
            path.write_text(HEADER + scene + "\n")
            done = subprocess.run([reader, "figures", str(path), *options], capture_output=True, text=True,
                                  env=env, timeout=120)
            problems = []
            if done.returncode != 0:
                problems = [f"vrml1check failed ({done.returncode}): {done.stderr}"]
            else:
                figures = json.loads(done.stdout)
                for key, value in expected.items():
                    if key == "*":
                        try:
                            value(figures, name)
                        except AssertionError as error:
                            problems.append(f"check failed: {error}")
                    else:
                        problems += close(value, figures.get(key), key)
            print(f"{name}: {'FAIL' if problems else 'ok'}")
            for text in problems:
                print("  " + text)
            failed += bool(problems)
    print(f"{len(CASES) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
