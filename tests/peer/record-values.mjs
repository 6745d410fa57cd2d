// Random values of records. `random(n)` is a number from 0 to n - 1, with n at most 2^32.

import { canonicalJson } from './wire.mjs';

/** A `random` that returns the same numbers on every run: a linear congruential generator of 48 bits. */
export function seededRandom(seed)
{
    let state = BigInt(seed);
    return n => {
        state = BigInt.asUintN(48, state * 0x5deece66dn + 11n);
        return Number(state >> 16n) % n;
    };
}

const pick = (random, values) => values[random(values.length)];
const several = (count, make) => Array.from({ length: count }, make);

/** At most `count` values of `type`, no two of them equal. */
const distinct = (type, count, make) =>
    [...new Map(several(count, make).map(value => [canonicalJson(type, value), value])).values()];

/**
 * A random value, mostly from edge cases: numbers at the limits of their types, unknown enumeration numbers, texts that
 * are empty or raw bytes. Each field that is not required is set with a probability of `share` percent, also in nested
 * records.
 */
export function anyValue(random, type, share)
{
    const any = part => anyValue(random, part, share);
    // A key has all its fields, since an absent field and a zero make equal keys.
    const keys = key => distinct(key, random(4), () => anyValue(random, key, 100));
    switch (type.kind) {
    case 'bool': return random(2) === 1;
    case 'i16': return pick(random, [0, -1, 127, 128, 0x7fff, -0x8000]);
    case 'i32': return pick(random, [0, -1, 63, 64, 0x8000, 0x7fffffff, -0x80000000]);
    case 'i64': return pick(random, [0n, -1n, 1n << 32n, (1n << 53n) + 1n, (1n << 63n) - 1n, -(1n << 63n)]);
    case 'enum': return pick(random, [...type.numbers.values(), -1, 1000, 0x7fffffff, -0x80000000]);
    case 'string': return pick(random, ['', '\0', 'a\0\x7f\x80\xff', '\xc3\x28', '"\\\n', 'long '.repeat(60)]);
    case 'list': return several(random(4), () => any(type.element));
    case 'set': return keys(type.element);
    case 'map': return keys(type.key).map(key => [key, any(type.value)]);
    case 'record':
        return Object.fromEntries(type.fields
            .filter(({ requiredness }) => requiredness === 'required' || random(100) < share)
            .map(field => [field.name, any(field.type)]));
    }
}
