// World-space figures of an exported file, read with independent readers:
// glTF-Transform for .glb/.gltf, three.js's OBJLoader and MTLLoader for .obj,
// three.js's STLLoader for .stl. The figures are those of `vrml1check
// figures` (tests/tools/SceneFigures.cpp) that an export can show:
//
//   triangles, segments, points, degenerate_triangles
//   area, area_by_colour  {"r g b": area}, the colour of a triangle being the
//                         material's base colour (glTF baseColorFactor, OBJ
//                         Kd) times its vertex colour; a triangle whose
//                         corners differ in colour counts under "blended";
//                         null for STL, which has no colours
//   single_sided_area, double_sided_area
//                         glTF: by the material's doubleSided; OBJ and STL
//                         have no such flag and count every face single-sided
//   volume                sum of det(v0, v1, v2) / 6 over the single-sided
//                         triangles in world space; glTF nodes whose matrix
//                         has a negative determinant have their winding
//                         reversed, as glTF says they are shown
//   box, triangle_box     {min, max} or null
//   cameras, lights       glTF nodes carrying a camera / a KHR_lights_punctual
//                         light (null for OBJ and STL)
//
//   node figures.mjs FILE...   prints {FILE: figures} as one JSON object
import fs from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

import { NodeIO } from '@gltf-transform/core';
import { ALL_EXTENSIONS } from '@gltf-transform/extensions';
import { ColorManagement } from 'three';
import { MTLLoader } from 'three/examples/jsm/loaders/MTLLoader.js';
import { OBJLoader } from 'three/examples/jsm/loaders/OBJLoader.js';
import { STLLoader } from 'three/examples/jsm/loaders/STLLoader.js';

// Colours are compared as the files hold them, without three.js's
// conversion from sRGB to its linear working space.
ColorManagement.enabled = false;

const GL = { POINTS: 0, LINES: 1, LINE_LOOP: 2, LINE_STRIP: 3, TRIANGLES: 4, TRIANGLE_STRIP: 5, TRIANGLE_FAN: 6 };

// Accumulates figures from world-space primitives.
export class FigureSink {
  constructor() {
    this.triangles = 0;
    this.segments = 0;
    this.points = 0;
    this.degenerate = 0;
    this.area = 0;
    this.areaByColour = new Map();
    this.singleSidedArea = 0;
    this.doubleSidedArea = 0;
    this.volume = 0;
    this.box = emptyBox();
    this.triangleBox = emptyBox();
    this.hasColours = true;
    this.cameras = null;
    this.lights = null;
  }

  // a, b, c: [x, y, z] in world space, counter-clockwise seen from the front.
  // colour: [r, g, b] or null.
  addTriangle(a, b, c, colour, doubleSided) {
    const ab = sub(b, a);
    const ac = sub(c, a);
    const area = len(cross(ab, ac)) / 2;
    const scale = Math.max(len(ab), len(ac), len(sub(c, b)));
    this.triangles += 1;
    this.area += area;
    if (area <= 1e-12 * Math.max(scale * scale, 1e-300)) this.degenerate += 1;
    if (colour) {
      const key = typeof colour === 'string' ? colour : colourKey(colour);
      this.areaByColour.set(key, (this.areaByColour.get(key) || 0) + area);
    }
    if (doubleSided) {
      this.doubleSidedArea += area;
    } else {
      this.singleSidedArea += area;
      this.volume += dot(a, cross(b, c)) / 6;
    }
    for (const p of [a, b, c]) {
      grow(this.box, p);
      grow(this.triangleBox, p);
    }
  }

  addSegment(a, b) {
    this.segments += 1;
    grow(this.box, a);
    grow(this.box, b);
  }

  addPoint(a) {
    this.points += 1;
    grow(this.box, a);
  }

  toJSON() {
    const colours = {};
    for (const key of [...this.areaByColour.keys()].sort()) colours[key] = this.areaByColour.get(key);
    return {
      triangles: this.triangles,
      segments: this.segments,
      points: this.points,
      degenerate_triangles: this.degenerate,
      area: this.area,
      area_by_colour: this.hasColours ? colours : null,
      single_sided_area: this.singleSidedArea,
      double_sided_area: this.doubleSidedArea,
      volume: this.volume,
      box: boxJson(this.box),
      triangle_box: boxJson(this.triangleBox),
      cameras: this.cameras,
      lights: this.lights,
    };
  }
}

function emptyBox() {
  return { min: [Infinity, Infinity, Infinity], max: [-Infinity, -Infinity, -Infinity] };
}

function grow(box, p) {
  for (let i = 0; i < 3; i++) {
    box.min[i] = Math.min(box.min[i], p[i]);
    box.max[i] = Math.max(box.max[i], p[i]);
  }
}

function boxJson(box) {
  return box.min[0] > box.max[0] ? null : { min: [...box.min], max: [...box.max] };
}

const sub = (a, b) => [a[0] - b[0], a[1] - b[1], a[2] - b[2]];
const dot = (a, b) => a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
const cross = (a, b) => [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]];
const len = (a) => Math.sqrt(dot(a, a));

// The same key as vrml1check's: three decimals, no negative zero.
export function colourKey(rgb) {
  return rgb.map((v) => (Math.round(v * 1000) / 1000 + 0).toFixed(3)).join(' ');
}

// As vrml1check, a triangle whose corners differ in colour counts under
// "blended" (its mean colour depends on how its face was split).
export const BLENDED = 'blended';

function cornerColour(base, corners) {
  for (let c = 0; c < 3; c++) {
    const values = corners.map((corner) => corner[c]);
    if (Math.max(...values) - Math.min(...values) > 1e-3) return BLENDED;
  }
  return base.map((v, c) => v * corners[0][c]);
}

// Column-major 4x4 matrix (glTF's order) applied to a point.
function transform(m, p) {
  return [
    m[0] * p[0] + m[4] * p[1] + m[8] * p[2] + m[12],
    m[1] * p[0] + m[5] * p[1] + m[9] * p[2] + m[13],
    m[2] * p[0] + m[6] * p[1] + m[10] * p[2] + m[14],
  ];
}

function det3(m) {
  return (
    m[0] * (m[5] * m[10] - m[6] * m[9]) - m[4] * (m[1] * m[10] - m[2] * m[9]) + m[8] * (m[1] * m[6] - m[2] * m[5])
  );
}

// The vertex triples of each triangle of a primitive of `mode` over `count`
// vertices, counter-clockwise for the front as glTF defines them.
export function triangleCorners(mode, count) {
  const out = [];
  if (mode === GL.TRIANGLES) {
    for (let i = 0; i + 2 < count; i += 3) out.push([i, i + 1, i + 2]);
  } else if (mode === GL.TRIANGLE_STRIP) {
    for (let i = 0; i + 2 < count; i++) out.push(i % 2 === 0 ? [i, i + 1, i + 2] : [i + 1, i, i + 2]);
  } else if (mode === GL.TRIANGLE_FAN) {
    for (let i = 1; i + 1 < count; i++) out.push([i, i + 1, 0]);
  }
  return out;
}

function segmentEnds(mode, count) {
  const out = [];
  if (mode === GL.LINES) {
    for (let i = 0; i + 1 < count; i += 2) out.push([i, i + 1]);
  } else if (mode === GL.LINE_STRIP || mode === GL.LINE_LOOP) {
    for (let i = 0; i + 1 < count; i++) out.push([i, i + 1]);
    if (mode === GL.LINE_LOOP && count > 2) out.push([count - 1, 0]);
  }
  return out;
}

// glTF through glTF-Transform: every node of the default scene (or of every
// scene when none is the default) with its world matrix.
export async function gltfFigures(file) {
  const io = new NodeIO().registerExtensions(ALL_EXTENSIONS);
  const document = await io.read(file);
  const root = document.getRoot();
  const sink = new FigureSink();
  sink.cameras = 0;
  sink.lights = 0;
  const scene = root.getDefaultScene();
  const scenes = scene ? [scene] : root.listScenes();
  const visit = (node) => {
    if (node.getCamera()) sink.cameras += 1;
    if (node.getExtension('KHR_lights_punctual')) sink.lights += 1;
    const mesh = node.getMesh();
    if (mesh) addMesh(sink, mesh, node.getWorldMatrix());
    for (const child of node.listChildren()) visit(child);
  };
  for (const s of scenes) for (const node of s.listChildren()) visit(node);
  return sink.toJSON();
}

function addMesh(sink, mesh, matrix) {
  const mirrored = det3(matrix) < 0;
  for (const primitive of mesh.listPrimitives()) {
    const position = primitive.getAttribute('POSITION');
    if (!position) continue;
    const indices = primitive.getIndices();
    const count = indices ? indices.getCount() : position.getCount();
    const vertex = (i) => (indices ? indices.getScalar(i) : i);
    const world = (i) => transform(matrix, position.getElement(vertex(i), []));
    const material = primitive.getMaterial();
    const base = material ? material.getBaseColorFactor() : [1, 1, 1, 1];
    const doubleSided = material ? material.getDoubleSided() : false;
    const colours = primitive.getAttribute('COLOR_0');
    const mode = primitive.getMode();
    for (const [i, j, k] of triangleCorners(mode, count)) {
      let colour = base.slice(0, 3);
      if (colours) colour = cornerColour(colour, [i, j, k].map((n) => colours.getElement(vertex(n), [])));
      if (mirrored) sink.addTriangle(world(i), world(k), world(j), colour, doubleSided);
      else sink.addTriangle(world(i), world(j), world(k), colour, doubleSided);
    }
    for (const [i, j] of segmentEnds(mode, count)) sink.addSegment(world(i), world(j));
    if (mode === GL.POINTS) for (let i = 0; i < count; i++) sink.addPoint(world(i));
  }
}

// three.js geometry with positions (and maybe vertex colours), non-indexed or
// indexed, drawn as triangles.
function addGeometryTriangles(sink, geometry, colourOf) {
  const position = geometry.getAttribute('position');
  const colours = geometry.getAttribute('color');
  const index = geometry.getIndex();
  const count = index ? index.count : position.count;
  const vertex = (i) => (index ? index.getX(i) : i);
  const point = (v) => [position.getX(v), position.getY(v), position.getZ(v)];
  const groups = geometry.groups.length ? geometry.groups : [{ start: 0, count, materialIndex: 0 }];
  for (const group of groups) {
    const end = Math.min(count, group.start + group.count);
    for (let i = group.start; i + 2 < end; i += 3) {
      const corners = [vertex(i), vertex(i + 1), vertex(i + 2)];
      let colour = colourOf(group.materialIndex);
      if (colour && colours) {
        colour = cornerColour(colour, corners.map((n) => [0, 1, 2].map((c) => colours.getComponent(n, c))));
      }
      sink.addTriangle(...corners.map(point), colour, false);
    }
  }
}

// OBJ through three.js, with the .mtl files it names. Image maps are left out
// of the materials (three.js would need a browser to load them).
export function objFigures(file) {
  const text = fs.readFileSync(file, 'utf8');
  const loader = new OBJLoader();
  const libraries = [...text.matchAll(/^mtllib\s+(.+?)\s*$/gm)].map((m) => m[1]);
  for (const name of libraries) {
    const mtlPath = path.resolve(path.dirname(file), name);
    if (!fs.existsSync(mtlPath)) throw new Error(`${file}: material library ${name} not found`);
    const mtl = fs.readFileSync(mtlPath, 'utf8').replace(/^\s*(map_\w+|bump|disp|decal|refl)\b.*$/gim, '');
    const creator = new MTLLoader().parse(mtl, path.dirname(mtlPath) + '/');
    creator.preload();
    loader.setMaterials(creator);
  }
  const group = loader.parse(text);
  const sink = new FigureSink();
  group.updateMatrixWorld(true);
  group.traverse((object) => {
    const geometry = object.geometry;
    if (!geometry) return;
    const materials = Array.isArray(object.material) ? object.material : [object.material];
    const colourOf = (n) => {
      const m = materials[n] || materials[0];
      return m && m.color ? [m.color.r, m.color.g, m.color.b] : [1, 1, 1];
    };
    if (object.isMesh) addGeometryTriangles(sink, geometry, colourOf);
    else if (object.isLineSegments) {
      const p = geometry.getAttribute('position');
      for (let i = 0; i + 1 < p.count; i += 2) {
        sink.addSegment([p.getX(i), p.getY(i), p.getZ(i)], [p.getX(i + 1), p.getY(i + 1), p.getZ(i + 1)]);
      }
    } else if (object.isPoints) {
      const p = geometry.getAttribute('position');
      for (let i = 0; i < p.count; i++) sink.addPoint([p.getX(i), p.getY(i), p.getZ(i)]);
    }
  });
  return sink.toJSON();
}

// Binary or ASCII STL through three.js.
export function stlFigures(file) {
  const bytes = fs.readFileSync(file);
  const buffer = bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.byteLength);
  const geometry = new STLLoader().parse(buffer);
  const sink = new FigureSink();
  sink.hasColours = false;
  addGeometryTriangles(sink, geometry, () => null);
  return sink.toJSON();
}

export async function figuresOf(file) {
  const extension = path.extname(file).toLowerCase();
  if (extension === '.glb' || extension === '.gltf') return gltfFigures(file);
  if (extension === '.obj') return objFigures(file);
  if (extension === '.stl') return stlFigures(file);
  throw new Error(`${file}: no figures for ${extension || 'files without an extension'}`);
}

async function main(args) {
  if (args.length === 0) {
    process.stderr.write('usage: node figures.mjs FILE.glb|.gltf|.obj|.stl...\n');
    return 2;
  }
  const all = {};
  for (const file of args) {
    try {
      all[file] = await figuresOf(file);
    } catch (error) {
      process.stderr.write(`figures: ${file}: ${error.message}\n`);
      return 1;
    }
  }
  process.stdout.write(JSON.stringify(all, null, 2) + '\n');
  return 0;
}

if (process.argv[1] && path.resolve(process.argv[1]) === fileURLToPath(import.meta.url)) {
  process.exitCode = await main(process.argv.slice(2));
}
