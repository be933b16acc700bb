// A stand-in for `lumeric -o FILE INPUT` that tests the export checks
// themselves: it writes .wrl with the real lumeric, and every other format
// from the primitives Coin lists for that VRML 1.0 output (vrml1check figures
// --primitives), so its exports are right by construction and the checks must
// pass them. With STAND_IN_FAULT it makes one known mistake, which the checks
// must catch:
//   inside-out   closed shapes' faces wound the wrong way
//   colour       every colour's red turned up by 0.1
//   lose-face    the last triangle left out
//
//   STAND_IN_LUMERIC=... STAND_IN_VRML1CHECK=... node stand_in_exporter.mjs [OPTION...] -o OUT INPUT
//   node stand_in_exporter.mjs --help
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';

import { Document, NodeIO } from '@gltf-transform/core';

const args = process.argv.slice(2);
if (args.includes('--help')) {
  process.stdout.write('stand-in exporter: -o FILE.wrl|.glb|.gltf|.stl|.obj|.x3d INPUT (--format is implied)\n');
  process.exit(0);
}
const outIndex = args.indexOf('-o');
if (outIndex < 0 || outIndex + 2 >= args.length) {
  process.stderr.write('usage: stand_in_exporter.mjs [OPTION...] -o OUT INPUT\n');
  process.exit(2);
}
const output = path.resolve(args[outIndex + 1]);
const rest = args.filter((_, i) => i !== outIndex && i !== outIndex + 1);
const input = rest.pop();
const options = rest; // lumeric's other options, passed on
const fault = process.env.STAND_IN_FAULT || '';

function lumeric(out) {
  try {
    execFileSync(process.env.STAND_IN_LUMERIC, [...options, '-o', out, input], { stdio: ['ignore', 'inherit', 'inherit'] });
    return 0;
  } catch (error) {
    if (error.status === 1) return 1;
    throw error;
  }
}

if (output.endsWith('.wrl')) process.exit(lumeric(output));

const scratch = fs.mkdtempSync(path.join(os.tmpdir(), 'stand-in-'));
const wrl = path.join(scratch, 'scene.wrl');
const status = lumeric(wrl);
// What Coin cannot read is exported as an empty scene.
let listing = '';
try {
  if (fs.existsSync(wrl)) {
    listing = execFileSync(process.env.STAND_IN_VRML1CHECK, ['figures', wrl, '--primitives'], {
      encoding: 'utf8',
      stdio: ['ignore', 'pipe', 'ignore'],
      maxBuffer: 1 << 30,
    });
  }
} catch {
  listing = '';
}
fs.rmSync(scratch, { recursive: true, force: true });

const triangles = [];
const segments = [];
const points = [];
for (const line of listing.split('\n')) {
  const [kind, ...rest] = line.split(' ');
  const v = rest.map(Number);
  if (kind === 't') {
    let [a, b, c] = [v.slice(0, 3), v.slice(3, 6), v.slice(6, 9)];
    const solid = v[12] === 1;
    if (fault === 'inside-out' && solid) [b, c] = [c, b];
    const colour = v.slice(9, 12);
    if (fault === 'colour') colour[0] = Math.min(1, colour[0] + 0.1);
    triangles.push({ corners: [a, b, c], colour, solid });
  } else if (kind === 'l') {
    segments.push([v.slice(0, 3), v.slice(3, 6)]);
  } else if (kind === 'p') {
    points.push(v);
  }
}
if (fault === 'lose-face') triangles.pop();

// Triangles grouped by colour and sidedness.
function groups() {
  const map = new Map();
  for (const t of triangles) {
    const key = `${t.colour.join(' ')} ${t.solid}`;
    if (!map.has(key)) map.set(key, { colour: t.colour, solid: t.solid, triangles: [] });
    map.get(key).triangles.push(t.corners);
  }
  return [...map.values()];
}

async function writeGltf() {
  const document = new Document();
  document.getRoot().getAsset().generator = 'lumeric export checks stand-in';
  const buffer = document.createBuffer();
  const mesh = document.createMesh();
  const positions = (list) =>
    document.createAccessor().setType('VEC3').setArray(new Float32Array(list.flat(2))).setBuffer(buffer);
  for (const group of groups()) {
    const material = document
      .createMaterial()
      .setBaseColorFactor([...group.colour, 1])
      .setDoubleSided(!group.solid);
    mesh.addPrimitive(document.createPrimitive().setAttribute('POSITION', positions(group.triangles)).setMaterial(material));
  }
  if (segments.length) {
    mesh.addPrimitive(document.createPrimitive().setAttribute('POSITION', positions(segments)).setMode(1));
  }
  if (points.length) {
    mesh.addPrimitive(document.createPrimitive().setAttribute('POSITION', positions(points.map((p) => [p]))).setMode(0));
  }
  if (mesh.listPrimitives().length) {
    const scene = document.createScene();
    document.getRoot().setDefaultScene(scene);
    scene.addChild(document.createNode().setMesh(mesh));
  } else {
    mesh.dispose();
    buffer.dispose();
  }
  await new NodeIO().write(output, document);
}

function writeStl() {
  const bytes = Buffer.alloc(84 + 50 * triangles.length);
  bytes.write('lumeric export checks stand-in', 0);
  bytes.writeUInt32LE(triangles.length, 80);
  triangles.forEach((t, n) => {
    t.corners.flat().forEach((value, i) => bytes.writeFloatLE(value, 84 + 50 * n + 12 + 4 * i));
  });
  fs.writeFileSync(output, bytes);
}

function writeObj() {
  const mtl = output.replace(/\.obj$/, '.mtl');
  let obj = `mtllib ${path.basename(mtl)}\n`;
  let materials = '';
  let vertex = 1;
  groups().forEach((group, n) => {
    materials += `newmtl colour${n}\nKd ${group.colour.join(' ')}\n`;
    obj += `usemtl colour${n}\n`;
    for (const corners of group.triangles) {
      for (const c of corners) obj += `v ${c.join(' ')}\n`;
      obj += `f ${vertex} ${vertex + 1} ${vertex + 2}\n`;
      vertex += 3;
    }
  });
  fs.writeFileSync(mtl, materials);
  fs.writeFileSync(output, obj);
}

function writeX3d() {
  let shapes = '';
  for (const group of groups()) {
    const points = group.triangles.flat().map((c) => c.join(' ')).join(' ');
    const index = group.triangles.map((_, n) => `${3 * n} ${3 * n + 1} ${3 * n + 2} -1`).join(' ');
    shapes +=
      `<Shape><Appearance><Material diffuseColor="${group.colour.join(' ')}"/></Appearance>` +
      `<IndexedFaceSet solid="${group.solid}" coordIndex="${index}"><Coordinate point="${points}"/>` +
      '</IndexedFaceSet></Shape>\n';
  }
  fs.writeFileSync(
    output,
    '<?xml version="1.0" encoding="UTF-8"?>\n<X3D profile="Interchange" version="3.3">\n<Scene>\n' +
      shapes +
      '</Scene>\n</X3D>\n',
  );
}

const writers = { '.glb': writeGltf, '.gltf': writeGltf, '.stl': writeStl, '.obj': writeObj, '.x3d': writeX3d };
const writer = writers[path.extname(output)];
if (!writer) {
  process.stderr.write(`stand-in exporter: no format for ${output}\n`);
  process.exit(1);
}
await writer();
process.exitCode = status;
