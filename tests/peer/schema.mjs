// Reads the subset of the Thrift language that the schema uses: include, namespace, enum, struct,
// required and optional fields of base types, list, set, map, enumerations and records.

import { readdirSync, readFileSync } from 'node:fs';

const baseTypes = new Set(['bool', 'i16', 'i32', 'i64', 'string']);

/**
 * Reads all .thrift files of a folder.
 *
 * The result maps each record's name to { name, fields }, the fields in file order as
 * { id, name, requiredness: 'required' | 'default' | 'optional', type }. A type is { kind } with kind
 * 'bool', 'i16', 'i32', 'i64' or 'string'; { kind: 'list' | 'set', element }; { kind: 'map', key, value };
 * { kind: 'enum', name, numbers: Map(enumerator -> number) } or { kind: 'record', name, fields }.
 */
export function readSchema(folder)
{
    const files = readdirSync(folder).filter(file => file.endsWith('.thrift'));
    const definitions = new Map();
    for (const file of files) {
        const scope = file.slice(0, -'.thrift'.length);
        for (const definition of parse(readFileSync(new URL(file, folder), 'utf8'), file))
            definitions.set(`${scope}.${definition.name}`, { scope, definition });
    }

    const records = new Map();
    for (const { scope, definition } of definitions.values()) {
        if (definition.kind !== 'record')
            continue;
        if (records.has(definition.name))
            throw new Error(`two records are named ${definition.name}`);
        records.set(definition.name, definition);
        for (const field of definition.fields)
            field.type = resolve(field.type, scope, definitions);
    }
    return records;
}

function resolve(type, scope, definitions)
{
    const resolved = part => resolve(part, scope, definitions);
    switch (type.kind) {
    case 'name': {
        const fullName = type.name.includes('.') ? type.name : `${scope}.${type.name}`;
        const found = definitions.get(fullName);
        if (!found)
            throw new Error(`${scope}.thrift: unknown type ${type.name}`);
        return found.definition;
    }
    case 'list':
    case 'set':
        return { kind: type.kind, element: resolved(type.element) };
    case 'map':
        return { kind: 'map', key: resolved(type.key), value: resolved(type.value) };
    default:
        return type;
    }
}

function parse(text, file)
{
    const withoutComments = text.replace(/\/\*[^]*?\*\/|\/\/.*|#.*/g, ' ');
    const tokens = withoutComments.match(/"[^"]*"|[\w.-]+|[^\s\w]/g) ?? [];
    const definitions = [];
    let position = 0;

    const next = () => tokens[position++];
    const nextIs = token => tokens[position] === token;
    const accept = token => nextIs(token) && Boolean(next());
    const expect = token => {
        if (!accept(token))
            throw new Error(`${file}: expected ${token}, found ${tokens[position] ?? 'the end'}`);
    };
    const integer = () => {
        const token = next();
        if (!/^-?\d+$/.test(token))
            throw new Error(`${file}: expected a number, found ${token}`);
        return Number(token);
    };

    const parseType = () => {
        const name = next();
        if (baseTypes.has(name))
            return { kind: name };
        if (name === 'list' || name === 'set') {
            expect('<');
            const element = parseType();
            expect('>');
            return { kind: name, element };
        }
        if (name === 'map') {
            expect('<');
            const key = parseType();
            expect(',');
            const value = parseType();
            expect('>');
            return { kind: 'map', key, value };
        }
        return { kind: 'name', name };
    };

    const parseEnum = () => {
        const name = next();
        const numbers = new Map();
        expect('{');
        while (!accept('}')) {
            const enumerator = next();
            expect('=');
            numbers.set(enumerator, integer());
            accept(',');
        }
        return { kind: 'enum', name, numbers };
    };

    const parseRecord = () => {
        const name = next();
        const fields = [];
        expect('{');
        while (!accept('}')) {
            const id = integer();
            expect(':');
            const requiredness = nextIs('required') || nextIs('optional') ? next() : 'default';
            const type = parseType();
            fields.push({ id, name: next(), requiredness, type });
        }
        return { kind: 'record', name, fields };
    };

    while (position < tokens.length) {
        const keyword = next();
        if (keyword === 'include')
            next();
        else if (keyword === 'namespace')
            position += 2;
        else if (keyword === 'enum')
            definitions.push(parseEnum());
        else if (keyword === 'struct')
            definitions.push(parseRecord());
        else
            throw new Error(`${file}: ${keyword} is not part of this schema's language`);
    }
    return definitions;
}
