// A request from an untrusted peer: read within bounds, and converted with the checked conversion.

#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Wire/Codec.h"
#include "generated/CreateClipsCommandParams.h"

#include <cstddef>
#include <cstdint>
#include <iostream>
#include <span>
#include <string>

namespace Serialization = Talvo::Corvane::Zelmar::Serialization::Thrift;
using Serialization::Commands::ThriftToCreateClipsCommandParamsConverter;
using Serialization::Wire::Bounds;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::CreateClipsCommandParams;
using Record = Serialization::Commands::Generated::CreateClipsCommandParams;

namespace
{

void Try(char const* const what, std::string const& message)
{
    std::span const bytes(reinterpret_cast<std::uint8_t const*>(message.data()), message.size());

    Bounds const bounds{.message = 1024 * 1024, .text = 4096, .elements = 100'000, .depth = 16};
    CreateClipsCommandParams request;
    auto const result =
        Serialization::Wire::Decode(ThriftToCreateClipsCommandParamsConverter(), bytes, request, bounds);

    std::cout << what << ": ";
    if (result.Success())
        std::cout << request.clips.size() << " clips\n";
    else
        std::cout << result.message << '\n';
}

// Messages that are rejected, and one that is accepted.

std::string Written(Record const& record)
{
    Serialization::Wire::BinaryWriter writer;
    record.write(&writer);
    return std::string(writer.Text());
}

/// Fields that the record does not have, each nested in the one before it.
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

} // namespace

int main()
{
    Try("two clips", Written(WithClips(2)));
    Try("a message of two megabytes", std::string(2 * 1024 * 1024, '\0'));
    // The field commandGuid with a value of 2147483647 bytes, none of which is sent.
    Try("a long string", std::string("\x0c\x00\x01\x0b\x00\x01\x7f\xff\xff\xff", 10));
    // The field clips with 2147483647 records, none of which is sent.
    Try("a long list", std::string("\x0f\x00\x02\x0c\x7f\xff\xff\xff", 8));
    // Each record takes one byte on the wire, and 840 bytes in memory.
    Try("50,000 empty records", std::string("\x0f\x00\x02\x0c\x00\x00\xc3\x50", 8) + std::string(50'001, '\0'));
    Try("records within records", Nested(1000));
    Try("half a message", Written(WithClips(2)).substr(0, 300));

    auto invalid = WithClips(2);
    invalid.clips[1].clip.__set_inBoundTodTimecode("today");
    Try("an invalid time code", Written(invalid));
}
