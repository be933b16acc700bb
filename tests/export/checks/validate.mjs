// Validates glTF files with the Khronos glTF validator.
//
//   node validate.mjs FILE.glb|FILE.gltf...
//
// Prints every error (and the counts of warnings and infos) and exits 1 when
// any file has an error or cannot be read, 0 otherwise, 2 for a usage error.
// Files that a .gltf names (buffers, images) are read beside it.
import fs from 'node:fs';
import path from 'node:path';

import validator from 'gltf-validator';

async function validate(file) {
  const bytes = new Uint8Array(fs.readFileSync(file));
  const report = await validator.validateBytes(bytes, {
    uri: path.basename(file),
    maxIssues: 100,
    externalResourceFunction: (uri) =>
      new Promise((resolve, reject) => {
        const resource = path.resolve(path.dirname(file), decodeURIComponent(uri));
        fs.readFile(resource, (error, data) => (error ? reject(error.message) : resolve(new Uint8Array(data))));
      }),
  });
  const { numErrors, numWarnings, numInfos, messages } = report.issues;
  for (const message of messages) {
    if (message.severity === 0) {
      process.stdout.write(`${file}: error ${message.code} at ${message.pointer || '/'}: ${message.message}\n`);
    }
  }
  process.stdout.write(`${file}: ${numErrors} errors, ${numWarnings} warnings, ${numInfos} infos\n`);
  return numErrors === 0;
}

const files = process.argv.slice(2);
if (files.length === 0) {
  process.stderr.write('usage: node validate.mjs FILE.glb|FILE.gltf...\n');
  process.exit(2);
}
let ok = true;
for (const file of files) {
  try {
    ok = (await validate(file)) && ok;
  } catch (error) {
    process.stdout.write(`${file}: cannot be validated: ${error.message || error}\n`);
    ok = false;
  }
}
process.exitCode = ok ? 0 : 1;
