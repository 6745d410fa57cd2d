#include "tools/Protocols.h"

#include "tools/Failure.h"
#include "tools/FieldList.h"
#include "tools/FieldPath.h"

#include <thrift/TConfiguration.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/protocol/TCompactProtocol.h>
#include <thrift/protocol/TJSONProtocol.h>
#include <thrift/protocol/TProtocolDecorator.h>
#include <thrift/protocol/TProtocolTap.h>
#include <thrift/transport/TBufferTransports.h>

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace Talvo::Tools
{

namespace
{

namespace Wire = apache::thrift::protocol;
using apache::thrift::transport::TMemoryBuffer;
using apache::thrift::transport::TTransport;
using apache::thrift::transport::TTransportException;

constexpr std::array<std::pair<std::string_view, Protocol>, 3> Protocols{
    {{"binary", Protocol::Binary}, {"compact", Protocol::Compact}, {"json", Protocol::Json}}};

/// `limit`, in bytes and in elements, bounds what is read; 0 is no limit.
std::shared_ptr<Wire::TProtocol> MakeProtocol(Protocol protocol, std::shared_ptr<TTransport> transport,
                                              std::int32_t limit = 0)
{
    switch (protocol)
    {
    case Protocol::Compact:
        return std::make_shared<Wire::TCompactProtocolT<TTransport>>(std::move(transport), limit, limit);
    case Protocol::Json:
        return std::make_shared<Wire::TJSONProtocol>(std::move(transport));
    default:
        return std::make_shared<Wire::TBinaryProtocolT<TTransport>>(std::move(transport), limit, limit, false, true);
    }
}

/// Watches another protocol read a record: refuses containers that claim more than the bytes can hold, and keeps what
/// was there.
class WatchedProtocol : public Wire::TProtocolDecorator
{
public:
    WatchedProtocol(std::shared_ptr<TProtocol> watched, std::uint32_t maxElements, std::size_t byteCount)
        : TProtocolDecorator(std::move(watched))
        , maxElements_(maxElements)
        , elementsLeft_(byteCount)
    {
    }

    PathSet TakeHeld() { return std::move(held_); }
    std::size_t SkippedCount() const { return skippedCount_; }

    std::uint32_t readStructBegin_virt(std::string& name) override
    {
        return Begun(FieldPath::Kind::Struct, TProtocolDecorator::readStructBegin_virt(name));
    }

    std::uint32_t readStructEnd_virt() override { return Ended(TProtocolDecorator::readStructEnd_virt()); }

    std::uint32_t readFieldBegin_virt(std::string& name, Wire::TType& type, std::int16_t& id) override
    {
        auto const size = TProtocolDecorator::readFieldBegin_virt(name, type, id);
        if (!skipping_ && type != Wire::T_STOP) path_.Field(std::to_string(id));
        return size;
    }

    std::uint32_t readMapBegin_virt(Wire::TType& keyType, Wire::TType& valueType, std::uint32_t& size) override
    {
        auto const result = TProtocolDecorator::readMapBegin_virt(keyType, valueType, size);
        Count(size);
        return Begun(FieldPath::Kind::Map, result);
    }

    std::uint32_t readMapEnd_virt() override { return Ended(TProtocolDecorator::readMapEnd_virt()); }

    std::uint32_t readListBegin_virt(Wire::TType& elementType, std::uint32_t& size) override
    {
        auto const result = TProtocolDecorator::readListBegin_virt(elementType, size);
        Count(size);
        return Begun(FieldPath::Kind::Elements, result);
    }

    std::uint32_t readListEnd_virt() override { return Ended(TProtocolDecorator::readListEnd_virt()); }

    std::uint32_t readSetBegin_virt(Wire::TType& elementType, std::uint32_t& size) override
    {
        auto const result = TProtocolDecorator::readSetBegin_virt(elementType, size);
        Count(size);
        return Begun(FieldPath::Kind::Elements, result);
    }

    std::uint32_t readSetEnd_virt() override { return Ended(TProtocolDecorator::readSetEnd_virt()); }

    std::uint32_t readBool_virt(bool& value) override
    {
        auto const size = TProtocolDecorator::readBool_virt(value);
        return Read(size, value);
    }

    std::uint32_t readI16_virt(std::int16_t& value) override
    {
        auto const size = TProtocolDecorator::readI16_virt(value);
        return Read(size, value);
    }

    std::uint32_t readI32_virt(std::int32_t& value) override
    {
        auto const size = TProtocolDecorator::readI32_virt(value);
        return Read(size, value);
    }

    std::uint32_t readI64_virt(std::int64_t& value) override
    {
        auto const size = TProtocolDecorator::readI64_virt(value);
        return Read(size, value);
    }

    std::uint32_t readString_virt(std::string& value) override
    {
        auto const size = TProtocolDecorator::readString_virt(value);
        return Read(size, value);
    }

    /// Only skipped fields are read as bytes, which in JSON are no texts; but the schema has nothing else than texts.
    std::uint32_t readBinary_virt(std::string& value) override { return readString_virt(value); }

    std::uint32_t skip_virt(Wire::TType type) override
    {
        ++skippedCount_;
        skipping_ = true;
        auto const size = TProtocolDecorator::skip_virt(type);
        skipping_ = false;
        return size;
    }

private:
    /// A generated `read` makes room for all elements at once, and Thrift itself takes a record for no byte at all and
    /// multiplies sizes in 32 bits. Every element takes at least one byte.
    void Count(std::uint32_t elements)
    {
        if (elements > maxElements_ || elements > elementsLeft_)
            throw Wire::TProtocolException(Wire::TProtocolException::SIZE_LIMIT);
        elementsLeft_ -= elements;
    }

    std::uint32_t Begun(FieldPath::Kind kind, std::uint32_t size)
    {
        if (!skipping_) Keep(path_.Begin(kind));
        return size;
    }

    std::uint32_t Ended(std::uint32_t size)
    {
        if (!skipping_) path_.End();
        return size;
    }

    template<typename T>
    std::uint32_t Read(std::uint32_t size, T const& value)
    {
        if (!skipping_) Keep(path_.Value(ValueText(value)));
        return size;
    }

    void Keep(std::optional<std::string> path)
    {
        if (path && !path->empty()) held_.insert(std::move(*path));
    }

    FieldPath path_;
    PathSet held_;
    std::uint32_t maxElements_;
    std::size_t elementsLeft_;
    std::size_t skippedCount_ = 0;
    bool skipping_ = false;
};

/// The compact protocol does not carry the types of an empty map, and JSON has no name for none. Any will do: a reader
/// looks at them only to read entries.
class TypedEmptyMaps : public Wire::TProtocolDecorator
{
public:
    using TProtocolDecorator::TProtocolDecorator;

    std::uint32_t writeMapBegin_virt(Wire::TType const keyType, Wire::TType const valueType,
                                     std::uint32_t const size) override
    {
        if (size == 0) return TProtocolDecorator::writeMapBegin_virt(Wire::T_STRUCT, Wire::T_STRUCT, 0);
        return TProtocolDecorator::writeMapBegin_virt(keyType, valueType, size);
    }
};

std::string Reason(Wire::TProtocolException const& error)
{
    switch (error.getType())
    {
    case Wire::TProtocolException::SIZE_LIMIT:
    case Wire::TProtocolException::NEGATIVE_SIZE:
        return "a size in it is more than the file can hold, or more than --max-elements";
    case Wire::TProtocolException::DEPTH_LIMIT:
        return "it nests too deep";
    case Wire::TProtocolException::INVALID_DATA:
        return "its bytes make no sense, or a required field is missing";
    default:
        return error.what();
    }
}

std::string Reason(TTransportException const& error)
{
    switch (error.getType())
    {
    case TTransportException::END_OF_FILE:
        return "it ends in the middle of the record";
    default:
        return error.what();
    }
}

/// A text editor's line end after JSON is no second record.
bool OnlyBlanks(std::string_view rest)
{
    return rest.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace

RecordType const& FindRecordType(std::string_view const name)
{
    auto const& types = RecordTypes();
    auto const found = std::ranges::find(types, name, &RecordType::name);
    if (found == types.end())
        throw Failure("there is no record '" + std::string(name) + "'; talvo-wire list names them all");
    return *found;
}

Protocol ParseProtocol(std::string_view name)
{
    for (auto const& [known, protocol] : Protocols)
        if (name == known) return protocol;
    throw Failure("there is no protocol '" + std::string(name) + "'; there are binary, compact and json");
}

std::string_view Name(Protocol protocol)
{
    return Protocols.at(static_cast<std::size_t>(protocol)).first;
}

namespace
{

/// Decodes, and writes all that it reads to `sink` unless that is null.
Decoded Decode(std::string const& bytes, Protocol protocol, RecordType const& type, Limits const& limits,
               std::shared_ptr<Wire::TProtocol> sink)
{
    auto const refuse = [&](std::string const& reason)
    {
        return Failure("holds no " + std::string(type.name) + " in the " + std::string(Name(protocol)) +
                       " protocol: " + reason);
    };

    if (bytes.empty()) throw refuse("it is empty");
    if (bytes.size() > limits.bytes)
        throw refuse("it has more than the " + std::to_string(limits.bytes) + " bytes of --max-bytes");

    auto const limit = static_cast<std::int32_t>(bytes.size());
    auto const configuration = std::make_shared<apache::thrift::TConfiguration>(limit, limit, MaxDepth);
    std::string unread = bytes;
    auto const buffer = std::make_shared<TMemoryBuffer>(reinterpret_cast<std::uint8_t*>(unread.data()),
                                                        static_cast<std::uint32_t>(unread.size()),
                                                        TMemoryBuffer::OBSERVE, configuration);
    auto reader = MakeProtocol(protocol, buffer, limit);
    if (sink != nullptr) reader = std::make_shared<Wire::TProtocolTap>(std::move(reader), std::move(sink));
    WatchedProtocol watched(std::move(reader), limits.elements, bytes.size());

    auto record = type.make();
    try
    {
        record->Read(watched);
    }
    catch (Wire::TProtocolException const& error)
    {
        throw refuse(Reason(error));
    }
    catch (TTransportException const& error)
    {
        throw refuse(Reason(error));
    }
    catch (std::bad_alloc const&)
    {
        throw refuse("it needs more memory than there is");
    }
    catch (std::exception const& error)
    {
        throw refuse(error.what());
    }

    auto const rest = std::string_view(bytes).substr(bytes.size() - buffer->available_read());
    if (!rest.empty() && !(protocol == Protocol::Json && OnlyBlanks(rest)))
        throw refuse(std::to_string(rest.size()) + " more bytes follow the record");

    Decoded decoded{std::move(record), watched.TakeHeld(), watched.SkippedCount()};
    if (decoded.skippedFields > 0 && decoded.held.empty()) throw refuse("it holds none of that record's fields");
    return decoded;
}

} // namespace

Decoded Decode(std::string const& bytes, Protocol protocol, RecordType const& type, Limits const& limits)
{
    return Decode(bytes, protocol, type, limits, nullptr);
}

std::string Transcode(std::string const& bytes, Protocol protocol, RecordType const& type, Limits const& limits,
                      Protocol to)
{
    auto const buffer = std::make_shared<TMemoryBuffer>();
    Decode(bytes, protocol, type, limits, std::make_shared<TypedEmptyMaps>(MakeProtocol(to, buffer)));
    return buffer->getBufferAsString();
}

std::string Encode(WireRecord const& record, Protocol protocol)
{
    auto const buffer = std::make_shared<TMemoryBuffer>();
    auto const writer = MakeProtocol(protocol, buffer);
    record.Write(*writer);
    return buffer->getBufferAsString();
}

} // namespace Talvo::Tools
