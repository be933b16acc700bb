#!/usr/bin/env node
// Renders glTF files (.glb, or .gltf with its files beside it) to PNG
// pictures with three.js in headless Chromium, as the gallery's VRML 1.0
// pictures are taken (page.mjs says how):
//   node scripts/render/render-gltf.mjs [--size WxH] IN.glb OUT.png [IN OUT ...]
// One browser draws every pair in turn.  The browser is Debian's chromium
// (CHROMIUM overrides /usr/bin/chromium), started with a fresh profile that
// is removed afterwards; it reaches no network: the page, three.js and the
// scenes are answered from this folder, node_modules and the inputs'
// folders.  Each picture is written whole or not at all; prints each
// picture's name and camera with --verbose.  Exits 1 when any picture could
// not be made, 2 on a wrong command line.
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import {fileURLToPath} from 'node:url';
import puppeteer from 'puppeteer-core';

const here = path.dirname(fileURLToPath(import.meta.url));
const ORIGIN = 'http://render.invalid';
const TYPES = {
  '.html': 'text/html',
  '.mjs': 'text/javascript',
  '.js': 'text/javascript',
  '.glb': 'model/gltf-binary',
  '.gltf': 'model/gltf+json',
  '.bin': 'application/octet-stream',
  '.png': 'image/png',
  '.jpg': 'image/jpeg',
  '.jpeg': 'image/jpeg',
};

function usage(message) {
  process.stderr.write(`render-gltf: ${message}\n` +
                       'usage: render-gltf.mjs [--size WxH] [--verbose] IN.glb OUT.png [IN OUT ...]\n');
  process.exit(2);
}

function parseArguments(argv) {
  const options = {width: 480, height: 360, verbose: false, pairs: []};
  const files = [];
  for (let i = 0; i < argv.length; ++i) {
    const arg = argv[i];
    if (arg === '--size') {
      const match = /^(\d+)x(\d+)$/.exec(argv[++i] || '');
      if (!match || +match[1] < 1 || +match[2] < 1) usage('--size takes WIDTHxHEIGHT');
      options.width = +match[1];
      options.height = +match[2];
    } else if (arg === '--verbose') {
      options.verbose = true;
    } else if (arg.startsWith('--')) {
      usage(`unknown option ${arg}`);
    } else {
      files.push(arg);
    }
  }
  if (files.length === 0 || files.length % 2 !== 0) usage('give pairs of an input glTF file and an output PNG');
  for (let i = 0; i < files.length; i += 2) options.pairs.push({input: path.resolve(files[i]), output: files[i + 1]});
  return options;
}

// The file a request names below `root`, or null outside it.
function fileBelow(root, relative) {
  const file = path.resolve(root, '.' + path.posix.normalize('/' + decodeURIComponent(relative)));
  return file.startsWith(root + path.sep) ? file : null;
}

// Answers the page's requests: /page.*, /three/... and /scene/N/... for the
// folder of the Nth input; anything else is refused.
function answer(request, pairs) {
  const url = new URL(request.url());
  let file = null;
  if (url.origin === ORIGIN && url.pathname === '/favicon.ico') {
    request.respond({status: 204, body: ''});
    return;
  }
  if (url.origin === ORIGIN) {
    const route = /^\/(?:(page\.(?:html|mjs))|three\/(.*)|scene\/(\d+)\/(.*))$/.exec(url.pathname);
    if (route && route[1]) file = path.join(here, route[1]);
    else if (route && route[2] !== undefined) file = fileBelow(path.join(here, 'node_modules', 'three'), route[2]);
    else if (route && pairs[+route[3]]) file = fileBelow(path.dirname(pairs[+route[3]].input), route[4]);
  }
  let body = null;
  try {
    if (file) body = fs.readFileSync(file);
  } catch {
    body = null;
  }
  if (body === null) {
    request.respond({status: 404, contentType: 'text/plain', body: 'not found'});
    return;
  }
  request.respond({status: 200, contentType: TYPES[path.extname(file).toLowerCase()] || 'application/octet-stream', body});
}

function writeWhole(file, bytes) {
  const temporary = `${file}.${process.pid}.tmp`;
  fs.writeFileSync(temporary, bytes);
  fs.renameSync(temporary, file);
}

async function main() {
  const options = parseArguments(process.argv.slice(2));
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'render-gltf-'));
  let browser = null;
  let failures = 0;
  try {
    browser = await puppeteer.launch({
      executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
      headless: true,
      userDataDir: profile,
      args: ['--headless', '--no-sandbox', '--disable-gpu', '--use-angle=swiftshader', '--enable-unsafe-swiftshader',
             '--disable-quic', '--no-first-run', '--disable-background-networking', '--disable-component-update',
             '--disable-sync', '--disable-dev-shm-usage'],
    });
    const page = await browser.newPage();
    await page.setRequestInterception(true);
    page.on('request', (request) => answer(request, options.pairs));
    page.on('pageerror', (error) => process.stderr.write(`render-gltf: page: ${error.message}\n`));
    page.on('console', (message) => {
      if (message.type() === 'error') process.stderr.write(`render-gltf: page: ${message.text()}\n`);
    });
    await page.goto(`${ORIGIN}/page.html`);
    await page.waitForFunction(() => typeof window.renderPicture === 'function', {timeout: 60000});
    for (const [index, pair] of options.pairs.entries()) {
      try {
        if (!fs.statSync(pair.input).isFile()) throw new Error('not a file');
        const url = `${ORIGIN}/scene/${index}/${encodeURIComponent(path.basename(pair.input))}`;
        const result = await page.evaluate((u, w, h) => window.renderPicture(u, w, h), url, options.width, options.height);
        writeWhole(pair.output, Buffer.from(result.png.slice(result.png.indexOf(',') + 1), 'base64'));
        if (options.verbose) process.stdout.write(`${pair.output} ${JSON.stringify(result.camera)}\n`);
      } catch (error) {
        ++failures;
        process.stderr.write(`render-gltf: ${pair.input}: ${error.message.split('\n')[0]}\n`);
      }
    }
  } finally {
    if (browser) await browser.close();
    fs.rmSync(profile, {recursive: true, force: true});
  }
  process.exit(failures ? 1 : 0);
}

main().catch((error) => {
  process.stderr.write(`render-gltf: ${error.message}\n`);
  process.exit(1);
});
