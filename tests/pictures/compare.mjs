#!/usr/bin/env node
// Compares the silhouettes of pictures taken by two viewers of one scene.
//   node compare.mjs BOUND NAME A.png B.png [NAME A.png B.png ...]
// A pixel is covered when it differs from the viewers' background (grey 0.1,
// 26 26 26) in any channel.  For each pair it prints the share of pixels
// covered in one picture and not in the other, over the pixels covered in
// either, and fails (exit 1) when a share exceeds BOUND, when the pictures
// differ in size, or when either covers nothing.  Exit 2: a wrong command
// line or an unreadable picture.
import fs from 'node:fs';
import path from 'node:path';
import {createRequire} from 'node:module';
import {fileURLToPath} from 'node:url';

const here = path.dirname(fileURLToPath(import.meta.url));
const require = createRequire(path.join(here, '..', '..', 'scripts', 'render', 'package.json'));
const {PNG} = require('pngjs');

const BACKGROUND = [26, 26, 26];

function covered(picture) {
  const mask = new Uint8Array(picture.width * picture.height);
  for (let i = 0; i < mask.length; ++i) {
    const p = 4 * i;
    mask[i] = picture.data[p] !== BACKGROUND[0] || picture.data[p + 1] !== BACKGROUND[1] ||
              picture.data[p + 2] !== BACKGROUND[2] ? 1 : 0;
  }
  return mask;
}

// The figures of one pair: pixels covered in either, in only one, and the
// share.
function compareSilhouettes(a, b) {
  const maskA = covered(a);
  const maskB = covered(b);
  let either = 0;
  let onlyA = 0;
  let onlyB = 0;
  for (let i = 0; i < maskA.length; ++i) {
    if (maskA[i] || maskB[i]) ++either;
    if (maskA[i] && !maskB[i]) ++onlyA;
    if (maskB[i] && !maskA[i]) ++onlyB;
  }
  return {either, onlyA, onlyB, share: either ? (onlyA + onlyB) / either : 1};
}

function main(argv) {
  const bound = Number(argv[0]);
  if (!(bound >= 0) || argv.length < 4 || (argv.length - 1) % 3 !== 0) {
    process.stderr.write('usage: compare.mjs BOUND NAME A.png B.png [NAME A.png B.png ...]\n');
    return 2;
  }
  let failed = false;
  for (let i = 1; i < argv.length; i += 3) {
    const [name, fileA, fileB] = argv.slice(i, i + 3);
    let a;
    let b;
    try {
      a = PNG.sync.read(fs.readFileSync(fileA));
      b = PNG.sync.read(fs.readFileSync(fileB));
    } catch (error) {
      process.stderr.write(`${name}: ${error.message}\n`);
      return 2;
    }
    if (a.width !== b.width || a.height !== b.height) {
      process.stdout.write(`${name}: sizes differ, ${a.width}x${a.height} and ${b.width}x${b.height}\n`);
      failed = true;
      continue;
    }
    const figures = compareSilhouettes(a, b);
    const over = figures.share > bound || figures.onlyA === figures.either || figures.onlyB === figures.either;
    process.stdout.write(`${name}: ${(100 * figures.share).toFixed(2)}% of ${figures.either} covered pixels ` +
                         `differ (${figures.onlyA} only in ${path.basename(fileA)}, ` +
                         `${figures.onlyB} only in ${path.basename(fileB)})${over ? ' ABOVE THE BOUND' : ''}\n`);
    failed ||= over;
  }
  return failed ? 1 : 0;
}

process.exitCode = main(process.argv.slice(2));
