#include "records/ValueWalk.h"

#include <algorithm>

namespace Talvo::Records
{

namespace
{

void const* FieldOf(void const* const record, Shape::Field const& field)
{
    return static_cast<char const*>(record) + field.offset;
}

bool Counts(Shape::Field const& field, void const* const record, FieldSet const fields)
{
    return field.isSet(record) || (fields == FieldSet::Written && !field.isOptional);
}

/// What the texts of a record are.
WireText::Kind TextsOf(Shape const& shape, void const* const record)
{
    return record == nullptr ? WireText::Kind::Bytes : shape.textsOf(record);
}

/// What stands for a record or container where that is empty.
std::optional<Value> EmptyOf(Shape const& shape, void const* const value, FieldSet const fields)
{
    if (value == nullptr) return std::nullopt;
    switch (shape.kind)
    {
    case Shape::Kind::Record:
        if (std::ranges::any_of(shape.fields, [&](auto const& field) { return Counts(field, value, fields); }))
            return std::nullopt;
        return Empty::Record;
    case Shape::Kind::Map:
        return shape.isEmpty(value) ? std::optional<Value>(Empty::Map) : std::nullopt;
    case Shape::Kind::Set:
        return shape.isEmpty(value) ? std::optional<Value>(Empty::Set) : std::nullopt;
    default:
        return shape.isEmpty(value) ? std::optional<Value>(Empty::List) : std::nullopt;
    }
}

} // namespace

ValueWalk::ValueWalk(FieldSet const fieldsAfter, ValueVisit const& visit)
    : fieldsAfter_(fieldsAfter)
    , visit_(visit)
{
}

void ValueWalk::PassRecord(Shape const& shape, void const* const before, void const* const after)
{
    for (auto const& field : shape.fields)
    {
        auto const isBefore = before != nullptr && Counts(field, before, FieldSet::Read);
        auto const isAfter = after != nullptr && Counts(field, after, fieldsAfter_);
        if (isBefore || isAfter)
            Enter(*field.shape, field.name, isBefore ? FieldOf(before, field) : nullptr,
                  isAfter ? FieldOf(after, field) : nullptr, TextsOf(shape, before), TextsOf(shape, after));
    }
}

Key ValueWalk::KeyOf(Shape const& shape, void const* const key)
{
    if (shape.valueOf != nullptr) return {shape.valueOf(key, WireText::Kind::Bytes)};
    Key only{Empty::Record};
    for (auto const& field : shape.fields)
        if (field.isSet(key)) only = {field.shape->valueOf(FieldOf(key, field), shape.textsOf(key))};
    return only;
}

void ValueWalk::EnterElement(Shape const& shape, Step const& step, void const* const before, void const* const after)
{
    Enter(shape, step, before, after, WireText::Kind::Bytes, WireText::Kind::Bytes);
}

void ValueWalk::Enter(Shape const& shape, Step const& step, void const* const before, void const* const after,
                      WireText::Kind const textsBefore, WireText::Kind const textsAfter)
{
    path_.push_back(step);
    if (shape.valueOf != nullptr)
        Visit(before == nullptr ? std::nullopt : std::optional(shape.valueOf(before, textsBefore)),
              after == nullptr ? std::nullopt : std::optional(shape.valueOf(after, textsAfter)), false);
    else
    {
        bool const inBoth = before != nullptr && after != nullptr;
        auto const emptyBefore = EmptyOf(shape, before, FieldSet::Read);
        auto const emptyAfter = EmptyOf(shape, after, fieldsAfter_);
        if (emptyBefore) Visit(emptyBefore, emptyAfter, inBoth);
        if (shape.kind == Shape::Kind::Record)
            PassRecord(shape, before, after);
        else
            shape.passElements(*this, shape, before, after);
        if (emptyAfter && !emptyBefore) Visit(emptyBefore, emptyAfter, inBoth);
    }
    path_.pop_back();
}

void ValueWalk::Visit(std::optional<Value> const& before, std::optional<Value> const& after, bool const inBoth)
{
    visit_({path_, before, after, inBoth, cutTo_});
}

} // namespace Talvo::Records
