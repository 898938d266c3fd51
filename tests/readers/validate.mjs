// node validate.mjs SCHEMA FILE...: fails if a line of a file, or the whole file, is not as it tells.
import { readFileSync } from 'node:fs';
import Ajv from 'ajv/dist/2020.js';

const [schema, ...files] = process.argv.slice(2);
const validate = new Ajv({ strict: true, strictTuples: false, allowUnionTypes: true }).compile(JSON.parse(readFileSync(schema)));
for (const file of files) {
  const text = readFileSync(file, 'utf8');
  const parts = file.endsWith('.json') ? [text] : text.split('\n').filter((line) => line);
  for (const part of parts) {
    if (!validate(JSON.parse(part))) {
      console.error(`${file}: ${JSON.stringify(validate.errors)}`);
      process.exitCode = 1;
    }
  }
}
