#pragma once

#include "records/RecordType.h"
#include "tools/Failure.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{
class BinaryWriter;
}

namespace Talvo::Tools
{

using Records::RecordType;
using Records::RecordTypes;
using Records::WireRecord;

/// The record type of that name, in which the case of letters does not matter. Throws Failure if there is none.
RecordType const& FindRecordType(std::string_view name);

enum class Protocol
{
    Binary,
    Compact,
    Json
};
inline constexpr std::array AllProtocols{Protocol::Binary, Protocol::Compact, Protocol::Json};

/// What a file may be, and cost.
struct Limits
{
    std::uint32_t bytes = 64 * 1024 * 1024; ///< The largest file; at most 2^31 - 1.
    std::uint32_t elements = 100'000;       ///< The most elements of one list, set or map.

    /// Bytes of memory that the record may take, and for each byte of the file. A reply that gives no clips takes 43 times
    /// its bytes in the binary protocol.
    std::uint64_t memory = 20 * 1024 * 1024;
    std::uint64_t memoryPerByte = 32;
};

/// No record nests deeper than this, nor does what a newer peer might add to one.
inline constexpr int MaxDepth = 64;

/// The protocol named `binary`, `compact` or `json`. Throws Failure for any other name.
Protocol ParseProtocol(std::string_view name);

std::string_view Name(Protocol protocol);

/// That bytes are no record of that type, and why.
Failure Refusal(RecordType const& type, Protocol protocol, std::string const& reason);

/// A record among other bytes.
struct Piece
{
    std::string header; ///< Of the message before it, in words; empty where none was taken.
    std::string_view record;
    std::string_view rest; ///< What follows, without the blanks that may separate records in JSON.
};

/// Takes the first record from `bytes`, whatever its type is, and before it a message header if `hasHeader`. Throws Failure
/// with the reason where there is none.
Piece TakeRecord(std::string_view bytes, Protocol protocol, Limits const& limits, bool hasHeader);

/// Takes a frame from the start of `bytes`, which become what follows it. Throws Failure where it is not there as a whole.
std::string_view TakeFrame(std::string_view& bytes);

/// Whether nothing follows but, in JSON, a text editor's line end.
bool IsEnd(std::string_view rest, Protocol protocol);

/// One record's bytes in the binary protocol, whichever they came in.
class Message
{
public:
    /// Throws Failure where `bytes`, which have to outlive it, are empty, too many or, in another protocol than the binary
    /// one, no record alone.
    Message(std::string_view bytes, Protocol protocol, RecordType const& type, Limits const& limits = {});

    std::span<std::uint8_t const> Bytes() const;
    Protocol CameIn() const { return protocol_; }
    RecordType const& Type() const { return type_; }
    Limits const& Bounds() const { return limits_; }
    /// What a record of it may take.
    std::uint64_t Memory() const { return memory_; }

private:
    Protocol protocol_;
    RecordType const& type_;
    Limits limits_;
    std::uint64_t memory_;
    std::string_view bytes_; ///< In the binary protocol, as they came;
    std::shared_ptr<Corvane::Zelmar::Serialization::Thrift::Wire::BinaryWriter> copy_; ///< else null.
};

/// A record and what else its bytes tell.
struct Decoded
{
    std::unique_ptr<WireRecord> record;
    std::size_t skippedFields; ///< Fields of an id or type that the record does not have.
};

/// Reads one record from all of a message, within its limits. Throws Failure where it is cut off, followed by more, not of
/// that protocol or holds no field of such a record.
Decoded Decode(Message const& message);

/// The message in another protocol: every field that is there and no other, those that the record does not have included.
/// Throws Failure where its types contradict themselves.
std::string Transcode(Message const& message, Protocol to);

/// The record as one message without frame.
std::string Encode(WireRecord const& record, Protocol protocol);

} // namespace Talvo::Tools
