#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Talvo::Tools
{

/// Where in a record a protocol is while it reads or writes one, as a text such as `clips[3].clip.name`. The entries of
/// a map stand under their keys, `players["A"].speed`; a key is an integer or a record of one value.
class FieldPath
{
public:
    enum class Kind
    {
        Struct,
        Elements, ///< A list or a set.
        Map
    };

    /// Names the field of the innermost record that comes next.
    void Field(std::string label);

    /// Enters a record or container and returns its path, or nothing within a map's key.
    std::optional<std::string> Begin(Kind kind);

    /// Leaves the innermost record or container.
    void End();

    /// Passes a value and returns its path, or nothing for a map's key. `text` names the entry of that key.
    std::optional<std::string> Value(std::string const& text);

private:
    enum class State
    {
        Struct,
        Elements,
        MapKey,   ///< In a map, before a key.
        MapValue, ///< In a map, before the value of the key `label`.
        Key       ///< In a record that is a key; `label` becomes its value.
    };

    struct Level
    {
        State state;
        std::string path;
        std::string label = {}; ///< Field or key.
        std::size_t index = 0;  ///< Of the next element.
    };

    std::string Next();

    std::vector<Level> levels_;
};

} // namespace Talvo::Tools
