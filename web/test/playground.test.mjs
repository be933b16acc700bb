// The playground in headless Chromium, against the built site served on a
// local port: what a person sees and does, end to end.
//   node --test web/test/playground.test.mjs   (SITE=build/web by default)
import { test, before, after } from 'node:test';
import assert from 'node:assert/strict';
import { createServer } from 'node:http';
import { existsSync, mkdtempSync, readFileSync, readdirSync, rmSync, mkdirSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, extname, join, normalize } from 'node:path';
import { fileURLToPath } from 'node:url';
import { execFileSync } from 'node:child_process';
import puppeteer from 'puppeteer-core';

const root = join(dirname(fileURLToPath(import.meta.url)), '..', '..');
const site = process.env.SITE || join(root, 'build', 'web');
const screenshot = process.env.SCREENSHOT || join(root, 'build', 'web-test', 'playground.png');
const TYPES = { '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.wasm': 'application/wasm' };

let server;
let browser;
let profile;
let base;

before(async () => {
  server = createServer((request, response) => {
    const path = normalize(decodeURIComponent(new URL(request.url, 'http://x').pathname)).replace(/^(\.\.[/\\])+/, '');
    try {
      const body = readFileSync(join(site, path === '/' ? 'index.html' : path));
      response.writeHead(200, { 'Content-Type': TYPES[extname(path)] || (path === '/' ? 'text/html' : 'application/octet-stream') });
      response.end(body);
    } catch (e) {
      response.writeHead(404);
      response.end();
    }
  });
  await new Promise((resolve) => server.listen(0, '127.0.0.1', resolve));
  base = `http://127.0.0.1:${server.address().port}/`;
  profile = mkdtempSync(join(tmpdir(), 'lumeric-playground-'));
  browser = await puppeteer.launch({
    executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
    headless: true,
    userDataDir: profile,
    args: ['--no-sandbox', '--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--disable-dev-shm-usage',
      '--no-first-run', '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
});

after(async () => {
  if (browser) await browser.close();
  if (server) server.close();
  if (profile) rmSync(profile, { recursive: true, force: true });
});

// A page of its own (fresh storage) showing `url`, once its first
// translation has ended.
async function openPage(url = base) {
  const context = await browser.createBrowserContext();
  const page = await context.newPage();
  await page.setViewport({ width: 1280, height: 800 });
  const failures = [];
  page.on('pageerror', (error) => failures.push(error.message));
  page.failures = failures;
  await page.goto(url);
  await page.waitForFunction(() => window.playground && window.playground.count > 0, { timeout: 30000 });
  return page;
}

// Replaces the scene as typing would, and waits for the translation after
// the debounce.
async function typeScene(page, text) {
  const before = await page.evaluate(() => {
    window.playground.last = null;
    return window.playground.count;
  });
  await page.evaluate((t) => {
    const view = window.playground.editor;
    view.dispatch({ changes: { from: 0, to: view.state.doc.length, insert: t } });
  }, text);
  await page.waitForFunction((n) => window.playground.count > n || (window.playground.last && window.playground.last.failed), { timeout: 30000 }, before);
  return page.evaluate(() => window.playground.last);
}

async function status(page) {
  return page.$eval('#status', (e) => e.textContent);
}

function triangleCount(text) {
  const found = / (\d+) triangles/.exec(text);
  assert.ok(found, `the status names a triangle count: ${text}`);
  return Number(found[1]);
}

// Colours of the drawn picture: more than the background alone.
async function distinctColours(page) {
  return page.evaluate(() => {
    const source = document.getElementById('canvas');
    const copy = document.createElement('canvas');
    copy.width = 200;
    copy.height = 150;
    const context = copy.getContext('2d');
    context.drawImage(source, 0, 0, copy.width, copy.height);
    const pixels = context.getImageData(0, 0, copy.width, copy.height).data;
    const colours = new Set();
    for (let i = 0; i < pixels.length; i += 4) colours.add((pixels[i] << 16) | (pixels[i + 1] << 8) | pixels[i + 2]);
    return colours.size;
  });
}

const SLIDER_SCENE = `#VRML V1.0 ascii
Separator {
	DEF Row PARAMETERS {
		fields [ SFLong count, SFFloat size ]
		# How many balls
		count 3 # [1:1:8]
		size 0.4 # [0.1:0.1:1]
		LOOP { fields [ SFFloat start, SFFloat end, SFFloat position ] start 0 end count position 0
			Ball { fields [ SFVec3f center, SFFloat radius ] center =(position, 0, 0) radius size }
		}
	}
}
`;

test('the molecule example is drawn and the status names its triangles', async () => {
  const page = await openPage();
  const text = await status(page);
  assert.ok(triangleCount(text) > 0, text);
  assert.match(await page.$eval('#examples', (e) => e.value), /molecule/);
  assert.ok(await distinctColours(page) > 20, 'the canvas shows more than its background');
  assert.deepEqual(page.failures, []);
  mkdirSync(dirname(screenshot), { recursive: true });
  await page.screenshot({ path: screenshot });
  await page.browserContext().close();
});

test('a misspelt field gets a marker on its line and its message in the list', async () => {
  const page = await openPage();
  const scene = '#VRML V1.0 ascii\nSeparator {\n\tCube {\n\t\twidht 2\n\t}\n}\n';
  const last = await typeScene(page, scene);
  assert.ok(last.errors > 0, 'the translation reports an error');
  const markers = await page.evaluate(() => window.playground.markers());
  assert.ok(markers.some((m) => m.line === 4 && m.severity === 'error'), JSON.stringify(markers));
  assert.ok(await page.$('.cm-lintRange-error'), 'the marker is drawn in the editor');
  const items = await page.$$eval('#messages li.error', (list) => list.map((e) => ({ text: e.textContent, line: e.dataset.line })));
  const item = items.find((i) => i.line === '4');
  assert.ok(item && /widht/.test(item.text), JSON.stringify(items));
  // A click on the message puts the cursor on its line.
  await page.click('#messages li.error[data-line="4"]');
  const cursorLine = await page.evaluate(() => {
    const state = window.playground.editor.state;
    return state.doc.lineAt(state.selection.main.head).number;
  });
  assert.equal(cursorLine, 4);
  await page.browserContext().close();
});

test('PRINT output is listed with the messages', async () => {
  const page = await openPage();
  await typeScene(page, '#VRML V1.0 ascii\nSeparator {\n\tDEF Ball Sphere { radius 1.5 }\n\tPRINT Ball:radius*2\n}\n');
  const notes = await page.$$eval('#messages li.note', (list) => list.map((e) => e.textContent));
  assert.ok(notes.includes('4: Ball:radius*2 is 3'), JSON.stringify(notes));
  await page.browserContext().close();
});

test('a slider changes the geometry, and a share link restores scene and values', async () => {
  const page = await openPage();
  await typeScene(page, SLIDER_SCENE);
  await page.waitForSelector('#customizer [data-name="Row:count"] input[type=range]');
  const caption = await page.$eval('#customizer [data-name="Row:count"] label', (e) => e.textContent);
  assert.equal(caption, 'How many balls');
  const before = triangleCount(await status(page));
  const box = await page.evaluate(() => window.playground.last.shown.box);
  const count = await page.evaluate(() => window.playground.count);
  // Two steps to the right with the keyboard, as a person moves a slider.
  await page.focus('#customizer [data-name="Row:count"] input[type=range]');
  await page.keyboard.press('ArrowRight');
  await page.keyboard.press('ArrowRight');
  await page.waitForFunction((n) => window.playground.count > n && /Row:count/.test(JSON.stringify(window.playground.customizer.values)), {}, count);
  await page.waitForFunction(() => !/Translating/.test(document.getElementById('status').textContent));
  const after = triangleCount(await status(page));
  const boxAfter = await page.evaluate(() => window.playground.last.shown.box);
  assert.notEqual(after, before, 'five balls have more triangles than three');
  assert.ok(boxAfter.max[0] > box.max[0] + 1.5, `the row is longer: ${JSON.stringify([box, boxAfter])}`);
  const link = await page.evaluate(() => window.playground.shareLink());
  assert.match(link, /#scene=/);
  await page.browserContext().close();

  const fresh = await openPage(link);
  assert.equal(await fresh.evaluate(() => window.playground.editor.state.doc.toString()), SLIDER_SCENE);
  assert.equal(await fresh.$eval('#customizer [data-name="Row:count"] input', (e) => e.value), '5');
  assert.equal(triangleCount(await status(fresh)), after);
  await fresh.browserContext().close();
});

test('a scene that runs into the node budget ends with the budget message, and the page goes on', async () => {
  const page = await openPage();
  await page.$eval('#max-nodes', (e) => { e.value = '50'; });
  const last = await typeScene(page, '#VRML V1.0 ascii\nSeparator {\n\tLOOP {\n\t\tfields [ SFFloat start, SFFloat end, SFFloat position ]\n\t\tstart 0 end 1e12 position 0\n\t\tCube { }\n\t}\n}\n');
  assert.ok(last.messages.some((m) => m.severity === 'error' && /More than 50 nodes made by copying/.test(m.text)), JSON.stringify(last.messages));
  const items = await page.$$eval('#messages li.error', (list) => list.map((e) => e.textContent));
  assert.ok(items.some((t) => /More than 50 nodes/.test(t)), JSON.stringify(items));
  // Still answering: the next scene is translated and drawn.
  const next = await typeScene(page, '#VRML V1.0 ascii\nCube { }\n');
  assert.equal(next.errors, 0);
  assert.equal(triangleCount(await status(page)), 12);
  await page.browserContext().close();
});

test('a translation past the time limit is stopped, and the restarted engine goes on', async () => {
  const page = await openPage();
  await page.$eval('#time-limit', (e) => { e.value = '1'; });
  const last = await typeScene(page, '#VRML V1.0 ascii\nSeparator {\n\tLOOP {\n\t\tfields [ SFFloat start, SFFloat end, SFFloat position ]\n\t\tstart 0 end 1e12 position 0\n\t\tCube { }\n\t}\n}\n');
  assert.ok(last.failed, 'the translation did not end by itself');
  assert.match(await status(page), /ran longer than 1 s and was stopped/);
  await page.$eval('#time-limit', (e) => { e.value = '20'; });
  await typeScene(page, '#VRML V1.0 ascii\nSphere { }\n');
  assert.ok(triangleCount(await status(page)) > 0);
  await page.browserContext().close();
});

test('a file the author adds is read by INCLUDE', async () => {
  const page = await openPage();
  const dir = mkdtempSync(join(tmpdir(), 'lumeric-include-'));
  writeFileSync(join(dir, 'part.vlm'), '#VRML V1.0 ascii\nSeparator {\n\tCube { }\n\tTranslation { translation 3 0 0 }\n\tCube { }\n}\n');
  const count = await page.evaluate(() => window.playground.count);
  const input = await page.$('#files');
  await input.uploadFile(join(dir, 'part.vlm'));
  await page.waitForFunction((n) => window.playground.count > n, {}, count);
  const last = await typeScene(page, '#VRML V1.0 ascii\nSeparator {\n\tINCLUDE part.vlm\n}\n');
  assert.equal(last.errors, 0, JSON.stringify(last.messages));
  assert.equal(triangleCount(await status(page)), 24);
  assert.match(await page.$eval('#file-list', (e) => e.textContent), /part\.vlm/);
  rmSync(dir, { recursive: true, force: true });
  await page.browserContext().close();
});

test('downloads give the result in each format, and the scene is kept for the next visit', async () => {
  const page = await openPage();
  await typeScene(page, '#VRML V1.0 ascii\nSeparator {\n\tCube { width 2 }\n}\n');
  const dir = mkdtempSync(join(tmpdir(), 'lumeric-downloads-'));
  const session = await browser.target().createCDPSession();
  await session.send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: dir, browserContextId: page.browserContext().id });
  const starts = { wrl: '#VRML V1.0 ascii', glb: 'glTF', obj: null, stl: null };
  for (const format of Object.keys(starts)) {
    await page.click(`[data-format="${format}"]`);
    const file = join(dir, `scene.${format}`);
    for (let i = 0; i < 100 && !existsSync(file); i++) await new Promise((r) => setTimeout(r, 100));
    assert.ok(existsSync(file), `scene.${format} was downloaded: ${readdirSync(dir)}`);
  }
  assert.ok(readFileSync(join(dir, 'scene.wrl'), 'utf8').startsWith('#VRML V1.0 ascii'));
  assert.equal(readFileSync(join(dir, 'scene.glb')).subarray(0, 4).toString('latin1'), 'glTF');
  const obj = readFileSync(join(dir, 'scene.obj'), 'utf8');
  assert.equal(obj.split('\n').filter((l) => l.startsWith('f ')).length, 12, 'the cube\'s twelve triangles');
  const library = /^mtllib (.+)$/m.exec(obj);
  if (library) {
    for (let i = 0; i < 50 && !existsSync(join(dir, library[1])); i++) await new Promise((r) => setTimeout(r, 100));
    assert.ok(existsSync(join(dir, library[1])), `the OBJ's ${library[1]} comes with it`);
  }
  assert.equal(readFileSync(join(dir, 'scene.stl')).length, 84 + 12 * 50, 'a binary STL of twelve triangles');
  rmSync(dir, { recursive: true, force: true });

  // The same browser opened again shows the last scene.
  const again = await page.browserContext().newPage();
  await again.goto(base);
  await again.waitForFunction(() => window.playground && window.playground.count > 0, { timeout: 30000 });
  assert.match(await again.evaluate(() => window.playground.editor.state.doc.toString()), /Cube \{ width 2 \}/);
  await page.browserContext().close();
});

// The engine compiled to WebAssembly (its own number texts, GLU's
// tessellator from source) gives the very files the native command gives.
test('the engine writes what the native command writes, for every example', { skip: !process.env.LUMERIC_CLI && 'LUMERIC_CLI not given' }, async () => {
  const page = await openPage();
  const dir = mkdtempSync(join(tmpdir(), 'lumeric-native-'));
  const examplesDir = join(root, 'examples');
  const withoutHeader = (text) => text.replace(/^#Generated by .*$/m, '');
  for (const name of readdirSync(examplesDir).filter((n) => n.endsWith('.vlm'))) {
    const scene = readFileSync(join(examplesDir, name), 'utf8');
    writeFileSync(join(dir, 'scene.vlm'), scene);
    for (const format of ['wrl', 'obj']) {
      execFileSync(process.env.LUMERIC_CLI, ['-o', `scene.${format}`, 'scene.vlm'], { cwd: dir, stdio: 'pipe' });
      const answer = await page.evaluate(async (text, f) => {
        const a = await window.playground.engine.request({ kind: 'export', scene: text, files: {}, limits: {}, overrides: [], format: f }, 60000);
        return { errors: a.errors, text: new TextDecoder().decode(a.bytes) };
      }, scene, format);
      assert.equal(answer.errors, 0, `${name} as ${format}`);
      assert.ok(withoutHeader(answer.text) === withoutHeader(readFileSync(join(dir, `scene.${format}`), 'utf8')),
        `${name} as ${format}: the engine's file differs from the command's`);
    }
  }
  rmSync(dir, { recursive: true, force: true });
  await page.browserContext().close();
});
