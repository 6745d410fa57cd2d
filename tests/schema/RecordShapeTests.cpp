#include "records/RecordType.h"

#include "generated/Clip_constants.h"
#include "generated/Clip_types.h"
#include "generated/OperationResult_constants.h"
#include "generated/OperationStatus_types.h"
#include "generated/PlayerDataOverrides_types.h"
#include "generated/TagProperty_types.h"
#include "generated/UpdateAnglesGroupCommandParams_types.h"

#include <gmock/gmock.h>

#include <array>
#include <fstream>
#include <map>
#include <new>
#include <set>
#include <string>
#include <type_traits>

namespace Talvo::Tests
{
namespace
{

using namespace Talvo::Corvane::Data::Generated;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift;
using Commands::Generated::UpdateAnglesGroupCommandParams;
using Data::Clips::Generated::ClipConstants;
using testing::ElementsAre;
using testing::Pair;

TEST(RecordShape, HasThePublishedFingerprints)
{
    std::map<std::string, std::string> published, fingerprints;
    std::ifstream file(TALVO_FINGERPRINTS);
    for (std::string fingerprint, name; file >> fingerprint >> name;) published[name] = fingerprint;
    EXPECT_EQ(published.size(), 113U);
    for (auto const& type : Records::RecordTypes())
    {
        auto const& fingerprint = fingerprints[std::string(type.name)] = type.asciiFingerprint;
        for (std::size_t i = 0; i < type.binaryFingerprint.size(); ++i)
            EXPECT_EQ(type.binaryFingerprint[i], std::stoi(fingerprint.substr(2 * i, 2), nullptr, 16))
                << type.name << ", byte " << i;
    }
    EXPECT_EQ(fingerprints, published);
}

TEST(RecordShape, HasFlagsUnlessAllFieldsAreRequired)
{
    std::set<std::string_view> withoutFlags;
    for (auto const& type : Records::RecordTypes())
        if (!type.hasFlags) withoutFlags.insert(type.name);
    EXPECT_THAT(withoutFlags, ElementsAre("Angle", "AnglesGroup", "AnglesGroupCreationEventArgs",
                                          "AnglesGroupCreationFailedEventArgs", "AnglesGroupCreationFinishedEventArgs",
                                          "AnglesGroupDeletionEventArgs", "AnglesGroupDeletionFailedEventArgs",
                                          "AnglesGroupDeletionFinishedEventArgs", "AnglesGroupItem",
                                          "AnglesGroupUpdateEventArgs", "AnglesGroupUpdateFailedEventArgs",
                                          "AnglesGroupUpdateFinishedEventArgs", "DeleteAnglesGroupCommandParams",
                                          "GetMultiviewerDataCommandParams", "GetMultiviewerDataCommandReply",
                                          "MultiviewerDataOverrides", "SetMultiviewerDataCommandParams"));
}

TEST(RecordShape, StartsWithZerosAndClearFlags)
{
    // Built on memory that holds other bytes, so that a field without initial value shows.
    alignas(PlayerDataOverrides) std::array<unsigned char, sizeof(PlayerDataOverrides)> memory;
    memory.fill(0xAB);
    auto* const record = new (memory.data()) PlayerDataOverrides;
    EXPECT_EQ(record->clipCreationIn, 0);
    EXPECT_EQ(record->controlMode, 0);
    EXPECT_FALSE(record->isPostRollEnabled);
    EXPECT_FALSE(record->__isset.clipCreationIn || record->__isset.controlMode || record->__isset.message);
    record->~PlayerDataOverrides();
}

TEST(RecordShape, SettersOfOptionalFieldsAloneSetTheFlag)
{
    Guid guid;
    guid.__set_value("sixteen raw byte");
    EXPECT_EQ(guid.value, "sixteen raw byte");
    EXPECT_FALSE(guid.__isset.value);

    UpdateAnglesGroupCommandParams params;
    params.__set_groupGuid(guid);
    params.__set_secondaryAngle(guid);
    EXPECT_EQ(params.groupGuid, guid);
    EXPECT_EQ(params.secondaryAngle, guid);
    EXPECT_FALSE(params.__isset.primaryAngle);
    EXPECT_TRUE(params.__isset.secondaryAngle);
}

TEST(RecordShape, CopiesMovesAndSwapsFlagsWithTheValues)
{
    Guid unflagged;
    unflagged.__set_value("unflagged");
    EXPECT_FALSE(Guid(unflagged).__isset.value);
    Guid flagged;
    flagged.value = "flagged, in a text too long for the string itself";
    flagged.__isset.value = true;

    Guid copy(unflagged);
    copy = flagged;
    EXPECT_EQ(copy.value, flagged.value);
    EXPECT_TRUE(copy.__isset.value);

    auto const* const bytes = copy.value.data();
    Guid moved(std::move(copy));
    EXPECT_EQ(moved.value.data(), bytes);
    EXPECT_TRUE(moved.__isset.value);
    Guid assigned;
    assigned = std::move(moved);
    EXPECT_EQ(assigned.value.data(), bytes);
    EXPECT_TRUE(assigned.__isset.value);

    swap(assigned, unflagged);
    EXPECT_EQ(assigned.value, "unflagged");
    EXPECT_FALSE(assigned.__isset.value);
    EXPECT_EQ(unflagged.value, flagged.value);
    EXPECT_TRUE(unflagged.__isset.value);

    OperationStatus status, other;
    status.__set_status(OperationStatusStatus::Failed);
    other.__set_result(OperationResult::Unknown);
    swap(status, other);
    EXPECT_EQ(status.result, OperationResult::Unknown);
    EXPECT_TRUE(status.__isset.result && other.__isset.status);
    EXPECT_FALSE(status.__isset.status || other.__isset.result);
}

TEST(RecordShape, NamesItsEnumerators)
{
    EXPECT_EQ(Data::Clips::Generated::_Camera_VALUES_TO_NAMES.size(), 16U);
    EXPECT_STREQ(Data::Clips::Generated::_Camera_VALUES_TO_NAMES.at(13), "X");
    EXPECT_EQ(Data::Sequences::Generated::_TagPropertyKey_VALUES_TO_NAMES.size(), 18U);
    EXPECT_THAT(_ProgramMode_VALUES_TO_NAMES,
                ElementsAre(Pair(0, testing::StrEq("Program")), Pair(1, testing::StrEq("Preview"))));
}

// A schema file without records has its constants as well.
static_assert(std::is_empty_v<ClipConstants> && std::is_empty_v<OperationResultConstants>);

TEST(RecordShape, HasAConstantsObjectForEachFile)
{
    void const* const ofClip = &Data::Clips::Generated::g_Clip_constants;
    void const* const ofResult = &g_OperationResult_constants;
    EXPECT_NE(ofClip, ofResult);
}

} // namespace
} // namespace Talvo::Tests
