// Runs the Khronos glTF validator on one file and prints its counts:
// "errors N warnings N" and then each error.  Exits 0 when it ran.
const fs = require('fs');
const validator = require('gltf-validator');

const path = process.argv[2];
validator.validateBytes(new Uint8Array(fs.readFileSync(path)), {maxIssues: 100})
    .then((report) => {
      const issues = report.issues;
      console.log(`errors ${issues.numErrors} warnings ${issues.numWarnings}`);
      for (const message of issues.messages) {
        if (message.severity === 0) console.log(`${message.code} ${message.pointer || ''}: ${message.message}`);
      }
    })
    .catch((error) => {
      console.log(`validator failed: ${error}`);
      process.exit(1);
    });
