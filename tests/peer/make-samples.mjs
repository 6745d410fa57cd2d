// Rewrites examples/samples: node tests/peer/make-samples.mjs

import { writeFileSync } from 'node:fs';
import { sampleFiles, samplesFolder } from './sample-files.mjs';

for (const [file, { bytes }] of sampleFiles())
    writeFileSync(new URL(file, samplesFolder), bytes);
