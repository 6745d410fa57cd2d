#include "records/RecordFiller.h"
#include "records/RecordType.h"

#include "generated/AnglesGroup_types.h"
#include "generated/Clip_types.h"
#include "generated/DialCommandParams_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/OperationStatus_types.h"
#include "tests/Thrift/WireBytes.h"

#include <gmock/gmock.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/protocol/TProtocolException.h>

#include <fstream>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Records;
using namespace Corvane::Data::Generated;
using namespace Corvane::Data::Clips::Groups::Generated;
using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands::Generated;
using apache::thrift::protocol::TProtocolException;
using apache::thrift::transport::TMemoryBuffer;
using testing::Pair;

Corvane::Data::Generated::Guid NewGuid(std::string const& value)
{
    Corvane::Data::Generated::Guid guid;
    guid.__set_value(value);
    return guid;
}

std::string Printed(auto const& wire)
{
    std::ostringstream out;
    out << wire;
    return out.str();
}

TEST(Records, HaveThePublishedFingerprints)
{
    std::map<std::string, std::string> published, fingerprints;
    std::ifstream file(TALVO_FINGERPRINTS);
    for (std::string fingerprint, name; file >> fingerprint >> name;) published[name] = fingerprint;
    for (auto const& type : RecordTypes())
    {
        auto const& fingerprint = fingerprints[std::string(type.name)] = type.asciiFingerprint;
        for (std::size_t i = 0; i < type.binaryFingerprint.size(); ++i)
            EXPECT_EQ(type.binaryFingerprint[i], std::stoi(fingerprint.substr(2 * i, 2), nullptr, 16))
                << type.name << ", byte " << i;
    }
    EXPECT_EQ(fingerprints, published);
}

/// Returns whether a record can be read from the fields with these ids.
bool CanBeRead(RecordType const& type, std::set<std::int16_t> const& ids)
{
    RecordFiller filler([&ids](auto const id) { return ids.contains(id); });
    try
    {
        type.make()->Read(filler);
        return true;
    }
    catch (TProtocolException const& exception)
    {
        EXPECT_EQ(exception.getType(), TProtocolException::INVALID_DATA);
        return false;
    }
}

TEST(Records, AreReadByAllProtocolsAndRejectMissingRequiredFields)
{
    std::map<std::string_view, std::size_t> required; // not part of the fingerprints
    for (auto const& type : RecordTypes())
    {
        RecordFiller filler;
        auto const full = type.make();
        full->Read(filler);
        for (auto const& protocol : Protocols())
        {
            auto const back = type.make();
            ReadBytes(WrittenBytes(*full, *protocol), *protocol, *back);
            EXPECT_TRUE(*back == *full) << type.name << '\n' << Text(full->Fields()) << Text(back->Fields());
        }
        for (auto const id : filler.FieldIds())
        {
            auto others = filler.FieldIds();
            others.erase(id);
            if (!CanBeRead(type, others)) ++required[type.name];
        }
    }
    EXPECT_THAT(required,
                testing::ElementsAre(
                    Pair("Angle", 2), Pair("AnglesGroup", 2), Pair("AnglesGroupCreationEventArgs", 3),
                    Pair("AnglesGroupCreationFailedEventArgs", 3), Pair("AnglesGroupCreationFinishedEventArgs", 1),
                    Pair("AnglesGroupDeletionEventArgs", 3), Pair("AnglesGroupDeletionFailedEventArgs", 3),
                    Pair("AnglesGroupDeletionFinishedEventArgs", 1), Pair("AnglesGroupItem", 2),
                    Pair("AnglesGroupUpdateEventArgs", 3), Pair("AnglesGroupUpdateFailedEventArgs", 3),
                    Pair("AnglesGroupUpdateFinishedEventArgs", 1), Pair("DeleteAnglesGroupCommandParams", 2),
                    Pair("GetMultiviewerDataCommandParams", 1), Pair("GetMultiviewerDataCommandReply", 3),
                    Pair("MultiviewerDataOverrides", 1), Pair("PlayerDataOverrides", 1),
                    Pair("SetMultiviewerDataCommandParams", 2), Pair("UpdateAnglesGroupCommandParams", 2)));
}

TEST(Records, AcceptAnyEnumerationNumber)
{
    for (auto const number : {12, 1000000, -1, -2147483647 - 1})
    {
        OperationStatus status;
        status.__set_result(static_cast<OperationResult::type>(number));
        EXPECT_EQ(Read<OperationStatus>(Written(status)).result, number);
    }
}

TEST(Records, AreWrittenAndReadAlikeThroughAConcreteProtocol)
{
    Clip clip;
    RecordFiller filler;
    clip.read(&filler);
    auto const buffer = std::make_shared<TMemoryBuffer>();
    apache::thrift::protocol::TBinaryProtocolT<TMemoryBuffer> protocol(buffer);
    clip.write(&protocol);
    EXPECT_EQ(buffer->getBufferAsString(), Written(clip));
    Clip back;
    back.read(&protocol);
    EXPECT_EQ(back, clip);
}

TEST(Records, RejectSizesOfTwoGibibytesAndMore)
{
    // The sizes of the text of a Guid and of the clips of a reply are rejected before memory is allocated, also where
    // std::size_t has 32 bits. For smaller sizes Thrift allocates the memory, so readers must bound what they read.
    std::string const binaryText("\x0B\0\1", 3), binaryList("\x0F\0\3\x0C", 4);
    std::string const compactText("\x18"), compactList("\x39\xFC");
    for (auto const& [binary, compact] : {std::pair(std::string("\x80\0\0\0", 4), "\x80\x80\x80\x80\x08"),
                                          {"\xFF\xFF\xFF\xFF", "\xFF\xFF\xFF\xFF\x0F"}})
    {
        using Guid = Corvane::Data::Generated::Guid;
        EXPECT_THROW(Read<Guid>(binaryText + binary, *Protocols()[0]), TProtocolException);
        EXPECT_THROW(Read<GetClipsCommandReply>(binaryList + binary, *Protocols()[0]), TProtocolException);
        EXPECT_THROW(Read<Guid>(compactText + compact, *Protocols()[1]), TProtocolException);
        EXPECT_THROW(Read<GetClipsCommandReply>(compactList + compact, *Protocols()[1]), TProtocolException);
    }
}

TEST(Records, LoseNulBytesInThriftsJson)
{
    // The Thrift library writes NUL as \u0000 and drops it when it reads. JSON is for display, not for storage.
    auto const guid = NewGuid(std::string("a\0b", 3));
    auto const through = [&guid](auto& protocol)
    { return Read<Corvane::Data::Generated::Guid>(Written(guid, protocol), protocol).value; };
    EXPECT_EQ(through(*Protocols()[0]), guid.value);
    EXPECT_EQ(through(*Protocols()[1]), guid.value);
    EXPECT_EQ(through(*Protocols()[2]), "ab");
}

// This library, not Thrift, defines how records print.

TEST(RecordPrinting, ShowsTheBytesOfTextsUnchanged)
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
}

TEST(RecordPrinting, ShowsEnumerationsAsNumbersAndContainersWithTheirElements)
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

    DialCommandParams dial;
    dial.players = {NewGuid("b"), NewGuid("a")};
    dial.velocity = 255;
    std::ostringstream text; // its number format is ignored
    text << std::hex << std::showbase << std::boolalpha << dial << ' ' << Camera::X;
    EXPECT_EQ(text.str(), "DialCommandParams(commandGuid=Guid(value=), players={Guid(value=a), Guid(value=b)}, "
                          "velocity=255) 13");
}

} // namespace
} // namespace Talvo::Tests
