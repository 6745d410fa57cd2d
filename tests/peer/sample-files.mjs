import { readSchema } from './schema.mjs';
import { samples } from './samples.mjs';
import { protocols, writeRecord } from './wire.mjs';

export const samplesFolder = new URL('../../examples/samples/', import.meta.url);
export const schema = readSchema(new URL('../../schema/', import.meta.url));

/** All files of examples/samples: file name -> { bytes }, plus { record, protocol, value } for a sample. */
export function sampleFiles()
{
    const files = new Map();
    for (const { name, record, value } of samples) {
        for (const protocol of Object.keys(protocols)) {
            const bytes = writeRecord(schema.get(record), value, protocol);
            files.set(`${name}.${protocol}`, { bytes, record, protocol, value });
        }
    }
    const list = [...files].map(([file, { record }]) => `${file} ${record}\n`).join('');
    files.set('samples.txt', { bytes: Buffer.from(list) });
    files.set('README.md', { bytes: Buffer.from(index()) });
    return files;
}

function index()
{
    const rows = samples.map(({ name, record, shows }) => `| \`${name}\` | \`${record}\` | ${shows} |\n`);
    return `# Wire samples

Small records, written by \`tests/peer/make-samples.mjs\` through another implementation of the wire format than ours.
Each is there as \`<name>.binary\` and \`<name>.compact\`; programs find all files and their records in \`samples.txt\`.

    talvo-wire print Clip examples/samples/clip-two-essences.binary
    talvo-wire convert Clip examples/samples/clip-long-texts.compact -p compact

| Name | Record | Shows |
|---|---|---|
${rows.join('')}`;
}
