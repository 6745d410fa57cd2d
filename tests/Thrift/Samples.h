#pragma once

#include "records/RecordFiller.h"
#include "records/RecordType.h"
#include "tests/Recorded.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
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

inline std::unique_ptr<Records::DomainObject> FullDomain(Records::RecordType const& type)
{
    return Received(type, *FullRecord(type));
}

} // namespace Talvo::Tests
