// Highlighting of lumeric scenes for CodeMirror: a stream tokenizer whose
// word lists (node types, statements, functions, constants, units) are
// taken from the VS Code grammar in editors/, so both editors know the
// same words.
import { StreamLanguage, HighlightStyle, syntaxHighlighting } from '@codemirror/language';
import { tags } from '@lezer/highlight';
import grammar from '../../editors/vscode/syntaxes/lumeric.tmLanguage.json';

// The words of the first "(?:A|B|C)" or "(?i:A|B)" group of each of a
// grammar rule's patterns.
function wordsOf(rule) {
  const words = new Set();
  const patterns = rule.patterns ? rule.patterns : [rule];
  for (const pattern of patterns) {
    const found = /\((?:\?:|\?i:)?([A-Za-z0-9_|]+)\)/.exec(pattern.match || '');
    if (found) for (const word of found[1].split('|')) words.add(word);
  }
  return words;
}

const repository = grammar.repository;
const nodeTypes = wordsOf(repository['node-types']);
const statements = new Set([...wordsOf(repository.statements), ...wordsOf(repository['file-statements'])]);
const functions = new Set([...wordsOf(repository['function-call'])].map((w) => w.toLowerCase()));
const constants = wordsOf(repository['enum-constants']);
const units = new Set([...wordsOf(repository.unit)].map((w) => w.toLowerCase()));
const controlNodes = new Set(['LOOP', 'SELECT', 'PARAMETERS']);
const generators = new Set(['Ball', 'Connect', 'Wall']);

const NUMBER = /^[-+]?(?:0x[0-9A-Fa-f]+|(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][-+]?[0-9]+)?)/;
const WORD = /^[A-Za-z_][A-Za-z0-9_]*/;

// The kind of the word just read.
function wordToken(stream, state, w) {
  const before = stream.string.charAt(stream.start - 1);
  const rest = stream.string.slice(stream.pos);
  if (state.afterDef) {
    state.afterDef = false;
    return 'definition';
  }
  if (w === 'fields' && /^\s*\[/.test(rest)) {
    state.inFields = true;
    return 'fieldsKeyword';
  }
  if (state.inFields && /^[SM]F[A-Z]/.test(w)) return 'fieldType';
  if (w === 'DEF') {
    state.afterDef = true;
    return 'keyword';
  }
  if (w === 'USE' || w === 'VARNAME') return 'keyword';
  if (w === 'INCLUDE' || w === 'OUTPUT_TO') {
    state.afterFile = true;
    return 'statement';
  }
  if (statements.has(w)) return 'statement';
  if (before === ':') return 'fieldRef';
  if (/^[:~]/.test(rest) || before === '~') return 'nodeRef';
  if (/^\s*\(/.test(rest) && !nodeTypes.has(w)) return functions.has(w.toLowerCase()) ? 'function' : 'userFunction';
  if (/^\(/.test(rest)) return functions.has(w.toLowerCase()) ? 'function' : 'userFunction';
  const opensNode = /^\s*(\{|#|$)/.test(rest);
  if (controlNodes.has(w)) return 'controlNode';
  if (generators.has(w) && opensNode) return 'generator';
  if (nodeTypes.has(w)) return 'typeName';
  if (/^(if|then|else)$/i.test(w)) return 'conditional';
  if (/^(true|false)$/i.test(w)) return 'bool';
  if (constants.has(w)) return 'atom';
  if (/^[a-z]/.test(w) && /^[ \t]+[^\s}#,\]]/.test(rest)) return 'propertyName';
  if (/^[A-Z]/.test(w) && /^\s*\{/.test(rest)) return 'userNode';
  return 'variableName';
}

export const lumericLanguage = StreamLanguage.define({
  name: 'lumeric',
  startState: () => ({ afterUnit: false, afterDef: false, afterFile: false, inFields: false }),
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
    if (state.afterFile) {
      state.afterFile = false;
      if (stream.match(/^[^\s#]+/)) return 'filename';
    }
    if (state.afterUnit) {
      state.afterUnit = false;
      const unit = stream.match(WORD);
      if (unit) return units.has(unit[0].toLowerCase()) ? 'unit' : 'invalid';
    }
    if (stream.match("'")) {
      state.afterUnit = true;
      return 'operator';
    }
    // A sign right after a value is an operator (1-2), elsewhere part of
    // the number (-3).
    const before = stream.string.charAt(stream.pos - 1);
    const signIsOperator = /[-+]/.test(stream.peek()) && /[\w.)\]]/.test(before);
    if (!signIsOperator && stream.match(NUMBER)) return 'number';
    const word = stream.match(WORD);
    if (word) return wordToken(stream, state, word[0]);
    const c = stream.next();
    if (c === ']') state.inFields = false;
    if ('{}[]()'.includes(c)) return 'bracket';
    if ('=~-+*/%^|&<>!'.includes(c)) return 'operator';
    return null;
  },
  tokenTable: {
    definition: tags.definition(tags.variableName),
    fieldsKeyword: tags.keyword,
    fieldType: tags.typeName,
    statement: tags.controlKeyword,
    controlNode: tags.controlKeyword,
    generator: tags.special(tags.typeName),
    userNode: tags.className,
    nodeRef: tags.labelName,
    fieldRef: tags.special(tags.propertyName),
    function: tags.function(tags.variableName),
    userFunction: tags.variableName,
    conditional: tags.controlKeyword,
    filename: tags.special(tags.string),
    unit: tags.unit,
  },
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
  { tag: tags.definition(tags.variableName), color: '#6f42c1', fontWeight: 'bold' },
  { tag: tags.special(tags.typeName), color: '#b3127a', fontWeight: 'bold' },
  { tag: tags.className, color: '#005cc5', fontStyle: 'italic' },
  { tag: tags.labelName, color: '#6f42c1' },
  { tag: tags.special(tags.propertyName), color: '#1a6b8a', fontStyle: 'italic' },
  { tag: tags.special(tags.string), color: '#0b7a28', fontStyle: 'italic' },
  { tag: tags.bool, color: '#6f42c1' },
  { tag: tags.invalid, color: '#ff0000', textDecoration: 'underline wavy' },
]));
