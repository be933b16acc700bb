// The playground page: editor, engine, picture, customizer, examples,
// downloads and sharing.
import { EditorView, basicSetup } from 'codemirror';
import { EditorState } from '@codemirror/state';
import { setDiagnostics, forEachDiagnostic } from '@codemirror/lint';
import LZString from 'lz-string';
import examples from 'lumeric:examples';
import { lumericLanguage, lumericHighlight } from './language.js';
import { Engine } from './engine.js';
import { Viewer } from './viewer.js';
import { Customizer } from './customizer.js';

const DEBOUNCE_MS = 300;
const STORAGE_KEY = 'lumeric-playground';
const $ = (id) => document.getElementById(id);

const engine = new Engine();
const viewer = new Viewer($('canvas'));
const files = {};  // name -> Uint8Array, the author's added files
let timer = 0;
let lastListedScene = null;
let generation = 0;
const statusLine = $('status');

function setStatus(text, kind = '') {
  statusLine.textContent = text;
  statusLine.className = kind;
}

const customizer = new Customizer($('customizer'), () => schedule(0));

const editor = new EditorView({
  parent: $('editor'),
  state: EditorState.create({
    doc: '',
    extensions: [basicSetup, lumericLanguage, lumericHighlight,
      EditorView.updateListener.of((update) => { if (update.docChanged) schedule(DEBOUNCE_MS); })],
  }),
});

function sceneText() {
  return editor.state.doc.toString();
}

function setScene(text, values = {}) {
  customizer.values = { ...values };
  customizer.signature = '';
  viewer.forget();
  editor.dispatch({ changes: { from: 0, to: editor.state.doc.length, insert: text } });
  schedule(0);
}

function limits() {
  return { maxNodes: Number($('max-nodes').value) || 10000000, maxEvaluations: Number($('max-evaluations').value) || 10000000 };
}

function schedule(delay) {
  clearTimeout(timer);
  timer = setTimeout(translate, delay);
}

function jumpTo(line) {
  const at = editor.state.doc.line(Math.min(Math.max(1, line), editor.state.doc.lines));
  editor.dispatch({ selection: { anchor: at.from }, scrollIntoView: true });
  editor.focus();
}

// The messages in the list and, for the scene's own lines, as markers.
function showMessages(messages) {
  const list = $('messages');
  list.textContent = '';
  const diagnostics = [];
  const doc = editor.state.doc;
  for (const m of messages) {
    const item = document.createElement('li');
    item.className = m.severity;
    const inScene = !m.file || m.file === 'scene.vlm';
    const place = m.line ? `${inScene ? '' : m.file + ':'}${m.line}: ` : '';
    item.textContent = `${place}${m.severity === 'note' ? '' : m.severity + ': '}${m.text}`;
    if (m.line && inScene) {
      item.dataset.line = m.line;
      item.addEventListener('click', () => jumpTo(m.line));
      if (m.severity !== 'note' && m.line <= doc.lines) {
        const line = doc.line(m.line);
        diagnostics.push({ from: line.from, to: line.to, severity: m.severity === 'error' ? 'error' : 'warning', message: m.text });
      }
    }
    list.append(item);
  }
  editor.dispatch(setDiagnostics(editor.state, diagnostics));
}

function save() {
  try {
    localStorage.setItem(STORAGE_KEY, JSON.stringify({ scene: sceneText(), values: customizer.values }));
  } catch (e) { /* storage full or refused */ }
}

async function translate() {
  const scene = sceneText();
  const mine = ++generation;
  const started = performance.now();
  const listParameters = scene !== lastListedScene;
  setStatus('Translating…', 'busy');
  save();
  const overrides = customizer.overrides();
  let answer;
  try {
    answer = await engine.request({ kind: 'translate', scene, files, limits: limits(), overrides, listParameters },
      Number($('time-limit').value) * 1000 || 10000);
  } catch (error) {
    if (mine !== generation) return;
    showMessages([{ severity: 'error', text: error.message }]);
    setStatus(error.message, 'failed');
    window.playground.last = { failed: true, message: error.message };
    return;
  }
  if (mine !== generation) return;
  if (listParameters && answer.parameters) {
    lastListedScene = scene;
    customizer.show(answer.parameters);
    // Values restored with the scene apply once their fields are known.
    if (JSON.stringify(customizer.overrides()) !== JSON.stringify(overrides)) {
      schedule(0);
      return;
    }
  }
  const messages = answer.messages || [];
  if (answer.overrideError) messages.unshift({ severity: 'error', text: answer.overrideError });
  showMessages(messages);
  let shown = null;
  if (answer.bytes) shown = await viewer.show(answer.bytes);
  const ms = performance.now() - started;
  const problems = answer.errors > 0 ? ` · ${answer.errors} error${answer.errors === 1 ? '' : 's'}` : '';
  if (shown) {
    setStatus(`Translated and shown in ${Math.round(ms)} ms · ${shown.nodes} nodes · ${shown.triangles} triangles${problems}`,
      answer.errors > 0 ? 'failed' : '');
  } else {
    const first = messages.find((m) => m.severity === 'error');
    setStatus(`Not shown: ${answer.errors} error${answer.errors === 1 ? '' : 's'}${first ? ' — ' + first.text : ''}`, 'failed');
  }
  window.playground.last = { ms, engineMs: answer.engineMs, shown, errors: answer.errors, messages };
  window.playground.count += 1;
}

async function download(format) {
  const answer = await engine.request({ kind: 'export', scene: sceneText(), files, limits: limits(), overrides: customizer.overrides(), format },
    Number($('time-limit').value) * 1000 || 10000);
  if (!answer.bytes) {
    setStatus(`Nothing to download: ${answer.errors} errors`, 'failed');
    return;
  }
  // The main file, then its companions (an OBJ's .mtl, textures).
  const downloads = [{ name: `scene.${format}`, bytes: answer.bytes }, ...(answer.companions || [])];
  for (const file of downloads) {
    const link = document.createElement('a');
    link.href = URL.createObjectURL(new Blob([file.bytes]));
    link.download = file.name;
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 1000);
  }
}

function shareLink() {
  const payload = LZString.compressToEncodedURIComponent(JSON.stringify({ scene: sceneText(), values: customizer.values }));
  return `${location.origin}${location.pathname}#scene=${payload}`;
}

function fromFragment() {
  const found = /^#scene=(.+)$/.exec(location.hash);
  if (!found) return null;
  try {
    return JSON.parse(LZString.decompressFromEncodedURIComponent(found[1]));
  } catch (e) {
    return null;
  }
}

// The page's controls.
for (const example of examples) {
  const option = document.createElement('option');
  option.value = example.name;
  option.textContent = example.name;
  $('examples').append(option);
}
$('examples').addEventListener('change', () => {
  const example = examples.find((e) => e.name === $('examples').value);
  if (example) setScene(example.text);
});
$('run').addEventListener('click', () => schedule(0));
for (const button of document.querySelectorAll('[data-format]')) {
  button.addEventListener('click', () => download(button.dataset.format));
}
$('share').addEventListener('click', async () => {
  const link = shareLink();
  history.replaceState(null, '', link);
  try { await navigator.clipboard.writeText(link); setStatus('Share link copied and shown in the address bar'); } catch (e) {
    setStatus('Share link shown in the address bar');
  }
});
$('files').addEventListener('change', async () => {
  for (const file of $('files').files) files[file.name] = new Uint8Array(await file.arrayBuffer());
  $('file-list').textContent = Object.keys(files).join(', ');
  schedule(0);
});
$('fit').addEventListener('click', () => viewer.fit());
$('scene-camera').addEventListener('click', () => viewer.useSceneCamera());
const helpers = () => viewer.setHelpers($('grid').checked, $('axes').checked);
$('grid').addEventListener('change', helpers);
$('axes').addEventListener('change', helpers);
for (const id of ['max-nodes', 'max-evaluations']) $(id).addEventListener('change', () => schedule(0));

// The markers, as the browser test reads them: line and severity.
function markers() {
  const found = [];
  forEachDiagnostic(editor.state, (d, from) => found.push({ line: editor.state.doc.lineAt(from).number, severity: d.severity, message: d.message }));
  return found;
}

window.playground = { editor, viewer, customizer, engine, shareLink, setScene, jumpTo, markers, count: 0, last: null };

// The scene to start with: a share link, the last scene, the molecule.
const shared = fromFragment();
let stored = null;
try { stored = JSON.parse(localStorage.getItem(STORAGE_KEY)); } catch (e) { stored = null; }
const start = shared || stored;
const molecule = examples.find((e) => e.name === 'molecule.vlm') || examples[0];
if (start && typeof start.scene === 'string') {
  setScene(start.scene, start.values || {});
} else {
  $('examples').value = molecule.name;
  setScene(molecule.text);
}
