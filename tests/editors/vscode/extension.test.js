// Tests of editors/vscode beyond the grammar: the manifest's contributions
// point at files that exist and agree with each other, and the problem
// matchers place the gnu lines of ../messages/gnu-lines.txt and the messages
// the command printed for broken.vlm (the file named by LUMERIC_MESSAGES).
'use strict';
const test = require('node:test');
const assert = require('node:assert');
const fs = require('node:fs');
const path = require('node:path');

const extension = path.join(__dirname, '../../../editors/vscode');
const manifest = JSON.parse(fs.readFileSync(path.join(extension, 'package.json'), 'utf8'));
const contributes = manifest.contributes;

function table(file) {
  return fs.readFileSync(path.join(__dirname, '..', file), 'utf8')
    .split('\n')
    .filter((line) => line !== '' && !line.startsWith('#'))
    .map((line) => line.split('\t'));
}

// What VS Code makes of one output line: the first matcher whose pattern
// matches gives the problem, as [file, line, severity, message].
function problemOf(text) {
  for (const matcher of contributes.problemMatchers) {
    const pattern = matcher.pattern;
    const match = new RegExp(pattern.regexp).exec(text);
    if (!match) continue;
    return [match[pattern.file], pattern.line ? match[pattern.line] : '',
      match[pattern.severity], match[pattern.message]];
  }
  return null;
}

test('the language is .vlm only, with its grammar and configuration', () => {
  assert.deepStrictEqual(contributes.languages.map((l) => l.id), ['lumeric']);
  const language = contributes.languages[0];
  assert.deepStrictEqual(language.extensions, ['.vlm']);
  const configuration = JSON.parse(fs.readFileSync(path.join(extension, language.configuration), 'utf8'));
  assert.strictEqual(configuration.comments.lineComment, '#');
  assert.ok(new RegExp(language.firstLine).test('#VRML V1.0 ascii'));

  assert.strictEqual(contributes.grammars.length, 1);
  const grammar = contributes.grammars[0];
  assert.strictEqual(grammar.language, 'lumeric');
  const rules = JSON.parse(fs.readFileSync(path.join(extension, grammar.path), 'utf8'));
  assert.strictEqual(rules.scopeName, grammar.scopeName);
});

test('the problem matchers place every line that names a file', () => {
  for (const [text, file, line, severity, message] of table('messages/gnu-lines.txt')) {
    const want = file === '' ? null : [file, line, severity, message];
    assert.deepStrictEqual(problemOf(text), want, text);
  }
});

test('the messages printed for broken.vlm are placed', () => {
  const printed = fs.readFileSync(process.env.LUMERIC_MESSAGES, 'utf8').split('\n').filter((l) => l !== '');
  const problems = printed.map(problemOf);
  for (const [i, problem] of problems.entries()) {
    // Only a message that names no file is left to the terminal.
    assert.strictEqual(problem === null, printed[i].startsWith('lumeric: '), printed[i]);
  }
  for (const want of table('messages/broken-expected.txt')) {
    assert.ok(problems.some((p) => JSON.stringify(p) === JSON.stringify(want)), `no problem ${want.join(' ')}`);
  }
});
