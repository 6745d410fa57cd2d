// Faults that npm's Thrift could hide in the samples, as both its directions would agree on them: expected bytes
// are worked out here.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { schema } from './sample-files.mjs';
import { canonicalJson, readRecord, writeRecord } from './wire.mjs';

const record = name => schema.get(name);

function assertBytes(name, value, protocol, ...expected)
{
    const bytes = writeRecord(record(name), value, protocol);
    assert.deepEqual(bytes, Buffer.concat(expected.map(part => Buffer.from(part))));
    const found = readRecord(record(name), bytes, protocol);
    assert.equal(canonicalJson(record(name), found), canonicalJson(record(name), value));
}

function varint(number)
{
    const bytes = [];
    for (; number > 0x7fn; number >>= 7n)
        bytes.push(Number(number & 0x7fn) | 0x80);
    return [...bytes, Number(number)];
}

const zigzag = number => BigInt.asUintN(64, (number << 1n) ^ (number >> 63n));

test('64-bit numbers are exact', () => {
    const numbers = [0n, BigInt.asIntN(64, 0x8000000000000001n), -(1n << 63n), (1n << 63n) - 1n];
    for (let bit = 0n; bit < 63n; ++bit)
        numbers.push(1n << bit, -(1n << bit), (1n << bit) + 1n, -(1n << bit) - 1n, 0x5a5a5a5a5a5a5a5an >> bit);

    for (const timepoint of numbers) {
        const bigEndian = Buffer.alloc(8);
        bigEndian.writeBigInt64BE(timepoint);
        assertBytes('AbsoluteLoadBoundary', { timepoint }, 'binary', [10, 0, 1], bigEndian, [0]);
        assertBytes('AbsoluteLoadBoundary', { timepoint }, 'compact', [0x16], varint(zigzag(timepoint)), [0]);
    }
});

test('32-bit and 16-bit numbers are exact', () => {
    for (const serverId of [0, -1, 63, 64, -65, 2147483647, -2147483648]) {
        const bigEndian = Buffer.alloc(4);
        bigEndian.writeInt32BE(serverId);
        assertBytes('ServerRemovedEventArgs', { serverId }, 'binary', [8, 0, 1], bigEndian, [0]);
        const bits = BigInt.asUintN(32, zigzag(BigInt(serverId)));
        assertBytes('ServerRemovedEventArgs', { serverId }, 'compact', [0x15], varint(bits), [0]);
    }
    assertBytes('Clip', { userBits: [-1, 32767, -32768] }, 'binary',
        [15, 0, 8, 6, 0, 0, 0, 3], [0xff, 0xff], [0x7f, 0xff], [0x80, 0x00], [0]);
});

test('strings are raw bytes', () => {
    const bytes = Array.from({ length: 256 }, (_, byte) => byte);
    const value = Buffer.from(bytes).toString('latin1');
    assertBytes('Guid', { value }, 'binary', [11, 0, 1, 0, 0, 1, 0], bytes, [0]);
    assertBytes('Guid', { value }, 'compact', [0x18, 0x80, 0x02], bytes, [0]);
    assertBytes('Guid', { value: '' }, 'compact', [0x18, 0, 0]);
    assert.throws(() => writeRecord(record('Guid'), { value: '東' }, 'binary'), /is no string/);
});

test('a map can be keyed by a record', () => {
    const players = [['\xff', '\x00'], ['\x01', '\x80']].map(pair => pair.map(value => ({ value })));
    assertBytes('LiveCommandParams', { players }, 'compact', [0x2b, 2, 0xcc],
        [0x18, 1, 0xff, 0, 0x18, 1, 0x00, 0], [0x18, 1, 0x01, 0, 0x18, 1, 0x80, 0], [0]);
    assertBytes('LiveCommandParams', { players }, 'binary', [13, 0, 2, 12, 12, 0, 0, 0, 2],
        ...players.flat().map(({ value }) => [11, 0, 1, 0, 0, 0, 1, value.charCodeAt(0), 0]), [0]);
});

test('field ids: gaps, steps above fifteen and nested records', () => {
    assertBytes('Sequence', { timeCodeRegenBase: 'Field', timeCodeRegenSource: 3, isFixedDuration: true }, 'compact',
        [0x75, 2], [0x25, 6], [0x71], [0]);
    assertBytes('Clip', { umId: 'A', inBoundTimepoint: 0n, longGopEssence: { verticalFrameSize: 1 } }, 'compact',
        [0x18, 1, 65], [0x06, 92, 0], [0x2c, 0xd5, 2, 0], [0]);
    assertBytes('SetLoadBoundariesCommandParam', { outBoundary: {} }, 'compact', [0x4c, 0, 0]);
});

test('what is not exactly the record is refused', () => {
    const bytes = writeRecord(record('RecordingRange'), { inBoundTimepoint: 1n, outBoundTimecode: 'text' }, 'binary');
    for (let length = 0; length < bytes.length; ++length)
        assert.throws(() => readRecord(record('RecordingRange'), bytes.subarray(0, length), 'binary'));
    assert.throws(() => readRecord(record('RecordingRange'), Buffer.concat([bytes, bytes]), 'binary'), /bytes behind/);
    assert.throws(() => readRecord(record('Guid'), bytes, 'binary'), /wire type/);
    assert.throws(() => readRecord(record('Angle'), Buffer.from([0]), 'binary'), /required/);
});

test('the schema is read whole', () => {
    assert.equal(schema.size, 113);
    assert.throws(() => writeRecord(record('Clip'), { colour: 1 }, 'binary'), /no field colour/);
});
