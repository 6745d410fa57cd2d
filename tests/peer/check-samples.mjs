// Compares examples/samples with the values in samples.mjs: node tests/peer/check-samples.mjs
// Each file must have exactly the bytes that its value is written as, and read back as that value.

import { readFileSync, readdirSync } from 'node:fs';
import { sampleFiles, samplesFolder, schema } from './sample-files.mjs';
import { canonicalJson, readRecord } from './wire.mjs';

const committed = new Set(readdirSync(samplesFolder));
const faults = [];

for (const [file, { bytes, record, protocol, value }] of sampleFiles()) {
    if (!committed.delete(file)) {
        faults.push(`${file} is missing`);
        continue;
    }
    const found = readFileSync(new URL(file, samplesFolder));
    if (!found.equals(bytes))
        faults.push(`${file} differs from the bytes of its value`);
    if (!record)
        continue;
    try {
        const type = schema.get(record);
        if (canonicalJson(type, readRecord(type, found, protocol)) !== canonicalJson(type, value))
            faults.push(`${file} reads back as a different value`);
    } catch (error) {
        faults.push(`${file} can't be read: ${error.message}`);
    }
}
for (const file of committed)
    faults.push(`${file} is not a sample`);

faults.forEach(fault => console.error(fault));
process.exitCode = faults.length ? 1 : 0;
