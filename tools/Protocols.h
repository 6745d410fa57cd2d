#pragma once

#include "records/RecordType.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>

namespace Talvo::Tools
{

using Records::RecordType;
using Records::RecordTypes;
using Records::WireRecord;

/// The record type of that name. Throws Failure if there is none.
RecordType const& FindRecordType(std::string_view name);

enum class Protocol
{
    Binary,
    Compact,
    Json
};

/// What is refused before it is read. Reading takes about a hundred times the memory of the bytes.
struct Limits
{
    std::uint32_t bytes = 64 * 1024 * 1024; ///< The largest file; at most 2^31 - 1.
    std::uint32_t elements = 100'000;       ///< The most elements that one list, set or map may claim.
};

/// No record nests deeper than this, nor does what a newer peer might add to one.
inline constexpr int MaxDepth = 64;

/// The protocol named `binary`, `compact` or `json`. Throws Failure for any other name.
Protocol ParseProtocol(std::string_view name);

std::string_view Name(Protocol protocol);

/// Paths of fields by their ids, such as `1[3].2`.
using PathSet = std::unordered_set<std::string>;

/// A record and what else its bytes tell.
struct Decoded
{
    std::unique_ptr<WireRecord> record;
    PathSet held;              ///< Every value, container and nested record that was there.
    std::size_t skippedFields; ///< Fields of an id or type that the record does not have.
};

/// Reads one record from all of `bytes`. Throws Failure where they are empty, cut off, followed by more, not of that
/// protocol or hold no field of such a record.
///
/// A claimed size allocates nothing beyond what the bytes could hold: Thrift's limits are set to their number, and the
/// elements of all containers are counted against it.
Decoded Decode(std::string const& bytes, Protocol protocol, RecordType const& type, Limits const& limits = {});

/// Does the same and returns what was read in another protocol: every field that was there and no other, those that the
/// record does not have included.
std::string Transcode(std::string const& bytes, Protocol protocol, RecordType const& type, Limits const& limits,
                      Protocol to);

/// The record as one message without frame.
std::string Encode(WireRecord const& record, Protocol protocol);

} // namespace Talvo::Tools
