// Builds the playground into build/web/: the page, its bundled script, the
// engine's worker and WebAssembly module (built before by CMake into
// build/web-engine/), and the gallery scenes of examples/.
//
//   node web/build.mjs ENGINE_DIR OUT_DIR
import { build } from 'esbuild';
import { copyFileSync, mkdirSync, readdirSync, readFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const here = dirname(fileURLToPath(import.meta.url));
const root = join(here, '..');
const [engineDir, outDir] = process.argv.slice(2);
mkdirSync(outDir, { recursive: true });

const examples = readdirSync(join(root, 'examples'))
  .filter((name) => /\.(vlm|wrl)$/.test(name))
  .sort()
  .map((name) => ({ name, text: readFileSync(join(root, 'examples', name), 'utf8') }));

const examplesPlugin = {
  name: 'lumeric-examples',
  setup(b) {
    b.onResolve({ filter: /^lumeric:examples$/ }, () => ({ path: 'examples', namespace: 'lumeric' }));
    b.onLoad({ filter: /.*/, namespace: 'lumeric' }, () => ({ contents: JSON.stringify(examples), loader: 'json' }));
  },
};

await build({
  entryPoints: [join(here, 'src', 'main.js')],
  bundle: true,
  minify: true,
  format: 'iife',
  target: 'es2022',
  outfile: join(outDir, 'app.js'),
  plugins: [examplesPlugin],
  nodePaths: [join(here, 'node_modules')],
  logLevel: 'warning',
});
for (const name of ['index.html', 'style.css', 'worker.js']) copyFileSync(join(here, 'src', name), join(outDir, name));
for (const name of ['lumeric-engine.js', 'lumeric-engine.wasm']) copyFileSync(join(engineDir, name), join(outDir, name));
