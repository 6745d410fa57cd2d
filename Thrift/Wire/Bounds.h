#pragma once

#include <cstddef>
#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{

/// Bounds on one message from a peer. Each bound is checked before memory is allocated for what it bounds, and a
/// message that exceeds it is rejected. The defaults are safe for untrusted peers.
struct Bounds
{
    /// Bytes of a message, or of a frame without its size field.
    std::uint32_t message = 16 * 1024 * 1024;
    /// Bytes of one string.
    std::uint32_t text = 1024 * 1024;
    /// Elements of one list.
    std::uint32_t elements = 100'000;
    /// Entries of one set or map. The domain holds channels in hash tables, and a peer can choose identifiers that all
    /// collide; up to the default number this is harmless. If the bound is raised, larger sets and maps whose
    /// identifiers collide are rejected.
    std::uint32_t entries = 1'000;
    /// Levels of nested records, including those of skipped values.
    std::uint32_t depth = 64;

    /// Bytes of memory that the strings, elements and entries of a record may take, over the whole message: `memory +
    /// memoryPerByte * bytes of the message`. Without this bound, a list of empty records could take 900 times its
    /// bytes. Ordinary senders do not need that: Thrift's own `write` sends every field that is not optional.
    std::uint64_t memory = 1024 * 1024;
    std::uint64_t memoryPerByte = 6;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
