#include "tools/Protocols.h"

#include "tools/Failure.h"

#include <thrift/TConfiguration.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/protocol/TCompactProtocol.h>
#include <thrift/protocol/TJSONProtocol.h>
#include <thrift/protocol/TProtocolDecorator.h>
#include <thrift/transport/TBufferTransports.h>

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

/// No record nests deeper than this, nor does what a newer peer might add to one.
constexpr int MaxDepth = 64;

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

/// Watches another protocol read a record: refuses containers that claim more than the bytes can hold, and counts the
/// fields that the record skips.
class WatchedProtocol : public Wire::TProtocolDecorator
{
public:
    WatchedProtocol(std::shared_ptr<TProtocol> watched, std::size_t byteCount)
        : TProtocolDecorator(std::move(watched))
        , elementsLeft_(byteCount)
    {
    }

    std::size_t FieldCount() const { return fieldCount_; }
    std::size_t SkippedCount() const { return skippedCount_; }

    std::uint32_t readStructBegin_virt(std::string& name) override
    {
        ++depth_;
        return TProtocolDecorator::readStructBegin_virt(name);
    }

    std::uint32_t readStructEnd_virt() override
    {
        --depth_;
        return TProtocolDecorator::readStructEnd_virt();
    }

    std::uint32_t readFieldBegin_virt(std::string& name, Wire::TType& type, std::int16_t& id) override
    {
        auto const size = TProtocolDecorator::readFieldBegin_virt(name, type, id);
        if (depth_ == 1 && type != Wire::T_STOP) ++fieldCount_;
        return size;
    }

    std::uint32_t skip_virt(Wire::TType type) override
    {
        if (depth_ == 1) ++skippedCount_;
        return TProtocolDecorator::skip_virt(type);
    }

    std::uint32_t readMapBegin_virt(Wire::TType& keyType, Wire::TType& valueType, std::uint32_t& size) override
    {
        return Counted(TProtocolDecorator::readMapBegin_virt(keyType, valueType, size), size);
    }

    std::uint32_t readListBegin_virt(Wire::TType& elementType, std::uint32_t& size) override
    {
        return Counted(TProtocolDecorator::readListBegin_virt(elementType, size), size);
    }

    std::uint32_t readSetBegin_virt(Wire::TType& elementType, std::uint32_t& size) override
    {
        return Counted(TProtocolDecorator::readSetBegin_virt(elementType, size), size);
    }

private:
    /// A generated `read` makes room for all elements at once, and Thrift itself takes a record for no byte at all and
    /// multiplies sizes in 32 bits. Every element takes at least one byte.
    std::uint32_t Counted(std::uint32_t result, std::uint32_t elements)
    {
        if (elements > MaxContainerSize || elements > elementsLeft_)
            throw Wire::TProtocolException(Wire::TProtocolException::SIZE_LIMIT);
        elementsLeft_ -= elements;
        return result;
    }

    std::size_t elementsLeft_;
    std::size_t depth_ = 0;
    std::size_t fieldCount_ = 0;
    std::size_t skippedCount_ = 0;
};

std::string Reason(Wire::TProtocolException const& error)
{
    switch (error.getType())
    {
    case Wire::TProtocolException::SIZE_LIMIT:
    case Wire::TProtocolException::NEGATIVE_SIZE:
        return "a size in it is more than the file can hold, or more than talvo-wire reads";
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
        return "it ends in the middle of the record, or claims to hold more than it does";
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

Decoded Decode(std::string const& bytes, Protocol protocol, RecordType const& type)
{
    auto const refuse = [&](std::string const& reason)
    {
        return Failure("not a " + std::string(type.name) + " in the " + std::string(Name(protocol)) +
                       " protocol: " + reason);
    };

    if (bytes.empty()) throw refuse("it is empty");
    if (bytes.size() > MaxFileSize)
        throw refuse("it has more than the " + std::to_string(MaxFileSize) + " bytes that talvo-wire reads");

    auto const limit = static_cast<std::int32_t>(bytes.size());
    auto const configuration = std::make_shared<apache::thrift::TConfiguration>(limit, limit, MaxDepth);
    std::string unread = bytes;
    auto const buffer = std::make_shared<TMemoryBuffer>(reinterpret_cast<std::uint8_t*>(unread.data()),
                                                        static_cast<std::uint32_t>(unread.size()),
                                                        TMemoryBuffer::OBSERVE, configuration);
    WatchedProtocol watched(MakeProtocol(protocol, buffer, limit), bytes.size());

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
    if (watched.SkippedCount() > 0 && watched.SkippedCount() == watched.FieldCount())
        throw refuse("it holds none of that record's fields");
    return {std::move(record), watched.SkippedCount()};
}

std::string Encode(WireRecord const& record, Protocol protocol)
{
    auto const buffer = std::make_shared<TMemoryBuffer>();
    auto const writer = MakeProtocol(protocol, buffer);
    record.Write(*writer);
    return buffer->getBufferAsString();
}

} // namespace Talvo::Tools
