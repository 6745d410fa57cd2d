// Follows one request through a server, from the bytes that a client sent to the bytes of the reply.
//
//     request_road REQUEST FOLDER
//
// REQUEST holds the parameters of a command that creates clips, in Thrift's binary protocol. The reply and the events
// of the clips are written to FOLDER, with a list of them in samples.txt.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCreationFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Thrift/Commands/FromClipCommandReply.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Notifier/FromClipCreationFailedEventArgs.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Wire/Codec.h"
#include "generated/ClipCommandReply.h"
#include "generated/ClipCreationFinishedEventArgs.h"
#include "generated/CreateClipsCommandParams.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using Talvo::Corvane::Data::OperationResult;
using Talvo::Corvane::Data::OperationStatus;
using Talvo::Corvane::Data::Clips::Clip;
using Talvo::Corvane::Notification::ClipCommandEventArgs;
using Talvo::Corvane::Notification::ClipCreationEventArgs;
using Talvo::Corvane::Notification::ClipCreationFailedEventArgs;
using Talvo::Corvane::Notification::ClipCreationFinishedEventArgs;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::ClipCommandReply;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::CreateClipsCommandParams;
namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift::Wire;
namespace WireCommands = Talvo::Corvane::Zelmar::Serialization::Thrift::Commands;
namespace WireEvents = Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier;

/// The clips of a server, with unique identifiers.
class ClipStore
{
public:
    OperationResult Create(Clip const& clip)
    {
        bool const isTaken = std::ranges::any_of(clips_, [&](Clip const& other) { return other.umId == clip.umId; });
        if (isTaken) return OperationResult::UsedResource;
        clips_.push_back(clip);
        return OperationResult::Success;
    }

    /// A number that changes with every clip.
    std::int64_t Revision() const { return static_cast<std::int64_t>(clips_.size()); }

private:
    std::vector<Clip> clips_;
};

/// Throws an exception for a failure of Decode() or Encode().
void Require(Wire::CodecResult const& result)
{
    if (!result.Success()) throw std::runtime_error(result.message);
}

/// Writes each record that the server sends to its own file.
class Outbox
{
public:
    explicit Outbox(std::filesystem::path folder)
        : folder_(std::move(folder))
    {
        std::filesystem::create_directories(folder_);
        list_.open(folder_ / "samples.txt");
    }

    void Send(std::string const& name, std::string const& recordName, auto const& converter, auto const& source)
    {
        writer_.Truncate();
        Require(Wire::Encode(converter, source, writer_));
        std::ofstream(folder_ / (name + ".binary"), std::ios::binary) << writer_.Text();
        list_ << name << ".binary " << recordName << std::endl;
        if (!list_) throw std::runtime_error("can't write into " + folder_.string());
        std::cout << "sent      " << recordName << ", " << writer_.Size() << " bytes\n";
    }

private:
    std::filesystem::path folder_;
    std::ofstream list_;
    Wire::BinaryWriter writer_;
};

std::string ReadFile(char const* const path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void Serve(char const* const requestPath, char const* const folder)
{
    // 1. The request is converted from the wire to the domain.
    auto const message = ReadFile(requestPath);
    std::span const bytes(reinterpret_cast<std::uint8_t const*>(message.data()), message.size());
    CreateClipsCommandParams request;
    Require(Wire::Decode(WireCommands::ThriftToCreateClipsCommandParamsConverter(), bytes, request));
    std::cout << "received  CreateClipsCommandParams, " << request.clips.size() << " clips\n";

    // 2. The server executes the request and sets the result of each clip.
    ClipStore store;
    Outbox outbox(folder);
    ClipCommandReply reply(request.commandGuid, request.clips.size());
    for (std::size_t i = 0; i < request.clips.size(); ++i)
    {
        auto const& clip = request.clips[i].clip;
        auto const result = store.Create(clip);
        bool const isCreated = result == OperationResult::Success;
        std::cout << (isCreated ? "created   " : "refused   ") << clip.umId.data() << '\n';

        auto& item = reply.results[i];
        item.OperationStatus(
            {isCreated ? OperationStatus::Status::Succeeded : OperationStatus::Status::Failed, result});
        if (isCreated) item.clip = std::make_unique<Clip>(clip);

        // 3. An event for all subscribers is converted to the wire.
        auto const name = "clip-creation-" + std::to_string(i);
        if (isCreated)
        {
            ClipCreationFinishedEventArgs const event(
                310042, ClipCommandEventArgs::RequestSource::Network, static_cast<unsigned int>(i), 1,
                request.commandGuid, store.Revision(), Clip::Empty(), clip, ClipCreationEventArgs::CreationType::Make,
                ClipCreationEventArgs::NetworkType::Unknown);
            outbox.Send(name, "ClipCreationFinishedEventArgs",
                        WireEvents::ClipCreationFinishedEventArgsToThriftConverter(), event);
        }
        else
        {
            ClipCreationFailedEventArgs const event(
                310042, ClipCommandEventArgs::RequestSource::Network, static_cast<unsigned int>(i), 1,
                request.commandGuid, store.Revision(), result, 0, Clip::Empty(), clip,
                ClipCreationEventArgs::CreationType::Make, ClipCreationEventArgs::NetworkType::Unknown);
            outbox.Send(name, "ClipCreationFailedEventArgs", WireEvents::ClipCreationFailedEventArgsToThriftConverter(),
                        event);
        }
    }

    // 4. The reply is converted to the wire.
    outbox.Send("clip-command-reply", "ClipCommandReply", WireCommands::ClipCommandReplyToThriftConverter(), reply);
}

} // namespace

int main(int const argc, char** const argv)
{
    if (argc != 3)
    {
        std::cerr << "usage: request_road REQUEST FOLDER\n";
        return 2;
    }
    try
    {
        Serve(argv[1], argv[2]);
        return 0;
    }
    catch (std::exception const& error)
    {
        std::cerr << "request_road: " << error.what() << '\n';
        return 1;
    }
}
