// Unit tests of figures.mjs and validate.mjs on small files built here with
// glTF-Transform (and written by hand for OBJ and STL), whose figures are
// known: a cube of side 2 has area 24 and volume 8, and so on.
//
//   node --test tests/export/checks/
import assert from 'node:assert/strict';
import { execFileSync, spawnSync } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { test } from 'node:test';
import { fileURLToPath } from 'node:url';

import { Document, NodeIO } from '@gltf-transform/core';

import { colourKey, figuresOf, triangleCorners } from './figures.mjs';

const HERE = path.dirname(fileURLToPath(import.meta.url));
const scratch = fs.mkdtempSync(path.join(os.tmpdir(), 'lumeric-figures-'));
process.on('exit', () => fs.rmSync(scratch, { recursive: true, force: true }));

// A cube of side 2 centred on the origin: 8 corners, 12 triangles facing out.
const CUBE_POINTS = [
  [-1, -1, -1], [1, -1, -1], [1, 1, -1], [-1, 1, -1],
  [-1, -1, 1], [1, -1, 1], [1, 1, 1], [-1, 1, 1],
];
const CUBE_QUADS = [
  [0, 3, 2, 1], [4, 5, 6, 7], [0, 1, 5, 4], [3, 7, 6, 2], [0, 4, 7, 3], [1, 2, 6, 5],
];
const CUBE_TRIANGLES = CUBE_QUADS.flatMap(([a, b, c, d]) => [a, b, c, a, c, d]);

function buildDocument(build) {
  const document = new Document();
  const buffer = document.createBuffer();
  const scene = document.createScene();
  document.getRoot().setDefaultScene(scene);
  const accessor = (type, values, ArrayType = Float32Array) =>
    document.createAccessor().setType(type).setArray(new ArrayType(values)).setBuffer(buffer);
  const material = (rgba, doubleSided = false) =>
    document.createMaterial().setBaseColorFactor(rgba).setDoubleSided(doubleSided);
  const primitive = (points, indices, mat, mode = 4) => {
    const p = document.createPrimitive().setAttribute('POSITION', accessor('VEC3', points.flat())).setMode(mode);
    if (indices) p.setIndices(accessor('SCALAR', indices, Uint16Array));
    if (mat) p.setMaterial(mat);
    return p;
  };
  const node = (mesh, options = {}) => {
    const n = document.createNode().setMesh(mesh);
    if (options.translation) n.setTranslation(options.translation);
    if (options.scale) n.setScale(options.scale);
    scene.addChild(n);
    return n;
  };
  build({ document, accessor, material, primitive, node });
  return document;
}

async function write(document, name) {
  const file = path.join(scratch, name);
  await new NodeIO().write(file, document);
  return file;
}

const cubeMesh = ({ document, material, primitive }, rgba = [0.8, 0.8, 0.8, 1]) =>
  document.createMesh().addPrimitive(primitive(CUBE_POINTS, CUBE_TRIANGLES, material(rgba)));

test('a cube of side 2: area 24, volume 8, box from -1 to 1, in .glb and .gltf', async () => {
  for (const name of ['cube.glb', 'cube.gltf']) {
    const file = await write(buildDocument((b) => b.node(cubeMesh(b))), name);
    const f = await figuresOf(file);
    assert.equal(f.triangles, 12, name);
    assert.ok(Math.abs(f.area - 24) < 1e-9, name);
    assert.ok(Math.abs(f.volume - 8) < 1e-9, name);
    assert.deepEqual(f.box, { min: [-1, -1, -1], max: [1, 1, 1] });
    assert.deepEqual(Object.keys(f.area_by_colour), ['0.800 0.800 0.800']);
    assert.equal(f.double_sided_area, 0);
  }
});

test('a mirroring node keeps the volume positive; baking the mirror into the vertices without reversing turns it negative', async () => {
  const mirrored = await figuresOf(
    await write(buildDocument((b) => b.node(cubeMesh(b), { scale: [-1, 1, 1], translation: [-3, 0, 0] })), 'mirror.glb'),
  );
  assert.ok(Math.abs(mirrored.volume - 8) < 1e-9);
  assert.deepEqual(mirrored.box, { min: [-4, -1, -1], max: [-2, 1, 1] });

  const baked = CUBE_POINTS.map(([x, y, z]) => [-x - 3, y, z]);
  const insideOut = await figuresOf(
    await write(
      buildDocument(({ document, primitive, material, node }) =>
        node(document.createMesh().addPrimitive(primitive(baked, CUBE_TRIANGLES, material([1, 1, 1, 1])))),
      ),
      'inside-out.glb',
    ),
  );
  assert.ok(Math.abs(insideOut.volume + 8) < 1e-9);
});

test('area per colour from base colours and vertex colours, blended colours apart; double-sided faces leave the volume', async () => {
  const file = await write(
    buildDocument(({ document, accessor, primitive, material, node }) => {
      const square = [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0]];
      const red = primitive(square, [0, 1, 2, 0, 2, 3], material([1, 0, 0, 1], true));
      const shifted = square.map(([x, y, z]) => [x + 2, y, z]);
      const tinted = primitive(shifted, [0, 1, 2, 0, 2, 3], material([1, 1, 1, 1], true));
      tinted.setAttribute('COLOR_0', accessor('VEC3', [0, 0.5, 0, 0, 0.5, 0, 0, 0.5, 0, 0, 0.5, 0]));
      const third = square.map(([x, y, z]) => [x + 4, y, z]);
      const blended = primitive(third, [0, 1, 2], material([1, 1, 1, 1], true));
      blended.setAttribute('COLOR_0', accessor('VEC3', [1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1]));
      node(document.createMesh().addPrimitive(red).addPrimitive(tinted).addPrimitive(blended));
    }),
    'colours.glb',
  );
  const f = await figuresOf(file);
  assert.deepEqual(f.area_by_colour, { '0.000 0.500 0.000': 1, '1.000 0.000 0.000': 1, blended: 0.5 });
  assert.equal(f.double_sided_area, 2.5);
  assert.equal(f.volume, 0);
});

test('strips, fans, lines and points are counted by their modes', async () => {
  const file = await write(
    buildDocument(({ document, primitive, node }) => {
      const pts = [[0, 0, 0], [1, 0, 0], [0, 1, 0], [1, 1, 0], [0, 2, 0]];
      const mesh = document.createMesh();
      mesh.addPrimitive(primitive(pts, null, null, 5)); // strip: 3 triangles of area 0.5
      mesh.addPrimitive(primitive(pts.slice(0, 4), null, null, 6)); // fan: 2 triangles
      mesh.addPrimitive(primitive(pts, null, null, 3)); // line strip: 4 segments
      mesh.addPrimitive(primitive(pts, null, null, 2)); // line loop: 5 segments
      mesh.addPrimitive(primitive(pts.slice(0, 4), null, null, 1)); // lines: 2 segments
      mesh.addPrimitive(primitive([[7, 7, 7]], null, null, 0)); // one point
      node(mesh);
    }),
    'modes.gltf',
  );
  const f = await figuresOf(file);
  assert.equal(f.triangles, 5);
  assert.ok(Math.abs(f.area - 2.5) < 1e-9);
  assert.equal(f.segments, 11);
  assert.equal(f.points, 1);
  assert.deepEqual(f.box.max, [7, 7, 7]);
  assert.deepEqual(f.triangle_box.max, [1, 2, 0]);
});

test('strip and fan triangles keep the front counter-clockwise', () => {
  assert.deepEqual(triangleCorners(5, 4), [[0, 1, 2], [2, 1, 3]]);
  assert.deepEqual(triangleCorners(6, 4), [[1, 2, 0], [2, 3, 0]]);
  assert.equal(colourKey([0.8000001, -0.0000001, 1]), '0.800 0.000 1.000');
});

test('OBJ with its material library and STL give the cube figures', async () => {
  const vertices = CUBE_POINTS.map((p) => `v ${p.join(' ')}`).join('\n');
  const faces = CUBE_QUADS.map((q) => `f ${q.map((i) => i + 1).join(' ')}`);
  fs.writeFileSync(path.join(scratch, 'cube.mtl'), 'newmtl red\nKd 1 0 0\nmap_Kd missing.png\nnewmtl blue\nKd 0 0 1\n');
  fs.writeFileSync(
    path.join(scratch, 'cube.obj'),
    `mtllib cube.mtl\n${vertices}\nusemtl red\n${faces.slice(0, 2).join('\n')}\nusemtl blue\n${faces.slice(2).join('\n')}\n`,
  );
  const obj = await figuresOf(path.join(scratch, 'cube.obj'));
  assert.equal(obj.triangles, 12);
  assert.ok(Math.abs(obj.volume - 8) < 1e-9);
  assert.deepEqual(obj.area_by_colour, { '0.000 0.000 1.000': 16, '1.000 0.000 0.000': 8 });

  const stl = Buffer.alloc(84 + 50 * 12);
  stl.writeUInt32LE(12, 80);
  CUBE_TRIANGLES.forEach((corner, n) => {
    const offset = 84 + 50 * Math.floor(n / 3) + 12 + 12 * (n % 3);
    CUBE_POINTS[corner].forEach((v, axis) => stl.writeFloatLE(v, offset + 4 * axis));
  });
  fs.writeFileSync(path.join(scratch, 'cube.stl'), stl);
  const s = await figuresOf(path.join(scratch, 'cube.stl'));
  assert.equal(s.triangles, 12);
  assert.ok(Math.abs(s.area - 24) < 1e-9);
  assert.ok(Math.abs(s.volume - 8) < 1e-9);
  assert.equal(s.area_by_colour, null);
});

test('the validator passes a valid file and fails a broken one', async () => {
  const validate = path.join(HERE, 'validate.mjs');
  const good = await write(buildDocument((b) => b.node(cubeMesh(b))), 'valid.gltf');
  execFileSync(process.execPath, [validate, good]);

  const broken = path.join(scratch, 'broken.gltf');
  const json = JSON.parse(fs.readFileSync(good, 'utf8'));
  json.meshes[0].primitives[0].attributes.POSITION = 99;
  fs.writeFileSync(broken, JSON.stringify(json));
  const run = spawnSync(process.execPath, [validate, broken], { encoding: 'utf8' });
  assert.equal(run.status, 1, run.stdout);
  assert.match(run.stdout, /error/);
});
