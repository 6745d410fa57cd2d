#pragma once

#include "tools/Changes.h"
#include "tools/FieldList.h"
#include "tools/RecordType.h"

#include <nlohmann/json.hpp>

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

/// Numbers and booleans as such; `[]` and `{}` for empty ones.
Json ToJson(Value const& value);
Json ToJson(std::optional<Value> const& value);

/// Arrays of objects: `path` and `value`; `path`, `before`, `after` and `why`; `path` and `reason`.
Json ToJson(FieldList const& list);
Json ToJson(std::vector<FieldChange> const& changes);
Json ToJson(Hazards const& hazards);

/// `success` and `message`, or null.
Json ToJson(std::optional<Common::Serialization::ConversionResult> const& result);

/// Prints it, indented, in ASCII.
void PrintJson(Json const& json);

} // namespace Talvo::Tools
