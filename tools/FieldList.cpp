#include "tools/FieldList.h"

#include <thrift/protocol/TVirtualProtocol.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace Talvo::Tools
{

namespace
{

using apache::thrift::protocol::TType;

std::string Quoted(std::string_view bytes)
{
    static constexpr char Digits[] = "0123456789abcdef";
    std::string text = "\"";
    for (char const byte : bytes)
    {
        if (byte == '"' || byte == '\\')
            text += {'\\', byte};
        else if (byte >= ' ' && byte <= '~')
            text += byte;
        else
            text += {'\\', 'x', Digits[(static_cast<unsigned char>(byte) >> 4U)], Digits[byte & 0xF]};
    }
    return text + '"';
}

/// A protocol that keeps what a record writes as a list of paths and values.
class FieldRecorder : public apache::thrift::protocol::TVirtualProtocol<FieldRecorder>
{
public:
    FieldRecorder()
        : TVirtualProtocol(std::make_shared<apache::thrift::transport::TTransport>())
    {
    }

    FieldList Take() { return std::move(fields_); }

    // The names are those of Thrift's protocols.
    std::uint32_t writeStructBegin(char const*) { return Begin(Kind::Struct); }
    std::uint32_t writeStructEnd() { return End("(no fields)"); }
    std::uint32_t writeFieldBegin(char const* name, TType, std::int16_t)
    {
        levels_.back().next = name;
        return 0;
    }
    std::uint32_t writeFieldEnd() { return 0; }
    std::uint32_t writeFieldStop() { return 0; }
    std::uint32_t writeMapBegin(TType, TType, std::uint32_t) { return Begin(Kind::MapKey); }
    std::uint32_t writeMapEnd() { return End("{}"); }
    std::uint32_t writeListBegin(TType, std::uint32_t) { return Begin(Kind::Elements); }
    std::uint32_t writeListEnd() { return End("[]"); }
    std::uint32_t writeSetBegin(TType, std::uint32_t) { return Begin(Kind::Elements); }
    std::uint32_t writeSetEnd() { return End("{}"); }
    std::uint32_t writeBool(bool value) { return Add(value ? "true" : "false"); }
    std::uint32_t writeI16(std::int16_t value) { return Add(std::to_string(value)); }
    std::uint32_t writeI32(std::int32_t value) { return Add(std::to_string(value)); }
    std::uint32_t writeI64(std::int64_t value) { return Add(std::to_string(value)); }
    std::uint32_t writeString(std::string const& value) { return Add(Quoted(value)); }

private:
    enum class Kind
    {
        Struct,   ///< A record; `next` is the name of its field.
        Elements, ///< A list or set; `count` is the index of its next element.
        MapKey,   ///< A map that is about to get a key.
        MapValue, ///< A map that is about to get the value of the key `next`.
        Key       ///< A record that is a map's key; `next` gathers its values.
    };

    struct Level
    {
        Kind kind;
        std::string path;
        std::size_t fieldsBefore;
        std::string next = {};
        std::size_t count = 0;
    };

    /// The path of the value that comes next in the innermost level.
    std::string NextPath()
    {
        if (levels_.empty()) return {};
        auto& level = levels_.back();
        switch (level.kind)
        {
        case Kind::Elements:
            return level.path + '[' + std::to_string(level.count++) + ']';
        case Kind::MapValue:
            level.kind = Kind::MapKey;
            return level.path + '[' + level.next + ']';
        default:
            return level.path.empty() ? level.next : level.path + '.' + level.next;
        }
    }

    std::uint32_t Begin(Kind kind)
    {
        if (InKey())
            levels_.push_back({Kind::Key, {}, fields_.size()});
        else
            levels_.push_back({kind, NextPath(), fields_.size()});
        return 0;
    }

    std::uint32_t End(char const* empty)
    {
        auto const level = std::move(levels_.back());
        levels_.pop_back();
        if (level.kind == Kind::Key)
            Add(level.next);
        else if (fields_.size() == level.fieldsBefore && !levels_.empty())
            fields_.push_back({level.path, empty});
        return 0;
    }

    std::uint32_t Add(std::string value)
    {
        auto& level = levels_.back();
        if (level.kind == Kind::MapKey)
        {
            level.kind = Kind::MapValue;
            level.next = std::move(value);
        }
        else if (level.kind == Kind::Key)
            // A field's name stands here until its value takes its place: the only keys are records of one field.
            level.next = std::move(value);
        else
            fields_.push_back({NextPath(), std::move(value)});
        return 0;
    }

    bool InKey() const
    {
        return !levels_.empty() && (levels_.back().kind == Kind::MapKey || levels_.back().kind == Kind::Key);
    }

    std::vector<Level> levels_;
    FieldList fields_;
};

std::unordered_set<std::string_view> Paths(FieldList const& fields)
{
    std::unordered_set<std::string_view> paths;
    for (auto const& field : fields) paths.insert(field.path);
    return paths;
}

} // namespace

FieldList ListFields(WireRecord const& record)
{
    FieldRecorder recorder;
    record.Write(recorder);
    return recorder.Take();
}

std::vector<FieldChange> Compare(FieldList const& before, FieldList const& after)
{
    std::vector<FieldChange> changes;
    auto const pathsBefore = Paths(before);
    auto const pathsAfter = Paths(after);
    auto added = after.begin();
    auto const takeAdded = [&]
    {
        for (; added != after.end() && !pathsBefore.contains(added->path); ++added)
            changes.push_back({added->path, std::nullopt, added->value});
    };

    // Both lists follow the schema, so the paths that they share stand in the same order.
    for (auto const& field : before)
    {
        if (!pathsAfter.contains(field.path))
        {
            changes.push_back({field.path, field.value, std::nullopt});
            continue;
        }
        takeAdded();
        if (added->value != field.value) changes.push_back({field.path, field.value, added->value});
        ++added;
    }
    takeAdded();
    return changes;
}

} // namespace Talvo::Tools
