#include "generated/AnglesGroup_types.h"
#include "generated/Clip_types.h"
#include "generated/DialCommandParams_types.h"
#include "generated/LiveCommandParams_types.h"
#include "generated/LoadBoundary_types.h"
#include "generated/MultiviewerDataOverrides_types.h"
#include "generated/OperationStatus_types.h"
#include "generated/Tag_types.h"
#include "tests/Thrift/Converters.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

namespace Talvo::Tests
{
namespace
{

using namespace Talvo::Corvane::Data::Generated;
using namespace Talvo::Corvane::Data::Clips::Groups::Generated;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::Generated;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::Generated;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands::Generated;

Guid NewGuid(std::string const& value)
{
    Guid guid;
    guid.value = value;
    return guid;
}

TEST(RecordPrinting, ShowsBytesOfTextsAsTheyAre)
{
    EXPECT_EQ(Printed(NewGuid(std::string("a\0\"\\\xFF)", 6))), std::string("Guid(value=a\0\"\\\xFF))", 18));
}

TEST(RecordPrinting, ShowsNullForUnsetOptionalFieldsOnly)
{
    OperationStatus status;
    status.status = OperationStatusStatus::Pending; // a value without its flag is not shown
    EXPECT_EQ(Printed(status), "OperationStatus(status=<null>, result=<null>)");
    status.__set_status(OperationStatusStatus::Succeeded);
    EXPECT_EQ(Printed(status), "OperationStatus(status=2, result=<null>)");
    status.__set_result(OperationResult::Success);
    EXPECT_EQ(Printed(status), "OperationStatus(status=2, result=0)");

    PlayerDataOverrides overrides;
    overrides.__set_clipCreationIn(-9223372036854775807 - 1);
    overrides.__set_isFirstControlledMediaOutput(true);
    overrides.__set_isPostRollEnabled(false);
    overrides.__set_message("");
    MultiviewerDataOverrides list;
    list.playersData.resize(1);
    list.playersData.push_back(overrides);
    EXPECT_EQ(Printed(list),
              "MultiviewerDataOverrides(playersData=["
              "PlayerDataOverrides(playerGuid=Guid(value=), clipCreationIn=<null>, clipCreationOut=<null>, "
              "isFirstControlledMediaOutput=<null>, controlMode=<null>, programMode=<null>, "
              "isPostRollEnabled=<null>, message=<null>), "
              "PlayerDataOverrides(playerGuid=Guid(value=), clipCreationIn=-9223372036854775808, "
              "clipCreationOut=<null>, isFirstControlledMediaOutput=1, controlMode=<null>, programMode=<null>, "
              "isPostRollEnabled=0, message=)])");

    SpecializedLoadBoundary boundary;
    boundary.__set_relativeLoadBoundary({});
    EXPECT_EQ(Printed(boundary), "SpecializedLoadBoundary(absoluteLoadBoundary=<null>, "
                                 "relativeLoadBoundary=RelativeLoadBoundary(fieldCount=0))");
}

TEST(RecordPrinting, ShowsEnumerationsAsNumbersWhereverTheyStand)
{
    EXPECT_EQ(Printed(Camera::X), "13");
    EXPECT_EQ(to_string(Camera::X), "13");
    EXPECT_EQ(Printed(Camera::type{-1}), "-1");

    AnglesGroup group;
    group.angles[Camera::Z].preferencialCamera = PreferentialCamera::Secondary;
    group.angles[Camera::type{1000}].clipId = NewGuid("clip");
    EXPECT_EQ(Printed(group), "AnglesGroup(id=Guid(value=), angles={"
                              "15: AnglesGroupItem(clipId=Guid(value=), preferencialCamera=2), "
                              "1000: AnglesGroupItem(clipId=Guid(value=clip), preferencialCamera=0)})");
}

TEST(RecordPrinting, ShowsContainers)
{
    Tag tag;
    EXPECT_EQ(Printed(tag), "Tag(id=0, commandType=0, field=0, properties={})");
    tag.properties[TagPropertyKey::Name].dataType = TagPropertyType::String;
    tag.properties[TagPropertyKey::Name].value = {1, -2147483647 - 1};
    tag.properties[TagPropertyKey::Levels].dataType = TagPropertyType::Vector;
    EXPECT_EQ(Printed(tag), "Tag(id=0, commandType=0, field=0, properties={"
                            "6: TagProperty(dataType=2, value=[1, -2147483648]), "
                            "15: TagProperty(dataType=3, value=[])})");

    DialCommandParams dial;
    EXPECT_EQ(Printed(dial), "DialCommandParams(commandGuid=Guid(value=), players={}, velocity=0)");
    dial.players = {NewGuid("b"), NewGuid("a")};
    EXPECT_EQ(Printed(dial), "DialCommandParams(commandGuid=Guid(value=), "
                             "players={Guid(value=a), Guid(value=b)}, velocity=0)");

    LiveCommandParams live;
    live.players = {{NewGuid("p"), NewGuid("r")}, {NewGuid(""), NewGuid("s")}};
    EXPECT_EQ(Printed(live), "LiveCommandParams(commandGuid=Guid(value=), "
                             "players={Guid(value=): Guid(value=s), Guid(value=p): Guid(value=r)})");
}

TEST(RecordPrinting, ShowsAFreshClip)
{
    EXPECT_EQ(Printed(Clip()),
              "Clip(umId=, sourceUmId=, fillAndKeyUmId=, materialId=, name=AsciiOrUtf16String(data=, isUtf16=0), "
              "varId=AsciiOrUtf16String(data=, isUtf16=0), keywords=[], userBits=[], is3D=0, isDual=0, isTwinRec=0, "
              "isLegacyTimecodeDrop=0, trainStatus=0, sourceEngine=<null>, uhdDivisionMode=<null>, "
              "hdrProfile=<null>, alphaArchiveStatus=<null>, archiveStatus=0, fillAndKeyStatus=<null>, "
              "userProtect=0, camera=0, afdAspectRatio=<null>, codedFrameAspectRatio=<null>, videoFormat=0, "
              "videoStandard=0, userTimecodeType=0, primaryTimecode=<null>, rating=<null>, "
              "preferentialCamera=<null>, inBoundField=0, shortInBoundField=0, shortOutBoundField=0, "
              "outBoundField=0, legacyTimecodeOffset=0, kviIndex=0, userLock=0, thumbnailOffset=0, sequence=0, "
              "machineSerial=0, nbAudioVideoChannels=0, dolbyMonoSignal=0, inBoundTodTimecode=<null>, "
              "inBoundUserTimecode=<null>, sourceInBoundTodTimecode=<null>, sourceInBoundUserTimecode=<null>, "
              "inBoundTimepoint=<null>, intraEssence=<null>, longGopEssence=<null>, lowResEssence=<null>)");
}

TEST(RecordPrinting, IgnoresTheNumberFormatOfTheStream)
{
    DialCommandParams dial;
    dial.velocity = 255;
    std::ostringstream text;
    text << std::hex << std::showbase << std::boolalpha << dial << ' ' << Camera::X;
    EXPECT_EQ(text.str(), "DialCommandParams(commandGuid=Guid(value=), players={}, velocity=255) 13");
}

} // namespace
} // namespace Talvo::Tests
