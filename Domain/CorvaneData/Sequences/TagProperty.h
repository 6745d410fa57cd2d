#pragma once

#include <cstdint>
#include <vector>

namespace Talvo::Corvane::Data::Sequences
{

/// One property of a tag: a list of integers and the type that says how to interpret them.
struct TagProperty
{
    /// How to interpret the integers. Converters copy the integers without interpreting them.
    enum class Type : std::int32_t
    {
        Boolean = 0,
        Integer = 1,
        String = 2,
        Vector = 3
    };

    /// The meaning of the property, which is the key in Tag::properties.
    enum class Key : std::int32_t
    {
        Value = 0,
        Status = 1,
        Type = 2,
        Id = 3,
        UserId = 4,
        VarId = 5,
        Name = 6,
        OutputNumber = 7,
        Duration = 8,
        MixDuration = 9,
        XAxis = 10,
        YAxis = 11,
        Height = 12,
        Width = 13,
        TargetMonos = 14,
        Levels = 15,
        Activation = 16,
        TriggerType = 17
    };

    /// Constructs an `Integer` without a value.
    TagProperty() = default;

    /// Constructs an `Integer` with one value.
    explicit TagProperty(int integer)
        : value{integer}
    {
    }

    bool operator==(TagProperty const&) const = default;

    Type type = Type::Integer;
    std::vector<int> value;
};

} // namespace Talvo::Corvane::Data::Sequences
