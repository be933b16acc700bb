// The engine's worker: loads the WebAssembly translator and answers the
// page's requests on its in-memory file system.  The page ends this worker
// and starts a new one when a translation runs past its time limit.
/* global importScripts, createLumericEngine */
importScripts('lumeric-engine.js');

const WORK = '/files';  // the in-memory directory of the scene and its files
const SCENE = WORK + '/scene.vlm';
let engine = null;
const ready = createLumericEngine().then((module) => {
  engine = module;
  engine.FS.mkdirTree(WORK + '/out');
  postMessage({ kind: 'ready' });
});

// Writes the scene and the author's files, removing files no longer given.
function writeFiles(scene, files) {
  const FS = engine.FS;
  for (const name of FS.readdir(WORK)) {
    if (name === '.' || name === '..' || name === 'out') continue;
    FS.unlink(WORK + '/' + name);
  }
  for (const [name, bytes] of Object.entries(files || {})) FS.writeFile(WORK + '/' + name, bytes);
  FS.writeFile(SCENE, scene);
}

// The engine's answer, its messages naming files as the author named them
// (relative to the in-memory directory): "scene.vlm", "parts.inc".
function call(name, request) {
  const result = JSON.parse(engine.ccall(name, 'string', ['string'], [JSON.stringify(request)]));
  for (const m of result.messages || []) {
    if (m.file && m.file.startsWith(WORK + '/')) m.file = m.file.slice(WORK.length + 1);
  }
  return result;
}

function clearOutputs() {
  const FS = engine.FS;
  for (const name of FS.readdir(WORK + '/out')) {
    if (name !== '.' && name !== '..') FS.unlink(`${WORK}/out/${name}`);
  }
}

function exportScene(request, format) {
  const output = `${WORK}/out/scene.${format}`;
  clearOutputs();
  const started = performance.now();
  const result = call('lumeric_export', { ...request, input: SCENE, output, format });
  result.engineMs = performance.now() - started;
  try { result.bytes = engine.FS.readFile(output); } catch (e) { result.bytes = null; }
  // The files written beside the main one (an OBJ's materials, textures).
  result.companions = engine.FS.readdir(`${WORK}/out`)
    .filter((name) => name !== '.' && name !== '..' && name !== `scene.${format}`)
    .map((name) => ({ name, bytes: engine.FS.readFile(`${WORK}/out/${name}`) }));
  return result;
}

onmessage = async (event) => {
  await ready;
  const { id, kind, scene, files, limits, overrides, format, listParameters } = event.data;
  const request = { ...limits, overrides: overrides || [] };
  writeFiles(scene, files);
  const answer = { id, kind };
  if (kind === 'translate') {
    if (listParameters) answer.parameters = call('lumeric_parameters', { ...limits, input: SCENE }).parameters;
    Object.assign(answer, exportScene(request, 'glb'));
  } else if (kind === 'export') {
    Object.assign(answer, exportScene(request, format));
  }
  const transfers = (answer.companions || []).map((c) => c.bytes.buffer);
  if (answer.bytes) transfers.push(answer.bytes.buffer);
  postMessage(answer, transfers);
};
