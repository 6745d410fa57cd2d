#pragma once

#include "Thrift/Wire/BigEndian.h"
#include "Thrift/Wire/NoTransport.h"

#include <thrift/protocol/TProtocolException.h>
#include <thrift/protocol/TVirtualProtocol.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{

/// Writes records and message headers in Thrift's binary protocol, one after the other, into its own memory. The bytes
/// are those that `TBinaryProtocolT` writes. Pass it to the `write` of a record:
///
///     BinaryWriter writer;
///     record.write(&writer);
///     Send(writer.Bytes());
///
/// A reused writer allocates no memory until it holds more than ever before. Its other members have the names and
/// results of Thrift's protocols. A string of more than 2^31 - 1 bytes throws TProtocolException (SIZE_LIMIT), and
/// records that nest deeper than 64 levels throw TProtocolException (DEPTH_LIMIT).
class BinaryWriter final : public apache::thrift::protocol::TVirtualProtocol<BinaryWriter>
{
public:
    /// The form of a message header: with the version of the protocol, or the old form without it.
    enum class Header
    {
        Strict,
        Old
    };

    /// Constructs a writer that writes message headers of that form.
    explicit BinaryWriter(Header const header = Header::Strict)
        : TVirtualProtocol(Detail::NoTransport())
        , header_(header)
    {
    }

    /// The bytes that were written, valid until the next write.
    [[nodiscard]] std::span<std::uint8_t const> Bytes() const noexcept { return {memory_.get(), Size()}; }
    /// The bytes that were written, as text, valid until the next write.
    [[nodiscard]] std::string_view Text() const noexcept
    {
        return {reinterpret_cast<char const*>(memory_.get()), Size()};
    }
    /// The number of bytes that were written.
    [[nodiscard]] std::size_t Size() const noexcept { return static_cast<std::size_t>(next_ - memory_.get()); }

    /// Removes all but the first `size` bytes, and keeps the memory.
    void Truncate(std::size_t const size = 0) noexcept { next_ = memory_.get() + std::min(size, Size()); }

    /// Starts a frame and returns its start. EndFrame(start) then puts the size of what was written in between in front
    /// of it, as `TFramedTransport` does.
    [[nodiscard]] std::size_t BeginFrame()
    {
        auto const start = Size();
        writeI32(0);
        return start;
    }
    /// Ends the frame that BeginFrame() started. Throws TProtocolException (SIZE_LIMIT) if it has more than 2^31 - 1
    /// bytes.
    void EndFrame(std::size_t const start)
    {
        auto const size = CheckedSize("a frame", Size() - start - sizeof(std::int32_t));
        Put(memory_.get() + start, size);
    }

    /// @cond The members of Thrift's protocols that records call.
    using TType = apache::thrift::protocol::TType;
    using TMessageType = apache::thrift::protocol::TMessageType;

    std::uint32_t writeMessageBegin(std::string const& name, TMessageType const type, std::int32_t const sequence)
    {
        if (header_ == Header::Strict)
            return writeI32(static_cast<std::int32_t>(0x80010000U | static_cast<std::uint32_t>(type))) +
                   writeString(name) + writeI32(sequence);
        return writeString(name) + writeByte(static_cast<std::int8_t>(type)) + writeI32(sequence);
    }
    std::uint32_t writeMessageEnd() { return 0; }

    std::uint32_t writeStructBegin(char const*) { return 0; }
    std::uint32_t writeStructEnd() { return 0; }

    [[gnu::always_inline]] std::uint32_t writeFieldBegin(char const*, TType const type, std::int16_t const id)
    {
        auto* const start = Grow<3>();
        Put(start, static_cast<char8_t>(type));
        Put(start + 1, static_cast<std::uint16_t>(id));
        return 3;
    }
    std::uint32_t writeFieldEnd() { return 0; }
    [[gnu::always_inline]] std::uint32_t writeFieldStop() { return writeByte(apache::thrift::protocol::T_STOP); }

    std::uint32_t writeMapBegin(TType const keyType, TType const valueType, std::uint32_t const size)
    {
        return writeByte(static_cast<std::int8_t>(keyType)) + writeListBegin(valueType, size);
    }
    std::uint32_t writeMapEnd() { return 0; }
    std::uint32_t writeListBegin(TType const type, std::uint32_t const size)
    {
        return writeByte(static_cast<std::int8_t>(type)) + writeI32(static_cast<std::int32_t>(size));
    }
    std::uint32_t writeListEnd() { return 0; }
    std::uint32_t writeSetBegin(TType const type, std::uint32_t const size) { return writeListBegin(type, size); }
    std::uint32_t writeSetEnd() { return 0; }

    [[gnu::always_inline]] std::uint32_t writeBool(bool const value) { return writeByte(value ? 1 : 0); }
    [[gnu::always_inline]] std::uint32_t writeByte(std::int8_t const value)
    {
        return Write(static_cast<char8_t>(value));
    }
    [[gnu::always_inline]] std::uint32_t writeI16(std::int16_t const value)
    {
        return Write(static_cast<std::uint16_t>(value));
    }
    [[gnu::always_inline]] std::uint32_t writeI32(std::int32_t const value)
    {
        return Write(static_cast<std::uint32_t>(value));
    }
    [[gnu::always_inline]] std::uint32_t writeI64(std::int64_t const value)
    {
        return Write(static_cast<std::uint64_t>(value));
    }
    std::uint32_t writeDouble(double const value) { return Write(std::bit_cast<std::uint64_t>(value)); }

    std::uint32_t writeString(std::string const& text)
    {
        auto const size = CheckedSize("a string", text.size());
        Write(size);
        if (static_cast<std::size_t>(end_ - next_) < size) [[unlikely]]
            Enlarge(size);
        std::memcpy(next_, text.data(), size);
        next_ += size;
        return 4 + size;
    }
    std::uint32_t writeBinary(std::string const& bytes) { return writeString(bytes); }
    /// @endcond

private:
    static std::uint32_t CheckedSize(char const* const what, std::size_t const size)
    {
        using apache::thrift::protocol::TProtocolException;
        if (size > std::numeric_limits<std::int32_t>::max()) [[unlikely]]
            throw TProtocolException(TProtocolException::SIZE_LIMIT,
                                     std::string(what) + " has more than 2^31 - 1 bytes");
        return static_cast<std::uint32_t>(size);
    }

    /// Makes room for `Count` more bytes.
    template<std::size_t Count>
    [[gnu::always_inline]] std::uint8_t* Grow()
    {
        static_assert(Count <= Spare);
        if (next_ >= full_) [[unlikely]]
            Enlarge(Count);
        auto* const start = next_;
        next_ = start + Count;
        return start;
    }

    template<typename T>
    [[gnu::always_inline]] std::uint32_t Write(T const value)
    {
        Put(Grow<sizeof(T)>(), value);
        return sizeof(T);
    }

    /// Stores the value as its own type and not as bytes: bytes may alias anything, so the compiler would reload the
    /// members after each one.
    template<typename T>
    [[gnu::always_inline]] static void Put(std::uint8_t* const place, T const value)
    {
        using Unaligned [[gnu::aligned(1)]] = T;
        auto* const target = reinterpret_cast<Unaligned*>(place);
        *target = Detail::BigEndian(value);
    }

    [[gnu::noinline, gnu::cold]] void Enlarge(std::size_t const count)
    {
        static constexpr std::size_t Least = 4096;
        auto const size = Size();
        auto const capacity = std::max({Least, 2 * size, size + count + Spare});
        auto larger = std::make_unique_for_overwrite<std::uint8_t[]>(capacity);
        std::copy_n(memory_.get(), size, larger.get());
        memory_ = std::move(larger);
        next_ = memory_.get() + size;
        end_ = memory_.get() + capacity;
        full_ = end_ - Spare + 1;
    }

    /// The most bytes of a value that is not a string.
    static constexpr std::size_t Spare = 8;

    std::unique_ptr<std::uint8_t[]> memory_;
    std::uint8_t* next_ = nullptr;
    std::uint8_t* end_ = nullptr;
    std::uint8_t* full_ = nullptr; ///< From here on there may not be enough room for a value.
    Header header_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
