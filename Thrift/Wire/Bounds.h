#pragma once

#include <cstddef>
#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{

/// What one message from a peer may cost. Each bound is checked before memory is taken for what it bounds, and what
/// exceeds it is refused. The defaults are safe for peers that are not trusted.
struct Bounds
{
    /// Bytes of a message, or of a frame without its size.
    std::uint32_t message = 16 * 1024 * 1024;
    /// Bytes of one string.
    std::uint32_t text = 1024 * 1024;
    /// Elements of one list.
    std::uint32_t elements = 100'000;
    /// Entries of one set or map. The domain keeps channels in hash tables, and a peer can choose identifiers that all
    /// collide: so many of them are harmless. Where the bound is raised, larger sets and maps whose identifiers collide
    /// are refused.
    std::uint32_t entries = 1'000;
    /// Records within records, skipped values included.
    std::uint32_t depth = 64;

    /// Bytes of memory that the strings, elements and entries of a record may take, over the whole message:
    /// `memory + memoryPerByte * bytes of the message`. Without it, a list of empty records could take 900 times its bytes,
    /// which no honest sender needs: Thrift's own `write` sends every field that is not optional.
    std::uint64_t memory = 1024 * 1024;
    std::uint64_t memoryPerByte = 6;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
