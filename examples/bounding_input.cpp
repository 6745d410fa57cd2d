// A request from a peer that is not trusted: bounded while it is read, and converted by the checked conversion.

#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/TryTo.h"
#include "generated/CreateClipsCommandParams_types.h"

#include <thrift/TConfiguration.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <cstdint>
#include <exception>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

using apache::thrift::TConfiguration;
using apache::thrift::transport::TMemoryBuffer;
using Protocol = apache::thrift::protocol::TBinaryProtocolT<TMemoryBuffer>;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::CreateClipsCommandParams;
namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift;

namespace
{

constexpr int MaxMessageSize = 1024 * 1024;
constexpr int MaxDepth = 16;
constexpr int MaxStringSize = 4096;
constexpr int MaxContainerSize = 1000;

/// Throws for every message that is not to be converted.
CreateClipsCommandParams ReadRequest(std::string message)
{
    if (message.size() > MaxMessageSize) throw std::runtime_error("the message is too large");

    auto const configuration = std::make_shared<TConfiguration>(MaxMessageSize, MaxMessageSize, MaxDepth);
    auto const buffer = std::make_shared<TMemoryBuffer>(reinterpret_cast<std::uint8_t*>(message.data()),
                                                        static_cast<std::uint32_t>(message.size()),
                                                        TMemoryBuffer::OBSERVE, configuration);
    Protocol protocol(buffer, MaxStringSize, MaxContainerSize, false, true);
    Wire::Commands::Generated::CreateClipsCommandParams record;
    record.read(&protocol); // throws a TException where a bound is passed

    CreateClipsCommandParams request;
    auto const result = Wire::TryTo(Wire::Commands::ThriftToCreateClipsCommandParamsConverter(), record, request);
    if (!result.success) throw std::runtime_error(result.message);
    return request;
}

// Messages that are refused, and one that is not.

using Record = Wire::Commands::Generated::CreateClipsCommandParams;

std::string Written(Record const& record)
{
    auto const buffer = std::make_shared<TMemoryBuffer>();
    Protocol protocol(buffer);
    record.write(&protocol);
    return buffer->getBufferAsString();
}

/// Fields that the record does not have, each within the one before it.
std::string Nested(std::size_t const depth)
{
    std::string const fieldOfARecord("\x0c\x00\x63", 3);
    std::string message;
    for (std::size_t i = 0; i < depth; ++i) message += fieldOfARecord;
    return message.append(depth + 1, '\0');
}

Record WithClips(std::size_t const count)
{
    Record record;
    record.clips.resize(count);
    record.__isset.clips = true;
    return record;
}

void Try(char const* const what, std::string const& message)
{
    std::cout << what << ": ";
    try
    {
        std::cout << ReadRequest(message).clips.size() << " clips\n";
    }
    catch (std::exception const& error)
    {
        std::cout << "refused, " << error.what() << '\n';
    }
}

} // namespace

int main()
{
    Try("two clips", Written(WithClips(2)));
    Try("a message of two megabytes", std::string(2 * MaxMessageSize, '\0'));
    // The field commandGuid with a value of 2147483647 bytes, of which none comes.
    Try("a long string", std::string("\x0c\x00\x01\x0b\x00\x01\x7f\xff\xff\xff", 10));
    // The field clips with 2147483647 records, of which none comes.
    Try("a long list", std::string("\x0f\x00\x02\x0c\x7f\xff\xff\xff", 8));
    Try("records within records", Nested(1000));

    auto invalid = WithClips(2);
    invalid.clips[1].clip.inBoundTodTimecode = "today";
    invalid.clips[1].clip.__isset.inBoundTodTimecode = true;
    Try("an invalid time code", Written(invalid));
}
