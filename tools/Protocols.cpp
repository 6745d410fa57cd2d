#include "tools/Protocols.h"

#include "Thrift/Wire/BinaryReader.h"
#include "Thrift/Wire/BinaryWriter.h"
#include "tools/Failure.h"
#include "tools/Suggestion.h"

#include <thrift/TConfiguration.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/protocol/TCompactProtocol.h>
#include <thrift/protocol/TJSONProtocol.h>
#include <thrift/protocol/TProtocolDecorator.h>
#include <thrift/protocol/TProtocolTap.h>
#include <thrift/transport/TBufferTransports.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <new>
#include <utility>
#include <vector>

namespace Talvo::Tools
{

namespace
{

namespace Thrift = apache::thrift::protocol;
namespace Wire = Corvane::Zelmar::Serialization::Thrift::Wire;
using apache::thrift::transport::TMemoryBuffer;
using apache::thrift::transport::TTransport;
using apache::thrift::transport::TTransportException;

constexpr std::array<std::pair<std::string_view, Protocol>, 3> Protocols{
    {{"binary", Protocol::Binary}, {"compact", Protocol::Compact}, {"json", Protocol::Json}}};

constexpr std::string_view Blanks = " \t\r\n";

/// `limit`, in bytes and in elements, bounds what is read; 0 is no limit.
std::shared_ptr<Thrift::TProtocol> MakeProtocol(Protocol protocol, std::shared_ptr<TTransport> transport,
                                                std::int32_t limit = 0)
{
    switch (protocol)
    {
    case Protocol::Compact:
        return std::make_shared<Thrift::TCompactProtocolT<TTransport>>(std::move(transport), limit, limit);
    case Protocol::Json:
        return std::make_shared<Thrift::TJSONProtocol>(std::move(transport));
    default:
        return std::make_shared<Thrift::TBinaryProtocolT<TTransport>>(std::move(transport), limit, limit, false, true);
    }
}

/// The compact protocol does not carry the types of an empty map, and JSON has no name for none. Any will do: a reader
/// looks at them only to read entries.
class TypedEmptyMaps : public Thrift::TProtocolDecorator
{
public:
    using TProtocolDecorator::TProtocolDecorator;

    std::uint32_t writeMapBegin_virt(Thrift::TType const keyType, Thrift::TType const valueType,
                                     std::uint32_t const size) override
    {
        if (size == 0) return TProtocolDecorator::writeMapBegin_virt(Thrift::T_STRUCT, Thrift::T_STRUCT, 0);
        return TProtocolDecorator::writeMapBegin_virt(keyType, valueType, size);
    }
};

/// Texts of fields that a record does not have are read and written as bytes, which in JSON are no texts; but the schema
/// has nothing else than texts.
class BytesAsTexts : public Thrift::TProtocolDecorator
{
public:
    explicit BytesAsTexts(std::shared_ptr<TProtocol> const& decorated)
        : TProtocolDecorator(decorated)
    {
        setRecurisionLimit(MaxDepth);
    }

    std::uint32_t readBinary_virt(std::string& value) override { return readString_virt(value); }
};

/// Copies one record from protocol to protocol, value for value, whatever it is. It takes no memory for what a size claims.
void Copy(std::shared_ptr<Thrift::TProtocol> const& source, std::shared_ptr<Thrift::TProtocol> const& sink)
{
    BytesAsTexts(std::make_shared<Thrift::TProtocolTap>(source, sink)).skip(Thrift::T_STRUCT);
}

std::string Reason(Thrift::TProtocolException const& error)
{
    switch (error.getType())
    {
    case Thrift::TProtocolException::SIZE_LIMIT:
        return std::string("it exceeds a limit, maybe --max-elements: ") + error.what();
    case Thrift::TProtocolException::NEGATIVE_SIZE:
        return "a size in it is negative";
    case Thrift::TProtocolException::DEPTH_LIMIT:
        return "it nests too deep";
    case Thrift::TProtocolException::INVALID_DATA:
        return "its bytes make no sense, or a required field is missing";
    default:
        return error.what();
    }
}

std::string Reason(TTransportException const& error)
{
    return error.getType() == TTransportException::END_OF_FILE ? "it ends in the middle of the record" : error.what();
}

/// Reads, and throws the reason of what goes wrong as Failure.
template<typename TRead>
auto ReadOrFail(TRead const& read)
{
    try
    {
        return read();
    }
    catch (Thrift::TProtocolException const& error)
    {
        throw Failure(Reason(error));
    }
    catch (TTransportException const& error)
    {
        throw Failure(Reason(error));
    }
    catch (std::bad_alloc const&)
    {
        throw;
    }
    catch (std::exception const& error)
    {
        throw Failure(error.what());
    }
}

/// The same, and says what the bytes do not hold.
template<typename TRead>
void ReadOrRefuse(RecordType const& type, Protocol const protocol, TRead const& read)
{
    try
    {
        ReadOrFail(read);
    }
    catch (Failure const& failure)
    {
        throw Refusal(type, protocol, failure.what());
    }
}

void ExpectEnd(RecordType const& type, Protocol const protocol, std::size_t const bytesLeft)
{
    if (bytesLeft > 0) throw Refusal(type, protocol, std::to_string(bytesLeft) + " more bytes follow the record");
}

std::span<std::uint8_t const> SpanOf(std::string_view const bytes)
{
    return {reinterpret_cast<std::uint8_t const*>(bytes.data()), bytes.size()};
}

/// What a message holds is bounded by its own bytes, but for the elements and the memory of a record.
constexpr auto Any = std::numeric_limits<std::uint32_t>::max();

Wire::BinaryReader ReaderOf(Message const& message)
{
    auto const elements = message.Bounds().elements;
    return Wire::BinaryReader(message.Bytes(), {Any, Any, elements, elements, MaxDepth, message.Memory(), 0});
}

/// Bytes in memory as a transport, which does not believe a size beyond them.
std::shared_ptr<TMemoryBuffer> BufferOf(std::string_view const bytes)
{
    auto const limit = static_cast<std::int32_t>(bytes.size());
    auto const configuration = std::make_shared<apache::thrift::TConfiguration>(limit, limit, MaxDepth);
    auto* const start = const_cast<std::uint8_t*>(SpanOf(bytes).data()); // which it only reads
    return std::make_shared<TMemoryBuffer>(start, static_cast<std::uint32_t>(bytes.size()), TMemoryBuffer::OBSERVE,
                                           configuration);
}

std::string ReadHeader(Thrift::TProtocol& protocol)
{
    static constexpr std::array Types{"call", "reply", "exception", "one-way call"};
    std::string name;
    Thrift::TMessageType type{};
    std::int32_t sequence = 0;
    protocol.readMessageBegin(name, type, sequence);
    if (type < Thrift::T_CALL || type > Thrift::T_ONEWAY) throw Failure("its message is of no known type");
    return std::string("the ") + Types[static_cast<std::size_t>(type - Thrift::T_CALL)] + " '" + name + "', number " +
           std::to_string(sequence);
}

/// `left` gives how many of the bytes were not read yet, `skip` passes a record.
Piece TakeRecord(std::string_view const bytes, Thrift::TProtocol& protocol, bool const hasHeader, auto const& left,
                 auto const& skip)
{
    Piece piece;
    if (hasHeader) piece.header = ReadHeader(protocol);
    auto const start = bytes.size() - left();
    skip();
    auto const end = bytes.size() - left();
    if (hasHeader) protocol.readMessageEnd();
    piece.record = bytes.substr(start, end - start);
    piece.rest = bytes.substr(bytes.size() - left());
    return piece;
}

} // namespace

RecordType const& FindRecordType(std::string_view const name)
{
    auto const& types = RecordTypes();
    auto const found = std::ranges::find_if(types, [&](auto const& type) { return EqualButForCase(type.name, name); });
    if (found != types.end()) return *found;
    std::vector<std::string_view> names;
    std::ranges::transform(types, std::back_inserter(names), &RecordType::name);
    auto const suggestion = Suggestion(name, names);
    throw Failure("there is no record '" + std::string(name) + '\'' +
                  (suggestion.empty() ? "; talvo-wire list names them all" : suggestion));
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

Failure Refusal(RecordType const& type, Protocol const protocol, std::string const& reason)
{
    return Failure("holds no " + std::string(type.name) + " in the " + std::string(Name(protocol)) +
                   " protocol: " + reason);
}

Piece TakeRecord(std::string_view const bytes, Protocol const protocol, Limits const& limits, bool const hasHeader)
{
    if (bytes.empty()) throw Failure("it is empty");
    return ReadOrFail(
        [&]
        {
            if (protocol == Protocol::Binary)
            {
                Wire::BinaryReader reader(SpanOf(bytes), {Any, Any, limits.elements, limits.elements, MaxDepth});
                return TakeRecord(
                    bytes, reader, hasHeader, [&] { return reader.Rest().size(); },
                    [&] { reader.skip(Thrift::T_STRUCT); });
            }
            auto const buffer = BufferOf(bytes);
            auto const reader = MakeProtocol(protocol, buffer, static_cast<std::int32_t>(bytes.size()));
            auto piece = TakeRecord(
                bytes, *reader, hasHeader, [&] { return std::size_t{buffer->available_read()}; },
                [&] { BytesAsTexts(reader).skip(Thrift::T_STRUCT); });
            if (protocol == Protocol::Json)
                piece.rest.remove_prefix(std::min(piece.rest.find_first_not_of(Blanks), piece.rest.size()));
            return piece;
        });
}

std::string_view TakeFrame(std::string_view& bytes)
{
    return ReadOrFail(
        [&]
        {
            auto rest = SpanOf(bytes);
            auto const frame = Wire::TakeFrame(rest, {.message = Any});
            auto const taken = bytes.substr(bytes.size() - rest.size() - frame.size(), frame.size());
            bytes.remove_prefix(bytes.size() - rest.size());
            return taken;
        });
}

bool IsEnd(std::string_view const rest, Protocol const protocol)
{
    return rest.empty() || (protocol == Protocol::Json && rest.find_first_not_of(Blanks) == std::string_view::npos);
}

Message::Message(std::string_view const bytes, Protocol const protocol, RecordType const& type, Limits const& limits)
    : protocol_(protocol)
    , type_(type)
    , limits_(limits)
    , memory_(limits.memory + limits.memoryPerByte * bytes.size())
{
    if (bytes.empty()) throw Refusal(type, protocol, "it is empty");
    if (bytes.size() > limits.bytes)
        throw Refusal(type, protocol, "it has more than the " + std::to_string(limits.bytes) + " bytes of --max-bytes");
    if (protocol == Protocol::Binary)
    {
        bytes_ = bytes;
        return;
    }

    auto const buffer = BufferOf(bytes);
    copy_ = std::make_shared<Wire::BinaryWriter>();
    ReadOrRefuse(type, protocol,
                 [&] { Copy(MakeProtocol(protocol, buffer, static_cast<std::int32_t>(bytes.size())), copy_); });

    auto const rest = bytes.substr(bytes.size() - buffer->available_read());
    if (!IsEnd(rest, protocol)) ExpectEnd(type, protocol, rest.size());
}

std::span<std::uint8_t const> Message::Bytes() const
{
    if (copy_ != nullptr) return copy_->Bytes();
    return SpanOf(bytes_);
}

Decoded Decode(Message const& message)
{
    auto const& type = message.Type();
    auto const protocol = message.CameIn();
    auto reader = ReaderOf(message);
    Decoded decoded{type.make(), 0};
    ReadOrRefuse(type, protocol, [&] { decoded.record->Read(reader); });
    ExpectEnd(type, protocol, reader.Rest().size());

    decoded.skippedFields = reader.SkippedFields();
    bool isEmpty = true;
    if (decoded.skippedFields > 0) decoded.record->VisitValues([&](auto const&) { isEmpty = false; });
    if (decoded.skippedFields > 0 && isEmpty)
        throw Refusal(type, protocol,
                      "it holds none of that record's fields; talvo-wire guess names the records that fit");
    return decoded;
}

std::string Transcode(Message const& message, Protocol const to)
{
    auto const buffer = std::make_shared<TMemoryBuffer>();
    auto const reader = std::make_shared<Wire::BinaryReader>(ReaderOf(message));
    ReadOrRefuse(message.Type(), message.CameIn(),
                 [&] { Copy(reader, std::make_shared<TypedEmptyMaps>(MakeProtocol(to, buffer))); });
    ExpectEnd(message.Type(), message.CameIn(), reader->Rest().size());
    return buffer->getBufferAsString();
}

std::string Encode(WireRecord const& record, Protocol protocol)
{
    if (protocol == Protocol::Binary)
    {
        Wire::BinaryWriter writer;
        record.Write(writer);
        return std::string(writer.Text());
    }
    auto const buffer = std::make_shared<TMemoryBuffer>();
    auto const writer = MakeProtocol(protocol, buffer);
    record.Write(*writer);
    return buffer->getBufferAsString();
}

} // namespace Talvo::Tools
