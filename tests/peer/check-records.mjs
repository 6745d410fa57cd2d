// Exchanges values of all records with our library: node tests/peer/check-records.mjs PROGRAM
//
// PROGRAM is tests/peer/PeerExchange of a build. It reads each value and writes it again in every protocol. This script
// reads the result and compares it field by field. A value sent in one protocol also returns in the other, which finds
// faults that the peer's writer and reader of one protocol share.

import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { anyValue, seededRandom } from './record-values.mjs';
import { schema } from './sample-files.mjs';
import { canonicalJson, protocols, readRecord, withDefaults, writeRecord } from './wire.mjs';

const random = seededRandom(1);
const names = Object.keys(protocols);
const cases = [];
for (const type of schema.values()) {
    const values = [0, 100, ...Array(8).fill(50)].map(share => anyValue(random, type, share));
    for (const protocol of names)
        cases.push(...values.map(value => ({ type, protocol, value })));
}

const input = cases.map(({ type, protocol, value }) =>
    `${type.name} ${protocol} ${writeRecord(type, value, protocol).toString('hex')}\n`);
const { status, signal, error, stdout } = spawnSync(process.argv[2], {
    input: input.join(''), encoding: 'latin1', maxBuffer: 2 ** 30, stdio: ['pipe', 'pipe', 'inherit'] });
assert.deepEqual({ status, signal, error }, { status: 0, signal: null, error: undefined });
const answers = stdout.trim().split('\n').map(line => line.split(' '));
assert.equal(answers.length, cases.length);

cases.forEach(({ type, protocol, value }, index) => {
    const expected = canonicalJson(type, withDefaults(type, value));
    names.forEach((name, column) => {
        try {
            const read = readRecord(type, Buffer.from(answers[index][column], 'hex'), name);
            assert.equal(canonicalJson(type, read), expected);
        } catch (fault) {
            console.error(`${type.name}, ${protocol} to ${name}, value ${index}: ${fault.message ?? fault}`);
            process.exitCode = 1;
        }
    });
});
console.log(`${cases.length} values of ${schema.size} records exchanged.`);
