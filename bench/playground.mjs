// Benchmark of the playground in headless Chromium, against the built site
// (make web):
//   node bench/playground.mjs [SITE]      (default build/web)
// Prints the engine's size (raw and gzip-compressed), the time from a
// change of the molecule example to its picture (the translation after the
// debounce: worker, translation, export, three.js), and the same for a LOOP
// of 10^4 Balls.  Each figure is the median of BENCH_REPEAT runs (default 5).
import { createServer } from 'node:http';
import { readFileSync, statSync } from 'node:fs';
import { gzipSync } from 'node:zlib';
import { dirname, extname, join, normalize } from 'node:path';
import { fileURLToPath } from 'node:url';
import { createRequire } from 'node:module';

const root = join(dirname(fileURLToPath(import.meta.url)), '..');
const require = createRequire(join(root, 'web', 'package.json'));
const puppeteer = (await import(require.resolve('puppeteer-core'))).default;
const site = process.argv[2] || join(root, 'build', 'web');
const repeat = Number(process.env.BENCH_REPEAT || 5);
const TYPES = { '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.wasm': 'application/wasm' };

const wasm = readFileSync(join(site, 'lumeric-engine.wasm'));
const kib = (n) => `${(n / 1024).toFixed(0)} KiB`;
console.log(`engine: lumeric-engine.wasm ${kib(wasm.length)}, gzip -9 ${kib(gzipSync(wasm, { level: 9 }).length)}; ` +
  `lumeric-engine.js ${kib(statSync(join(site, 'lumeric-engine.js')).size)}; app.js ${kib(statSync(join(site, 'app.js')).size)}, ` +
  `gzip ${kib(gzipSync(readFileSync(join(site, 'app.js'))).length)}`);

const server = createServer((request, response) => {
  const path = normalize(new URL(request.url, 'http://x').pathname).replace(/^(\.\.[/\\])+/, '');
  try {
    const body = readFileSync(join(site, path === '/' ? 'index.html' : path));
    response.writeHead(200, { 'Content-Type': TYPES[extname(path)] || 'text/html' });
    response.end(body);
  } catch (e) {
    response.writeHead(404);
    response.end();
  }
});
await new Promise((resolve) => server.listen(0, '127.0.0.1', resolve));
const browser = await puppeteer.launch({
  executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
  headless: true,
  args: ['--no-sandbox', '--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--disable-dev-shm-usage'],
});
const page = await browser.newPage();
await page.setViewport({ width: 1280, height: 800 });
await page.goto(`http://127.0.0.1:${server.address().port}/`);
await page.waitForFunction(() => window.playground && window.playground.count > 0, { timeout: 60000 });

// Times from the start of a translation to the picture drawn, as the page
// measures it, for `scene` edited `repeat` times (a blank added each time).
async function measure(scene) {
  const times = [];
  const engine = [];
  for (let i = 0; i <= repeat; i++) {
    const count = await page.evaluate((text) => {
      const view = window.playground.editor;
      view.dispatch({ changes: { from: 0, to: view.state.doc.length, insert: text } });
      return window.playground.count;
    }, scene + ' '.repeat(i));
    await page.waitForFunction((n) => window.playground.count > n, { timeout: 120000 }, count);
    const last = await page.evaluate(() => window.playground.last);
    if (i > 0) {  // the first run warms up the engine
      times.push(last.ms);
      engine.push(last.engineMs);
    }
  }
  const median = (list) => list.sort((a, b) => a - b)[Math.floor(list.length / 2)];
  const shown = await page.evaluate(() => window.playground.last.shown);
  return `${Math.round(median(times))} ms to the picture (engine ${Math.round(median(engine))} ms), ` +
    `${shown.nodes} nodes, ${shown.triangles} triangles`;
}

const molecule = readFileSync(join(root, 'examples', 'molecule.vlm'), 'utf8');
console.log(`molecule.vlm: ${await measure(molecule)}`);
const balls = '#VRML V1.0 ascii\nSeparator {\nLOOP { fields [ SFFloat start, SFFloat end, SFFloat position ] start 0 end 10000 position 0\n' +
  '\tBall { fields [ SFVec3f center, SFFloat radius ] center =(position*2,sin(position),0) radius 0.5 }\n}\n}\n';
console.log(`LOOP of 10^4 Balls: ${await measure(balls)}`);
await browser.close();
server.close();
