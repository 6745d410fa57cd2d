#pragma once

#include "records/RecordFiller.h"
#include "records/RecordType.h"
#include "tests/Recorded.h"
#include "tests/Thrift/WireBytes.h"

#include <gtest/gtest.h>
#include <thrift/protocol/TProtocolException.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Talvo::Tests
{

/// Returns a record that is read from `filler`.
inline std::unique_ptr<Records::WireRecord> Filled(Records::RecordType const& type, Records::RecordFiller filler)
{
    auto record = type.make();
    record->Read(filler);
    return record;
}

/// Converts a record into a used domain object.
inline void Receive(Records::RecordType const& type, Records::WireRecord const& record, Records::DomainObject& domain)
{
    auto const result = type.convertToDomain(record, domain, Records::Form::Checked);
    EXPECT_TRUE(result.success) << type.name << ": " << result.message;
    EXPECT_EQ(result.message, "");
}

inline std::unique_ptr<Records::DomainObject> Received(Records::RecordType const& type,
                                                       Records::WireRecord const& record)
{
    auto domain = type.makeDomain(record);
    Receive(type, record, *domain);
    return domain;
}

inline std::unique_ptr<Records::WireRecord> Sent(Records::RecordType const& type, Records::DomainObject const& domain)
{
    auto record = type.make();
    auto const result = type.convertToWire(domain, *record, Records::Form::Constant);
    EXPECT_TRUE(result.success) << type.name << ": " << result.message;
    return record;
}

/// The numbers that fill a full record so that most of its fields are written: a video standard with matching rates,
/// and clips in results that succeeded.
inline std::vector<std::int16_t> FullNumbers(std::string_view const name)
{
    static std::map<std::string_view, std::vector<std::int16_t>> const others{
        {"Sequence", {2, 1, 3}},         // a rate that is not a fraction
        {"OperationStatus", {3, 2, 1}},  // a failure, since only that has a result
        {"PlayerDataOverrides", {2, 1}}, // only known numbers of its enumerations
    };
    auto const other = others.find(name);
    return other == others.end() ? std::vector<std::int16_t>{1, 2, 3} : other->second;
}

inline std::unique_ptr<Records::WireRecord> FullRecord(Records::RecordType const& type)
{
    return Filled(type, Records::RecordFiller::Convertible(FullNumbers(type.name)));
}

/// Returns a record that converts, with other values than the full record where possible.
inline std::unique_ptr<Records::WireRecord> UsedRecord(Records::RecordType const& type)
{
    // With the other numbers, the items of these have failed, as rejected ones have.
    auto const hasItems =
        type.name == "ClipCommandReply" || type.name == "PlaylistCommandReply" || type.name == "GetTrainsCommandReply";
    std::vector<std::int16_t> const first =
        hasItems ? std::vector<std::int16_t>{1, 2, 3} : std::vector<std::int16_t>{2, 3, 1};
    for (auto const& numbers : {first, std::vector<std::int16_t>{3, 1, 2}})
    {
        auto record = Filled(type, Records::RecordFiller::OtherConvertible(numbers));
        auto const domain = type.makeDomain(*record);
        if (type.convertToDomain(*record, *domain, Records::Form::Checked).success) return record;
    }
    ADD_FAILURE() << type.name << ": no used record converts";
    return nullptr;
}

inline std::unique_ptr<Records::DomainObject> FullDomain(Records::RecordType const& type)
{
    return Received(type, *FullRecord(type));
}

/// The fields of a record by their ids, each as the bytes of the binary protocol.
using FieldBytes = std::map<int, std::string>;

inline FieldBytes FieldsOf(Records::WireRecord const& record)
{
    struct Writable
    {
        Records::WireRecord const& record;
        void write(apache::thrift::protocol::TProtocol* const protocol) const { record.Write(*protocol); }
    };
    FieldBytes fields;
    for (auto& field : FieldByField(Writable{record}))
    {
        field.pop_back();
        fields[static_cast<unsigned char>(field[2])] = field; // after the type
    }
    return fields;
}

/// Makes a record of the fields with these ids. Returns null if a required field is missing.
using Maker = std::function<std::unique_ptr<Records::WireRecord>(std::set<int> const&)>;

/// Makes records of the fields of `whole`.
inline Maker PartsOf(Records::RecordType const& type, Records::WireRecord const& whole)
{
    return [&type, fields = FieldsOf(whole)](std::set<int> const& ids) -> std::unique_ptr<Records::WireRecord>
    {
        std::string bytes;
        for (auto const& [id, field] : fields)
            if (ids.contains(id)) bytes += field;
        auto record = type.make();
        try
        {
            ReadBytes(bytes + '\0', *Protocols()[0], *record);
            return record;
        }
        catch (apache::thrift::protocol::TProtocolException const&)
        {
            return nullptr;
        }
    };
}

} // namespace Talvo::Tests
