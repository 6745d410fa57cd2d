#pragma once

#include "records/RecordType.h"

#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/protocol/TCompactProtocol.h>
#include <thrift/protocol/TJSONProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Talvo::Tests
{

/// The protocols of the round trips. Thrift loses NUL bytes when it reads JSON, so records for all three have none in
/// their texts.
inline std::array<std::shared_ptr<apache::thrift::protocol::TProtocolFactory>, 3> const& Protocols()
{
    using namespace apache::thrift::protocol;
    static std::array<std::shared_ptr<TProtocolFactory>, 3> const protocols{std::make_shared<TBinaryProtocolFactory>(),
                                                                            std::make_shared<TCompactProtocolFactory>(),
                                                                            std::make_shared<TJSONProtocolFactory>()};
    return protocols;
}

template<typename TRecord>
std::string Written(TRecord const& record, apache::thrift::protocol::TProtocolFactory& protocols = *Protocols()[0])
{
    auto const buffer = std::make_shared<apache::thrift::transport::TMemoryBuffer>();
    record.write(protocols.getProtocol(buffer).get());
    return buffer->getBufferAsString();
}

// Returns the bytes of a record whose type is known only at run time.
inline std::string WrittenBytes(Records::WireRecord const& record,
                                apache::thrift::protocol::TProtocolFactory& protocols)
{
    auto const buffer = std::make_shared<apache::thrift::transport::TMemoryBuffer>();
    record.Write(*protocols.getProtocol(buffer));
    return buffer->getBufferAsString();
}

inline void ReadBytes(std::string_view const bytes, apache::thrift::protocol::TProtocolFactory& protocols,
                      Records::WireRecord& record)
{
    auto const buffer = std::make_shared<apache::thrift::transport::TMemoryBuffer>();
    buffer->write(reinterpret_cast<std::uint8_t const*>(bytes.data()), static_cast<std::uint32_t>(bytes.size()));
    record.Read(*protocols.getProtocol(buffer));
}

template<typename TRecord>
TRecord Read(std::string_view const bytes, apache::thrift::protocol::TProtocolFactory& protocols = *Protocols()[0])
{
    auto const buffer = std::make_shared<apache::thrift::transport::TMemoryBuffer>();
    buffer->write(reinterpret_cast<std::uint8_t const*>(bytes.data()), static_cast<std::uint32_t>(bytes.size()));
    TRecord record;
    record.read(protocols.getProtocol(buffer).get());
    return record;
}

/// Returns each field of a record as the bytes of a record with only that field, in the binary protocol.
template<typename TRecord>
std::vector<std::string> FieldByField(TRecord const& record)
{
    auto const bytes = Written(record);
    auto const buffer = std::make_shared<apache::thrift::transport::TMemoryBuffer>(
        reinterpret_cast<std::uint8_t*>(const_cast<char*>(bytes.data())), static_cast<std::uint32_t>(bytes.size()));
    auto const protocol = Protocols()[0]->getProtocol(buffer);
    std::vector<std::string> fields;
    for (;;)
    {
        auto const start = bytes.size() - buffer->available_read();
        std::string name;
        apache::thrift::protocol::TType type{};
        std::int16_t id{};
        protocol->readFieldBegin(name, type, id);
        if (type == apache::thrift::protocol::T_STOP) return fields;
        protocol->skip(type);
        auto const end = bytes.size() - buffer->available_read();
        fields.push_back(bytes.substr(start, end - start) + '\0');
    }
}

} // namespace Talvo::Tests
