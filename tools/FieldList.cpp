#include "tools/FieldList.h"

#include "tools/FieldPath.h"

#include <thrift/protocol/TVirtualProtocol.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <type_traits>
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

    FieldList Take() { return std::move(list_); }

    // The names are those of Thrift's protocols.
    std::uint32_t writeStructBegin(char const*) { return Begin(FieldPath::Kind::Struct); }
    std::uint32_t writeStructEnd() { return End(Empty::Record); }
    std::uint32_t writeFieldBegin(char const* name, TType, std::int16_t id)
    {
        names_.Field(name);
        ids_.Field(std::to_string(id));
        return 0;
    }
    std::uint32_t writeFieldEnd() { return 0; }
    std::uint32_t writeFieldStop() { return 0; }
    std::uint32_t writeMapBegin(TType, TType, std::uint32_t) { return Begin(FieldPath::Kind::Map); }
    std::uint32_t writeMapEnd() { return End(Empty::Map); }
    std::uint32_t writeListBegin(TType, std::uint32_t size) { return Begin(FieldPath::Kind::Elements, size); }
    std::uint32_t writeListEnd() { return End(Empty::List); }
    std::uint32_t writeSetBegin(TType, std::uint32_t) { return Begin(FieldPath::Kind::Elements); }
    std::uint32_t writeSetEnd() { return End(Empty::Set); }
    std::uint32_t writeBool(bool value) { return Pass(value); }
    std::uint32_t writeI16(std::int16_t value) { return Pass(value); }
    std::uint32_t writeI32(std::int32_t value) { return Pass(value); }
    std::uint32_t writeI64(std::int64_t value) { return Pass(value); }
    std::uint32_t writeString(std::string const& value) { return Pass(value); }

private:
    /// A record or container that is being written.
    struct Open
    {
        std::optional<std::string> name;
        std::optional<std::string> id;
        std::size_t fieldsBefore;
    };

    std::uint32_t Begin(FieldPath::Kind kind, std::optional<std::size_t> length = std::nullopt)
    {
        auto name = names_.Begin(kind);
        auto id = ids_.Begin(kind);
        if (Held(name, id)) list_.containers.emplace(*name, length);
        open_.push_back({std::move(name), std::move(id), list_.fields.size()});
        return 0;
    }

    std::uint32_t End(Empty const empty)
    {
        auto const closed = std::move(open_.back());
        open_.pop_back();
        names_.End();
        ids_.End();
        if (list_.fields.size() == closed.fieldsBefore && !open_.empty()) Keep(closed.name, closed.id, empty);
        return 0;
    }

    std::uint32_t Pass(Value const& value)
    {
        auto const key = ValueText(value);
        auto const name = names_.Value(key);
        Keep(name, ids_.Value(key), value);
        return 0;
    }

    bool Held(std::optional<std::string> const& name, std::optional<std::string> const& id) const
    {
        return name && (held_ == nullptr || held_->contains(*id));
    }

    void Keep(std::optional<std::string> const& name, std::optional<std::string> const& id, Value const& value)
    {
        if (Held(name, id)) list_.fields.push_back({*name, value});
    }

    PathSet const* held_;
    FieldPath names_;
    FieldPath ids_; // the same path by the fields' ids, which are all that a reader sees
    std::vector<Open> open_;
    FieldList list_;
};

FieldList List(WireRecord const& record, PathSet const* held)
{
    FieldRecorder recorder(held);
    record.Write(recorder);
    return recorder.Take();
}

} // namespace

std::string ValueText(Value const& value)
{
    return std::visit(
        []<typename T>(T const& held) -> std::string
        {
            if constexpr (std::is_same_v<T, bool>)
                return held ? "true" : "false";
            else if constexpr (std::is_same_v<T, std::string>)
                return '"' + Escaped(held) + '"';
            else if constexpr (std::is_same_v<T, Empty>)
                return held == Empty::Record ? "(no fields)" : held == Empty::List ? "[]" : "{}";
            else
                return std::to_string(held);
        },
        value);
}

FieldList ListFields(WireRecord const& record)
{
    return List(record, nullptr);
}

FieldList ListFields(Decoded const& decoded)
{
    return List(*decoded.record, &decoded.held);
}

} // namespace Talvo::Tools
