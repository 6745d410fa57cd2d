#pragma once

#include "Thrift/Wire/BigEndian.h"
#include "Thrift/Wire/Bounds.h"
#include "Thrift/Wire/Collisions.h"
#include "Thrift/Wire/NoTransport.h"

#include <thrift/protocol/TProtocolException.h>
#include <thrift/protocol/TVirtualProtocol.h>
#include <thrift/transport/TTransportException.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{

/// Reads records and message headers (strict and old) in Thrift's binary protocol from bytes in memory. Pass it to the
/// `read` of a record:
///
///     BinaryReader reader(bytes);
///     record.read(&reader);
///
/// It accepts what `TBinaryProtocolT` accepts with the same bounds, and also bounds the memory of the whole message.
/// Its members have the names and results of Thrift's protocols. They throw
///
/// - TProtocolException (SIZE_LIMIT) if a bound is exceeded; the text names the bound and what exceeded it;
/// - TProtocolException (DEPTH_LIMIT) if records nest too deeply;
/// - TProtocolException (NEGATIVE_SIZE, BAD_VERSION, INVALID_DATA) if the bytes are not a record;
/// - TTransportException (END_OF_FILE) if the bytes end within the record.
///
/// After an exception the record may hold part of what was sent.
class BinaryReader final : public apache::thrift::protocol::TVirtualProtocol<BinaryReader>
{
public:
    /// Reads one message from `bytes`, which have to outlive the reader. Throws if they exceed the bound of a message.
    explicit BinaryReader(std::span<std::uint8_t const> const bytes, Bounds const& bounds = {})
        : TVirtualProtocol(Detail::NoTransport())
        , next_(bytes.data())
        , end_(bytes.data() + bytes.size())
        , bounds_(bounds)
        , memory_(MemoryOf(bounds, bytes.size()))
        , memoryLeft_(memory_)
    {
        setRecurisionLimit(bounds.depth);
        if (bytes.size() > bounds.message) Exceeded("a message", bytes.size(), "bytes", bounds.message);
    }

    /// The bytes that were not read yet.
    [[nodiscard]] std::span<std::uint8_t const> Rest() const noexcept { return {next_, end_}; }

    /// The number of skipped fields: those that the records do not have, or have with another type.
    [[nodiscard]] std::size_t SkippedFields() const noexcept { return skippedFields_; }

    /// @cond The members of Thrift's protocols that records call.
    using TType = apache::thrift::protocol::TType;
    using TMessageType = apache::thrift::protocol::TMessageType;
    using TProtocolException = apache::thrift::protocol::TProtocolException;

    std::uint32_t readMessageBegin(std::string& name, TMessageType& type, std::int32_t& sequence)
    {
        auto const* const start = next_;
        auto const version = TakeI32();
        if (version >= 0) // in a header without a version, this is the size of the name
        {
            ReadText(name, static_cast<std::uint32_t>(version));
            type = static_cast<TMessageType>(static_cast<std::int8_t>(TakeByte()));
        }
        else
        {
            if ((static_cast<std::uint32_t>(version) & 0xFFFF0000U) != 0x80010000U)
                throw TProtocolException(TProtocolException::BAD_VERSION, "a message has an unknown version");
            readString(name);
            type = static_cast<TMessageType>(version & 0xFF);
        }
        sequence = TakeI32();
        return Since(start);
    }
    std::uint32_t readMessageEnd() { return 0; }

    std::uint32_t readStructBegin(std::string&) { return 0; }
    std::uint32_t readStructEnd() { return 0; }

    [[gnu::always_inline]] std::uint32_t readFieldBegin(std::string&, TType& type, std::int16_t& id)
    {
        auto const byte = TakeByte();
        if (byte == apache::thrift::protocol::T_STOP)
        {
            type = apache::thrift::protocol::T_STOP;
            id = 0;
            return 1;
        }
        type = TypeOf(byte);
        id = Load<std::int16_t>(Take(sizeof(std::int16_t)));
        return 3;
    }
    std::uint32_t readFieldEnd() { return 0; }

    /// The records call this after a field, with the type and id of the next field in the schema. If that field comes
    /// next, this reads its begin and returns the bytes read; otherwise it returns 0.
    [[gnu::always_inline]] std::uint32_t readNextField(TType const type, std::int16_t const id)
    {
        static constexpr std::size_t Size = 3;
        if (Rest().size() < Size || next_[0] != type || Load<std::int16_t>(next_ + 1) != id) return 0;
        next_ += Size;
        return Size;
    }

    std::uint32_t readMapBegin(TType& keyType, TType& valueType, std::uint32_t& size)
    {
        keyType = TypeOf(TakeByte());
        valueType = TypeOf(TakeByte());
        size = TakeSize("a map", "entries", bounds_.entries, 2);
        return 6;
    }
    std::uint32_t readMapEnd() { return 0; }

    std::uint32_t readListBegin(TType& type, std::uint32_t& size)
    {
        type = TypeOf(TakeByte());
        size = TakeSize("a list", "elements", bounds_.elements, 1);
        return 5;
    }
    std::uint32_t readListEnd() { return 0; }

    std::uint32_t readSetBegin(TType& type, std::uint32_t& size)
    {
        type = TypeOf(TakeByte());
        size = TakeSize("a set", "entries", bounds_.entries, 1);
        return 5;
    }
    std::uint32_t readSetEnd() { return 0; }

    /// The records call this before they allocate memory for `size` elements of `container`.
    template<typename TContainer>
    void beginElements(TContainer const&, std::uint32_t const size)
    {
        std::size_t element = sizeof(typename TContainer::value_type);
        if constexpr (requires { typename TContainer::key_type; }) element += NodeSize;
        CountMemory(std::uint64_t{size} * element);
    }
    /// The records call this after the elements of `container` were read.
    template<typename TContainer>
    void endElements(TContainer const& container)
    {
        if constexpr (Detail::IsKeyedByChannel<TContainer>())
        {
            if (container.size() > Bounds().entries && Detail::PilesUp(container)) [[unlikely]]
                throw TProtocolException(TProtocolException::SIZE_LIMIT, "too many of " +
                                                                             std::to_string(container.size()) +
                                                                             " channels have colliding identifiers");
        }
    }

    [[gnu::always_inline]] std::uint32_t readBool(bool& value)
    {
        value = TakeByte() != 0;
        return 1;
    }
    using TVirtualProtocol::readBool;
    std::uint32_t readByte(std::int8_t& value)
    {
        value = static_cast<std::int8_t>(TakeByte());
        return 1;
    }
    [[gnu::always_inline]] std::uint32_t readI16(std::int16_t& value)
    {
        value = Load<std::int16_t>(Take(sizeof(std::int16_t)));
        return 2;
    }
    [[gnu::always_inline]] std::uint32_t readI32(std::int32_t& value)
    {
        value = TakeI32();
        return 4;
    }
    [[gnu::always_inline]] std::uint32_t readI64(std::int64_t& value)
    {
        value = Load<std::int64_t>(Take(sizeof(std::int64_t)));
        return 8;
    }
    std::uint32_t readDouble(double& value)
    {
        value = std::bit_cast<double>(Load<std::int64_t>(Take(sizeof(std::int64_t))));
        return 8;
    }
    [[gnu::always_inline]] std::uint32_t readString(std::string& text) { return 4 + ReadText(text, TakeTextSize()); }
    std::uint32_t readBinary(std::string& bytes) { return readString(bytes); }

    std::uint32_t skip(TType const type)
    {
        auto const* const start = next_;
        ++skippedFields_;
        Skip(type);
        return Since(start);
    }
    /// @endcond

private:
    /// Memory of each entry of a set or map in addition to its value: the overhead of the tree and the heap.
    static constexpr std::size_t NodeSize = 6 * sizeof(void*);
    /// Memory of each string that is not stored within its object, in addition to its bytes.
    static constexpr std::size_t TextSize = 4 * sizeof(void*);
    static constexpr std::size_t InPlaceText = 15;

    static constexpr std::uint32_t KnownTypes =
        1U << apache::thrift::protocol::T_STOP | 1U << apache::thrift::protocol::T_VOID |
        1U << apache::thrift::protocol::T_BOOL | 1U << apache::thrift::protocol::T_BYTE |
        1U << apache::thrift::protocol::T_DOUBLE | 1U << apache::thrift::protocol::T_I16 |
        1U << apache::thrift::protocol::T_I32 | 1U << apache::thrift::protocol::T_I64 |
        1U << apache::thrift::protocol::T_STRING | 1U << apache::thrift::protocol::T_STRUCT |
        1U << apache::thrift::protocol::T_MAP | 1U << apache::thrift::protocol::T_SET |
        1U << apache::thrift::protocol::T_LIST;

    static std::uint64_t MemoryOf(Bounds const& bounds, std::uint64_t const size) noexcept
    {
        std::uint64_t ofBytes = 0;
        std::uint64_t memory = 0;
        bool const isEndless = __builtin_mul_overflow(bounds.memoryPerByte, size, &ofBytes) ||
                               __builtin_add_overflow(bounds.memory, ofBytes, &memory);
        return isEndless ? std::numeric_limits<std::uint64_t>::max() : memory;
    }

    [[noreturn, gnu::noinline, gnu::cold]] static void Exceeded(std::string const& what, std::uint64_t const size,
                                                                std::string const& unit, std::uint64_t const bound)
    {
        throw TProtocolException(TProtocolException::SIZE_LIMIT, what + " of " + std::to_string(size) + ' ' + unit +
                                                                     " exceeds the bound of " + std::to_string(bound));
    }
    [[noreturn, gnu::noinline, gnu::cold]] static void Invalid(std::string const& why)
    {
        throw TProtocolException(TProtocolException::INVALID_DATA, why);
    }
    [[noreturn, gnu::noinline, gnu::cold]] static void Negative(std::string const& what)
    {
        throw TProtocolException(TProtocolException::NEGATIVE_SIZE, what + " has a negative size");
    }
    [[noreturn, gnu::noinline, gnu::cold]] static void Ended()
    {
        using apache::thrift::transport::TTransportException;
        throw TTransportException(TTransportException::END_OF_FILE, "the bytes end within the record");
    }

    template<typename TNumber>
    [[gnu::always_inline]] static TNumber Load(std::uint8_t const* const bytes)
    {
        TNumber number{};
        std::memcpy(&number, bytes, sizeof(number));
        return Detail::BigEndian(number);
    }

    [[gnu::always_inline]] std::uint8_t const* Take(std::size_t const count)
    {
        auto const* const start = next_;
        if (static_cast<std::size_t>(end_ - start) < count) [[unlikely]]
            Ended();
        next_ = start + count;
        return start;
    }
    [[gnu::always_inline]] std::uint8_t TakeByte() { return *Take(1); }
    [[gnu::always_inline]] std::int32_t TakeI32() { return Load<std::int32_t>(Take(sizeof(std::int32_t))); }

    std::uint32_t Since(std::uint8_t const* const start) const { return static_cast<std::uint32_t>(next_ - start); }

    static TType TypeOf(std::uint8_t const byte)
    {
        if (byte > apache::thrift::protocol::T_LIST || (KnownTypes >> byte & 1U) == 0) [[unlikely]]
            Invalid("a value has the unknown type " + std::to_string(byte));
        return static_cast<TType>(byte);
    }

    std::uint32_t TakeSize(char const* const what, char const* const unit, std::uint32_t const bound,
                           std::size_t const leastBytes)
    {
        auto const size = TakeI32();
        if (size < 0) [[unlikely]]
            Negative(what);
        auto const count = static_cast<std::uint32_t>(size);
        if (count > bound) [[unlikely]]
            Exceeded(what, count, unit, bound);
        if (count > Rest().size() / leastBytes) [[unlikely]]
            Ended();
        return count;
    }

    std::uint32_t TakeTextSize()
    {
        auto const size = TakeI32();
        if (size < 0) [[unlikely]]
            Negative("a string");
        return static_cast<std::uint32_t>(size);
    }

    std::uint8_t const* TakeText(std::uint32_t const size)
    {
        if (size > bounds_.text) [[unlikely]]
            Exceeded("a string", size, "bytes", bounds_.text);
        return Take(size);
    }

    std::uint32_t ReadText(std::string& text, std::uint32_t const size)
    {
        auto const* const start = TakeText(size);
        if (size > InPlaceText) CountMemory(size + TextSize);
        auto const* const characters = reinterpret_cast<char const*>(start);
        if (size <= text.capacity())
            text.assign(characters, size);
        else
            text = std::string(characters, size); // allocates exactly its size, whereas assign() may allocate more
        return size;
    }

    void CountMemory(std::uint64_t const size)
    {
        if (size > memoryLeft_) [[unlikely]]
            Exceeded("a message", memory_ - memoryLeft_ + size, "bytes in memory", memory_);
        memoryLeft_ -= size;
    }

    /// Skips a value. Allocates no memory, and counts the depth as reading does.
    void Skip(TType const type)
    {
        apache::thrift::protocol::TInputRecursionTracker const tracker(*this);
        switch (type)
        {
        case apache::thrift::protocol::T_BOOL:
        case apache::thrift::protocol::T_BYTE:
            Take(1);
            return;
        case apache::thrift::protocol::T_I16:
            Take(2);
            return;
        case apache::thrift::protocol::T_I32:
            Take(4);
            return;
        case apache::thrift::protocol::T_I64:
        case apache::thrift::protocol::T_DOUBLE:
            Take(8);
            return;
        case apache::thrift::protocol::T_STRING:
            TakeText(TakeTextSize());
            return;
        case apache::thrift::protocol::T_STRUCT:
            SkipFields();
            return;
        case apache::thrift::protocol::T_MAP:
            SkipEntries();
            return;
        case apache::thrift::protocol::T_SET:
        case apache::thrift::protocol::T_LIST:
            SkipElements(type);
            return;
        default:
            Invalid("a value has the type " + std::to_string(type) + ", which has no values");
        }
    }

    void SkipFields()
    {
        std::string name;
        TType type{};
        std::int16_t id = 0;
        while (readFieldBegin(name, type, id), type != apache::thrift::protocol::T_STOP) Skip(type);
    }

    void SkipEntries()
    {
        TType keyType{};
        TType valueType{};
        std::uint32_t size = 0;
        readMapBegin(keyType, valueType, size);
        for (std::uint32_t i = 0; i < size; ++i)
        {
            Skip(keyType);
            Skip(valueType);
        }
    }

    void SkipElements(TType const container)
    {
        TType type{};
        std::uint32_t size = 0;
        if (container == apache::thrift::protocol::T_LIST)
            readListBegin(type, size);
        else
            readSetBegin(type, size);
        for (std::uint32_t i = 0; i < size; ++i) Skip(type);
    }

    std::uint8_t const* next_;
    std::uint8_t const* end_;
    Bounds bounds_;
    std::uint64_t memory_;
    std::uint64_t memoryLeft_;
    std::size_t skippedFields_ = 0;
};

/// Removes a frame, as `TFramedTransport` sends it, from the start of `bytes` and returns its contents. Throws if the
/// frame exceeds the bound of a message (TProtocolException, SIZE_LIMIT), has a negative size (TProtocolException,
/// NEGATIVE_SIZE) or is incomplete (TTransportException, END_OF_FILE); `bytes` is then unchanged.
inline std::span<std::uint8_t const> TakeFrame(std::span<std::uint8_t const>& bytes, Bounds const& bounds = {})
{
    using apache::thrift::protocol::TProtocolException;
    using apache::thrift::transport::TTransportException;
    static constexpr std::size_t SizeBytes = sizeof(std::int32_t);

    if (bytes.size() < SizeBytes)
        throw TTransportException(TTransportException::END_OF_FILE, "the bytes end within a frame");
    std::int32_t size = 0;
    std::memcpy(&size, bytes.data(), SizeBytes);
    size = Detail::BigEndian(size);
    if (size < 0) throw TProtocolException(TProtocolException::NEGATIVE_SIZE, "a frame has a negative size");
    auto const count = static_cast<std::uint32_t>(size);
    if (count > bounds.message)
        throw TProtocolException(TProtocolException::SIZE_LIMIT, "a frame of " + std::to_string(count) +
                                                                     " bytes exceeds the bound of " +
                                                                     std::to_string(bounds.message));
    if (count > bytes.size() - SizeBytes)
        throw TTransportException(TTransportException::END_OF_FILE, "the bytes end within a frame");
    auto const frame = bytes.subspan(SizeBytes, count);
    bytes = bytes.subspan(SizeBytes + count);
    return frame;
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
