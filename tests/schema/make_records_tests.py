#!/usr/bin/env python3
"""Tests that the schema has its published names, and that make_records.py rejects what it does not support."""

import os
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SCHEMA = Path(__file__).resolve().parents[2] / "schema"
NAMES = Path(__file__).with_name("names.txt")
THRIFT = os.environ.get("THRIFT_COMPILER", "thrift")
sys.dont_write_bytecode = True
sys.path.insert(0, str(SCHEMA))
import make_records  # noqa: E402


def type_name(element):
    kind = element.get("type")
    parts = [element.find(make_records.XML + part) for part in ("keyType", "valueType", "elemType")]
    arguments = ", ".join(type_name(part) for part in parts if part is not None)
    return f"{kind}<{arguments}>" if arguments else element.get("type-id", kind)


def schema_names():
    """Lists all records and enumerations by name, as make_records.py reads them: one line per field or enumeration."""
    definitions = {}
    with tempfile.TemporaryDirectory() as folder:
        for file in SCHEMA.glob("*.thrift"):
            make_records.run_compiler(THRIFT, "xml", folder, file)
            document = ElementTree.parse(Path(folder, f"{file.stem}.xml")).getroot().find(make_records.XML + "document")
            for element in document:
                name = element.get("name")
                if element.tag == make_records.XML + "enum":
                    definitions[name] = f"enum {name}:" + "".join(
                        f" {member.get('name')}={member.get('value')}" for member in element)
                elif element.tag == make_records.XML + "struct":
                    definitions[name] = "\n".join([f"record {name}"] + [
                        f"  {field.get('field-id')} {field.get('required', 'default')} {type_name(field)} "
                        f"{field.get('name')}" for field in element])
    return "".join(f"{definitions[name]}\n" for name in sorted(definitions))


class SchemaFiles(unittest.TestCase):
    maxDiff = None

    def test_have_the_published_names(self):
        # A wrong name still compiles, and the fingerprints don't depend on names.
        self.assertMultiLineEqual(schema_names(), NAMES.read_text())


class MakeRecords(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.output = self.folder / "generated"

    def make(self, text, *others):
        file = self.folder / "New.thrift"
        file.write_text(text, errors="surrogateescape")
        make_records.make_records(THRIFT, [file, *others], self.output)

    def test_rejects_invalid_schemas(self):
        for text, message in (
            ("struct R {", "New.thrift: the Thrift compiler failed: .*syntax error"),
            ("struct \udcff {", "New.thrift: the Thrift compiler failed: .*Unexpected token"),
            ("struct R { 1: i32 a }", "New.thrift: no 'namespace cpp'"),
            ("namespace cpp A\nconst i32 C = 1", "New.thrift: 'const' is not supported"),
            ("namespace cpp A\nexception E { 1: i32 a }", "New.thrift: 'exception' is not supported"),
            (f'include "{SCHEMA}/Guid.thrift"\nnamespace cpp A\nstruct R {{ 1: Guid.Guid a }}',
             "New.thrift: includes Guid.thrift, which is not among the schema files"),
        ):
            with self.subTest(message), self.assertRaisesRegex(make_records.StepError, message):
                self.make(text)
            self.assertFalse(self.output.exists())

    def test_rejects_compiler_output_that_does_not_match_the_schema(self):
        schema_text = ('namespace cpp A.B\nenum E { None = 0 }\n'
                       'struct R { 1: i32 first, 2: required E second, 3: list<i32> numbers }')
        self.make(schema_text)
        run_compiler = make_records.run_compiler
        self.addCleanup(setattr, make_records, "run_compiler", run_compiler)

        for file, old, new, message in (
            ("New_types.h", "enum type {", "enum class type {", "New_types.h: enumeration E found 0 times"),
            ("New_types.h", "class R {", "struct R {", "New_types.h: record R found 0 times"),
            ("New_types.h", "virtual ~R()", "~R()", "New_types.h: record R found 0 times"),
            ("New_types.h", "int32_t first;", "int32_t other;", "New_types.h: record R does not declare the fields"),
            ("New_types.h", "void swap(", "class S {\n};\nvoid swap(", "New_types.h: a record that the schema does"),
            ("New_types.tcc", "readListBegin(", "readBegin(", "New_types.tcc: 0 containers are read, expected 1"),
            ("New_types.tcc", "case 2:", "case -2:", "New_types.tcc: 1 fields are read after another, expected 2"),
            ("New_types.cpp", "R::~R()", "", "New_types.cpp: record R is missing"),
            ("New_types.cpp", "_E_VALUES_TO_NAMES", "", "New_types.cpp: names of enumeration E are missing"),
            ("New_types.cpp", "TToString.h", "T.h", "New_types.cpp: includes are missing"),
        ):
            def run_other_compiler(thrift, generator, folder, schema_file):
                run_compiler(thrift, generator, folder, schema_file)
                if generator != "xml":
                    text = (folder / file).read_text()
                    self.assertIn(old, text)
                    (folder / file).write_text(text.replace(old, new))

            make_records.run_compiler = run_other_compiler
            with self.subTest(message), self.assertRaisesRegex(make_records.StepError, message):
                self.make(schema_text)

    def test_rejects_an_output_that_is_not_a_folder(self):
        self.output.touch()
        with self.assertRaisesRegex(make_records.StepError, "generated: File exists"):
            self.make("namespace cpp A\nstruct R { 1: i32 first }")

    def test_rewrites_only_what_changes(self):
        text = 'namespace cpp A\nstruct R {{ 1: {} i32 first }}'
        self.make(text.format(""))
        before = {file.name: file.stat().st_mtime_ns for file in self.output.iterdir()}
        self.make(text.format(""))
        self.assertEqual(before, {file.name: file.stat().st_mtime_ns for file in self.output.iterdir()})
        self.make(text.format("optional"))
        changed = {file.name for file in self.output.iterdir() if file.stat().st_mtime_ns != before[file.name]}
        self.assertEqual(changed, {"New_types.h", "New_types.tcc", "New_types.cpp", "RecordFields.h"})


if __name__ == "__main__":
    unittest.main()
