#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/PlayerStateChangedEventArgs.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Domain/HighLevelOperations/Commands/CreateAnglesGroupCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetChannelsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetTrainsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/UpdatePlaylistsCommandParams.h"
#include "Thrift/Commands/ToClipResultsItem.h"
#include "Thrift/Commands/ToCreateAnglesGroupCommandParams.h"
#include "Thrift/Commands/ToGetChannelsCommandReply.h"
#include "Thrift/Commands/ToGetTrainsCommandReply.h"
#include "Thrift/Commands/ToUpdatePlaylistsCommandParams.h"
#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Data/Sequences/ToSequence.h"
#include "Thrift/Data/Sequences/ToSequenceId.h"
#include "Thrift/Notifier/ToPlayerStateChangedEventArgs.h"
#include "Thrift/TryTo.h"
#include "generated/ClipResultsItem_types.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"
#include "generated/GetChannelsCommandReply_types.h"
#include "generated/GetTrainsCommandReply_types.h"
#include "generated/PlayerStateChangedEA_types.h"
#include "generated/Playlist_types.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"
#include "records/ConverterTypes.h"
#include "records/RecordFiller.h"
#include "records/RecordType.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thrift/protocol/TProtocolException.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;
using Records::Form;
using Records::RecordFiller;
using Records::RecordType;
using Records::RecordTypes;
using Records::WireRecord;

namespace WireClips = Data::Clips::Generated;
namespace WireSequences = Data::Sequences::Generated;

/// The result of a conversion, or the exception that the terminate handler found when the conversion ended the process.
struct Outcome
{
    bool ended;
    bool success;
    std::string message;

    bool operator==(Outcome const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Outcome const& outcome)
{
    return out << (outcome.ended ? "ended" : outcome.success ? "success" : "failure") << ": " << outcome.message;
}

/// Converts into a new domain object.
Common::Serialization::ConversionResult ToNewDomain(RecordType const& type, WireRecord const& record, Form const form)
{
    auto const domain = type.makeDomain(record);
    return type.convertToDomain(record, *domain, form);
}

/// Converts with `To` in a child process, which sends the outcome through a pipe.
Outcome Unchecked(RecordType const& type, WireRecord const& record)
{
    static std::array<int, 2> pipeEnds{};
    EXPECT_EQ(pipe(pipeEnds.data()), 0);
    static auto const send = [](std::string const& text, int const status)
    {
        auto const isWritten = write(pipeEnds[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        _exit(isWritten ? status : 3);
    };
    auto const child = fork();
    if (child == 0)
    {
        std::set_terminate(
            []
            {
                try
                {
                    if (auto const active = std::current_exception()) std::rethrow_exception(active);
                    send("without an active exception", 2);
                }
                catch (std::exception const& error)
                {
                    send(error.what(), 2);
                }
            });
        auto const result = ToNewDomain(type, record, Form::Constant);
        send(result.message, result.success ? 0 : 1);
    }
    close(pipeEnds[1]);
    std::string message(4096, '\0');
    auto const size = read(pipeEnds[0], message.data(), message.size());
    close(pipeEnds[0]);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && size >= 0);
    message.resize(static_cast<std::size_t>(size));
    return {WEXITSTATUS(status) == 2, WEXITSTATUS(status) == 0, message};
}

/// Returns the printed value at the path of a bad value in a record, or an empty text if the path does not exist.
std::string ValueAt(Records::View view, std::string path)
{
    while (!path.empty())
    {
        auto const end = path.find_first_of(".[", 1);
        auto step = path.substr(0, path[0] == '[' ? path.find(']') + 1 : end);
        path.erase(0, step.size());
        if (path.starts_with('.')) path.erase(0, 1);
        // The label of a field is its id and its name. An entry of a map follows its key.
        auto const key = step.starts_with("[\"") ? step.substr(1, step.size() - 2) : "";
        auto const part =
            std::ranges::find_if(view.parts,
                                 [&, isKeyThere = false](Records::Part const& candidate) mutable
                                 {
                                     if (key.empty())
                                         return candidate.label == step || candidate.label.ends_with(' ' + step);
                                     if (isKeyThere) return true;
                                     isKeyThere =
                                         candidate.label.starts_with("key") && candidate.view.parts[0].view.text == key;
                                     return false;
                                 });
        if (part == view.parts.end()) return {};
        view = Records::View(part->view);
    }
    return view.text;
}

class EveryRecord : public testing::TestWithParam<RecordType>
{
public:
    static void TearDownTestSuite()
    {
        std::cout << compared << " records compared, " << ended << " of them end the process in To\n";
    }

protected:
    /// Compares TryTo with `To` for one record from `filler`, which may have bad values.
    void Compare(RecordFiller filler)
    {
        auto const& type = GetParam();
        auto const record = type.make();
        try
        {
            record->Read(filler);
        }
        catch (apache::thrift::protocol::TProtocolException const&)
        {
            return; // a required field is missing
        }

        auto const checked = ToNewDomain(type, *record, Form::Checked);
        ++compared;
        // A fixed failure text has no path in front of it.
        if (checked.success || checked.message.find(": ") == std::string::npos)
        {
            auto const same = ToNewDomain(type, *record, Form::Constant); // an exception would end this process
            EXPECT_EQ(same.success, checked.success);
            EXPECT_EQ(same.message, checked.message);
            return;
        }
        EXPECT_EQ(Unchecked(type, *record), (Outcome{true, false, checked.message}));
        EXPECT_THAT(ValueAt(record->Fields(), checked.message.substr(0, checked.message.find(": "))),
                    testing::AnyOf('"' + std::string(NoForm) + '"', '"' + std::string(BadDay) + '"',
                                   std::to_string(BadLocation)))
            << checked.message;
        ++ended;
    }

    // The bad values.
    static constexpr auto* NoForm = "noon";
    static constexpr auto* BadDay = "2024-02-30T00:00:00:00@50";
    static constexpr std::int16_t BadLocation = 110;

    static inline std::size_t compared = 0;
    static inline std::size_t ended = 0;
};

std::vector<RecordType> ReadableTypes()
{
    std::vector<RecordType> types;
    for (auto const& type : RecordTypes())
        if (type.toDomain) types.push_back(type);
    return types;
}

INSTANTIATE_TEST_SUITE_P(Records, EveryRecord, testing::ValuesIn(ReadableTypes()),
                         [](auto const& type) { return std::string(type.param.name); });

TEST_P(EveryRecord, TryToFailsExactlyWhereToEndsTheProcess)
{
    constexpr auto* OtherRate = "2024-02-28T00:00:00:00@30"; // a Pal clip reports a failure for it
    constexpr std::size_t Stride = 29;                       // with a missing field, every 29th value is tested
    constexpr int Pairs = 20;
    std::mt19937 random(5489);

    for (auto const& [numbers, text] : {std::pair(std::vector<std::int16_t>{2}, NoForm), {{1, 2, 3}, BadDay}})
    {
        auto const read = [&](RecordFiller filler)
        {
            GetParam().make()->Read(filler);
            return filler;
        };
        auto const full = read(RecordFiller::Convertible(numbers));
        Compare(RecordFiller::Convertible(numbers));
        for (std::size_t value = 0; value < full.Values(); ++value)
        {
            auto alone = RecordFiller::Convertible(numbers);
            alone.Spoil(value, text, BadLocation);
            // The value before the bad one fails first if it is a time code too.
            auto afterFailure = alone;
            if (value > 0) afterFailure.Spoil(value - 1, OtherRate, 0);
            Compare(std::move(alone));
            Compare(std::move(afterFailure));
        }
        for (auto const missing : full.FieldIds())
        {
            auto const offered = [missing](std::int16_t const id) { return id != missing; };
            for (auto value = random() % Stride; value < full.Values(); value += Stride)
            {
                auto filler = RecordFiller::Convertible(numbers, offered);
                filler.Spoil(value, BadDay, BadLocation);
                Compare(std::move(filler));
            }
        }
        // An earlier record fails. Some converters stop there, and others go on to later records.
        for (int pair = 0; pair < Pairs && full.Values() > 1; ++pair)
        {
            auto filler = RecordFiller::Convertible(numbers);
            auto const later = 1 + random() % (full.Values() - 1);
            filler.Spoil(random() % later, OtherRate, BadLocation);
            filler.Spoil(later, text, BadLocation);
            Compare(std::move(filler));
        }
    }
}

/// The message that TryTo reports for a record, and both conversions of the record.
struct Row
{
    std::string message;
    std::function<Common::Serialization::ConversionResult()> checked;
    std::function<void()> unchecked;
};

template<typename TConverter>
Row RowOf(Records::SourceOf<TConverter> const& record, std::string message)
{
    return {std::move(message),
            [record]
            {
                Records::DestinationOf<TConverter> domain;
                return TryTo(TConverter(), record, domain);
            },
            [record]
            {
                Records::DestinationOf<TConverter> domain;
                std::ignore = TConverter().To(record, domain);
            }};
}

WireClips::Clip ClipWith(char const* const tod, char const* const user = nullptr)
{
    WireClips::Clip clip;
    if (tod != nullptr) clip.__set_inBoundTodTimecode(tod);
    if (user != nullptr) clip.__set_inBoundUserTimecode(user);
    return clip;
}

WireSequences::Playlist PlaylistWith(std::int32_t const location)
{
    WireSequences::Playlist playlist;
    playlist.audioVideoTrack.elements.resize(2);
    playlist.audioVideoTrack.elements[0].__isset.videoFieldIn = true; // an empty element would fail
    auto& element = playlist.audioVideoTrack.elements[1];
    element.element.sequenceId.location = location;
    element.element.sequenceId.__isset.location = element.element.__isset.sequenceId = element.__isset.element = true;
    playlist.__isset.audioVideoTrack = playlist.audioVideoTrack.__isset.elements = true;
    return playlist;
}

constexpr auto* Noon = "TalvoTimeCodeParser the string 'noon' has not the expected format.";
constexpr auto* BadDay = "day 29is negative or greater than 28 in month 2";
constexpr auto* BadLocation = "SequenceId.Location : invalid location number";

TEST(BadValueDeathTest, NamesPathAndReason)
{
    std::vector<Row> rows;
    auto const add = [&]<typename TConverter>(std::type_identity<TConverter>, auto const& record, std::string message)
    { rows.push_back(RowOf<TConverter>(record, std::move(message))); };

    std::type_identity<Data::Clips::ThriftToClipConverter> const clip;
    add(clip, ClipWith("noon"), std::string("inBoundTodTimecode: ") + Noon);
    add(clip, ClipWith(nullptr, "2023-02-29T00:00:00:00@50"), std::string("inBoundUserTimecode: ") + BadDay);
    add(clip, ClipWith("2024-01-01T00:00:00:00@50", "00:00:00:00@99999999999"), "inBoundUserTimecode: stoi");
    // An undated time code is valid, but its written form can't be parsed.
    add(clip, ClipWith(nullptr, "-1-0-1-0-1T01:02:03:04@25"),
        "inBoundUserTimecode: TalvoTimeCodeParser the string '-1-0-1-0-1T01:02:03:04@25' has not the expected format.");

    // The reference time code of a sequence. A malformed text is a failure, and only a bad value ends the process.
    std::type_identity<Data::Sequences::ThriftToSequenceConverter> const sequence;
    for (auto const& [text, reason] :
         {std::pair("2023-02-29T00:00:00:00@50", BadDay), {"2024-01-01T00:00:00:00@99999999999", "stoi"}})
    {
        WireSequences::Sequence wire;
        wire.timeCodeRegenReference = text;
        wire.__isset.timeCodeRegenReference = true;
        add(sequence, wire, std::string("timeCodeRegenReference: ") + reason);
    }

    for (auto const location : {110, -1})
    {
        WireSequences::SequenceId id;
        id.location = location;
        id.__isset.location = true;
        add(std::type_identity<Data::Sequences::ThriftToSequenceIdConverter>(), id,
            std::string("location: ") + BadLocation);
        WireSequences::Playlist header;         // the playlist ignores its result
        header.sequence.id.location = location; // its flag is ignored
        header.sequence.__isset.id = header.__isset.sequence = true;
        add(std::type_identity<Data::Sequences::ThriftToPlaylistConverter>(), header,
            std::string("sequence.id.location: ") + BadLocation);
    }
    Commands::Generated::UpdatePlaylistsCommandParams update;
    update.params.resize(1);
    update.params[0].newPlaylist = PlaylistWith(110);
    update.__isset.params = true;
    add(std::type_identity<Commands::ThriftToUpdatePlaylistsCommandParamsConverter>(), update,
        std::string("params[0].newPlaylist.audioVideoTrack.elements[1].element.sequenceId.location: ") + BadLocation);

    Commands::Generated::GetTrainsCommandReply trains;
    trains.trains.resize(2);
    trains.trains[1].__set_trainData(ClipWith("noon"));
    trains.__isset.trains = true;
    add(std::type_identity<Commands::ThriftToGetTrainsCommandReplyConverter>(), trains,
        std::string("trains[1].trainData.inBoundTodTimecode: ") + Noon);
    Commands::Generated::ClipResultsItem item; // a clip that is dropped, since the item did not succeed
    item.__set_clip(ClipWith("noon"));
    add(std::type_identity<Commands::ThriftToClipResultsItemConverter>(), item,
        std::string("clip.inBoundTodTimecode: ") + Noon);
    Commands::Generated::CreateAnglesGroupCommandParams group; // the flag of creationParams is ignored
    group.creationParams.clips.resize(4);
    group.creationParams.clips[1].clip = ClipWith("2024-01-01T00:00:00:00@30", "noon"); // the rate fails first
    group.creationParams.clips[1].clip.__set_videoStandard(WireClips::VideoStandard::Pal);
    group.creationParams.clips[3].clip = ClipWith("noon");
    group.creationParams.__isset.clips = true;
    add(std::type_identity<Commands::ThriftToCreateAnglesGroupCommandParamsConverter>(), group,
        std::string("creationParams.clips[3].clip.inBoundTodTimecode: ") + Noon);

    // The flags of the channels are ignored. Bad time codes of a player are skipped, but those of its clip on air are
    // not.
    Commands::Generated::GetChannelsCommandReply channels;
    Corvane::Data::Generated::Guid key;
    key.value = std::string("\0A\"\\\x7f", 5);
    auto& state = channels.players[key];
    state.todPgmInTimecodeOnAir = "noon";
    state.__isset.todPgmInTimecodeOnAir = state.__isset.previewOnAir = true;
    state.previewOnAir.__set_userCurTimecodeOnAir("noon");
    add(std::type_identity<Commands::GetChannelsCommandReplyFromThriftConverter>(), channels,
        R"(players["\x00A\x22\x5c\x7f"].previewOnAir.userCurTimecodeOnAir: )" + std::string(Noon));
    channels.players[key].__isset.previewOnAir = false;
    channels.recorders[key].__set_recorderTrain(ClipWith("noon"));
    add(std::type_identity<Commands::GetChannelsCommandReplyFromThriftConverter>(), channels,
        R"(recorders["\x00A\x22\x5c\x7f"].recorderTrain.inBoundTodTimecode: )" + std::string(Noon));
    Notifier::Generated::PlayerStateChangedEventArgs event;
    event.status.pgmOnAir.__set_todCurTimecodeOnAir("2023-02-29T00:00:00:00@50");
    event.status.__isset.pgmOnAir = event.__isset.status = true;
    add(std::type_identity<Notifier::ThriftToPlayerStateChangedEventArgsConverter>(), event,
        std::string("status.pgmOnAir.todCurTimecodeOnAir: ") + BadDay);

    for (auto const& row : rows)
    {
        auto const result = row.checked();
        EXPECT_FALSE(result.success);
        EXPECT_EQ(result.message, row.message);
        EXPECT_DEATH(row.unchecked(), testing::HasSubstr("  what():  " + row.message));
    }
}

TEST(BadValue, IsNotReportedForIgnoredOrHandledTexts)
{
    auto clip = ClipWith("noon");
    clip.__isset.inBoundTodTimecode = false;
    clip.__set_sourceInBoundTodTimecode("noon");
    WireSequences::Sequence sequence; // reported as a failure
    sequence.timeCodeRegenReference = "noon";
    sequence.__isset.timeCodeRegenReference = true;
    Commands::Generated::GetTrainsCommandReply trains; // skipped
    trains.trains.resize(1);
    trains.trains[0].lastKnownTimeCode = "noon";
    trains.trains[0].__isset.lastKnownTimeCode = trains.__isset.trains = true;
    for (auto const& row : {RowOf<Data::Clips::ThriftToClipConverter>(clip, "Clip is empty"),
                            RowOf<Data::Sequences::ThriftToSequenceConverter>(
                                sequence, std::string("Invalid TimeCode format (") + Noon + ")"),
                            RowOf<Commands::ThriftToGetTrainsCommandReplyConverter>(trains, "")})
        EXPECT_EQ(row.checked().message, row.message);
}

} // namespace
} // namespace Talvo::Tests
