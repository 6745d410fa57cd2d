// Tests what wire.mjs rejects. check-records.mjs covers the values that it writes and reads.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { schema } from './sample-files.mjs';
import { readRecord, writeRecord } from './wire.mjs';

const record = name => schema.get(name);

test('bytes that are not exactly one record are rejected', () => {
    const bytes = writeRecord(record('RecordingRange'), { inBoundTimepoint: 1n, outBoundTimecode: 'text' }, 'binary');
    for (let length = 0; length < bytes.length; ++length)
        assert.throws(() => readRecord(record('RecordingRange'), bytes.subarray(0, length), 'binary'));
    assert.throws(() => readRecord(record('RecordingRange'), Buffer.concat([bytes, bytes]), 'binary'), /bytes after/);
    assert.throws(() => readRecord(record('Guid'), bytes, 'binary'), /wire type/);
    assert.throws(() => readRecord(record('Angle'), Buffer.from([0]), 'binary'), /required/);
});

test('values that do not fit the record are rejected', () => {
    assert.throws(() => writeRecord(record('Guid'), { value: '東' }, 'binary'), /is not a string/);
    assert.throws(() => writeRecord(record('Clip'), { colour: 1 }, 'binary'), /no field colour/);
});
