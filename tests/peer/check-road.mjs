// Checks the answers of examples/request_road to the sample create-clips-command: node tests/peer/check-road.mjs FOLDER

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { schema } from './sample-files.mjs';
import { samples } from './samples.mjs';
import { canonicalJson, readRecord } from './wire.mjs';

const [folder] = process.argv.slice(2);
const read = (name, record) => readRecord(schema.get(record), readFileSync(join(folder, `${name}.binary`)), 'binary');
const same = (record, found, expected) =>
    assert.equal(canonicalJson(schema.get(record), found), canonicalJson(schema.get(record), expected));
const request = samples.find(sample => sample.name === 'create-clips-command').value;

const reply = read('clip-command-reply', 'ClipCommandReply');
same('Guid', reply.guid, request.commandGuid);
assert.equal(reply.results.length, request.clips.length);

request.clips.forEach(({ clip }, index) => {
    const item = reply.results[index];
    same('OperationStatus', item.operationStatus, { status: 'Succeeded' });

    const event = read(`clip-creation-${index}`, 'ClipCreationFinishedEventArgs');
    same('Guid', event.clipCommand.commandGuid, request.commandGuid);
    assert.equal(event.clipCommand.requestSource, 'Network');
    assert.equal(event.creationType, 'Make');
    assert.equal(event.databaseRevision, BigInt(index + 1));
    same('Clip', event.newClip, item.clip);

    // The numbers and short texts of the clip in the request are unchanged.
    for (const [field, value] of Object.entries(clip).filter(([, value]) => typeof value !== 'object'))
        same('Clip', { [field]: item.clip[field] }, { [field]: value });
});
console.log('The reply and the events match the request.');
