#pragma once

#include "records/Values.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Talvo::Records
{

class ValueWalk;

/// A type of values in the schema: what it takes to write them without their classes, and to walk through them without
/// compiling the walk for each class.
struct Shape
{
    enum class Kind
    {
        Bool,
        I16,
        I32, ///< Enumerations too.
        I64,
        Text,
        Record,
        List,
        Set,
        Map
    };

    struct Field
    {
        std::int16_t id;
        char const* name;
        bool isRequired;
        bool isOptional;
        std::size_t offset; ///< In bytes, in an object of the generated class.
        bool (*isSet)(void const* record);
        Shape const* shape;
    };

    Kind kind;

    // Of a number or text.
    Value (*valueOf)(void const* value, WireText::Kind texts) = nullptr;

    // Of a record.
    char const* name = "";
    std::vector<Field> fields = {};
    WireText::Kind (*textsOf)(void const* record) = nullptr; ///< What its texts are.

    // Of a container.
    Shape const* key = nullptr;     ///< Of a map.
    Shape const* element = nullptr; ///< Of a list or set; the value of a map.
    bool (*isEmpty)(void const* container) = nullptr;
    /// Enters the elements of one or both containers; the other is null.
    void (*passElements)(ValueWalk& walk, Shape const& shape, void const* before, void const* after) = nullptr;
};

} // namespace Talvo::Records
