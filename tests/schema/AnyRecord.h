#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace apache::thrift::protocol
{
class TProtocol;
}

namespace Talvo::Tests
{

/// A record of any type behind one interface, so that the read and write of all records are compiled once for all tests.
class AnyRecord
{
public:
    virtual ~AnyRecord() = default;

    virtual void Read(apache::thrift::protocol::TProtocol& protocol) = 0;
    virtual void Write(apache::thrift::protocol::TProtocol& protocol) const = 0;

    /// What operator<< prints.
    virtual std::string Text() const = 0;

    /// False for a record of another type.
    virtual bool operator==(AnyRecord const& other) const = 0;
};

struct RecordType
{
    std::string_view name;
    char const* asciiFingerprint;
    std::span<std::uint8_t const, 16> binaryFingerprint;
    bool hasFlags;                        ///< Whether the record has the member __isset.
    std::unique_ptr<AnyRecord> (*make)(); ///< A default-constructed record.
};

/// All 113 record types.
std::vector<RecordType> const& AllRecordTypes();

} // namespace Talvo::Tests
