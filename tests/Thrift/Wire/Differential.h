#pragma once

#include "Thrift/Wire/BinaryReader.h"
#include "records/RecordType.h"

#include <thrift/TConfiguration.h>
#include <thrift/Thrift.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Talvo::Tests
{

namespace Wire = Corvane::Zelmar::Serialization::Thrift::Wire;

inline std::span<std::uint8_t const> BytesOf(std::string_view const text)
{
    return {reinterpret_cast<std::uint8_t const*>(text.data()), text.size()};
}

/// Small bounds, and none of memory, since Thrift's own protocol has no such bound.
inline Wire::Bounds DifferentialBounds()
{
    return {.text = 1000,
            .elements = 100,
            .entries = 100,
            .depth = 8,
            .memory = std::numeric_limits<std::uint32_t>::max(),
            .memoryPerByte = 0};
}

/// The result of a reader: the text that it read, a blank, and the number of bytes left. Empty if the reader failed.
using Reading = std::optional<std::string>;

/// Calls `read` with a BinaryReader. `read` returns the value as a text.
Reading ReadOwn(std::string_view const bytes, auto const& read)
{
    try
    {
        Wire::BinaryReader reader(BytesOf(bytes), DifferentialBounds());
        auto text = read(reader);
        return text + ' ' + std::to_string(reader.Rest().size());
    }
    catch (apache::thrift::TException const&)
    {
        return std::nullopt;
    }
}

/// Calls `read` with Thrift's own protocol. `read` returns the value as a text.
Reading ReadPeer(std::string_view const bytes, auto const& read)
{
    using namespace apache::thrift;
    auto const bounds = DifferentialBounds();
    auto const configuration = std::make_shared<TConfiguration>();
    configuration->setRecursionLimit(static_cast<int>(bounds.depth));
    auto const buffer = std::make_shared<transport::TMemoryBuffer>(const_cast<std::uint8_t*>(BytesOf(bytes).data()),
                                                                   static_cast<std::uint32_t>(bytes.size()),
                                                                   transport::TMemoryBuffer::OBSERVE, configuration);
    protocol::TBinaryProtocolT<transport::TMemoryBuffer> protocol(
        buffer, static_cast<std::int32_t>(bounds.text), static_cast<std::int32_t>(bounds.elements), false, true);
    try
    {
        auto text = read(protocol);
        return text + ' ' + std::to_string(buffer->available_read());
    }
    catch (TException const&)
    {
        return std::nullopt;
    }
}

/// Returns a function that reads a record of this type, or a message header if `type` is null, and returns it as a
/// text.
inline auto ReaderOf(Records::RecordType const* const type)
{
    return [type](auto& protocol) -> std::string
    {
        if (type == nullptr)
        {
            std::string name;
            apache::thrift::protocol::TMessageType message{};
            std::int32_t sequence = 0;
            protocol.readMessageBegin(name, message, sequence);
            return name + ' ' + std::to_string(static_cast<int>(message)) + ' ' + std::to_string(sequence);
        }
        auto const record = type->make();
        record->Read(protocol);
        return Records::Text(record->Fields());
    };
}

/// Returns whether both readers have the same result.
inline bool ReadAlike(std::string_view const bytes, Records::RecordType const* const type)
{
    return ReadOwn(bytes, ReaderOf(type)) == ReadPeer(bytes, ReaderOf(type));
}

} // namespace Talvo::Tests
