// Exchanges values of all records with our library: node tests/peer/check-records.mjs PROGRAM
//
// PROGRAM is tests/peer/PeerExchange of a build. It reads each value and writes it again, as it is and, where the
// record converts both ways, as it comes back from the domain. What it writes is read here and compared field by field.

import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { anyValue, keptValue, seededRandom } from './record-values.mjs';
import { schema } from './sample-files.mjs';
import { canonicalJson, protocols, readRecord, withDefaults, writeRecord } from './wire.mjs';

const convertibleRecords = 94;

const random = seededRandom(1);
const cases = [];
for (const type of schema.values()) {
    const shares = [0, 100, ...Array(8).fill(50)];
    const values = [
        ...shares.map(share => ({ value: anyValue(random, type, share), isKept: false })),
        ...Array.from({ length: 4 }, () => ({ value: keptValue(random, type), isKept: true })),
    ];
    for (const protocol of Object.keys(protocols))
        cases.push(...values.map(value => ({ type, protocol, ...value })));
}

const input = cases.map(({ type, protocol, value }) =>
    `${type.name} ${protocol} ${writeRecord(type, value, protocol).toString('hex')}\n`);
const { status, signal, error, stdout } = spawnSync(process.argv[2], {
    input: input.join(''), encoding: 'latin1', maxBuffer: 2 ** 30, stdio: ['pipe', 'pipe', 'inherit'] });
assert.deepEqual({ status, signal, error }, { status: 0, signal: null, error: undefined });
const answers = stdout.trim().split('\n').map(line => line.split(' '));
assert.equal(answers.length, cases.length);

const converted = new Set();
cases.forEach(({ type, protocol, value, isKept }, index) => {
    const [written, fromDomain] = answers[index];
    const read = digits => canonicalJson(type, readRecord(type, Buffer.from(digits, 'hex'), protocol));
    const expected = canonicalJson(type, withDefaults(type, value));
    try {
        assert.equal(read(written), expected);
        const returned = ['none', 'failure'].includes(fromDomain) ? fromDomain : read(fromDomain);
        if (isKept && returned !== 'none') {
            assert.equal(returned, expected);
            converted.add(type.name);
        }
    } catch (fault) {
        console.error(`${type.name}, ${protocol}, value ${index}: ${fault.message ?? fault}`);
        process.exitCode = 1;
    }
});
assert.equal(converted.size, convertibleRecords);
console.log(`${cases.length} values of ${schema.size} records exchanged; ${converted.size} records converted.`);
