#!/usr/bin/env python3
"""Generates the C++ wire records from the schema files.

    make_records.py --thrift COMPILER --output FOLDER FILE.thrift...

The Thrift compiler does most of the work. This step completes its output for every schema file:

  <file>_types.h       enumerations get the fixed underlying type int, because any 32-bit number is legal on the wire; each
                       record declares its fields first, then destructor, fingerprint constants, constructors and setters
  <file>_types.tcc     before and after the elements of a container, `read` calls `beginElements(container, size)` and
                       `endElements(container)` if the protocol has them; protocols that bound memory do. After a
                       field, `read` calls `readNextField(type, id)` for the next one if the protocol has it
  <file>_types.cpp     printing of records and enumerations, fingerprints and the constants object are appended
  <file>_constants.h   the class <file>Constants and the object g_<file>_constants
  <Record>.h           includes the header that has the record

It also writes one header for all of them, which is not installed:

  RecordFields.h       visits all records, and the fields of a record with their flags; names enumerators

An output file is rewritten only when its text changes. If anything is not as expected, the step ends with one line on
stderr and exit code 1, so that no incomplete record is compiled.
"""

import argparse
import hashlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

XML = "{http://thrift.apache.org/xml/idl}"
CPP_OPTIONS = "cpp:templates,moveable_types,no_ostream_operators"

# The name of each type in the canonical text of a record; binary and string are the same type in C++.
BASE_TYPES = {"bool": "bool", "byte": "byte", "i8": "byte", "i16": "i16", "i32": "i32", "i64": "i64",
              "double": "double", "string": "string", "binary": "string"}


class StepError(Exception):
    """The schema or the compiler's output is not as this step expects it."""


class Schema:
    """One schema file, as the compiler's XML describes it."""

    def __init__(self, name, document):
        self.name = name
        self.includes = []
        self.enums = []
        self.records = {}  # name -> field elements in declaration order
        self.namespace = None
        for element in document:
            kind = element.tag.removeprefix(XML)
            if kind == "include":
                self.includes.append(element.get("name"))
            elif kind == "namespace" and element.get("name") == "cpp":
                self.namespace = element.get("value").replace(".", "::")
            elif kind == "enum":
                self.enums.append(element.get("name"))
            elif kind == "struct":
                self.records[element.get("name")] = element.findall(XML + "field")
            else:
                raise StepError(f"{name}.thrift: '{kind}' is not supported, only records and enumerations are")
        if self.namespace is None:
            raise StepError(f"{name}.thrift: no 'namespace cpp'")


def canonical_text(schemas, schema, record):
    """The text whose MD5 digest is the record's fingerprint: {id:type;...}, nested records written out in full."""

    def type_text(element):
        kind = element.get("type")
        if kind in ("list", "set"):
            return f"{kind}<{type_text(element.find(XML + 'elemType'))}>"
        if kind == "map":
            return f"map<{type_text(element.find(XML + 'keyType'))},{type_text(element.find(XML + 'valueType'))}>"
        if kind == "id":
            module, name = schemas.get(element.get("type-module")), element.get("type-id")
            if module and name in module.enums:
                return "enum"
            if module and name in module.records:
                return canonical_text(schemas, module, name)
        if kind in BASE_TYPES:
            return BASE_TYPES[kind]
        raise StepError(f"{schema.name}.thrift: {record} has a field of unknown type '{element.get('type-id', kind)}'")

    def field_text(field):
        optional = "opt-" if field.get("required") == "optional" else ""
        return f"{field.get('field-id')}:{optional}{type_text(field)};"

    fields = sorted(schema.records[record], key=lambda field: int(field.get("field-id")))
    return "{" + "".join(map(field_text, fields)) + "}"


def substitute(pattern, replacement, text, what):
    """Replaces the only match of the pattern; no match or several are an error."""
    text, count = re.subn(pattern, replacement, text, flags=re.DOTALL)
    if count != 1:
        raise StepError(f"{what} found {count} times in the compiler's output, expected once")
    return text


def finish_header(schema, text):
    where = f"{schema.name}_types.h: "
    for include in schema.includes:
        if f'#include "{include}_types.h"\n' not in text:
            raise StepError(f"{where}include of {include}_types.h is missing")

    for enum in schema.enums:
        text = substitute(rf"(struct {enum} \{{\n  enum type)( \{{\n)", r"\1 : int\2", text, f"{where}enumeration {enum}")

    for record, fields in schema.records.items():
        def reordered(match):
            names = [field.get("name") for field in fields]
            if any(field.get("required") != "required" for field in fields):
                names.append("__isset")
            if re.findall(r"(\w+);\n", match["fields"]) != names:
                raise StepError(f"{where}record {record} does not declare the fields of its schema in their order")
            constants = "  static const char* const ascii_fingerprint;\n  static const uint8_t binary_fingerprint[16];\n\n"
            return match["head"] + match["fields"] + match["destructor"] + constants + match["constructors"]

        text = substitute(rf"(?P<head>class {record} \{{\n public:\n\n)"
                          rf"(?P<constructors>(?:  {record}\([^\n]*\n|  {record}& operator=[^\n]*\n)+.*?\n)"
                          rf"(?P<destructor>  virtual ~{record}\(\) noexcept;\n)"
                          r"(?P<fields>.*?\n\n)(?=  void __set_|  bool operator ==)",
                          reordered, text, f"{where}record {record}")

    if len(re.findall(r"^  enum type", text, re.MULTILINE)) != len(schema.enums):
        raise StepError(f"{where}an enumeration that the schema does not name")
    if len(re.findall(r"^class \w+ {", text, re.MULTILINE)) != len(schema.records):
        raise StepError(f"{where}a record that the schema does not name")
    return text


def finish_template(schema, text):
    def with_hooks(match):
        begin, end = (f"if constexpr (requires {{ iprot->{call}; }}) iprot->{call};\n"
                      for call in (f"beginElements({match['container']}, {match['size']})",
                                   f"endElements({match['container']})"))
        indentation = match["indentation"]
        return match["begin"] + indentation + begin + match["elements"] + match["end"] + indentation + end

    text, count = re.subn(r"(?P<begin>(?P<indentation> +)(?P<container>this->\w+)\.clear\(\);\n[^\n]* (?P<size>_size\d+);\n"
                          r"[^{}]*?read(?P<kind>List|Set|Map)Begin\([^\n]*, (?P=size)\);\n)"
                          r"(?P<elements>.*?)(?P<end> +xfer \+= iprot->read(?P=kind)End\(\);\n)",
                          with_hooks, text, flags=re.DOTALL)
    containers = sum(field.get("type") in ("list", "set", "map") for fields in schema.records.values() for field in fields)
    if count != containers:
        raise StepError(f"{schema.name}_types.tcc: {count} containers are read, expected {containers}")

    # A field is usually followed by the next one of its record. A protocol that can look ahead reads the begin of that
    # field directly, which avoids the jump through the switch, which processors predict badly.
    def with_next_field(match):
        field = f"{match['type']}, {match['id']}"
        return f"""\
        if constexpr (requires {{ iprot->readNextField({field}); }}) {{
          const uint32_t _begin = iprot->readNextField({field});
          if (_begin == 0) break;
          xfer += _begin;
          ftype = {match['type']};
        }} else {{
          break;
        }}
        [[fallthrough]];
{match['case']}"""

    text, count = re.subn(r" +break;\n(?P<case> +case (?P<id>\d+):\n +if \(ftype == (?P<type>[\w:]+)\) \{\n)",
                          with_next_field, text)
    following = sum(max(len(fields) - 1, 0) for fields in schema.records.values())
    if count != following:
        raise StepError(f"{schema.name}_types.tcc: {count} fields are read after another, expected {following}")
    return text


def enum_printing(enum):
    return f"""\
std::string to_string(const {enum}::type& val) {{
  return std::to_string(static_cast<int>(val));
}}

std::ostream& operator<<(std::ostream& out, const {enum}::type& val) {{
  return out << to_string(val);
}}
"""


def record_printing(record, fields):
    lines, separator = [], ""
    for field in fields:
        name = field.get("name")
        value = f"to_string(obj.{name})"
        if field.get("required") == "optional":
            value = f'(obj.__isset.{name} ? {value} : "<null>")'
        lines.append(f'  out << "{separator}{name}=" << {value};\n')
        separator = ", "
    return f"""\
std::ostream& operator<<(std::ostream& out, const {record}& obj) {{
  using ::apache::thrift::to_string;
  out << "{record}(";
{''.join(lines)}  return out << ")";
}}
"""


def fingerprint_constants(record, text):
    digest = hashlib.md5(text.encode(), usedforsecurity=False)
    octets = ", ".join(f"0x{octet:02X}" for octet in digest.digest())
    return f"""\
const char* const {record}::ascii_fingerprint = "{digest.hexdigest().upper()}";
const uint8_t {record}::binary_fingerprint[16] = {{{octets}}};
"""


def finish_source(schemas, schema, text):
    if f'#include "{schema.name}_types.h"\n' not in text or "#include <thrift/TToString.h>\n" not in text:
        raise StepError(f"{schema.name}_types.cpp: includes are missing in the compiler's output")
    for enum in schema.enums:
        if f" _{enum}_VALUES_TO_NAMES(" not in text:
            raise StepError(f"{schema.name}_types.cpp: names of enumeration {enum} are missing")
    for record in schema.records:
        if f"{record}::~{record}()" not in text:
            raise StepError(f"{schema.name}_types.cpp: record {record} is missing")

    parts = [enum_printing(enum) for enum in schema.enums]
    for record, fields in schema.records.items():
        parts.append(fingerprint_constants(record, canonical_text(schemas, schema, record)))
        parts.append(record_printing(record, fields))
    parts.append(f"const {schema.name}Constants g_{schema.name}_constants{{}};\n")
    body = "\n".join(parts)
    return f'{text}\n#include "{schema.name}_constants.h"\n\nnamespace {schema.namespace} {{\n\n{body}\n}} // namespace\n'


def constants_header(schema):
    return f"""\
#ifndef {schema.name}_CONSTANTS_H
#define {schema.name}_CONSTANTS_H

namespace {schema.namespace} {{

class {schema.name}Constants {{}};

extern const {schema.name}Constants g_{schema.name}_constants;

}} // namespace

#endif
"""


def fields_header(schemas):
    """A header for internal use that visits all records: their fields with flags, and their names, and names enumerators."""
    includes, names, views, records = [], [], [], []
    for schema in schemas.values():
        includes.append(f'#include "generated/{schema.name}_types.h"\n')
        for enum in schema.enums:
            names.append(f"""\
inline char const* EnumeratorName(::{schema.namespace}::{enum}::type const value)
{{
    return EnumeratorName(::{schema.namespace}::_{enum}_VALUES_TO_NAMES, value);
}}
""")
        for record, fields in schema.records.items():
            visits = []
            for field in fields:
                name = field.get("name")
                requirement = {"required": "Required", "optional": "Optional"}.get(field.get("required"), "Default")
                flag = "true" if requirement == "Required" else f"record.__isset.{name}"
                visits.append(f'    visit({field.get("field-id")}, "{name}", Requirement::{requirement}, &Record::{name},\n'
                              f'          []([[maybe_unused]] Record const& record) -> bool {{ return {flag}; }});\n')
            views.append(f"""\
constexpr char const* NameOf(::{schema.namespace}::{record} const&)
{{
    return "{record}";
}}

template<typename TVisit>
void VisitFields(std::type_identity<::{schema.namespace}::{record}>, [[maybe_unused]] TVisit&& visit)
{{
    using Record [[maybe_unused]] = ::{schema.namespace}::{record};
{''.join(visits)}}}
""")
            group = schema.namespace.removesuffix("::Generated").rpartition("::")[2]
            records.append((schema.namespace, record, group))
    records.sort(key=lambda of: ("::Data::" not in of[0], of[0].count("::"), of))
    visits = [f'    visit(std::type_identity<::{namespace}::{record}>(), "{record}", "{group}");\n'
              for namespace, record, group in records]
    return f"""\
#ifndef TALVO_RECORD_FIELDS_H
#define TALVO_RECORD_FIELDS_H

{''.join(includes)}
#include <map>
#include <type_traits>

namespace Talvo::Records {{

enum class Requirement
{{
    Required,
    Default, ///< Always written.
    Optional ///< Written if its flag is set.
}};

// The name of the enumerator with that number, or null.
inline char const* EnumeratorName(std::map<int, char const*> const& names, int const value)
{{
    auto const found = names.find(value);
    return found == names.end() ? nullptr : found->second;
}}
{chr(10).join(names)}
// Calls visit(id, name, requirement, member, isSet) for each field, in the order of the schema. `member` is a pointer to
// the field, and `isSet` a function that returns the flag of a record's field, which is true for a required one.

{chr(10).join(views)}
// Calls visit(type_identity, name, group) for each record, sorted by namespace (data and outer ones first) and name.
template<typename TVisit>
void VisitRecords(TVisit&& visit)
{{
{''.join(visits)}}}

}} // namespace

#endif
"""


def run_compiler(thrift, generator, folder, schema_file):
    command = [thrift, "--gen", generator, "-out", str(folder), str(schema_file)]
    try:
        result = subprocess.run(command, capture_output=True, text=True, errors="replace", check=False)
    except OSError as error:
        raise StepError(f"cannot run the Thrift compiler '{thrift}': {error.strerror}") from error
    if result.returncode != 0:
        reason = " ".join((result.stderr or result.stdout).split())
        raise StepError(f"{schema_file.name}: the Thrift compiler failed: {reason}")


def read_text(file):
    try:
        return file.read_text(encoding="utf-8")
    except OSError as error:
        raise StepError(f"{file.name}: {error.strerror}") from error
    except UnicodeDecodeError as error:
        raise StepError(f"{file.name}: is not UTF-8") from error


def write_if_changed(file, text):
    if not file.exists() or file.read_text(encoding="utf-8") != text:
        file.write_text(text, encoding="utf-8")


def read_schema(thrift, scratch, file):
    run_compiler(thrift, "xml", scratch, file)
    return Schema(file.stem, ElementTree.fromstring(read_text(scratch / f"{file.stem}.xml")).find(XML + "document"))


def record_header(schema, record):
    """The header that a user includes, who need not know which file the compiler writes a record to."""
    return f"""\
#ifndef {record}_RECORD_H
#define {record}_RECORD_H

#include "{schema.name}_types.h"

#endif
"""


def make_records(thrift, schema_files, output):
    with tempfile.TemporaryDirectory() as scratch:
        scratch = Path(scratch)
        schemas = {}
        for file in schema_files:
            run_compiler(thrift, CPP_OPTIONS, scratch, file)
            schemas[file.stem] = read_schema(thrift, scratch, file)

        texts = {}
        for name, schema in schemas.items():
            for include in schema.includes:
                if include not in schemas:
                    raise StepError(f"{name}.thrift: includes {include}.thrift, which is not among the schema files")
            texts[f"{name}_types.h"] = finish_header(schema, read_text(scratch / f"{name}_types.h"))
            texts[f"{name}_types.tcc"] = finish_template(schema, read_text(scratch / f"{name}_types.tcc"))
            texts[f"{name}_types.cpp"] = finish_source(schemas, schema, read_text(scratch / f"{name}_types.cpp"))
            texts[f"{name}_constants.h"] = constants_header(schema)
            texts.update({f"{record}.h": record_header(schema, record) for record in schema.records})
        texts["RecordFields.h"] = fields_header(schemas)

    try:
        output.mkdir(parents=True, exist_ok=True)
        for name, text in texts.items():
            write_if_changed(output / name, text)
    except OSError as error:
        raise StepError(f"{output}: {error.strerror}") from error


def main():
    parser = argparse.ArgumentParser(description="Generates the C++ wire records from the schema files.")
    parser.add_argument("--thrift", default="thrift", help="the Thrift compiler")
    parser.add_argument("--output", required=True, type=Path, help="folder of the generated files")
    parser.add_argument("schema_files", nargs="+", type=Path, metavar="FILE.thrift")
    arguments = parser.parse_args()
    try:
        make_records(arguments.thrift, arguments.schema_files, arguments.output)
    except StepError as error:
        sys.exit(f"make_records.py: {error}")


if __name__ == "__main__":
    main()
