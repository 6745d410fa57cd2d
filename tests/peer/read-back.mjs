// Reads records that others wrote: node tests/peer/read-back.mjs FOLDER
//
// FOLDER/samples.txt has lines "<name>.<protocol> <Record>". Each file must hold exactly that record. Where
// there is a <name>.json, the record must equal it (as canonicalJson writes it); otherwise it is printed.

import { existsSync, readFileSync } from 'node:fs';
import { extname, join } from 'node:path';
import { schema } from './sample-files.mjs';
import { canonicalJson, readRecord } from './wire.mjs';

const [folder] = process.argv.slice(2);
const lines = readFileSync(join(folder, 'samples.txt'), 'utf8').split('\n').filter(Boolean);
if (!lines.length)
    throw new Error(`${folder}/samples.txt lists no file`);

for (const [file, record] of lines.map(line => line.split(' '))) {
    try {
        const type = schema.get(record);
        const found = canonicalJson(type, readRecord(type, readFileSync(join(folder, file)), extname(file).slice(1)));
        const expectedFile = join(folder, file.replace(/\.\w+$/, '.json'));
        if (!existsSync(expectedFile))
            console.log(`${file} ${record} ${found}`);
        else if (found !== canonicalJson(type, JSON.parse(readFileSync(expectedFile, 'utf8'))))
            throw new Error(`differs from ${expectedFile}: ${found}`);
    } catch (error) {
        console.error(`${file}: ${error.message}`);
        process.exitCode = 1;
    }
}
