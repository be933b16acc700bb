// Highlighting of lumeric scenes for CodeMirror: a stream tokenizer whose
// word lists (node types, statements, functions, constants, units) are
// taken from the VS Code grammar in editors/, so both editors know the
// same words.
import { StreamLanguage, HighlightStyle, syntaxHighlighting } from '@codemirror/language';
import { tags } from '@lezer/highlight';
import grammar from '../../editors/vscode/syntaxes/lumeric.tmLanguage.json';

// The words of a grammar rule's "\b(?:A|B|C)\b" or "\b(?i:A|B)\b" patterns.
function wordsOf(rule) {
  const words = new Set();
  const patterns = rule.patterns ? rule.patterns : [rule];
  for (const pattern of patterns) {
    const found = /\\b\((?:\?:|\?i:)?([A-Za-z0-9_|]+)\)/.exec(pattern.match || '');
    if (found) for (const word of found[1].split('|')) words.add(word);
  }
  return words;
}

const repository = grammar.repository;
const nodeTypes = wordsOf(repository['node-types']);
const statements = new Set([...wordsOf(repository.statements), ...wordsOf(repository['file-statements']),
  'DEF', 'USE', 'VARNAME']);
const functions = new Set([...wordsOf(repository['function-call'])].map((w) => w.toLowerCase()));
const constants = wordsOf(repository['enum-constants']);
const units = new Set([...wordsOf(repository.unit)].map((w) => w.toLowerCase()));
const extensionNodes = new Set(['LOOP', 'SELECT', 'PARAMETERS', 'Ball', 'Connect', 'Wall']);

const NUMBER = /^[-+]?(?:0x[0-9A-Fa-f]+|(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][-+]?[0-9]+)?)/;

export const lumericLanguage = StreamLanguage.define({
  name: 'lumeric',
  startState: () => ({ afterUnit: false, inFields: false }),
  token(stream, state) {
    if (stream.sol() && stream.match(/^#VRML V1\.0 ascii\b/)) return 'meta';
    if (stream.eatSpace()) return null;
    if (stream.match('#')) {
      stream.skipToEnd();
      return 'comment';
    }
    if (stream.peek() === '"') {
      stream.next();
      let escaped = false;
      while (!stream.eol()) {
        const c = stream.next();
        if (c === '"' && !escaped) break;
        escaped = !escaped && c === '\\';
      }
      return 'string';
    }
    if (state.afterUnit) {
      state.afterUnit = false;
      const unit = stream.match(/^[A-Za-z_][A-Za-z0-9_]*/);
      if (unit) return units.has(unit[0].toLowerCase()) ? 'unit' : 'invalid';
    }
    if (stream.match("'")) {
      state.afterUnit = true;
      return 'operator';
    }
    if (stream.match(NUMBER)) return 'number';
    const word = stream.match(/^[A-Za-z_][A-Za-z0-9_]*/);
    if (word) {
      const w = word[0];
      if (w === 'fields') return 'keyword';
      if (state.inFields && /^[SM]F[A-Z]/.test(w)) return 'typeName';
      if (extensionNodes.has(w)) return 'extension';
      if (nodeTypes.has(w)) return 'typeName';
      if (statements.has(w)) return 'extension';
      if (/^(if|then|else)$/i.test(w)) return 'keyword';
      if (/^(true|false)$/i.test(w) || constants.has(w)) return 'atom';
      if (stream.peek() === '(' && functions.has(w.toLowerCase())) return 'function';
      if (/^[a-z]/.test(w) && /^[ \t]+[^\s}#,\]]/.test(stream.string.slice(stream.pos))) return 'propertyName';
      return 'variableName';
    }
    const c = stream.next();
    if (c === '[') state.inFields = /fields\s*\[$/.test(stream.string.slice(0, stream.pos));
    if (c === ']') state.inFields = false;
    if ('{}[]()'.includes(c)) return 'bracket';
    if (c === '=' || c === '~' || '-+*/%^|&<>!'.includes(c)) return 'operator';
    return null;
  },
  tokenTable: { extension: tags.controlKeyword, unit: tags.unit, function: tags.function(tags.variableName) },
  languageData: { commentTokens: { line: '#' } },
});

export const lumericHighlight = syntaxHighlighting(HighlightStyle.define([
  { tag: tags.meta, color: '#7a3e9d', fontWeight: 'bold' },
  { tag: tags.comment, color: '#6a737d', fontStyle: 'italic' },
  { tag: tags.string, color: '#0b7a28' },
  { tag: tags.number, color: '#b05800' },
  { tag: tags.unit, color: '#b05800', fontWeight: 'bold' },
  { tag: tags.typeName, color: '#005cc5', fontWeight: 'bold' },
  { tag: tags.controlKeyword, color: '#b3127a', fontWeight: 'bold' },
  { tag: tags.keyword, color: '#b3127a' },
  { tag: tags.atom, color: '#6f42c1' },
  { tag: tags.function(tags.variableName), color: '#795e26' },
  { tag: tags.propertyName, color: '#1a6b8a' },
  { tag: tags.operator, color: '#d73a49' },
  { tag: tags.invalid, color: '#ff0000', textDecoration: 'underline wavy' },
]));
