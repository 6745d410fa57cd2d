#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Multiviewer/Enums.h"
#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"
#include "Domain/CorvaneData/Servers/Enums.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetServersCommandParams.h"
#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Data/OperationStatusConverter.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/EnumAssociation.h"
#include "generated/GetPlaylistsCommandParams_types.h"
#include "generated/GetServersCommandParams_types.h"
#include "generated/PlayerDataOverrides_types.h"
#include "generated/ServerInfo_types.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <map>
#include <set>
#include <string_view>
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

constexpr auto Least = std::numeric_limits<int>::min();
constexpr auto Most = std::numeric_limits<int>::max();

using Names = std::map<int, std::string_view>;

/// Adds `value` if it is an enumerator. The compiler writes any other number as a cast.
template<auto value>
void AddEnumerator(Names& names)
{
    std::string_view const function = __PRETTY_FUNCTION__;
    auto const begin = function.find("value = ") + 8;
    auto const written = function.substr(begin, function.find_first_of(";]", begin) - begin);
    if (written[0] != '(') names.emplace(static_cast<int>(value), written.substr(written.rfind(':') + 1));
}

/// Returns the enumerators from -1 to 40, and 65535.
template<typename TEnum>
Names Enumerators()
{
    Names names;
    auto const add = [&]<int... numbers>(std::integer_sequence<int, numbers...>)
    {
        (AddEnumerator<static_cast<TEnum>(numbers)>(names), ...);
    };
    add(std::make_integer_sequence<int, 41>());
    add(std::integer_sequence<int, -1, 0xFFFF>());
    return names;
}

Names NumberedFromZero(std::initializer_list<char const*> const names)
{
    Names numbered;
    for (auto const* const name : names) numbered.emplace(static_cast<int>(numbered.size()), name);
    return numbered;
}

Names Copied(std::map<int, char const*> const& names)
{
    return {names.begin(), names.end()};
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

/// Compares a table with the names of its wire enumeration. Every enumerator must convert to the one of the same name,
/// in both directions, and all other numbers to 0. `domainNumbers` are the domain numbers by wire number, if they
/// differ.
template<typename TDomain>
void ExpectTable(std::map<int, char const*> const& wireNames, std::vector<int> const& domainNumbers = {})
{
    SCOPED_TRACE(__PRETTY_FUNCTION__);
    using TWire = decltype(Converted(TDomain()));
    auto const toDomain = [](int const wire) { return static_cast<int>(Converted(static_cast<TWire>(wire))); };
    auto const toWire = [](int const domain) { return static_cast<int>(Converted(static_cast<TDomain>(domain))); };

    Names names;
    for (auto const& [wire, name] : wireNames)
    {
        auto const domain = domainNumbers.empty() ? wire : domainNumbers.at(static_cast<std::size_t>(wire));
        names.emplace(domain, name);
        EXPECT_EQ(toDomain(wire), domain) << name;
        EXPECT_EQ(toWire(domain), wire) << name;
    }
    EXPECT_EQ(Enumerators<TDomain>(), names);

    std::vector<int> numbers{0xFFFE, 0xFFFF, 1 << 16, Least, Most};
    for (int number = -1; number < 70; ++number) numbers.push_back(number); // each slot of a table at least twice
    for (auto const number : numbers)
    {
        EXPECT_TRUE(wireNames.contains(number) || toDomain(number) == 0) << number;
        EXPECT_TRUE(names.contains(number) || toWire(number) == 0) << number;
    }
}

TEST(EnumTables, ConvertEnumeratorsByNameBothWaysAndOtherNumbersToZero)
{
    using namespace Domain::Channels;
    using namespace Domain::Clips;
    using namespace Domain::Sequences;
    ExpectTable<TrainStatus>(WireClips::_TrainStatus_VALUES_TO_NAMES);
    ExpectTable<SourceEngine>(WireClips::_SourceEngine_VALUES_TO_NAMES);
    ExpectTable<UhdDivisionMode>(WireClips::_UhdDivisionMode_VALUES_TO_NAMES);
    ExpectTable<HdrProfile>(WireClips::_HdrProfile_VALUES_TO_NAMES);
    ExpectTable<AlphaArchiveStatus>(WireClips::_AlphaArchiveStatus_VALUES_TO_NAMES);
    ExpectTable<ArchiveStatus>(WireClips::_ArchiveStatus_VALUES_TO_NAMES);
    ExpectTable<FillAndKeyStatus>(WireClips::_FillAndKeyStatus_VALUES_TO_NAMES);
    ExpectTable<Camera>(WireClips::_Camera_VALUES_TO_NAMES);
    ExpectTable<AfdAspectRatio>(WireClips::_AfdAspectRatio_VALUES_TO_NAMES);
    ExpectTable<CodedFrameAspectRatio>(WireClips::_CodedFrameAspectRatio_VALUES_TO_NAMES);
    ExpectTable<VideoFormat>(WireClips::_VideoFormat_VALUES_TO_NAMES);
    ExpectTable<VideoStandard>(WireClips::_VideoStandard_VALUES_TO_NAMES);
    ExpectTable<TimecodeType>(WireClips::_TimecodeType_VALUES_TO_NAMES);
    ExpectTable<PrimaryTimecode>(WireClips::_PrimaryTimecode_VALUES_TO_NAMES);
    ExpectTable<Rating>(WireClips::_Rating_VALUES_TO_NAMES);
    ExpectTable<PreferentialCamera>(WireClips::_PreferentialCamera_VALUES_TO_NAMES);
    ExpectTable<Essences::Type>(WireClips::_Type_VALUES_TO_NAMES);
    ExpectTable<Essences::RecordingStatus>(WireClips::_RecordingStatus_VALUES_TO_NAMES);
    ExpectTable<Essences::ArchiveStatus>(WireClips::_EssenceArchiveStatus_VALUES_TO_NAMES);
    ExpectTable<Essences::Metadata>(WireClips::_Metadata_VALUES_TO_NAMES);
    ExpectTable<Essences::BlockSize>(WireClips::_BlockSize_VALUES_TO_NAMES, {0, 2, 4, 5});
    ExpectTable<Essences::VideoCompressionType>(WireClips::_VideoCompressionType_VALUES_TO_NAMES);
    ExpectTable<Essences::AudioCompressionType>(WireClips::_AudioCompressionType_VALUES_TO_NAMES);
    ExpectTable<Essences::VideoCompressionInfo>(WireClips::_VideoCompressionInfo_VALUES_TO_NAMES);
    ExpectTable<Essences::AudioConfiguration>(WireClips::_AudioConfiguration_VALUES_TO_NAMES);
    ExpectTable<PlayerModeStatus>(WireChannels::_PlayerModeStatus_VALUES_TO_NAMES);
    ExpectTable<PlayerModeType>(WireChannels::_PlayerModeType_VALUES_TO_NAMES);
    ExpectTable<PlayingLoopMode>(WireChannels::_PlayingLoopMode_VALUES_TO_NAMES);
    ExpectTable<PlayoutConfig>(WireChannels::_PlayoutConfig_VALUES_TO_NAMES);
    ExpectTable<RecorderModeStatus>(WireChannels::_RecorderModeStatus_VALUES_TO_NAMES);
    ExpectTable<TagProperty::Type>(WireSequences::_TagPropertyType_VALUES_TO_NAMES);
    ExpectTable<TagProperty::Key>(WireSequences::_TagPropertyKey_VALUES_TO_NAMES);
    ExpectTable<Tag::CommandType>(WireSequences::_CommandType_VALUES_TO_NAMES);
    ExpectTable<BoundaryType>(WireSequences::_BoundaryType_VALUES_TO_NAMES);
    ExpectTable<EffectPosition>(WireSequences::_EffectPosition_VALUES_TO_NAMES);
    ExpectTable<StillMode>(WireSequences::_StillMode_VALUES_TO_NAMES);
    ExpectTable<VideoEffectType>(WireSequences::_VideoEffectType_VALUES_TO_NAMES);
    ExpectTable<AudioEffectType>(WireSequences::_AudioEffectType_VALUES_TO_NAMES);
    ExpectTable<TimeCodeRegenBase>(WireSequences::_TimeCodeRegenBase_VALUES_TO_NAMES);
    ExpectTable<TimeCodeRegenSource>(WireSequences::_TimeCodeRegenSource_VALUES_TO_NAMES);
    ExpectTable<TimeCodeRegenOutput>(WireSequences::_TimeCodeRegenOutput_VALUES_TO_NAMES, {0, 1, 2, 65535});
    ExpectTable<TimeCodeRegenType>(WireSequences::_TimeCodeRegenType_VALUES_TO_NAMES);
    ExpectTable<Domain::OperationResult>(Wire::_OperationResult_VALUES_TO_NAMES,
                                         {0, 1, 8, 2, 3, 4, 5, 6, 7, 9, 10, 11});
    ExpectTable<Domain::OperationStatus::Status>(Wire::_OperationStatusStatus_VALUES_TO_NAMES);
}

TEST(EnumNames, HaveTheirNumbersInEnumerationsWithoutATable)
{
    namespace Commands = Corvane::Zelmar::HighLevelOperations::Commands;
    namespace WireCommands = Thrift::Commands::Generated;
    using Corvane::Notification::ClipCreationEventArgs;
    using Domain::Channels::Boundary;

    // These have the numbers of the wire.
    EXPECT_EQ(Enumerators<Domain::Servers::ServerChassis>(),
              Copied(Thrift::Data::Servers::Generated::_ServerChassis_VALUES_TO_NAMES));
    EXPECT_EQ(Enumerators<Corvane::Multiviewer::ControlType>(), Copied(Wire::_ControlMode_VALUES_TO_NAMES));
    EXPECT_EQ(Enumerators<Corvane::Multiviewer::ProgramType>(), Copied(Wire::_ProgramMode_VALUES_TO_NAMES));
    EXPECT_EQ(Enumerators<Commands::GetServersCommandParams::ServerRange>(),
              Copied(WireCommands::_ServerRange_VALUES_TO_NAMES));
    EXPECT_EQ(Enumerators<Commands::GetPlaylistsCommandParams::ElementMode>(),
              Copied(WireCommands::_ElementConversionMode_VALUES_TO_NAMES));

    // The numbers of these are independent of the wire.
    EXPECT_EQ(Enumerators<Boundary::RelativeTo>(),
              NumberedFromZero({"RelativeToCorrespondingClipBoundary", "RelativeToOppositeClipBoundary",
                                "RelativeToOppositeLoadBoundary"}));
    EXPECT_EQ(Enumerators<Domain::Channels::Guid::Type>(),
              NumberedFromZero({"ChannelGuidTypePlayer", "ChannelGuidTypeRecorder", "ChannelGuidTypeUndefined"}));
    EXPECT_EQ(Enumerators<ClipCreationEventArgs::RequestSource>(), NumberedFromZero({"Local", "Network", "Unknown"}));
    EXPECT_EQ(Enumerators<ClipCreationEventArgs::CreationType>(),
              NumberedFromZero({"Make", "Copy", "ZarfRestore", "GbeRestore", "Unknown"}));
    EXPECT_EQ(Enumerators<ClipCreationEventArgs::NetworkType>(),
              NumberedFromZero({"Sdti", "Gbe", "Unknown", "PushSdti", "PushGbe", "PushUnknown"}));
    EXPECT_EQ(Enumerators<Commands::ReplyType>(),
              NumberedFromZero({"Unknown", "Success", "Failure", "Clip", "AnglesGroup", "Playlist", "Channel",
                                "GetChannels", "GetClips", "GetTrains", "GetAnglesGroups", "GetPlaylists", "GetServers",
                                "GetMultiviewerData"}));
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

/// Checks that both directions are equal to maps into which the pairs were inserted in order.
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

TEST(EnumTables, AcceptAnyListOfPairs)
{
    ExpectAsMaps({});
    ExpectAsMaps({Numbers(1, 0)});
    ExpectAsMaps({Numbers(0, 7), Numbers(7, 0)});
    ExpectAsMaps({Numbers(-1, -32), Numbers(Least, Most), Numbers(Most, -1), Numbers(-32, Least)});
    // The first pair of a repeated key is kept, in its slot or in the list of other keys, on either side or both.
    ExpectAsMaps({Numbers(0, 0), Numbers(0, 1)});
    ExpectAsMaps({Numbers(0, 1), Numbers(1, 1), Numbers(0, 1)});
    ExpectAsMaps({Numbers(1, 2), Numbers(33, 34), Numbers(33, 66), Numbers(65, 34), Numbers(1, 3), Numbers(4, 2)});
    // Keys with equal low five bits, among them 0, which a free slot holds, and 1, which a free slot 0 holds.
    ExpectAsMaps({Numbers(32, 33), Numbers(64, 1), Numbers(0, 65), Numbers(1, 0)});
    ExpectAsMaps({Numbers(33, 64), Numbers(1, 32), Numbers(65, 0)});

    static constexpr auto all = []<std::int32_t... number>(std::integer_sequence<std::int32_t, number...>)
    {
        return std::array{Numbers(number * 5 - 100, 7 - number)...};
    }
    (std::make_integer_sequence<std::int32_t, 100>());
    std::apply([](auto const&... pairs) { ExpectAsMaps({pairs...}); }, all); // more than there are slots
}

// The tables are constants. No code runs when the library is loaded, so other static initialisers may convert.
constexpr Association constant{Numbers(0, 0), Numbers(1, 33), Numbers(2, -1)};
static_assert(constant.ToGeneratedEnum(static_cast<Left>(2)) == static_cast<Right>(-1));
static_assert(constant.FromGeneratedEnum(static_cast<Right>(33)) == static_cast<Left>(1));
static_assert(constant.ToGeneratedEnum(static_cast<Left>(34)) == static_cast<Right>(0));

} // namespace
} // namespace Talvo::Tests
