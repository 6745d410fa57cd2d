#include "tests/Thrift/Data/Clips/Values.h"
#include "tests/Thrift/Wire/Differential.h"

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Wire/Codec.h"
#include "generated/AnglesGroup_types.h"
#include "generated/Clip_types.h"
#include "generated/CreateClipsCommandParams_types.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;
using Corvane::Zelmar::HighLevelOperations::Commands::CreateClipsCommandParams;
using Wire::Fault;

using WireClip = Data::Clips::Generated::Clip;

std::string Written(auto const& record)
{
    Wire::BinaryWriter writer;
    record.write(&writer);
    return std::string(writer.Text());
}

TEST(Codec, RoundTripsADomainObjectThroughBytes)
{
    Wire::BinaryWriter writer;
    writer.writeByte(1);
    ASSERT_TRUE(Wire::Encode(Data::Clips::ClipToThriftConverter(), FullClip(), writer).Success());
    WireClip wire;
    ASSERT_TRUE(Data::Clips::ClipToThriftConverter().To(FullClip(), wire).success);
    EXPECT_EQ(writer.Text(), '\1' + Written(wire)) << "the writer appends";

    auto clip = NtscClip();
    auto const result = Wire::Decode(Data::Clips::ThriftToClipConverter(), writer.Bytes().subspan(1), clip);
    EXPECT_TRUE(result.Success());
    EXPECT_EQ(result.message, "");
    EXPECT_EQ(clip, FullClip());
}

TEST(Codec, ReportsTheKindOfFault)
{
    Data::Clips::ThriftToClipConverter const toClip;
    auto const expect = [](Wire::CodecResult const& result, Fault const fault, std::string_view const message)
    {
        EXPECT_EQ(result.fault, fault);
        EXPECT_FALSE(result.Success());
        EXPECT_EQ(result.message, message);
    };
    Corvane::Data::Clips::Clip clip;
    Corvane::Data::Clips::Groups::AnglesGroup group{Corvane::Data::Clips::Groups::Guid()};
    auto const bytes = Written(WireClip());
    Wire::Bounds bounds{.depth = 1};

    expect(Wire::Decode(toClip, BytesOf(bytes).first(3), clip), Fault::Bytes,
           "invalid bytes: the bytes end within the record");
    expect(Wire::Decode(toClip, BytesOf(bytes + "xy"), clip), Fault::Bytes, "invalid bytes: 2 more follow the record");
    expect(Wire::Decode(toClip, BytesOf("\x10 clip"), clip), Fault::Bytes,
           "invalid bytes: a value has the unknown type 16");
    expect(Wire::Decode(Data::Clips::ThriftToAnglesGroupConverter(), BytesOf(std::string_view("\0", 1)), group),
           Fault::Bytes, "invalid bytes: a required field is missing");
    expect(Wire::Decode(toClip, BytesOf(bytes), clip, {.message = 100}), Fault::Bounds,
           "bound exceeded: a message of " + std::to_string(bytes.size()) + " bytes exceeds the bound of 100");
    expect(Wire::Decode(toClip, BytesOf(bytes), clip, bounds), Fault::Bounds,
           "bound exceeded: values nest deeper than 1");
    expect(Wire::Decode(toClip, BytesOf(std::string_view("\0", 1)), clip), Fault::Conversion,
           "conversion failed: Clip is empty");
    EXPECT_EQ(clip, Corvane::Data::Clips::Clip());

    Commands::Generated::CreateClipsCommandParams record;
    record.clips.resize(2);
    record.clips[1].clip.__set_inBoundTodTimecode("today");
    CreateClipsCommandParams params;
    expect(
        Wire::Decode(Commands::ThriftToCreateClipsCommandParamsConverter(), BytesOf(Written(record)), params),
        Fault::Value,
        "invalid value: clips[1].clip.inBoundTodTimecode: TalvoTimeCodeParser the string 'today' has not the expected "
        "format.");
}

TEST(Codec, KeepsNothingOfAnEarlierMessageInAReusedRecord)
{
    WireClip record;
    Wire::BinaryWriter writer;
    ASSERT_TRUE(Wire::Encode(Data::Clips::ClipToThriftConverter(), FullClip(), record, writer).Success());
    auto const full = std::string(writer.Text());
    writer.Truncate();
    ASSERT_TRUE(Wire::Encode(Data::Clips::ClipToThriftConverter(), FullClip(), record, writer).Success());
    EXPECT_EQ(writer.Text(), full) << "a converter appends user bits to a used record";

    Corvane::Data::Clips::Clip clip;
    ASSERT_TRUE(Wire::Decode(Data::Clips::ThriftToClipConverter(), BytesOf(full), record, clip).Success());
    Corvane::Data::Clips::Clip bare;
    std::string const umIdOnly("\x0b\0\1\0\0\0\4umId\0", 12);
    ASSERT_TRUE(Wire::Decode(Data::Clips::ThriftToClipConverter(), BytesOf(umIdOnly), record, bare).Success());
    Corvane::Data::Clips::Clip expected;
    ASSERT_TRUE(Wire::Decode(Data::Clips::ThriftToClipConverter(), BytesOf(umIdOnly), expected).Success());
    EXPECT_EQ(bare, expected);
    EXPECT_FALSE(record.__isset.name || record.__isset.userBits || record.name.__isset.data);
}

/// Fails without a conversion.
class FailingConverter : public Common::Serialization::Converter<int, WireClip>
{
public:
    using Result = Common::Serialization::ConversionResult;
    Result To(int const&, WireClip&) const noexcept override { return {false, "no clip"}; }
    Result To(int&&, WireClip&) const noexcept override { return {false, "no clip"}; }
};

TEST(Codec, LeavesTheWriterUnchangedOnFailure)
{
    Wire::BinaryWriter writer;
    writer.writeByte('x');
    auto const result = Wire::Encode(FailingConverter(), 1, writer);
    EXPECT_EQ(result.fault, Fault::Conversion);
    EXPECT_EQ(result.message, "conversion failed: no clip");
    EXPECT_EQ(writer.Text(), "x");
}

} // namespace
} // namespace Talvo::Tests
