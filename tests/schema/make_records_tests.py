#!/usr/bin/env python3
"""Tests that make_records.py refuses what it does not understand instead of making half-finished records."""

import os
import sys
import tempfile
import unittest
from pathlib import Path

SCHEMA = Path(__file__).resolve().parents[2] / "schema"
sys.dont_write_bytecode = True
sys.path.insert(0, str(SCHEMA))
import make_records  # noqa: E402


class MakeRecords(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.output = self.folder / "generated"

    def make(self, text, *others):
        file = self.folder / "New.thrift"
        file.write_text(text, errors="surrogateescape")
        make_records.make_records(os.environ.get("THRIFT_COMPILER", "thrift"), [file, *others], self.output)

    def test_refuses_what_is_no_record_or_enumeration(self):
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

    def test_refuses_compiler_output_without_what_the_schema_names(self):
        schema_text = ('namespace cpp A.B\nenum E { None = 0 }\n'
                       'struct R { 1: i32 first, 2: required E second }')
        self.make(schema_text)
        run_compiler = make_records.run_compiler
        self.addCleanup(setattr, make_records, "run_compiler", run_compiler)

        for file, old, new, message in (
            ("New_types.h", "enum type {", "enum class type {", "New_types.h: enumeration E found 0 times"),
            ("New_types.h", "class R {", "struct R {", "New_types.h: record R found 0 times"),
            ("New_types.h", "virtual ~R()", "~R()", "New_types.h: record R found 0 times"),
            ("New_types.h", "int32_t first;", "int32_t other;", "New_types.h: record R does not declare the fields"),
            ("New_types.h", "void swap(", "class S {\n};\nvoid swap(", "New_types.h: a record that the schema does"),
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

    def test_refuses_an_output_that_is_no_folder(self):
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
        self.assertEqual(changed, {"New_types.h", "New_types.tcc", "New_types.cpp"})


if __name__ == "__main__":
    unittest.main()
