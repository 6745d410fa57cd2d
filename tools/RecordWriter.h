#pragma once

#include "records/Shape.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Talvo::Tools
{

/// An empty array or object of JSON.
enum class EmptyJson
{
    Array,
    Object
};

/// A value of JSON; a string's characters are bytes.
using JsonValue = std::variant<bool, std::int64_t, std::string, EmptyJson>;

/// Writes a record in the binary protocol from paths and values, as `print --json` gives them: what is in a record or a
/// container comes without a break. Fields are written in the order in which they come. Its members throw Failure, whose
/// text begins with "path: ", "value: " or "key: ".
class RecordWriter
{
public:
    explicit RecordWriter(Records::Shape const& shape);

    /// A value at its path.
    void AddValue(std::string_view path, JsonValue const& value);
    /// The whole key of a map's entry, whose path has only the start of it. The values of that entry follow.
    void AddKey(std::string_view path, std::string const& key);

    /// The bytes of the record.
    std::string Finish();

private:
    /// A record or container that is not at its end.
    struct Open
    {
        Records::Shape const* shape;
        std::string path;
        std::set<std::int16_t> fields; ///< Of a record: those it has.
        std::int16_t field = 0;        ///< The last of them.
        std::size_t start = 0;         ///< Of a container: where the number of its elements stands,
        std::uint32_t count = 0;       ///< and that number.
        std::string key;               ///< Of a map: the last key, as in the path;
        bool awaitsValue = false;      ///< its value was not begun yet.
    };

    /// Goes to where the path ends, and opens on the way what is not open: what takes a value there.
    Records::Shape const& Go(std::string_view path, std::string const* wholeKey);

    /// Each takes a step from `rest` into the record or container at `level`, and says what is there; null where that is
    /// open already.
    Records::Shape const* StepIntoRecord(std::size_t level, std::string_view& rest);
    Records::Shape const* StepIntoList(std::size_t level, std::string_view& rest);
    Records::Shape const* StepIntoMap(std::size_t level, std::string_view& rest, std::string const* wholeKey);

    void OpenNew(Records::Shape const& shape, std::string_view path);
    /// Ends all but the `size` outermost.
    void CloseTo(std::size_t size);
    void WriteKey(Records::Shape const& shape, std::string_view key, std::string const* wholeKey);
    void WriteText(std::string_view text);
    void WriteNumber(std::int64_t number, std::size_t size);
    void WriteScalar(Records::Shape const& shape, JsonValue const& value);

    std::vector<Open> open_;
    std::string bytes_;
};

} // namespace Talvo::Tools
