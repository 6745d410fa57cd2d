#pragma once

#include "tools/Changes.h"
#include "tools/FieldList.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace Talvo::Tools
{

/// JSON that keeps the order of its members.
using Json = nlohmann::ordered_json;

// Texts on the wire are bytes of any kind, and JSON has characters only: each byte becomes the character of its number,
// U+0000 to U+00FF, so that decoding a string as Latin-1 gives the bytes back.
Json BytesToJson(std::string const& bytes);

/// Numbers and booleans as such; `[]` and `{}` for empty ones, null for none.
Json ToJson(Value const& value);
Json ToJson(std::optional<Value> const& value);

/// Objects: `path` and `value`; `path`, `before`, `after` and `why`; `name`, `namespace`, `toDomain` and `toWire`.
Json ToJson(Field const& field);
Json ToJson(FieldChange const& change);
Json ToJson(RecordType const& type);

/// `success` and `message`, or null.
Json ToJson(std::optional<Common::Serialization::ConversionResult> const& result);

/// In ASCII, on one line.
std::string Text(Json const& json);

/// Prints an array, an element a line. It is never built as a whole: a record may have millions of values.
template<typename T>
void PrintArray(std::vector<T> const& elements)
{
    char const* separator = "[\n";
    for (auto const& element : elements)
    {
        std::cout << separator << Text(ToJson(element));
        separator = ",\n";
    }
    std::cout << (elements.empty() ? "[]" : "\n]");
}

/// Prints an object that ends with a member `name`, an array.
template<typename T>
void PrintObject(Json const& members, char const* name, std::vector<T> const& elements)
{
    char const* separator = "{";
    for (auto const& [key, value] : members.items())
    {
        std::cout << separator << Text(key) << ": " << Text(value);
        separator = ",\n";
    }
    std::cout << separator << Text(name) << ": ";
    PrintArray(elements);
    std::cout << "}\n";
}

} // namespace Talvo::Tools
