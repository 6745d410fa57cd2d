#!/usr/bin/env python3
"""make_records_page.py [--tags]: writes docs/records.md, the page of all records, from the schema files as the Thrift
compiler reads them, from the banners of the converters' headers, and from docs/domain-members.txt. With --tags, prints the
sections of the page as a tag file of doxygen instead.

A banner is the comment of a converter's class. Its paragraphs that begin with "Failure" or "Ends the process" become the
items of that name, all others remarks on the conversion. The banner of a converter without failures says that it can't
fail."""

import os
import re
import sys
import tempfile
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "schema"))
import make_records  # noqa: E402

PAGE = ROOT / "docs/records.md"
MEMBERS = ROOT / "docs/domain-members.txt"

FAMILIES = {
    "Common records": "Talvo::Corvane::Data::Generated",
    "Clips": "Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated",
    "Angles groups": "Talvo::Corvane::Data::Clips::Groups::Generated",
    "Channels": "Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::Generated",
    "Servers": "Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers::Generated",
    "Sequences": "Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::Generated",
    "Commands and replies": "Talvo::Corvane::Zelmar::Serialization::Thrift::Commands::Generated",
    "Events": "Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier::Generated",
}

INTRODUCTION = """# All records

This page lists every record of the schema: its fields, the converter that writes it and the converter that reads it.
`docs/make_records_page.py` writes this page from the schema, from the comments in the converters' headers and from
`docs/domain-members.txt`.

- A field has an `__isset` bit, its "flag", which says whether the field was sent. A "required" field has no flag, and
  `read` rejects a record without it. An "optional" field is written only if its flag is set, a "default" field always.
- A "domain member" is what is written to the field and what the field is read into. If the two differ, a slash separates
  the members that are written from those that are read into. "-" marks a field that is not converted. The fields of a nested
  record without a converter of its own become members of the same names, unless the row of the nested record names others.
- A failure is a `ConversionResult` with one of these texts. The failure of a nested record is returned unchanged. What
  was written before a failure stays in the destination, unless the record's section says otherwise.
- An enumeration number without a counterpart on the other side becomes 0.
- A value that ends the process in `To` is a failure of `TryTo` of [Thrift/TryTo.h](../Thrift/TryTo.h), with the path of
  the value; see [Bounding input](bounding-input.md). A failed memory allocation ends the process in every converter. A
  lack of random bytes from the system ends it in the two converters that generate a new identifier.
- What is said of a record applies wherever it is nested.
"""


class Field(NamedTuple):
    number: str
    name: str
    type: str
    records: tuple  # that its type names
    requiredness: str


class Record(NamedTuple):
    name: str
    namespace: str
    fields: tuple


class Banner(NamedTuple):
    converter: str
    header: Path
    record: str
    domain: str
    is_to_wire: bool
    on_the_way: tuple
    failures: tuple
    can_fail: bool
    ends_process: str


def field_of(element):
    def names(part):
        """The type of the field or of its elements, and the records that it names."""
        kind = part.get("type")
        parts = [found for kind_of in ("keyType", "valueType", "elemType")
                 if (found := part.find(make_records.XML + kind_of)) is not None]
        if parts:
            texts, inner = zip(*map(names, parts))
            return f"{kind}<{', '.join(texts)}>", sum(inner, ())
        return (part.get("type-id"), (part.get("type-id"),)) if kind == "id" else (kind, ())

    text, named = names(element)
    requiredness = element.get("required")
    return Field(element.get("field-id"), element.get("name"), text, named,
                 requiredness if requiredness in ("required", "optional") else "default")


def records():
    """Every record of the schema, by name."""
    found = {}
    with tempfile.TemporaryDirectory() as folder:
        for file in sorted((ROOT / "schema").glob("*.thrift")):
            schema = make_records.read_schema(os.environ.get("THRIFT_COMPILER", "thrift"), Path(folder), file)
            for name, fields in schema.records.items():
                if name in found:
                    raise ValueError(f"{file}: {name} is defined twice")
                found[name] = Record(name, schema.namespace, tuple(map(field_of, fields)))
    return found


def domain_header(domain):
    """The header that declares the class, or the class that it is nested in."""
    parts = domain.split("<")[0].split("::")
    for size in range(len(parts) - 1, 0, -1):
        namespace = re.compile(rf"^namespace [\w:]*\b{'::'.join(parts[:size])}$", re.M)
        for header in (ROOT / "Domain").glob(f"**/{parts[size]}.h"):
            if namespace.search(header.read_text()):
                return header.relative_to(ROOT)
    raise ValueError(f"no header of {domain}")


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
            source, destination = re.split(r",\s*", bases)
            is_to_wire = "Generated::" in destination
            wire, domain = (destination, source) if is_to_wire else (source, destination)
            record = wire.split("::")[-1]
            can_fail = "can't fail" not in " ".join(paragraphs_of(comment))
            found.append(Banner(converter, header.relative_to(ROOT), record, domain, is_to_wire, tuple(on_the_way),
                                tuple(failures), can_fail, ends_process))
    return found


def capitalised(text):
    return text[:1].upper() + text[1:]


def domain_members(converted):
    """What docs/domain-members.txt says of each field of the converted records, as Markdown."""
    headers = [header.read_text() for folder in ("Domain", "TimePoints") for header in (ROOT / folder).glob("**/*.h")]
    declared = set(re.findall(r"\w+", re.sub(r"//.*", "", "".join(headers))))
    fields = [(record.name, field.name) for record in converted for field in record.fields]
    found, record = {}, ""
    for line in MEMBERS.read_text().splitlines():
        if line.startswith("  "):
            field, _, entry = line.strip().partition(" = ")
            if (record, field) not in fields:
                raise ValueError(f"{MEMBERS}: {record} has no field {field}")
            if (record, field) in found:
                raise ValueError(f"{MEMBERS}: {record} has two lines of {field}")
            access, _, words = entry.partition("- ")
            if unknown := set(re.findall(r"[A-Za-z_]\w*", access)) - declared:
                raise ValueError(f"{MEMBERS}: {record}.{field}: no header of the domain has {sorted(unknown)}")
            members = re.sub(r"\w[^ ,/]*", r"`\g<0>`", access.strip())
            found[record, field] = ", ".join(filter(None, (members, words)))
        elif line and not line.startswith("#"):
            record = line
            if record not in (name for name, _ in fields):
                raise ValueError(f"{MEMBERS}: no record {record} has a converter")
    if missing := [f"{record}.{field}" for record, field in fields if (record, field) not in found]:
        raise ValueError(f"{MEMBERS}: no line of {', '.join(missing)}")
    return found


def remarks_of(banner):
    """What the banner says of the conversion, without the sentence that only names the two types."""
    first, *others = banner.on_the_way or ("",)
    first = re.sub(r"^Writes a domain `[^`]+` into the wire record `[^`]+`\.\s*", "", first)
    remarks = [re.sub(r"\s*It can't fail\.", "", text).strip() for text in (first, *others)]
    return [capitalised(text) for text in remarks if text]


def failures_of(banner):
    texts = [re.sub(r"^Failures?(?:, ([^:]+:)|:)\s*", lambda match: f"{match[1]} " if match[1] else "", text).strip()
             for text in banner.failures]
    return [text for text in texts if text]


def failure_items(texts):
    """One text in one line, several below. A first text that ends with a colon says something of all others."""
    if not texts:
        return "- It can't fail.\n"
    if len(texts) == 1:
        return f"- Fails with: {texts[0]}\n"
    title = "Fails with:"
    if texts[0].endswith(":"):
        title, texts = f"Fails, {texts[0]}", texts[1:]
    return f"- {title}\n" + "".join(f"    - {text}\n" for text in texts)


def converter_section(title, banner):
    text = f"\n{title}: [{banner.converter}]\n\n"
    text += "".join(f"- {remark}\n" for remark in remarks_of(banner))
    text += failure_items(failures_of(banner))
    return text + (f"- Ends the process: {capitalised(banner.ends_process)}\n" if banner.ends_process else "")


def link(record):
    """To the heading of the record on this page."""
    return f"[{record}](#{record.lower()})"


def linked(field, all_records):
    text = field.type.replace("<", "&lt;")
    for name in set(field.records) & set(all_records):
        text = re.sub(rf"\b{name}\b", link(name), text)
    return text


def record_section(record, all_records, own, members):
    text = f"\n### {record.name}\n\nWire header `generated/{record.name}.h`"
    if own:
        header = domain_header(own[0].domain)
        text += f", domain `{own[0].domain}` in [{header}](../{header})"
    else:
        users = [link(user.name) for user in all_records.values()
                 if any(record.name in field.records for field in user.fields)]
        text += ", no converter of its own; nested in " + ", ".join(users) if users else ", no converter"
    title, line = (" Domain member |", "---|") if own else ("", "")
    text += f".\n\n| Id | Field | Type | Requiredness |{title}\n|---|---|---|---|{line}\n"
    for field in record.fields:
        member = f" {members[record.name, field.name]} |" if own else ""
        text += f"| {field.number} | `{field.name}` | {linked(field, all_records)} | {field.requiredness} |{member}\n"
    return text + "".join(converter_section("To the wire" if banner.is_to_wire else "From the wire", banner) for banner in own)


def page():
    all_records, all_banners = records(), banners()
    unknown = [banner.converter for banner in all_banners if banner.record not in all_records]
    if unknown or {record.namespace for record in all_records.values()} != set(FAMILIES.values()):
        raise ValueError(f"unknown record or family: {unknown}")
    members = domain_members([record for record in all_records.values()
                              if any(banner.record == record.name for banner in all_banners)])
    text = INTRODUCTION
    for title, namespace in FAMILIES.items():
        text += f"\n## {title}\n\nIn `{namespace}`.\n"
        for record in sorted(all_records.values()):
            if record.namespace == namespace:
                own = sorted((banner for banner in all_banners if banner.record == record.name),
                             key=lambda banner: not banner.is_to_wire)
                text += record_section(record, all_records, own, members)
    for banner in all_banners:
        text = re.sub(rf"(?<![\w\[]){banner.converter}\b(?!\])", f"[{banner.converter}]", text)
    return text + "\n" + "".join(f"[{banner.converter}]: ../{banner.header}\n" for banner in all_banners)


def tags():
    """The tag file of doxygen with which each use of a record in the API reference links to its section."""
    return "<tagfile>\n" + "".join(
        f'<compound kind="struct"><name>{record.namespace}::{record.name}</name>'
        f"<filename>records.html#{record.name.lower()}</filename></compound>\n"
        for record in records().values()) + "</tagfile>"


if __name__ == "__main__":
    if sys.argv[1:] == ["--tags"]:
        print(tags())
    else:
        PAGE.write_text(page())
