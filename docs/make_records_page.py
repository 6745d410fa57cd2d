#!/usr/bin/env python3
"""make_records_page.py: writes docs/records.md, the table of all records, from the schema files and from the banners of
the converters' headers.

A banner is the comment of a converter's class. Its paragraphs that begin with "Failure" or "Ends the process" go to the
columns of that name, all others to "Conversion". The banner of a converter without failures says that it can't fail."""

import re
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/records.md"

FAMILIES = {
    "Common records": "Talvo.Corvane.Data.Generated",
    "Clips": "Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Clips.Generated",
    "Angles groups": "Talvo.Corvane.Data.Clips.Groups.Generated",
    "Channels": "Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Channels.Generated",
    "Servers": "Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Servers.Generated",
    "Sequences": "Talvo.Corvane.Zelmar.Serialization.Thrift.Data.Sequences.Generated",
    "Commands and replies": "Talvo.Corvane.Zelmar.Serialization.Thrift.Commands.Generated",
    "Events": "Talvo.Corvane.Zelmar.Serialization.Thrift.Notifier.Generated",
}

INTRODUCTION = """# All records

This page lists every record of the schema, with the converter that writes it (upper row) and the converter that reads
it (lower row). Each name links to the header, whose comment is the source of this page: `docs/make_records_page.py`
writes it.

- A failure is a `ConversionResult` with one of these texts. The failure of a nested record is returned unchanged. What
  was written before a failure stays in the destination, unless the table says otherwise.
- An enumeration number without a counterpart on the other side becomes 0.
- A value that ends the process in `To` is a failure of `TryTo` of [Thrift/TryTo.h](../Thrift/TryTo.h), with the path of
  the value; see [Bounding input](bounding-input.md). A failed memory allocation ends the process in every converter. A
  lack of random bytes from the system ends it in the two converters that generate a new identifier.
- "Flag" is the `__isset` bit of a field. The rows of a nested record apply wherever it is nested.
"""


class Record(NamedTuple):
    name: str
    namespace: str
    fields: str


class Banner(NamedTuple):
    converter: str
    header: Path
    record: str
    is_to_wire: bool
    on_the_way: tuple
    failures: tuple
    can_fail: bool
    ends_process: str


def records():
    """Every record of the schema, by name."""
    found = {}
    for schema in sorted((ROOT / "schema").glob("*.thrift")):
        text = schema.read_text()
        namespace = re.search(r"^namespace cpp (\S+)", text, re.M).group(1)
        for name, fields in re.findall(r"^struct (\w+) \{(.*?)^\}", text, re.M | re.S):
            if name in found:
                raise ValueError(f"{schema}: {name} is defined twice")
            found[name] = Record(name, namespace, fields)
    return found


def paragraphs_of(comment):
    """The paragraphs of a comment, with each list item and each table line as its own paragraph."""
    paragraphs = [""]
    for line in comment.splitlines():
        line = line.strip().removeprefix("///").strip()
        if not line or line.startswith(("- ", "|")):
            paragraphs.append("")
        paragraphs[-1] = f"{paragraphs[-1]} {line}".strip()
    return [paragraph for paragraph in paragraphs if paragraph]


def banners():
    """Every converter class of the public headers, with the contents of its banner."""
    found = []
    for header in sorted((ROOT / "Thrift").glob("**/*.h")):
        if "public Converter<" not in header.read_text():
            continue
        for comment, converter, bases in re.findall(
                r"((?:^///.*\n)+)class (\w+)\s*: public Converter<(.*?)>\s*\{", header.read_text(), re.M | re.S):
            on_the_way, failures, ends_process, target = [], [], "", None
            for paragraph in paragraphs_of(comment):
                if not paragraph.startswith("- "):
                    target = failures if paragraph.startswith("Failure") else on_the_way
                if paragraph.startswith("Ends the process: "):
                    ends_process = paragraph.removeprefix("Ends the process: ")
                elif paragraph.startswith("|"):
                    if target[-1:] != ["See the table in the header."]:
                        target.append("See the table in the header.")
                else:
                    target.append(paragraph.removeprefix("- "))
            arguments = re.findall(r"(Generated)?::(\w+)(?=,|>|$)", bases)
            record = next(name for generated, name in arguments if generated)
            is_to_wire = not re.match(r"[\w:]*Generated::", bases)
            can_fail = "can't fail" not in " ".join(paragraphs_of(comment))
            found.append(Banner(converter, header.relative_to(ROOT), record, is_to_wire, tuple(on_the_way),
                                tuple(failures), can_fail, ends_process))
    return found


def capitalised(text):
    return text[:1].upper() + text[1:]


def cell(texts):
    return "<br>".join(capitalised(text).replace("|", "\\|") for text in texts)


def on_the_way(banner):
    """The remarks of the banner, without the sentence that only names the two types."""
    text = cell(banner.on_the_way)
    text = re.sub(r"^Writes a domain `[^`]+` into the wire record `[^`]+`\.\s*", "", text)
    text = re.sub(r"^<br>|\s*It can't fail\.", "", text)
    return text.removeprefix("<br>").strip() or "–"


def failures(banner):
    texts = [re.sub(r"^Failures?(?:, ([^:]+:)|:)\s*", lambda match: f"{match[1]} " if match[1] else "", text).strip()
             for text in banner.failures]
    return cell(text for text in texts if text) or "never"


def nested_in(record, all_records):
    users = [user.name for user in all_records.values()
             if user.name != record.name and re.search(rf"\b{record.name}\b(?!\s*$)", user.fields, re.M)]
    return "No converter of its own; nested in " + ", ".join(users) if users else "No converter; nested in no record"


def page():
    all_records, all_banners = records(), banners()
    unknown = [banner.converter for banner in all_banners if banner.record not in all_records]
    if unknown or {record.namespace for record in all_records.values()} != set(FAMILIES.values()):
        raise ValueError(f"unknown record or family: {unknown}")
    text = INTRODUCTION
    for title, namespace in FAMILIES.items():
        text += f"\n## {title}\n\nIn `{namespace.replace('.', '::')}`.\n\n"
        text += "| Record | Converter | Conversion | Fails with | Ends the process |\n|---|---|---|---|---|\n"
        for record in sorted(all_records.values()):
            if record.namespace != namespace:
                continue
            own = sorted((banner for banner in all_banners if banner.record == record.name),
                         key=lambda banner: not banner.is_to_wire)
            name = f"**{record.name}**"
            for banner in own:
                text += (f"| {name} | [{banner.converter}] | {on_the_way(banner)} | {failures(banner)} "
                         f"| {capitalised(banner.ends_process) or 'never'} |\n")
                name = ""
            if not own:
                text += f"| {name} | – | {nested_in(record, all_records)} | – | – |\n"
    for banner in all_banners:
        text = re.sub(rf"(?<![\w\[]){banner.converter}\b(?!\])", f"[{banner.converter}]", text)
    return text + "\n" + "".join(f"[{banner.converter}]: ../{banner.header}\n" for banner in all_banners)


if __name__ == "__main__":
    PAGE.write_text(page())
