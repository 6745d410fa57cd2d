// Writes and reads records through npm's Thrift protocol classes, with the schema as the only guide.
//
// A record is a plain object of field name -> value; an absent (or undefined) field is not written.
//   bool          true or false
//   i16, i32      a number
//   i64           a BigInt
//   enumeration   an enumerator's name or any 32-bit number; read back as a number
//   string        one character per byte, '\x00' to '\xff', since the wire's strings may be raw bytes
//   list, set     an array
//   map           an array of [key, value] pairs, so that a record can be a key

import thrift from 'thrift';

const { Int64, TBinaryProtocol, TBufferedTransport, TCompactProtocol, Thrift: { Type } } = thrift;

export const protocols = { binary: TBinaryProtocol, compact: TCompactProtocol };

const wireTypes = {
    bool: Type.BOOL, i16: Type.I16, i32: Type.I32, i64: Type.I64, enum: Type.I32, string: Type.STRING,
    list: Type.LIST, set: Type.SET, map: Type.MAP, record: Type.STRUCT,
};

/** The bytes of `value`, a record of type `record`, in protocol 'binary' or 'compact'. */
export function writeRecord(record, value, protocolName)
{
    let bytes;
    const transport = new TBufferedTransport(undefined, written => { bytes = written; });
    const protocol = new protocols[protocolName](transport);
    write(protocol, record, value);
    protocol.flush();
    return bytes;
}

/** The value that `bytes` hold. Throws if they are not exactly one such record. */
export function readRecord(record, bytes, protocolName)
{
    let value;
    TBufferedTransport.receiver(transport => {
        value = read(new protocols[protocolName](transport), record);
        if (transport.readCursor !== transport.writeCursor)
            throw new Error(`${record.name}: bytes after the record`);
    })(bytes);
    return value;
}

function write(protocol, type, value)
{
    switch (type.kind) {
    case 'bool': return protocol.writeBool(checked(value, typeof value === 'boolean', type));
    case 'i16': return protocol.writeI16(checked(value, value << 16 >> 16 === value, type));
    case 'i32': return protocol.writeI32(checked(value, (value | 0) === value, type));
    case 'enum': return protocol.writeI32(enumNumber(type, value));
    case 'i64': return protocol.writeI64(toInt64(checked(value, BigInt.asIntN(64, value) === value, type)));
    case 'string':
        return protocol.writeBinary(Buffer.from(checked(value, /^[\0-\xff]*$/.test(value), type), 'latin1'));
    case 'list':
        protocol.writeListBegin(wireTypes[type.element.kind], value.length);
        value.forEach(element => write(protocol, type.element, element));
        return protocol.writeListEnd();
    case 'set':
        protocol.writeSetBegin(wireTypes[type.element.kind], value.length);
        value.forEach(element => write(protocol, type.element, element));
        return protocol.writeSetEnd();
    case 'map':
        protocol.writeMapBegin(wireTypes[type.key.kind], wireTypes[type.value.kind], value.length);
        for (const [key, mapped] of value) {
            write(protocol, type.key, key);
            write(protocol, type.value, mapped);
        }
        return protocol.writeMapEnd();
    case 'record': return writeFields(protocol, type, value);
    }
}

function writeFields(protocol, record, value)
{
    expectFields(record, value);
    protocol.writeStructBegin(record.name);
    for (const field of record.fields.filter(({ name }) => value[name] !== undefined)) {
        protocol.writeFieldBegin(field.name, wireTypes[field.type.kind], field.id);
        write(protocol, field.type, value[field.name]);
        protocol.writeFieldEnd();
    }
    protocol.writeFieldStop();
    protocol.writeStructEnd();
}

function read(protocol, type)
{
    switch (type.kind) {
    case 'bool': return protocol.readBool();
    case 'i16': return protocol.readI16();
    case 'i32':
    case 'enum': return protocol.readI32();
    case 'i64': return fromInt64(protocol.readI64());
    case 'string': return protocol.readBinary().toString('latin1');
    case 'list': {
        const { size, etype } = protocol.readListBegin();
        return readElements(protocol, type, size, etype);
    }
    case 'set': {
        const { size, etype } = protocol.readSetBegin();
        return readElements(protocol, type, size, etype);
    }
    case 'map': {
        const { size, ktype, vtype } = protocol.readMapBegin();
        // An empty map carries no types in the compact protocol.
        if (size > 0) {
            expectType(ktype, type.key, 'a map key');
            expectType(vtype, type.value, 'a map value');
        }
        return Array.from({ length: size }, () => [read(protocol, type.key), read(protocol, type.value)]);
    }
    case 'record': return readFields(protocol, type);
    }
}

function readElements(protocol, type, size, wireType)
{
    expectType(wireType, type.element, `a ${type.kind} element`);
    return Array.from({ length: size }, () => read(protocol, type.element));
}

// Both sides use one schema, so an unknown field is a fault and is not skipped.
function readFields(protocol, record)
{
    const value = {};
    protocol.readStructBegin();
    for (;;) {
        const { ftype, fid } = protocol.readFieldBegin();
        if (ftype === Type.STOP)
            break;
        const field = record.fields.find(candidate => candidate.id === fid);
        if (!field)
            throw new Error(`${record.name} has no field with id ${fid}`);
        expectType(ftype, field.type, `${record.name}.${field.name}`);
        value[field.name] = read(protocol, field.type);
        protocol.readFieldEnd();
    }
    protocol.readStructEnd();
    expectFields(record, value);
    return value;
}

function expectFields(record, value)
{
    const unknown = Object.keys(value).find(name => !record.fields.some(field => field.name === name));
    if (unknown)
        throw new Error(`${record.name} has no field ${unknown}`);
    const missing = record.fields.find(field => field.requiredness === 'required' && value[field.name] === undefined);
    if (missing)
        throw new Error(`${record.name}.${missing.name} is required`);
}

function expectType(wireType, type, what)
{
    if (wireType !== wireTypes[type.kind])
        throw new Error(`${what} has wire type ${wireType}, not ${wireTypes[type.kind]}`);
}

function checked(value, isValid, type)
{
    if (!isValid)
        throw new Error(`${String(value)} is not a ${type.kind}`);
    return value;
}

function enumNumber(type, value)
{
    const number = typeof value === 'string' ? type.numbers.get(value) : value;
    if ((number | 0) !== number)
        throw new Error(`${String(value)} is not a ${type.name}`);
    return number;
}

// JavaScript numbers are exact up to 2^53 only, so 64-bit values use the buffer of an Int64.
function toInt64(value)
{
    const buffer = Buffer.alloc(8);
    buffer.writeBigInt64BE(value);
    return new Int64(buffer);
}

function fromInt64(int64)
{
    return int64.buffer.readBigInt64BE(int64.offset);
}

/**
 * Returns the same text for equal values: enumerations as numbers, 64-bit numbers as decimal text, fields in the
 * schema's order, sets and maps sorted, since neither has an order on the wire. Accepts its own output too.
 */
export function canonicalJson(record, value)
{
    return JSON.stringify(canonical(record, value), null, 2);
}

function canonical(type, value)
{
    switch (type.kind) {
    case 'enum': return enumNumber(type, value);
    case 'i64': return String(value);
    case 'list': return value.map(element => canonical(type.element, element));
    case 'set': return sorted(value.map(element => canonical(type.element, element)));
    case 'map':
        return sorted(value.map(([key, mapped]) => [canonical(type.key, key), canonical(type.value, mapped)]));
    case 'record':
        expectFields(type, value);
        return Object.fromEntries(type.fields.filter(({ name }) => value[name] !== undefined)
            .map(field => [field.name, canonical(field.type, value[field.name])]));
    default: return value;
    }
}

function sorted(elements)
{
    const keyed = elements.map(element => [JSON.stringify(element), element]);
    return keyed.sort(([left], [right]) => (left < right ? -1 : Number(left > right))).map(([, element]) => element);
}

/** The value as a reader with the schema sees it: an absent field that is not optional has the value zero. */
export function withDefaults(type, value)
{
    switch (type.kind) {
    case 'bool': return value ?? false;
    case 'i16':
    case 'i32':
    case 'enum': return value ?? 0;
    case 'i64': return value ?? 0n;
    case 'string': return value ?? '';
    case 'list':
    case 'set': return (value ?? []).map(element => withDefaults(type.element, element));
    case 'map': return (value ?? []).map(pair => [withDefaults(type.key, pair[0]), withDefaults(type.value, pair[1])]);
    case 'record':
        return Object.fromEntries(type.fields
            .filter(({ name, requiredness }) => requiredness !== 'optional' || value?.[name] !== undefined)
            .map(field => [field.name, withDefaults(field.type, value?.[field.name])]));
    }
}
