#pragma once

#include "Common/Serialization/Converter.h"
#include "Thrift/BadValue.h"
#include "Thrift/Wire/BinaryReader.h"
#include "Thrift/Wire/BinaryWriter.h"
#include "Thrift/Wire/Bounds.h"

#include <thrift/Thrift.h>
#include <thrift/protocol/TProtocolException.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{

/// The cause of a failure of Decode() or Encode().
enum class Fault
{
    None,
    Bytes,     ///< The bytes are not exactly one such record.
    Bounds,    ///< The bytes exceed a bound.
    Value,     ///< A value of the record would end the process in `To`.
    Conversion ///< The converter reported a failure.
};

/// The result of Decode() and Encode().
struct [[nodiscard]] CodecResult
{
    Fault fault;
    /// Empty on success. It begins with "invalid bytes: ", "bound exceeded: ", "invalid value: " or "conversion failed:
    /// ", and may contain the peer's text, unescaped.
    std::string message;

    /// Whether both the conversion and the reading or writing succeeded.
    [[nodiscard]] bool Success() const noexcept { return fault == Fault::None; }
};

namespace Detail
{

template<typename TSource, typename TDestination>
TSource SourceOfFrame(Common::Serialization::Converter<TSource, TDestination> const&);
template<typename TSource, typename TDestination>
TDestination DestinationOfFrame(Common::Serialization::Converter<TSource, TDestination> const&);

/// The source and destination types of a converter.
template<typename TConverter>
using SourceOf = decltype(SourceOfFrame(std::declval<TConverter const&>()));
template<typename TConverter>
using DestinationOf = decltype(DestinationOfFrame(std::declval<TConverter const&>()));

inline CodecResult ResultOf(Common::Serialization::ConversionResult&& result)
{
    if (result.success) return {Fault::None, {}};
    return {Fault::Conversion, "conversion failed: " + std::move(result.message)};
}

/// Gives all fields their defaults. Unlike an assignment of `{}`, this makes no record, and lists keep their memory.
template<typename TRecord>
void Empty(TRecord& record)
{
    static TRecord const empty;
    record = empty;
}

/// Requires an empty `record`.
template<typename TConverter>
CodecResult Decode(TConverter const& converter, std::span<std::uint8_t const> const bytes, SourceOf<TConverter>& record,
                   DestinationOf<TConverter>& destination, Bounds const& bounds)
{
    using apache::thrift::protocol::TProtocolException;
    try
    {
        BinaryReader reader(bytes, bounds);
        record.read(&reader);
        if (auto const rest = reader.Rest().size(); rest > 0)
            return {Fault::Bytes, "invalid bytes: " + std::to_string(rest) + " more follow the record"};
    }
    catch (TProtocolException const& error)
    {
        if (error.getType() == TProtocolException::SIZE_LIMIT)
            return {Fault::Bounds, std::string("bound exceeded: ") + error.what()};
        if (error.getType() == TProtocolException::DEPTH_LIMIT)
            return {Fault::Bounds, "bound exceeded: values nest deeper than " + std::to_string(bounds.depth)};
        // Records throw this exception, without a text, if a required field is missing.
        bool const lacksField =
            std::string_view(error.what()) == TProtocolException(TProtocolException::INVALID_DATA).what();
        return {Fault::Bytes,
                std::string("invalid bytes: ") + (lacksField ? "a required field is missing" : error.what())};
    }
    catch (apache::thrift::TException const& error)
    {
        return {Fault::Bytes, std::string("invalid bytes: ") + error.what()};
    }

    if constexpr (requires { converter.ToOrThrow(record, destination); })
    {
        try
        {
            return ResultOf(converter.ToOrThrow(record, destination));
        }
        catch (BadValue const& badValue)
        {
            return {Fault::Value, std::string("invalid value: ") + badValue.what()};
        }
    }
    else
        return ResultOf(converter.To(record, destination));
}

/// Requires an empty `record`.
template<typename TConverter>
CodecResult Encode(TConverter const& converter, SourceOf<TConverter> const& source, DestinationOf<TConverter>& record,
                   BinaryWriter& writer)
{
    auto result = ResultOf(converter.To(source, record));
    if (!result.Success()) return result;

    auto const size = writer.Size();
    try
    {
        record.write(&writer);
    }
    catch (apache::thrift::protocol::TProtocolException const& error)
    {
        writer.Truncate(size);
        return {Fault::Bounds, std::string("bound exceeded: ") + error.what()};
    }
    return result;
}

} // namespace Detail

/// Reads one record from all of `bytes`, within `bounds`, and converts it to the domain. It combines BinaryReader, the
/// record's `read` and TryTo() and returns one result. Pass `converter` as its concrete class.
///
/// On a failure `destination` holds what was converted before it. Throws std::bad_alloc if memory runs out, except in a
/// converter in which no value ends the process: there it ends the process.
///
///     Domain::Clip clip;
///     auto const result = Wire::Decode(ThriftToClipConverter(), bytes, clip);
///     if (!result.Success()) std::cerr << result.message << '\n';
template<typename TConverter>
CodecResult Decode(TConverter const& converter, std::span<std::uint8_t const> const bytes,
                   Detail::DestinationOf<TConverter>& destination, Bounds const& bounds = {})
{
    Detail::SourceOf<TConverter> record;
    return Detail::Decode(converter, bytes, record, destination, bounds);
}

/// Decodes as above, through a record of the caller, which is emptied first so that nothing of an earlier message
/// remains. A reused record keeps the memory of its strings and lists.
template<typename TConverter>
CodecResult Decode(TConverter const& converter, std::span<std::uint8_t const> const bytes,
                   Detail::SourceOf<TConverter>& record, Detail::DestinationOf<TConverter>& destination,
                   Bounds const& bounds = {})
{
    Detail::Empty(record);
    return Detail::Decode(converter, bytes, record, destination, bounds);
}

/// Converts a domain object to a record and appends the record to `writer`. On a failure the writer's contents are
/// unchanged. Throws and ends the process as Decode() does.
///
///     Wire::BinaryWriter writer;
///     auto const result = Wire::Encode(ClipToThriftConverter(), clip, writer);
///     if (result.Success()) Send(writer.Bytes());
template<typename TConverter>
CodecResult Encode(TConverter const& converter, Detail::SourceOf<TConverter> const& source, BinaryWriter& writer)
{
    Detail::DestinationOf<TConverter> record;
    return Detail::Encode(converter, source, record, writer);
}

/// Encodes as above, through a record of the caller, which is emptied first. A reused record keeps the memory of its
/// strings and lists.
template<typename TConverter>
CodecResult Encode(TConverter const& converter, Detail::SourceOf<TConverter> const& source,
                   Detail::DestinationOf<TConverter>& record, BinaryWriter& writer)
{
    Detail::Empty(record);
    return Detail::Encode(converter, source, record, writer);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
