#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "generated/Guid_types.h"
#include "generated/OperationStatus_types.h"
#include "tests/Thrift/RoundTrip.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data;
using Corvane::Data::Guid;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;
using Status = Corvane::Data::OperationStatus::Status;

namespace Wire = Corvane::Data::Generated;

Wire::Guid WireGuid(std::string value)
{
    Wire::Guid guid;
    guid.value = std::move(value);
    guid.__isset.value = true;
    return guid;
}

Guid Bytes(std::string const& bytes)
{
    return {reinterpret_cast<unsigned char const*>(bytes.data()), static_cast<unsigned int>(bytes.size())};
}

TEST(GuidConversion, RoundTrip)
{
    ExpectRoundTrip<GuidToThriftConverter, ThriftToGuidConverter, Wire::Guid>(Bytes("\x01\x7F\x80\xFF"
                                                                                    "abcdefghijkl"));

    // The empty identifier travels like any other.
    Wire::Guid wire;
    EXPECT_TRUE(GuidToThriftConverter().To(Guid::Empty(), wire).success);
    EXPECT_TRUE(wire.__isset.value);
    EXPECT_EQ(wire.value, std::string(16, '\0'));
}

TEST(GuidConversion, OtherLengthsAreCutOrFilledAndAClearFlagIsEmpty)
{
    struct Row
    {
        std::string value;
        Guid guid;
    };
    for (auto const& [value, guid] :
         {Row{"", Guid::Empty()}, Row{std::string(15, 'x'), Bytes(std::string(15, 'x') + '\0')},
          Row{std::string(17, 'x'), Bytes(std::string(16, 'x'))},
          Row{std::string(1'000'000, 'x'), Bytes(std::string(16, 'x'))}})
    {
        auto read = Bytes("something before");
        EXPECT_TRUE(ThriftToGuidConverter().To(WireGuid(value), read).success);
        EXPECT_EQ(read, guid) << value.size();
    }

    auto unset = WireGuid(std::string(16, 'x'));
    unset.__isset.value = false;
    auto read = Bytes("something before");
    EXPECT_TRUE(ThriftToGuidConverter().To(unset, read).success);
    EXPECT_EQ(read, Guid::Empty());
}

TEST(GuidConversion, WireOrderIsThatOfUnsignedBytes)
{
    auto unflagged = WireGuid("a");
    unflagged.__isset.value = false;
    std::set<Wire::Guid> const sorted{WireGuid("\x80"), WireGuid("ab"), WireGuid("a"), WireGuid(""), unflagged};
    std::string told;
    for (auto const& guid : sorted) told += guid.value + '|';
    EXPECT_EQ(told, "|a|ab|\x80|");
}

TEST(OperationStatusConversion, OneFieldTravelsAndTheOtherIsMadeUp)
{
    struct Row
    {
        OperationStatus sent;
        OperationStatus received;
    };
    Row const rows[] = {
        {{Status::NotStarted, OperationResult::Success}, {Status::NotStarted, OperationResult::Unknown}},
        {{Status::Pending, OperationResult::TemporaryError}, {Status::Pending, OperationResult::Unknown}},
        {{Status::Succeeded, OperationResult::NotSupported}, {Status::Succeeded, OperationResult::Success}},
        {{Status::Failed, OperationResult::InvalidBound}, {Status::Failed, OperationResult::InvalidBound}},
        {{Status::Failed, OperationResult::Success}, {Status::Succeeded, OperationResult::Success}},
        {{Status::Failed, OperationResult::Unknown}, {Status::NotStarted, OperationResult::Unknown}},
    };
    for (auto const& [sent, received] : rows)
    {
        Wire::OperationStatus wire;
        EXPECT_TRUE(OperationStatusToThriftConverter().To(sent, wire).success);
        EXPECT_EQ(wire.__isset.result, sent.status == Status::Failed);
        EXPECT_EQ(wire.__isset.status, sent.status != Status::Failed);
        OperationStatus status;
        EXPECT_TRUE(ThriftToOperationStatusConverter().To(Read<Wire::OperationStatus>(Written(wire)), status).success);
        EXPECT_EQ(status, received);
    }
}

TEST(OperationStatusConversion, StatusGoesBeforeResult)
{
    Wire::OperationStatus wire;
    OperationStatus status{Status::Pending, OperationResult::UsedResource};
    EXPECT_TRUE(ThriftToOperationStatusConverter().To(wire, status).success);
    EXPECT_EQ(status, (OperationStatus{Status::Pending, OperationResult::UsedResource})); // neither flag: untouched

    wire.__set_status(Wire::OperationStatusStatus::Failed);
    wire.__set_result(Wire::OperationResult::NotSupported);
    EXPECT_TRUE(ThriftToOperationStatusConverter().To(wire, status).success);
    EXPECT_EQ(status, (OperationStatus{Status::Failed, OperationResult::DefaultError}));

    // A record that is used again keeps the field that is not chosen, and the reader takes the old status.
    wire = {};
    wire.__set_status(Wire::OperationStatusStatus::Succeeded);
    EXPECT_TRUE(OperationStatusToThriftConverter().To({Status::Failed, OperationResult::InvalidBound}, wire).success);
    EXPECT_TRUE(wire.__isset.status && wire.__isset.result);
    EXPECT_TRUE(ThriftToOperationStatusConverter().To(wire, status).success);
    EXPECT_EQ(status, (OperationStatus{Status::Succeeded, OperationResult::Success}));
}

// Whoever derives from a converter and replaces the const form changes the rvalue form as well.
TEST(ConverterFrame, RvalueFormGoesThroughTheConstForm)
{
    struct Refusing : GuidToThriftConverter
    {
        using GuidToThriftConverter::To;
        Corvane::Zelmar::Serialization::Thrift::ConversionResult To(Guid const&, Wire::Guid&) const noexcept override
        {
            return {false, "refused"};
        }
    };
    Wire::Guid wire;
    Refusing const refusing;
    EXPECT_EQ(refusing.To(Guid(), wire).message, "refused");
    EXPECT_STREQ(refusing.GetLastConversionError(), "");
}

} // namespace
} // namespace Talvo::Tests
