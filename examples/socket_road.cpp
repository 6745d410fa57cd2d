// Requests, replies and events over real sockets, with untrusted clients.
//
//     socket_road [SECONDS]
//
// A server on the loopback interface creates clips for many concurrent clients, and pushes an event for each clip to a
// subscriber. Another client sends messages that no server should accept: each is rejected with a reason, while the
// other clients continue. Sockets, threads and the server are those of libthrift. A message is a frame with a header
// and a record.

#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/SuccessReply.h"
#include "Thrift/Commands/FromClipCommandReply.h"
#include "Thrift/Commands/FromCreateClipsCommandParams.h"
#include "Thrift/Commands/FromSuccessReply.h"
#include "Thrift/Commands/ToClipCommandReply.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"
#include "Thrift/Wire/Codec.h"
#include "generated/ClipCommandReply.h"
#include "generated/ClipCreationFinishedEventArgs.h"
#include "generated/CreateClipsCommandParams.h"
#include "generated/SuccessReply.h"

#include <thrift/TApplicationException.h>
#include <thrift/TProcessor.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/server/TThreadedServer.h>
#include <thrift/transport/TServerSocket.h>
#include <thrift/transport/TSocket.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <future>
#include <iostream>
#include <limits>
#include <memory>
#include <mutex>
#include <span>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{

namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift::Wire;
namespace Commands = Talvo::Corvane::Zelmar::Serialization::Thrift::Commands;
namespace Notifier = Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier;
using apache::thrift::TApplicationException;
using apache::thrift::protocol::TMessageType;
using apache::thrift::transport::TSocket;
using apache::thrift::transport::TTransport;
using Talvo::Corvane::Data::OperationResult;
using Talvo::Corvane::Data::OperationStatus;
using Talvo::Corvane::Data::Clips::Clip;
using Talvo::Corvane::Notification::ClipCommandEventArgs;
using Talvo::Corvane::Notification::ClipCreationEventArgs;
using Talvo::Corvane::Notification::ClipCreationFinishedEventArgs;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::ClipCommandReply;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::CreateClipsCommandParams;

constexpr Wire::Bounds RequestBounds{
    .message = 256 * 1024, .text = 4096, .elements = 1000, .depth = 16, .memory = 64 * 1024};
constexpr std::size_t ClientCount = 8;

/// A message that was read from a socket.
struct Message
{
    std::string name;
    TMessageType type{};
    std::int32_t sequence = 0;
    std::span<std::uint8_t const> record; ///< A part of the bytes that it was read from.
};

/// Reads the bytes of one frame, including its size. Returns false if the peer has closed the connection.
bool ReadFrame(TTransport& transport, std::vector<std::uint8_t>& bytes)
{
    static constexpr std::uint32_t SizeBytes = 4;
    bytes.resize(SizeBytes);
    auto const first = transport.read(bytes.data(), SizeBytes);
    if (first == 0) return false;
    if (first < SizeBytes) transport.readAll(bytes.data() + first, SizeBytes - first);
    std::int32_t signedSize = 0;
    Wire::BinaryReader(bytes).readI32(signedSize);
    auto const size = static_cast<std::uint32_t>(signedSize); // a negative size becomes larger than any bound
    if (size > RequestBounds.message)
        throw std::runtime_error("a frame of " + std::to_string(size) + " bytes exceeds the bound of " +
                                 std::to_string(RequestBounds.message));
    bytes.resize(SizeBytes + size);
    transport.readAll(bytes.data() + SizeBytes, size);
    return true;
}

Message ReadMessage(std::span<std::uint8_t const> bytes)
{
    Message message;
    Wire::BinaryReader reader(Wire::TakeFrame(bytes, RequestBounds), RequestBounds);
    reader.readMessageBegin(message.name, message.type, message.sequence);
    message.record = reader.Rest();
    return message;
}

/// Writes a frame with a header and the record that `writeRecord` writes.
void WriteMessage(Wire::BinaryWriter& writer, std::string const& name, TMessageType const type,
                  std::int32_t const sequence, auto const& writeRecord)
{
    auto const frame = writer.BeginFrame();
    writer.writeMessageBegin(name, type, sequence);
    writeRecord();
    writer.EndFrame(frame);
}

void Send(TTransport& transport, Wire::BinaryWriter const& writer)
{
    transport.write(writer.Bytes().data(), static_cast<std::uint32_t>(writer.Size()));
    transport.flush();
}

void Require(Wire::CodecResult const& result)
{
    if (!result.Success()) throw std::runtime_error(result.message);
}

/// Handles the messages of a connection one after the other; libthrift calls it on a separate thread for each
/// connection.
class Service : public apache::thrift::TProcessor
{
public:
    /// Handles one message. Returning false ends the connection.
    bool process(std::shared_ptr<apache::thrift::protocol::TProtocol> input,
                 std::shared_ptr<apache::thrift::protocol::TProtocol>, void*) override
    {
        auto const transport = input->getTransport();
        std::vector<std::uint8_t> bytes;
        Message request;
        Wire::BinaryWriter writer;
        try
        {
            if (!ReadFrame(*transport, bytes)) return false;
            request = ReadMessage(bytes);
            Answer(request, transport, writer);
            if (writer.Size() > 0) Send(*transport, writer);
            return true;
        }
        catch (apache::thrift::transport::TTransportException const&)
        {
            return false; // the peer has closed the connection
        }
        catch (std::exception const& error)
        {
            // Later bytes of the peer can't be interpreted, so the connection ends.
            writer.Truncate();
            WriteMessage(writer, request.name, apache::thrift::protocol::T_EXCEPTION, request.sequence,
                         [&] { TApplicationException(error.what()).write(&writer); });
            Send(*transport, writer);
            ++refused_;
            return false;
        }
    }

    std::uint64_t Created() const { return created_; }
    std::uint64_t Refused() const { return refused_; }

private:
    void Answer(Message const& request, std::shared_ptr<TTransport> const& transport, Wire::BinaryWriter& writer)
    {
        if (request.name == "Subscribe")
        {
            WriteMessage(writer, request.name, apache::thrift::protocol::T_REPLY, request.sequence,
                         [&] { Require(Wire::Encode(Commands::SuccessReplyToThriftConverter(), {}, writer)); });
            std::lock_guard const lock(subscribersMutex_); // so that events follow the reply
            Send(*transport, writer);
            writer.Truncate();
            subscribers_.push_back(transport);
            return;
        }
        if (request.name != "CreateClips") throw std::runtime_error("there is no request '" + request.name + "'");

        CreateClipsCommandParams params;
        Require(
            Wire::Decode(Commands::ThriftToCreateClipsCommandParamsConverter(), request.record, params, RequestBounds));
        ClipCommandReply reply(params.commandGuid, params.clips.size());
        for (std::size_t i = 0; i < params.clips.size(); ++i)
        {
            reply.results[i].OperationStatus({OperationStatus::Status::Succeeded, OperationResult::Success});
            reply.results[i].clip = std::make_unique<Clip>(params.clips[i].clip);
            Publish(params, i);
        }
        WriteMessage(writer, request.name, apache::thrift::protocol::T_REPLY, request.sequence,
                     [&] { Require(Wire::Encode(Commands::ClipCommandReplyToThriftConverter(), reply, writer)); });
    }

    void Publish(CreateClipsCommandParams const& params, std::size_t const index)
    {
        ClipCreationFinishedEventArgs const event(
            310042, ClipCommandEventArgs::RequestSource::Network, static_cast<unsigned int>(index), 1,
            params.commandGuid, static_cast<std::int64_t>(++created_), Clip::Empty(), params.clips[index].clip,
            ClipCreationEventArgs::CreationType::Make, ClipCreationEventArgs::NetworkType::Unknown);
        Wire::BinaryWriter writer;
        WriteMessage(
            writer, "ClipCreationFinished", apache::thrift::protocol::T_ONEWAY, 0,
            [&] { Require(Wire::Encode(Notifier::ClipCreationFinishedEventArgsToThriftConverter(), event, writer)); });
        std::lock_guard const lock(subscribersMutex_);
        for (auto const& subscriber : subscribers_) Send(*subscriber, writer);
    }

    std::atomic<std::uint64_t> created_ = 0;
    std::atomic<std::uint64_t> refused_ = 0;
    std::mutex subscribersMutex_;
    std::vector<std::shared_ptr<TTransport>> subscribers_;
};

/// Runs the server in its own thread. It listens once the object is constructed, until the object is destroyed.
class RunningServer
{
public:
    explicit RunningServer(std::shared_ptr<Service> service)
        : socket_(std::make_shared<apache::thrift::transport::TServerSocket>("127.0.0.1", 0))
        , server_(std::move(service), socket_, std::make_shared<apache::thrift::transport::TTransportFactory>(),
                  std::make_shared<apache::thrift::protocol::TBinaryProtocolFactory>())
    {
        auto const handler = std::make_shared<Listening>();
        server_.setServerEventHandler(handler);
        thread_ = std::thread([this] { server_.serve(); });
        handler->begun.get_future().wait();
    }
    ~RunningServer()
    {
        server_.stop();
        thread_.join();
    }
    RunningServer(RunningServer const&) = delete;
    RunningServer& operator=(RunningServer const&) = delete;

    std::shared_ptr<TSocket> Connect() const
    {
        auto socket = std::make_shared<TSocket>("127.0.0.1", socket_->getPort());
        socket->setRecvTimeout(10'000);
        socket->open();
        return socket;
    }

private:
    struct Listening : apache::thrift::server::TServerEventHandler
    {
        void preServe() override { begun.set_value(); }
        std::promise<void> begun;
    };

    std::shared_ptr<apache::thrift::transport::TServerSocket> socket_;
    apache::thrift::server::TThreadedServer server_;
    std::thread thread_;
};

Clip NumberedClip(std::size_t const client, std::uint64_t const number)
{
    Clip clip;
    clip.name.Set("clip " + std::to_string(number) + " of client " + std::to_string(client));
    clip.outBoundField = static_cast<std::int64_t>(number);
    return clip;
}

/// Creates clips at least once and until the end time, and checks that each comes back. Returns the number of requests.
std::uint64_t CreateClips(RunningServer const& server, std::size_t const client,
                          std::chrono::steady_clock::time_point const end = {})
{
    auto const socket = server.Connect();
    Wire::BinaryWriter writer;
    std::vector<std::uint8_t> bytes;
    std::uint64_t requests = 0;
    do
    {
        CreateClipsCommandParams params;
        params.clips.resize(2);
        for (auto& item : params.clips) item.clip = NumberedClip(client, requests);
        auto const sequence = static_cast<std::int32_t>(requests++);
        writer.Truncate();
        WriteMessage(writer, "CreateClips", apache::thrift::protocol::T_CALL, sequence,
                     [&]
                     { Require(Wire::Encode(Commands::CreateClipsCommandParamsToThriftConverter(), params, writer)); });
        Send(*socket, writer);

        if (!ReadFrame(*socket, bytes))
            throw std::runtime_error("the server closed the connection of an honest client");
        auto const message = ReadMessage(bytes);
        ClipCommandReply reply({}, 0);
        Require(Wire::Decode(Commands::ThriftToClipCommandReplyConverter(), message.record, reply));
        if (message.sequence != sequence || reply.results.size() != 2 || reply.results[1].clip == nullptr ||
            *reply.results[1].clip != params.clips[1].clip)
            throw std::runtime_error("a reply is not that of its request");
    } while (std::chrono::steady_clock::now() < end);
    return requests;
}

/// Counts events until their number reaches `expected`, which has its maximum until the number is known.
std::uint64_t CountEvents(TSocket& socket, std::atomic<std::uint64_t> const& expected)
{
    std::vector<std::uint8_t> bytes;
    std::uint64_t count = 0;
    for (; count < expected && ReadFrame(socket, bytes); ++count)
    {
        ClipCreationFinishedEventArgs event(0, ClipCommandEventArgs::RequestSource::Network, 0, 0, {}, 0, {}, {},
                                            ClipCreationEventArgs::CreationType::Make,
                                            ClipCreationEventArgs::NetworkType::Unknown);
        Require(
            Wire::Decode(Notifier::ThriftToClipCreationFinishedEventArgsConverter(), ReadMessage(bytes).record, event));
    }
    return count;
}

/// Messages that no server should accept, each with a part of the expected reason.
std::vector<std::pair<std::string, std::string>> HostileMessages()
{
    auto const message = [](std::string const& name, std::string const& record)
    {
        Wire::BinaryWriter writer;
        WriteMessage(writer, name, apache::thrift::protocol::T_CALL, 0,
                     [&]
                     {
                         for (char const byte : record) writer.writeByte(byte);
                     });
        return std::string(writer.Text());
    };
    Commands::Generated::CreateClipsCommandParams invalid;
    invalid.clips.resize(1);
    invalid.clips[0].clip.__set_inBoundTodTimecode("today");
    Wire::BinaryWriter writer;
    invalid.write(&writer);
    std::string const clips("\x0f\x00\x02\x0c", 4);
    std::string nested;
    for (int depth = 0; depth < 1000; ++depth) nested += std::string("\x0c\x00\x63", 3);
    return {
        {std::string("\x7f\xff\xff\xff", 4), "a frame of 2147483647 bytes"},
        {message("DeleteEverything", ""), "there is no request"},
        {message("CreateClips", clips + "\x7f\xff\xff\xff"), "a list of 2147483647 elements"},
        {message("CreateClips", clips + std::string("\x00\x00\x03\xe8", 4) + std::string(1001, '\0')),
         "in memory exceeds the bound"},
        {message("CreateClips", nested), "values nest deeper than 16"},
        {message("CreateClips", std::string(writer.Text())), "clips[0].clip.inBoundTodTimecode"},
        {message("CreateClips", "no record"), "invalid bytes"},
    };
}

/// Sends the hostile messages, each over its own connection, until the end time. Returns the number of rejected
/// messages.
std::uint64_t Attack(RunningServer const& server, std::chrono::steady_clock::time_point const end)
{
    auto const messages = HostileMessages();
    std::uint64_t refused = 0;
    std::vector<std::uint8_t> bytes;
    while (std::chrono::steady_clock::now() < end)
        for (auto const& [message, expected] : messages)
        {
            auto const socket = server.Connect();
            socket->write(reinterpret_cast<std::uint8_t const*>(message.data()),
                          static_cast<std::uint32_t>(message.size()));
            if (!ReadFrame(*socket, bytes)) throw std::runtime_error("a hostile client got no answer");
            auto const answer = ReadMessage(bytes);
            TApplicationException refusal;
            Wire::BinaryReader reader(answer.record);
            refusal.read(&reader);
            std::string const text = refusal.what();
            if (text.find(expected) == std::string::npos) throw std::runtime_error("not refused as expected: " + text);
            if (refused < messages.size()) std::cout << "refused: " << text << '\n';
            ++refused;
            server.Connect()->write(reinterpret_cast<std::uint8_t const*>("\0\0\1"), 3); // part of a size, then close
        }
    return refused;
}

/// Returns 0 if nothing was lost.
int Run(std::chrono::seconds const duration)
{
    auto const service = std::make_shared<Service>();
    RunningServer const server(service);
    std::atomic<std::uint64_t> expected = std::numeric_limits<std::uint64_t>::max();

    auto const subscription = server.Connect();
    Wire::BinaryWriter writer;
    WriteMessage(writer, "Subscribe", apache::thrift::protocol::T_CALL, 0, [] {});
    Send(*subscription, writer);
    std::vector<std::uint8_t> bytes;
    ReadFrame(*subscription, bytes);
    auto events = std::async(std::launch::async, [&] { return CountEvents(*subscription, expected); });

    auto const begin = std::chrono::steady_clock::now();
    auto const end = begin + duration;
    auto attack = std::async(std::launch::async, [&] { return Attack(server, end); });
    std::vector<std::future<std::uint64_t>> clients;
    for (std::size_t client = 0; client < ClientCount; ++client)
        clients.push_back(std::async(std::launch::async, [&, client] { return CreateClips(server, client, end); }));
    std::uint64_t requests = 0;
    for (auto& client : clients) requests += client.get();
    auto const refused = attack.get();
    std::chrono::duration<double> const elapsed = std::chrono::steady_clock::now() - begin;

    // The last events come after their number is known.
    expected = service->Created() + 2;
    requests += CreateClips(server, ClientCount);
    auto const received = events.get();
    std::cout << requests << " requests of " << ClientCount << " clients, "
              << static_cast<std::uint64_t>(static_cast<double>(requests) / elapsed.count()) << " a second; "
              << service->Created() << " clips, " << received << " events; " << refused << " of " << service->Refused()
              << " refusals received\n";
    return service->Created() == 2 * requests && received == service->Created() && refused == service->Refused() ? 0
                                                                                                                 : 1;
}

} // namespace

int main(int const argc, char** const argv)
{
    try
    {
        return Run(std::chrono::seconds(argc > 1 ? std::stoi(argv[1]) : 2));
    }
    catch (std::exception const& error)
    {
        std::cerr << "socket_road: " << error.what() << '\n';
        return 1;
    }
}
