// Values of records, made up at random. `random(n)` is a number from 0 to n - 1, n at most 2^32.

import { canonicalJson } from './wire.mjs';

/** A `random` that gives the same numbers on every run: a linear congruential generator of 48 bits. */
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
 * Any value, edges above all: numbers at the ends of their types, enumerators that are not known, texts that are empty
 * or raw bytes. Of the fields that are not required, each is there with a chance of `share` in 100, nested ones too.
 */
export function anyValue(random, type, share)
{
    const any = part => anyValue(random, part, share);
    // With all its fields, as an absent one and one that is zero make equal keys.
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

/**
 * A value that comes back from the domain unchanged: all its fields that the domain holds, each at something that the
 * domain holds as the wire does. `where` is the field that the value is for.
 */
export function keptValue(random, type, where = '')
{
    const keptAt = `${where}: ${type.name ?? type.kind}`;
    const exception = exceptions.find(([pattern]) => pattern.test(keptAt));
    if (exception)
        return exception[1](random);

    const kept = part => keptValue(random, part, where);
    switch (type.kind) {
    case 'bool': return random(2) === 1;
    case 'i16': return number32(random) >> 16;
    case 'i32': return number32(random);
    case 'i64': return BigInt(number32(random)) << 32n | word(random);
    // A 0 often stays off the wire.
    case 'enum': return pick(random, [...type.numbers.values()].filter(number => number !== 0));
    case 'string': return text(random, 8);
    case 'list': return several(1 + random(3), () => kept(type.element));
    case 'set': return distinct(type.element, 3, () => kept(type.element));
    case 'map': return distinct(type.key, 3, () => kept(type.key)).map(key => [key, kept(type.value)]);
    case 'record':
        return Object.fromEntries(type.fields
            .map(field => [field.name, keptValue(random, field.type, `${type.name}.${field.name}`)]));
    }
}

const number32 = random => random(2 ** 32) | 0;
const word = random => BigInt(random(2 ** 32));
const text = (random, size) => several(size, () => String.fromCharCode(1 + random(255))).join('');
const slot = size => random => ({ data: text(random, size), isUtf16: random(2) === 1 });
const guid = random => ({ value: several(16, () => String.fromCharCode(random(256))).join('') });
const oneOf = (...values) => random => pick(random, values);
const nothing = () => undefined;

function timeCode(random)
{
    const digits = (first, last) => String(first + random(last - first + 1)).padStart(2, '0');
    const date = `20${digits(0, 99)}-${digits(1, 12)}-${digits(1, 28)}`;
    const time = `${digits(0, 23)}:${digits(0, 59)}:${digits(0, 59)}`;
    // Drop-frame time codes leave out no frame from the fourth on.
    return `${date}T${time}${pick(random, [':', ';'])}${digits(4, 29)}@${pick(random, [30, 60])}`;
}

function loadBoundary(random)
{
    return pick(random, [
        { type: 'Absolute', specializedLoadBoundary: { absoluteLoadBoundary: { timepoint: word(random) } } },
        { type: 1 + random(3), specializedLoadBoundary: { relativeLoadBoundary: { fieldCount: word(random) } } },
    ]);
}

// What the domain holds in its own way, as "<Record>.<field>: <type>"; the first that fits counts.
const exceptions = [
    [/^Clip\.sourceInBound/, nothing],
    [/timecode\w*: string/i, timeCode],
    [/^(Clip|Sequence)\.name/, slot(24)],
    [/^(Clip|Sequence)\.varId/, slot(32)],
    [/^Clip\.keywords: list/, random => several(5, () => slot(12)(random))],
    [/^Clip\.userBits: list/, random => several(8, () => random(256))],
    [/^Clip\.isLegacyTimecodeDrop/, () => false],
    [/(serial|Clip\.(legacyTimecodeOffset|userLock|thumbnailOffset|sequence)): i64/i, word],
    [/^RecorderState\.remainingCapacity/, random => BigInt(random(1000))],
    [/^RecorderState\.totalCapacity/, random => BigInt(1000 + random(1000))],
    [/\.(userTicket|audioPgmInstructionDecSpeedD)/, random => random(0x10000)],
    [/\.essenceBitmap/, random => random(0x100)],
    [/^SequenceId\.location/, random => random(110)],
    [/^Sequence\.playRateNumerator/, () => 30000n],
    [/^Sequence\.playRateDenominator/, () => 1001n],
    [/^AudioVideoTrack\.numberOfElements/, nothing],
    [/^ServerInfo\.gbeIpAddresses: list/, random => several(2, () => number32(random))],
    [/^AnglesGroup\.angles: map/, random => ['Primary', 'Secondary', 'None'].map((preferencialCamera, index) =>
        [index + 1, { clipId: guid(random), preferencialCamera }])],
    [/\.requestSource/, oneOf('Local', 'Network', 'Unknown')],
    [/\.creationType/, oneOf('Make', 'Copy', 'ZarfRestore', 'GbeRestore', 'Unknown')],
    [/\.networkType/, oneOf('Sdti', 'Gbe', 'PushSdti', 'PushGbe', 'PushUnknown', 'Unknown')],
    [/^ClipCreationFailedEventArgs\.internalResult/, nothing],
    [/^AnglesGroupCommandReply\.(command|group)Guid/, () => ({ value: 'sent in both ids' })],
    [/^SetMultiviewerDataCommandParams\.commandGuid/, () => ({ value: '' })],
    [/ResultsItem\.operationStatus/, () => ({ status: 'Succeeded' })],
    [/: OperationStatus$/, random => pick(random, [{ status: random(3) }, { result: 1 + random(10) }])],
    [/: LoadBoundary$/, loadBoundary],
    [/: Guid$/, guid],
];
