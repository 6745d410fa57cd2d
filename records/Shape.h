#pragma once

#include <cstdint>
#include <vector>

namespace Talvo::Records
{

/// A type of values in the schema: what it takes to write them without their classes.
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
        Shape const* shape;
    };

    Kind kind;
    char const* name = "";          ///< Of a record.
    std::vector<Field> fields = {}; ///< Of a record.
    Shape const* key = nullptr;     ///< Of a map.
    Shape const* element = nullptr; ///< Of a list or set; the value of a map.
};

} // namespace Talvo::Records
