#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Data/OperationStatusConverter.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/EnumAssociation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::Tests
{
namespace
{

namespace Domain = Corvane::Data;
namespace Thrift = Corvane::Zelmar::Serialization::Thrift;
namespace Wire = Corvane::Data::Generated;
namespace WireChannels = Thrift::Data::Channels::Generated;
namespace WireClips = Thrift::Data::Clips::Generated;
namespace WireSequences = Thrift::Data::Sequences::Generated;

/// One table: its lookups on plain numbers, and the domain number of each wire number.
struct Table
{
    std::string name;
    std::function<std::int32_t(std::int32_t)> toWire;
    std::function<std::int32_t(std::int32_t)> toDomain;
    std::vector<std::int32_t> domainNumbers;
};

std::vector<std::int32_t> EqualNumbers(std::int32_t const count)
{
    std::vector<std::int32_t> numbers;
    for (std::int32_t number = 0; number < count; ++number) numbers.push_back(number);
    return numbers;
}

template<typename TDomain, typename TWire>
Table EnumTable(std::string name, std::vector<std::int32_t> domainNumbers)
{
    using namespace Thrift::Data::Channels::EnumConverter;
    using namespace Thrift::Data::Clips::EnumConverter;
    using namespace Thrift::Data::Sequences::EnumConverter;
    return {std::move(name),
            [](std::int32_t number) { return std::int32_t{ToGeneratedEnum(static_cast<TDomain>(number))}; },
            [](std::int32_t number)
            { return static_cast<std::int32_t>(FromGeneratedEnum(static_cast<TWire>(number))); },
            std::move(domainNumbers)};
}

std::vector<Table> Tables()
{
    using namespace Domain::Channels;
    using namespace Domain::Clips;
    using namespace Domain::Sequences;
    return {
        EnumTable<TrainStatus, WireClips::TrainStatus::type>("trainStatus", EqualNumbers(3)),
        EnumTable<SourceEngine, WireClips::SourceEngine::type>("sourceEngine", EqualNumbers(4)),
        EnumTable<UhdDivisionMode, WireClips::UhdDivisionMode::type>("uhdDivisionMode", EqualNumbers(3)),
        EnumTable<HdrProfile, WireClips::HdrProfile::type>("hdrProfile", EqualNumbers(6)),
        EnumTable<AlphaArchiveStatus, WireClips::AlphaArchiveStatus::type>("alphaArchiveStatus", EqualNumbers(3)),
        EnumTable<ArchiveStatus, WireClips::ArchiveStatus::type>("archiveStatus", EqualNumbers(3)),
        EnumTable<FillAndKeyStatus, WireClips::FillAndKeyStatus::type>("fillAndKeyStatus", EqualNumbers(3)),
        EnumTable<Camera, WireClips::Camera::type>("camera", EqualNumbers(16)),
        EnumTable<AfdAspectRatio, WireClips::AfdAspectRatio::type>("afdAspectRatio", EqualNumbers(4)),
        EnumTable<CodedFrameAspectRatio, WireClips::CodedFrameAspectRatio::type>("codedFrameAspectRatio",
                                                                                 EqualNumbers(3)),
        EnumTable<VideoFormat, WireClips::VideoFormat::type>("videoFormat", EqualNumbers(6)),
        EnumTable<VideoStandard, WireClips::VideoStandard::type>("videoStandard", EqualNumbers(2)),
        EnumTable<TimecodeType, WireClips::TimecodeType::type>("timecodeType", EqualNumbers(3)),
        EnumTable<PrimaryTimecode, WireClips::PrimaryTimecode::type>("primaryTimecode", EqualNumbers(3)),
        EnumTable<Rating, WireClips::Rating::type>("rating", EqualNumbers(4)),
        EnumTable<PreferentialCamera, WireClips::PreferentialCamera::type>("preferentialCamera", EqualNumbers(3)),
        EnumTable<Essences::Type, WireClips::Type::type>("essType", EqualNumbers(3)),
        EnumTable<Essences::RecordingStatus, WireClips::RecordingStatus::type>("recordingStatus", EqualNumbers(5)),
        EnumTable<Essences::ArchiveStatus, WireClips::EssenceArchiveStatus::type>("essenceArchiveStatus",
                                                                                  EqualNumbers(2)),
        EnumTable<Essences::Metadata, WireClips::Metadata::type>("metadata", EqualNumbers(5)),
        EnumTable<Essences::BlockSize, WireClips::BlockSize::type>("blockSize", {0, 2, 4, 5}),
        EnumTable<Essences::VideoCompressionType, WireClips::VideoCompressionType::type>("videoCompressionType",
                                                                                         EqualNumbers(26)),
        EnumTable<Essences::AudioCompressionType, WireClips::AudioCompressionType::type>("audioCompressionType",
                                                                                         EqualNumbers(3)),
        EnumTable<Essences::VideoCompressionInfo, WireClips::VideoCompressionInfo::type>("videoCompressionInfo",
                                                                                         EqualNumbers(11)),
        EnumTable<Essences::AudioConfiguration, WireClips::AudioConfiguration::type>("audioConfiguration",
                                                                                     EqualNumbers(8)),
        EnumTable<PlayerModeStatus, WireChannels::PlayerModeStatus::type>("playerModeStatus", EqualNumbers(6)),
        EnumTable<PlayerModeType, WireChannels::PlayerModeType::type>("playerModeType", EqualNumbers(14)),
        EnumTable<PlayingLoopMode, WireChannels::PlayingLoopMode::type>("playingLoopMode", EqualNumbers(4)),
        EnumTable<PlayoutConfig, WireChannels::PlayoutConfig::type>("playoutConfig", EqualNumbers(8)),
        EnumTable<RecorderModeStatus, WireChannels::RecorderModeStatus::type>("recorderModeStatus", EqualNumbers(3)),
        EnumTable<TagProperty::Type, WireSequences::TagPropertyType::type>("tagPropertyType", EqualNumbers(4)),
        EnumTable<TagProperty::Key, WireSequences::TagPropertyKey::type>("tagPropertyKey", EqualNumbers(18)),
        EnumTable<Tag::CommandType, WireSequences::CommandType::type>("commandType", EqualNumbers(15)),
        EnumTable<BoundaryType, WireSequences::BoundaryType::type>("boundaryType", EqualNumbers(4)),
        EnumTable<EffectPosition, WireSequences::EffectPosition::type>("effectPosition", EqualNumbers(4)),
        EnumTable<StillMode, WireSequences::StillMode::type>("stillMode", EqualNumbers(5)),
        EnumTable<VideoEffectType, WireSequences::VideoEffectType::type>("videoEffectType", EqualNumbers(21)),
        EnumTable<AudioEffectType, WireSequences::AudioEffectType::type>("audioEffectType", EqualNumbers(9)),
        EnumTable<TimeCodeRegenBase, WireSequences::TimeCodeRegenBase::type>("timeCodeRegenBase", EqualNumbers(2)),
        EnumTable<TimeCodeRegenSource, WireSequences::TimeCodeRegenSource::type>("timeCodeRegenSource",
                                                                                 EqualNumbers(4)),
        EnumTable<TimeCodeRegenOutput, WireSequences::TimeCodeRegenOutput::type>("timeCodeRegenOutput",
                                                                                 {0, 1, 2, 65535}),
        EnumTable<TimeCodeRegenType, WireSequences::TimeCodeRegenType::type>("timeCodeRegenType", EqualNumbers(2)),
        {"operationResult",
         [](std::int32_t number) {
             return std::int32_t{
                 Thrift::Data::OperationResultConverter::To(static_cast<Domain::OperationResult>(number))};
         },
         [](std::int32_t number)
         {
             return static_cast<std::int32_t>(
                 Thrift::Data::OperationResultConverter::To(static_cast<Wire::OperationResult::type>(number)));
         },
         {0, 1, 8, 2, 3, 4, 5, 6, 7, 9, 10, 11}},
        {"operationStatus",
         [](std::int32_t number)
         {
             return std::int32_t{
                 Thrift::Data::OperationStatusConverter::To(static_cast<Domain::OperationStatus::Status>(number))};
         },
         [](std::int32_t number)
         {
             return static_cast<std::int32_t>(
                 Thrift::Data::OperationStatusConverter::To(static_cast<Wire::OperationStatusStatus::type>(number)));
         },
         EqualNumbers(4)},
    };
}

TEST(EnumTables, EveryEnumeratorThereAndBackAndAllOthersToZero)
{
    for (auto const& table : Tables())
    {
        SCOPED_TRACE(table.name);
        auto const count = static_cast<std::int32_t>(table.domainNumbers.size());
        for (std::int32_t wire = 0; wire < count; ++wire)
        {
            EXPECT_EQ(table.toDomain(wire), table.domainNumbers[static_cast<std::size_t>(wire)]);
            EXPECT_EQ(table.toWire(table.domainNumbers[static_cast<std::size_t>(wire)]), wire);
        }
        auto const last = table.domainNumbers.back();
        for (auto const outside : {-1, count, 32, 33, 1 << 16, std::numeric_limits<std::int32_t>::min()})
            EXPECT_EQ(table.toDomain(outside), 0) << outside;
        for (auto const outside : {-1, last + 1, 32, 33, 1 << 16, std::numeric_limits<std::int32_t>::min()})
            EXPECT_EQ(table.toWire(outside), 0) << outside;
    }
}

TEST(EnumTables, BlockSizesWithoutAPairReadBackAsZero)
{
    using namespace Thrift::Data::Clips::EnumConverter;
    using Domain::Clips::Essences::BlockSize;
    for (auto const number : {1, 3})
    {
        auto const wire = ToGeneratedEnum(static_cast<BlockSize>(number));
        EXPECT_EQ(wire, WireClips::BlockSize::Unknown);
        EXPECT_EQ(FromGeneratedEnum(wire), BlockSize::Unknown);
    }
}

TEST(EnumTables, AllOutputsAreAMaskInTheDomain)
{
    using Domain::Sequences::TimeCodeRegenOutput;
    using Thrift::Data::Sequences::EnumConverter::ToGeneratedEnum;
    for (auto const number : {3, 31, 65534}) // the wire's number, one that shares the slot of the mask, one less
        EXPECT_EQ(ToGeneratedEnum(static_cast<TimeCodeRegenOutput>(number)), WireSequences::TimeCodeRegenOutput::None);
}

// In constant data, as all tables are, these don't compile.
TEST(EnumTables, PairsThatWouldNotBeFoundBothWaysAreRefused)
{
    enum class Left
    {
        Zero,
        One,
        SharesTheSlotOfOne = 33
    };
    enum class Right
    {
        Zero,
        One,
        Two
    };
    using Association = Thrift::EnumAssociation<Left, Right>;
    EXPECT_THROW((Association{{Left::Zero, Right::Zero}, {Left::Zero, Right::One}}), std::logic_error);
    EXPECT_THROW((Association{{Left::Zero, Right::Zero}, {Left::One, Right::Zero}}), std::logic_error);
    EXPECT_THROW((Association{{Left::Zero, Right::One}, {Left::One, Right::One}}), std::logic_error);
    EXPECT_THROW((Association{{Left::One, Right::One}, {Left::SharesTheSlotOfOne, Right::Two}}), std::logic_error);
}

} // namespace
} // namespace Talvo::Tests
