// What wire.mjs refuses: check-records.mjs shows the values that it writes and reads.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { schema } from './sample-files.mjs';
import { readRecord, writeRecord } from './wire.mjs';

const record = name => schema.get(name);

test('what is not exactly the record is refused', () => {
    const bytes = writeRecord(record('RecordingRange'), { inBoundTimepoint: 1n, outBoundTimecode: 'text' }, 'binary');
    for (let length = 0; length < bytes.length; ++length)
        assert.throws(() => readRecord(record('RecordingRange'), bytes.subarray(0, length), 'binary'));
    assert.throws(() => readRecord(record('RecordingRange'), Buffer.concat([bytes, bytes]), 'binary'), /bytes behind/);
    assert.throws(() => readRecord(record('Guid'), bytes, 'binary'), /wire type/);
    assert.throws(() => readRecord(record('Angle'), Buffer.from([0]), 'binary'), /required/);
});

test('what is no value of the record is not written', () => {
    assert.throws(() => writeRecord(record('Guid'), { value: '東' }, 'binary'), /is no string/);
    assert.throws(() => writeRecord(record('Clip'), { colour: 1 }, 'binary'), /no field colour/);
});
