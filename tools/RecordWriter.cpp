#include "tools/RecordWriter.h"

#include "tools/Failure.h"
#include "tools/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

namespace Talvo::Tools
{

namespace
{

using Records::Shape;
using Kind = Records::Shape::Kind;

/// The numbers of the types in the binary protocol, in the order of Shape::Kind.
constexpr std::array<char, 9> WireTypes{2, 6, 8, 10, 11, 12, 15, 14, 13};
constexpr char Stop = 0;

char TypeOf(Shape const& shape)
{
    return WireTypes.at(static_cast<std::size_t>(shape.kind));
}

[[noreturn]] void RefusePath(std::string const& reason)
{
    throw Failure("path: " + reason);
}

std::string Quoted(std::string_view const text)
{
    return '\'' + std::string(text) + '\'';
}

/// Bytes of a number; 0 of what is none.
std::size_t SizeOf(Kind const kind)
{
    return kind == Kind::I16 ? 2 : kind == Kind::I32 ? 4 : kind == Kind::I64 ? 8 : 0;
}

/// The smallest number of so many bytes.
std::int64_t LeastOf(std::size_t const size)
{
    return std::numeric_limits<std::int64_t>::min() >> (64 - 8 * size);
}

std::string Expectation(Shape const& shape)
{
    switch (shape.kind)
    {
    case Kind::Bool:
        return "true or false";
    case Kind::Text:
        return "a string";
    case Kind::Record:
        return "the values of a record, or {} for one without fields";
    case Kind::List:
    case Kind::Set:
        return "elements, or [] for none";
    case Kind::Map:
        return "entries, or {} for none";
    default:
        auto const least = LeastOf(SizeOf(shape.kind));
        return "a number from " + std::to_string(least) + " to " + std::to_string(-(least + 1));
    }
}

/// Takes what stands in brackets from the start of `rest`; a text in quotes may hold a bracket.
std::string_view TakeBrackets(std::string_view& rest)
{
    auto end = std::string_view::npos;
    bool isQuoted = false;
    for (std::size_t i = 1; !rest.empty() && rest[0] == '[' && i < rest.size() && end == std::string_view::npos; ++i)
    {
        if (rest[i] == '"') isQuoted = !isQuoted;
        if (rest[i] == '\\' && isQuoted)
            ++i;
        else if (rest[i] == ']' && !isQuoted)
            end = i;
    }
    if (end == std::string_view::npos) RefusePath(Quoted(rest) + " is not a place in a list, set or map");
    auto const inside = rest.substr(1, end - 1);
    rest.remove_prefix(end + 1);
    return inside;
}

template<typename TNumber>
bool ParseNumber(std::string_view const text, TNumber& number)
{
    auto const* const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

std::int64_t NumberOf(std::string_view const key)
{
    std::int64_t number = 0;
    if (!ParseNumber(key, number)) RefusePath(Quoted(key) + " is not the number of a key");
    return number;
}

std::string TextOf(std::string_view const key)
{
    if (key.ends_with(')')) RefusePath("the key [" + std::string(key) + "] is cut: its whole has to come first");
    bool const isQuoted = key.size() >= 2 && key.front() == '"' && key.back() == '"';
    auto text = isQuoted ? Unescaped(key.substr(1, key.size() - 2)) : std::nullopt;
    if (!text) RefusePath(Quoted(key) + " is not the text of a key");
    return std::move(*text);
}

} // namespace

RecordWriter::RecordWriter(Shape const& shape)
{
    OpenNew(shape, {});
}

void RecordWriter::AddValue(std::string_view const path, JsonValue const& value)
{
    auto const& shape = Go(path, nullptr);
    auto const* const empty = std::get_if<EmptyJson>(&value);
    bool const isList = shape.kind == Kind::List || shape.kind == Kind::Set;
    if (shape.kind < Kind::Record)
        WriteScalar(shape, value);
    else if (empty == nullptr || (*empty == EmptyJson::Array) != isList)
        throw Failure("value: it takes " + Expectation(shape));
    else
    {
        OpenNew(shape, path);
        CloseTo(open_.size() - 1);
    }
}

void RecordWriter::AddKey(std::string_view const path, std::string const& key)
{
    Go(path, &key);
}

std::string RecordWriter::Finish()
{
    CloseTo(0);
    return std::move(bytes_);
}

Shape const& RecordWriter::Go(std::string_view const path, std::string const* const wholeKey)
{
    auto rest = path;
    for (std::size_t level = 0;; ++level)
    {
        Shape const* next = nullptr;
        auto const kind = open_[level].shape->kind;
        if (kind == Kind::Record)
            next = StepIntoRecord(level, rest);
        else if (kind == Kind::Map)
            next = StepIntoMap(level, rest, wholeKey);
        else
            next = StepIntoList(level, rest);

        auto const here = path.substr(0, path.size() - rest.size());
        if (rest.empty())
        {
            if (next == nullptr) RefusePath(std::string(path) + " has values already");
            if (wholeKey != nullptr && !(kind == Kind::Map && open_[level].awaitsValue))
                throw Failure("key: " + std::string(path) + " is not an entry of a map");
            return *next;
        }
        if (next == nullptr) continue;
        if (next->kind < Kind::Record)
            RefusePath(std::string(here) + " takes " + Expectation(*next) + ", it has nothing inside");
        OpenNew(*next, here);
    }
}

Shape const* RecordWriter::StepIntoRecord(std::size_t const level, std::string_view& rest)
{
    if (level > 0)
    {
        if (!rest.starts_with('.')) RefusePath(Quoted(rest) + " should be a field of " + open_[level].shape->name);
        rest.remove_prefix(1);
    }
    auto const name = rest.substr(0, rest.find_first_of(".["));
    rest.remove_prefix(name.size());

    auto const& fields = open_[level].shape->fields;
    auto const field = std::ranges::find(fields, name, &Shape::Field::name);
    if (field == fields.end()) RefusePath(std::string(open_[level].shape->name) + " has no field " + Quoted(name));
    if (open_.size() > level + 1 && open_[level].field == field->id) return nullptr;
    CloseTo(level + 1);
    if (!open_[level].fields.insert(field->id).second)
        RefusePath(Quoted(name) + " of " + open_[level].shape->name + " is there twice, or in pieces");
    open_[level].field = field->id;
    bytes_ += TypeOf(*field->shape);
    WriteNumber(field->id, 2);
    return field->shape;
}

Shape const* RecordWriter::StepIntoList(std::size_t const level, std::string_view& rest)
{
    auto const text = TakeBrackets(rest);
    std::uint32_t index = 0;
    if (!ParseNumber(text, index)) RefusePath(Quoted(text) + " is not the number of an element");
    if (open_.size() > level + 1 && index + 1 == open_[level].count) return nullptr;
    CloseTo(level + 1);
    if (index != open_[level].count)
        RefusePath("element " + std::to_string(index) + " of " + open_[level].path + " comes where " +
                   std::to_string(open_[level].count) + " should");
    ++open_[level].count;
    return open_[level].shape->element;
}

Shape const* RecordWriter::StepIntoMap(std::size_t const level, std::string_view& rest,
                                       std::string const* const wholeKey)
{
    auto const key = TakeBrackets(rest);
    bool const isNew = wholeKey != nullptr && rest.empty();
    if (!isNew && open_[level].count > 0 && open_[level].key == key)
    {
        if (open_.size() > level + 1) return nullptr;
        if (!std::exchange(open_[level].awaitsValue, false))
            RefusePath("the entry [" + std::string(key) + "] of " + open_[level].path + " is there twice");
        return open_[level].shape->element;
    }
    CloseTo(level + 1);
    if (open_[level].awaitsValue) RefusePath("the entry [" + open_[level].key + "] before it has no value");
    WriteKey(*open_[level].shape->key, key, isNew ? wholeKey : nullptr);
    open_[level].key = key;
    open_[level].awaitsValue = isNew;
    ++open_[level].count;
    return open_[level].shape->element;
}

void RecordWriter::OpenNew(Shape const& shape, std::string_view const path)
{
    if (shape.kind == Kind::Map) bytes_ += {TypeOf(*shape.key), TypeOf(*shape.element)};
    if (shape.kind == Kind::List || shape.kind == Kind::Set) bytes_ += TypeOf(*shape.element);
    open_.push_back({&shape, std::string(path), {}, 0, bytes_.size(), 0, {}, false});
    if (shape.kind != Kind::Record) WriteNumber(0, 4);
}

void RecordWriter::CloseTo(std::size_t const size)
{
    for (; open_.size() > size; open_.pop_back())
    {
        auto const& last = open_.back();
        auto const place = last.path.empty() ? std::string(last.shape->name) : last.path;
        if (last.awaitsValue) RefusePath("the entry [" + last.key + "] of " + place + " has no value");
        for (auto const& field : last.shape->fields)
            if (field.isRequired && !last.fields.contains(field.id))
                RefusePath(place + " lacks the field " + Quoted(field.name) + ", which is required");
        if (last.shape->kind == Kind::Record)
            bytes_ += Stop;
        else
            for (std::size_t i = 0; i < 4; ++i)
                bytes_[last.start + i] = static_cast<char>(last.count >> (24U - 8U * i) & 0xFFU);
    }
}

void RecordWriter::WriteKey(Shape const& shape, std::string_view const key, std::string const* const wholeKey)
{
    if (shape.kind == Kind::Record)
    {
        if (key != ValueText(Records::Empty::Record))
        {
            auto const& only = shape.fields.front();
            bytes_ += TypeOf(*only.shape);
            WriteNumber(only.id, 2);
            WriteKey(*only.shape, key, wholeKey);
        }
        bytes_ += Stop;
    }
    else if (shape.kind != Kind::Text)
        WriteScalar(shape, NumberOf(key));
    else if (wholeKey == nullptr)
        WriteText(TextOf(key));
    else
    {
        if (wholeKey->size() <= MaxKeySize || KeyText(Records::WireText{*wholeKey, {}}) != key)
            throw Failure("key: it does not begin with " + std::string(key));
        WriteText(*wholeKey);
    }
}

void RecordWriter::WriteScalar(Shape const& shape, JsonValue const& value)
{
    auto const size = SizeOf(shape.kind);
    auto const* const number = std::get_if<std::int64_t>(&value);
    auto const* const text = std::get_if<std::string>(&value);
    auto const* const truth = std::get_if<bool>(&value);
    if (number != nullptr && size > 0 && LeastOf(size) <= *number && *number <= -(LeastOf(size) + 1))
        WriteNumber(*number, size);
    else if (text != nullptr && shape.kind == Kind::Text)
        WriteText(*text);
    else if (truth != nullptr && shape.kind == Kind::Bool)
        bytes_ += *truth ? '\1' : '\0';
    else
        throw Failure("value: it takes " + Expectation(shape));
}

void RecordWriter::WriteText(std::string_view const text)
{
    WriteNumber(static_cast<std::int64_t>(text.size()), 4);
    bytes_ += text;
}

void RecordWriter::WriteNumber(std::int64_t const number, std::size_t const size)
{
    for (auto shift = 8 * size; shift > 0; shift -= 8)
        bytes_ += static_cast<char>(static_cast<std::uint64_t>(number) >> (shift - 8) & 0xFFU);
}

} // namespace Talvo::Tools
