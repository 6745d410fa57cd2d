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

auto Converted(auto const value)
{
    using namespace Thrift::Data;
    using namespace Channels::EnumConverter;
    using namespace Clips::EnumConverter;
    using namespace Sequences::EnumConverter;
    if constexpr (requires { ToGeneratedEnum(value); })
        return ToGeneratedEnum(value);
    else if constexpr (requires { FromGeneratedEnum(value); })
        return FromGeneratedEnum(value);
    else if constexpr (requires { OperationResultConverter::To(value); })
        return OperationResultConverter::To(value);
    else
        return OperationStatusConverter::To(value);
}

template<typename TDomain, typename TWire>
Table EnumTable(std::string name, std::vector<std::int32_t> domainNumbers)
{
    return {std::move(name), [](std::int32_t number) { return std::int32_t{Converted(static_cast<TDomain>(number))}; },
            [](std::int32_t number) { return static_cast<std::int32_t>(Converted(static_cast<TWire>(number))); },
            std::move(domainNumbers)};
}

template<typename TDomain, typename TWire>
Table EnumTable(std::string name, std::int32_t const count)
{
    return EnumTable<TDomain, TWire>(std::move(name), EqualNumbers(count));
}

std::vector<Table> Tables()
{
    using namespace Domain::Channels;
    using namespace Domain::Clips;
    using namespace Domain::Sequences;
    return {
        EnumTable<TrainStatus, WireClips::TrainStatus::type>("trainStatus", 3),
        EnumTable<SourceEngine, WireClips::SourceEngine::type>("sourceEngine", 4),
        EnumTable<UhdDivisionMode, WireClips::UhdDivisionMode::type>("uhdDivisionMode", 3),
        EnumTable<HdrProfile, WireClips::HdrProfile::type>("hdrProfile", 6),
        EnumTable<AlphaArchiveStatus, WireClips::AlphaArchiveStatus::type>("alphaArchiveStatus", 3),
        EnumTable<ArchiveStatus, WireClips::ArchiveStatus::type>("archiveStatus", 3),
        EnumTable<FillAndKeyStatus, WireClips::FillAndKeyStatus::type>("fillAndKeyStatus", 3),
        EnumTable<Camera, WireClips::Camera::type>("camera", 16),
        EnumTable<AfdAspectRatio, WireClips::AfdAspectRatio::type>("afdAspectRatio", 4),
        EnumTable<CodedFrameAspectRatio, WireClips::CodedFrameAspectRatio::type>("codedFrameAspectRatio", 3),
        EnumTable<VideoFormat, WireClips::VideoFormat::type>("videoFormat", 6),
        EnumTable<VideoStandard, WireClips::VideoStandard::type>("videoStandard", 2),
        EnumTable<TimecodeType, WireClips::TimecodeType::type>("timecodeType", 3),
        EnumTable<PrimaryTimecode, WireClips::PrimaryTimecode::type>("primaryTimecode", 3),
        EnumTable<Rating, WireClips::Rating::type>("rating", 4),
        EnumTable<PreferentialCamera, WireClips::PreferentialCamera::type>("preferentialCamera", 3),
        EnumTable<Essences::Type, WireClips::Type::type>("essType", 3),
        EnumTable<Essences::RecordingStatus, WireClips::RecordingStatus::type>("recordingStatus", 5),
        EnumTable<Essences::ArchiveStatus, WireClips::EssenceArchiveStatus::type>("essenceArchiveStatus", 2),
        EnumTable<Essences::Metadata, WireClips::Metadata::type>("metadata", 5),
        EnumTable<Essences::BlockSize, WireClips::BlockSize::type>("blockSize", {0, 2, 4, 5}),
        EnumTable<Essences::VideoCompressionType, WireClips::VideoCompressionType::type>("videoCompressionType", 26),
        EnumTable<Essences::AudioCompressionType, WireClips::AudioCompressionType::type>("audioCompressionType", 3),
        EnumTable<Essences::VideoCompressionInfo, WireClips::VideoCompressionInfo::type>("videoCompressionInfo", 11),
        EnumTable<Essences::AudioConfiguration, WireClips::AudioConfiguration::type>("audioConfiguration", 8),
        EnumTable<PlayerModeStatus, WireChannels::PlayerModeStatus::type>("playerModeStatus", 6),
        EnumTable<PlayerModeType, WireChannels::PlayerModeType::type>("playerModeType", 14),
        EnumTable<PlayingLoopMode, WireChannels::PlayingLoopMode::type>("playingLoopMode", 4),
        EnumTable<PlayoutConfig, WireChannels::PlayoutConfig::type>("playoutConfig", 8),
        EnumTable<RecorderModeStatus, WireChannels::RecorderModeStatus::type>("recorderModeStatus", 3),
        EnumTable<TagProperty::Type, WireSequences::TagPropertyType::type>("tagPropertyType", 4),
        EnumTable<TagProperty::Key, WireSequences::TagPropertyKey::type>("tagPropertyKey", 18),
        EnumTable<Tag::CommandType, WireSequences::CommandType::type>("commandType", 15),
        EnumTable<BoundaryType, WireSequences::BoundaryType::type>("boundaryType", 4),
        EnumTable<EffectPosition, WireSequences::EffectPosition::type>("effectPosition", 4),
        EnumTable<StillMode, WireSequences::StillMode::type>("stillMode", 5),
        EnumTable<VideoEffectType, WireSequences::VideoEffectType::type>("videoEffectType", 21),
        EnumTable<AudioEffectType, WireSequences::AudioEffectType::type>("audioEffectType", 9),
        EnumTable<TimeCodeRegenBase, WireSequences::TimeCodeRegenBase::type>("timeCodeRegenBase", 2),
        EnumTable<TimeCodeRegenSource, WireSequences::TimeCodeRegenSource::type>("timeCodeRegenSource", 4),
        EnumTable<TimeCodeRegenOutput, WireSequences::TimeCodeRegenOutput::type>("timeCodeRegenOutput",
                                                                                 {0, 1, 2, 65535}),
        EnumTable<TimeCodeRegenType, WireSequences::TimeCodeRegenType::type>("timeCodeRegenType", 2),
        EnumTable<Domain::OperationResult, Wire::OperationResult::type>("operationResult",
                                                                        {0, 1, 8, 2, 3, 4, 5, 6, 7, 9, 10, 11}),
        EnumTable<Domain::OperationStatus::Status, Wire::OperationStatusStatus::type>("operationStatus", 4),
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
