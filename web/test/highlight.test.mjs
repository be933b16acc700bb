// The playground's highlighting against the cases the vim and Emacs tests
// share (tests/editors/highlight-cases.txt): each case names a line of a
// sample scene, a token on it and the class expected there, which must be
// the kind the CodeMirror tokenizer gives.
//   node --test web/test/highlight.test.mjs
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { build } from 'esbuild';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const root = join(here, '..', '..');
const editorTests = join(root, 'tests', 'editors');

// The classes of the shared cases and the tokens that stand for each.
const KINDS = {
  header: ['meta'], comment: ['comment'], keyword: ['keyword'], defname: ['definition'], node: ['typeName'],
  field: ['propertyName'], number: ['number'], operator: ['operator'], assign: ['operator'], noderef: ['nodeRef'],
  fieldref: ['fieldRef'], unit: ['unit'], badunit: ['invalid'], string: ['string'], enum: ['atom'],
  conditional: ['conditional'], function: ['function'], userfunction: ['userFunction'], boolean: ['bool'],
  control: ['controlNode'], 'fields-keyword': ['fieldsKeyword'], 'field-type': ['fieldType'], statement: ['statement'],
  filename: ['filename'], generator: ['generator'], usernode: ['userNode'], '-': [null, 'variableName', 'bracket'],
};

async function loadLanguage() {
  const dir = mkdtempSync(join(tmpdir(), 'lumeric-highlight-'));
  const entry = join(dir, 'entry.mjs');
  writeFileSync(entry, `export { lumericLanguage } from ${JSON.stringify(join(here, '..', 'src', 'language.js'))};\n`);
  const out = join(dir, 'language.mjs');
  await build({ entryPoints: [entry], bundle: true, format: 'esm', platform: 'node', outfile: out, logLevel: 'error',
    nodePaths: [join(here, '..', 'node_modules')] });
  const module = await import(pathToFileURL(out).href);
  rmSync(dir, { recursive: true, force: true });
  return module.lumericLanguage;
}

// The token kinds of a whole text, by offset.
function tokensOf(language, text) {
  const kinds = new Array(text.length).fill(null);
  language.parser.parse(text).iterate({
    enter(node) {
      if (node.type.isTop || node.from === node.to) return;
      for (let i = node.from; i < node.to; i++) kinds[i] = node.name;
    },
  });
  return kinds;
}

test('the tokenizer gives every shared highlighting case its class', async () => {
  const language = await loadLanguage();
  const samples = {};
  const lines = readFileSync(join(editorTests, 'highlight-cases.txt'), 'utf8').split('\n')
    .filter((line) => line.trim() && !line.startsWith('#'));
  assert.ok(lines.length > 40, 'the cases are read');
  const wrong = [];
  for (const line of lines) {
    const [file, start, tokenSpec, expected] = line.split(' | ').map((part) => part.trim());
    if (!samples[file]) {
      const text = readFileSync(join(editorTests, 'grammar', file), 'utf8');
      samples[file] = { text, kinds: tokensOf(language, text) };
    }
    const { text, kinds } = samples[file];
    const lineStart = text.split('\n').reduce((found, l, i, all) => {
      if (found >= 0) return found;
      return l.trimStart().startsWith(start) ? all.slice(0, i).join('\n').length + (i > 0 ? 1 : 0) + (l.length - l.trimStart().length) : -1;
    }, -1);
    assert.ok(lineStart >= 0, `${file} has a line starting ${start}`);
    const lineText = text.slice(lineStart, text.indexOf('\n', lineStart) < 0 ? text.length : text.indexOf('\n', lineStart));
    const [token, nth] = tokenSpec.includes('@') && !tokenSpec.startsWith('@')
      ? [tokenSpec.slice(0, tokenSpec.lastIndexOf('@')), Number(tokenSpec.slice(tokenSpec.lastIndexOf('@') + 1))]
      : [tokenSpec, 0];
    let at = -1;
    for (let k = 0; k <= nth; k++) at = lineText.indexOf(token, at + 1);
    assert.ok(at >= 0, `${tokenSpec} is on the line ${start}`);
    const kind = kinds[lineStart + at];
    if (!KINDS[expected].includes(kind)) wrong.push(`${file}: ${start} | ${tokenSpec}: ${expected} expected, ${kind} given`);
  }
  assert.deepEqual(wrong, []);
});
