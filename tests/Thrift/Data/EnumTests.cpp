#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Data/OperationStatusConverter.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/EnumAssociation.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <set>
#include <string>
#include <tuple>
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

enum class Left : std::int32_t
{
};
enum class Right : std::int32_t
{
};
using Pair = std::pair<Left const, Right const>;
using Association = Thrift::EnumAssociation<Left, Right>;

constexpr Pair Numbers(std::int32_t const left, std::int32_t const right)
{
    return {static_cast<Left>(left), static_cast<Right>(right)};
}

/// Both directions are maps into which the pairs went in their order.
void ExpectAsMaps(std::initializer_list<Pair> const pairs)
{
    Association const association(pairs);
    std::map<Left, Right> forward;
    std::map<Right, Left> backward;
    std::set<std::int32_t> asked{0, 1, -1, 31, 32};
    for (auto const& [left, right] : pairs)
    {
        forward.emplace(left, right);
        backward.emplace(right, left);
        for (auto const number : {static_cast<std::int32_t>(left), static_cast<std::int32_t>(right)})
            for (auto const distance : {-64, -32, -1, 0, 1, 32, 64})
                asked.insert(static_cast<std::int32_t>(std::int64_t{number} + distance));
    }
    for (auto const number : asked)
    {
        auto const left = static_cast<Left>(number);
        auto const right = static_cast<Right>(number);
        EXPECT_EQ(association.ToGeneratedEnum(left), forward.contains(left) ? forward.at(left) : Right{}) << number;
        EXPECT_EQ(association.FromGeneratedEnum(right), backward.contains(right) ? backward.at(right) : Left{})
            << number;
    }
}

TEST(EnumTables, AnyListOfPairsMakesATable)
{
    constexpr auto Least = std::numeric_limits<std::int32_t>::min();
    constexpr auto Most = std::numeric_limits<std::int32_t>::max();
    ExpectAsMaps({});
    ExpectAsMaps({Numbers(1, 0)});
    ExpectAsMaps({Numbers(0, 7), Numbers(7, 0)});
    ExpectAsMaps({Numbers(-1, -32), Numbers(Least, Most), Numbers(Most, -1), Numbers(-32, Least)});
    // The first pair of a value stays, on either side and both, in its slot and in the memory of the others.
    ExpectAsMaps({Numbers(0, 0), Numbers(0, 1)});
    ExpectAsMaps({Numbers(0, 1), Numbers(1, 1), Numbers(0, 1)});
    ExpectAsMaps({Numbers(1, 2), Numbers(33, 34), Numbers(33, 66), Numbers(65, 34), Numbers(1, 3), Numbers(4, 2)});
    // Low five bits that are equal: with 0 last, which is also what a free slot holds, and with 1 in its place.
    ExpectAsMaps({Numbers(32, 33), Numbers(64, 1), Numbers(0, 65), Numbers(1, 0)});
    ExpectAsMaps({Numbers(33, 64), Numbers(1, 32), Numbers(65, 0)});

    static constexpr auto all = []<std::int32_t... number>(std::integer_sequence<std::int32_t, number...>)
    {
        return std::array{Numbers(number * 5 - 100, 7 - number)...};
    }
    (std::make_integer_sequence<std::int32_t, 100>());
    std::apply([](auto const&... pairs) { ExpectAsMaps({pairs...}); }, all); // more than there are slots
}

// As the tables are: nothing runs when the library is loaded, so other static initialisers may convert.
constexpr Association constant{Numbers(0, 0), Numbers(1, 33), Numbers(2, -1)};
static_assert(constant.ToGeneratedEnum(static_cast<Left>(2)) == static_cast<Right>(-1));
static_assert(constant.FromGeneratedEnum(static_cast<Right>(33)) == static_cast<Left>(1));
static_assert(constant.ToGeneratedEnum(static_cast<Left>(34)) == static_cast<Right>(0));

} // namespace
} // namespace Talvo::Tests
