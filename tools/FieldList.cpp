#include "tools/FieldList.h"

#include "tools/FieldPath.h"

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

/// A protocol that keeps what a record writes as a list of values.
class FieldRecorder : public apache::thrift::protocol::TVirtualProtocol<FieldRecorder>
{
public:
    /// Keeps only the values at the paths `held`, or all if it is null.
    explicit FieldRecorder(PathSet const* held)
        : TVirtualProtocol(std::make_shared<apache::thrift::transport::TTransport>())
        , held_(held)
    {
    }

    FieldList Take() { return std::move(fields_); }

    // The names are those of Thrift's protocols.
    std::uint32_t writeStructBegin(char const*) { return Begin(FieldPath::Kind::Struct); }
    std::uint32_t writeStructEnd() { return End("(no fields)"); }
    std::uint32_t writeFieldBegin(char const* name, TType, std::int16_t id)
    {
        names_.Field(name);
        ids_.Field(std::to_string(id));
        return 0;
    }
    std::uint32_t writeFieldEnd() { return 0; }
    std::uint32_t writeFieldStop() { return 0; }
    std::uint32_t writeMapBegin(TType, TType, std::uint32_t) { return Begin(FieldPath::Kind::Map); }
    std::uint32_t writeMapEnd() { return End("{}"); }
    std::uint32_t writeListBegin(TType, std::uint32_t) { return Begin(FieldPath::Kind::Elements); }
    std::uint32_t writeListEnd() { return End("[]"); }
    std::uint32_t writeSetBegin(TType, std::uint32_t) { return Begin(FieldPath::Kind::Elements); }
    std::uint32_t writeSetEnd() { return End("{}"); }
    std::uint32_t writeBool(bool value) { return Value(ValueText(value)); }
    std::uint32_t writeI16(std::int16_t value) { return Value(ValueText(std::int64_t{value})); }
    std::uint32_t writeI32(std::int32_t value) { return Value(ValueText(std::int64_t{value})); }
    std::uint32_t writeI64(std::int64_t value) { return Value(ValueText(value)); }
    std::uint32_t writeString(std::string const& value) { return Value(ValueText(value)); }

private:
    /// A record or container that is being written.
    struct Open
    {
        std::optional<std::string> name;
        std::optional<std::string> id;
        std::size_t fieldsBefore;
    };

    std::uint32_t Begin(FieldPath::Kind kind)
    {
        auto name = names_.Begin(kind);
        open_.push_back({std::move(name), ids_.Begin(kind), fields_.size()});
        return 0;
    }

    std::uint32_t End(char const* empty)
    {
        auto const closed = std::move(open_.back());
        open_.pop_back();
        names_.End();
        ids_.End();
        if (fields_.size() == closed.fieldsBefore && !open_.empty()) Keep(closed.name, closed.id, empty);
        return 0;
    }

    std::uint32_t Value(std::string text)
    {
        auto const name = names_.Value(text);
        auto const id = ids_.Value(text);
        Keep(name, id, std::move(text));
        return 0;
    }

    void Keep(std::optional<std::string> const& name, std::optional<std::string> const& id, std::string text)
    {
        if (name && (held_ == nullptr || held_->contains(*id))) fields_.push_back({*name, std::move(text)});
    }

    PathSet const* held_;
    FieldPath names_;
    FieldPath ids_; // the same path by the fields' ids, which are all that a reader sees
    std::vector<Open> open_;
    FieldList fields_;
};

FieldList List(WireRecord const& record, PathSet const* held)
{
    FieldRecorder recorder(held);
    record.Write(recorder);
    return recorder.Take();
}

std::unordered_set<std::string_view> Paths(FieldList const& fields)
{
    std::unordered_set<std::string_view> paths;
    for (auto const& field : fields) paths.insert(field.path);
    return paths;
}

} // namespace

std::string ValueText(bool value)
{
    return value ? "true" : "false";
}

std::string ValueText(std::int64_t value)
{
    return std::to_string(value);
}

std::string ValueText(std::string const& value)
{
    static constexpr char Digits[] = "0123456789abcdef";
    std::string text = "\"";
    for (char const byte : value)
    {
        if (byte == '"' || byte == '\\')
            text += {'\\', byte};
        else if (byte >= ' ' && byte <= '~')
            text += byte;
        else
            text += {'\\', 'x', Digits[static_cast<unsigned char>(byte) >> 4U], Digits[byte & 0xF]};
    }
    return text + '"';
}

FieldList ListFields(WireRecord const& record)
{
    return List(record, nullptr);
}

FieldList ListFields(Decoded const& decoded)
{
    return List(*decoded.record, &decoded.held);
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
