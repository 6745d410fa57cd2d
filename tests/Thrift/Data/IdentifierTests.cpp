#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "generated/OperationStatus_types.h"
#include "tests/Thrift/Converters.h"
#include "tests/Thrift/Data/Values.h"

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

using OfGuid = Converters<GuidToThriftConverter, ThriftToGuidConverter>;
using OfStatus = Converters<OperationStatusToThriftConverter, ThriftToOperationStatusConverter>;

Guid Bytes(std::string const& bytes)
{
    return {reinterpret_cast<unsigned char const*>(bytes.data()), static_cast<unsigned int>(bytes.size())};
}

TEST(GuidConversion, OtherLengthsAreTruncatedOrFilledAndAClearFlagIsEmpty)
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
        EXPECT_EQ(OfGuid::Received(WireId(value), Bytes("something before")), guid) << value.size();

    auto unset = WireId(std::string(16, 'x'));
    unset.__isset.value = false;
    EXPECT_EQ(OfGuid::Received(unset, Bytes("something before")), Guid::Empty());
}

TEST(GuidConversion, WireOrderIsThatOfUnsignedBytes)
{
    auto unflagged = WireId("a");
    unflagged.__isset.value = false;
    std::set<Wire::Guid> const sorted{WireId("\x80"), WireId("ab"), WireId("a"), WireId(""), unflagged};
    std::string told;
    for (auto const& guid : sorted) told += guid.value + '|';
    EXPECT_EQ(told, "|a|ab|\x80|");
}

TEST(OperationStatusConversion, OneFieldIsWrittenAndTheOtherIsDerived)
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
        auto const wire = OfStatus::Sent(sent);
        EXPECT_EQ(wire.__isset.result, sent.status == Status::Failed);
        EXPECT_EQ(wire.__isset.status, sent.status != Status::Failed);
        EXPECT_EQ(OfStatus::Received(wire), received);
    }
}

TEST(OperationStatusConversion, StatusTakesPrecedenceOverResult)
{
    Wire::OperationStatus wire;
    OperationStatus const held{Status::Pending, OperationResult::UsedResource};
    EXPECT_EQ(OfStatus::Received(wire, held), held); // neither flag is set: unchanged

    wire.__set_status(Wire::OperationStatusStatus::Failed);
    wire.__set_result(Wire::OperationResult::NotSupported);
    auto const status = OfStatus::Received(wire, held);
    EXPECT_EQ(status, (OperationStatus{Status::Failed, OperationResult::DefaultError}));

    // A reused record keeps the field that is not written, so the reader reads the old status.
    wire = {};
    wire.__set_status(Wire::OperationStatusStatus::Succeeded);
    wire = OfStatus::Sent({Status::Failed, OperationResult::InvalidBound}, wire);
    EXPECT_TRUE(wire.__isset.status && wire.__isset.result);
    EXPECT_EQ(OfStatus::Received(wire, status), (OperationStatus{Status::Succeeded, OperationResult::Success}));
}

// A derived converter that overrides the const form also changes the rvalue form.
TEST(ConverterFrame, RvalueFormCallsTheConstForm)
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
