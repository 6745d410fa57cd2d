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

/// What is to blame for a failure of Decode() or Encode().
enum class Fault
{
    None,
    Bytes,     ///< They are no such record, or not one alone.
    Bounds,    ///< They exceed a bound.
    Value,     ///< A value of the record would have ended the process in `To`.
    Conversion ///< The converter reports a failure.
};

/// What Decode() and Encode() report.
struct [[nodiscard]] CodecResult
{
    Fault fault;
    /// Empty on success. It begins with "invalid bytes: ", "bound exceeded: ", "invalid value: " or "conversion failed: ",
    /// and may repeat the peer's text, unescaped.
    std::string message;

    [[nodiscard]] bool Success() const noexcept { return fault == Fault::None; }
};

namespace Detail
{

template<typename TSource, typename TDestination>
TSource SourceOf(Common::Serialization::Converter<TSource, TDestination> const&);
template<typename TSource, typename TDestination>
TDestination DestinationOf(Common::Serialization::Converter<TSource, TDestination> const&);

inline CodecResult ResultOf(Common::Serialization::ConversionResult&& result)
{
    if (result.success) return {Fault::None, {}};
    return {Fault::Conversion, "conversion failed: " + std::move(result.message)};
}

} // namespace Detail

/// Reads one record from all of `bytes`, within `bounds`, and converts it to the domain: what BinaryReader, the record's
/// `read` and TryTo() do, with one result. `converter` is given as its own class.
///
/// `record` is the record in between, which is emptied before: give the same one again to reuse the memory of its
/// strings. On a failure `destination` holds what was converted before it. Throws std::bad_alloc where memory runs out,
/// except in a converter in which no value ends the process: there it ends the process.
///
///     Domain::Clip clip;
///     auto const result = Wire::Decode(ThriftToClipConverter(), bytes, clip);
///     if (!result.Success()) std::cerr << result.message << '\n';
template<typename TConverter, typename TRecord, typename TDestination>
CodecResult Decode(TConverter const& converter, std::span<std::uint8_t const> const bytes, TRecord& record,
                   TDestination& destination, Bounds const& bounds = {})
{
    using apache::thrift::protocol::TProtocolException;
    try
    {
        record = TRecord();
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
        return {Fault::Bytes, std::string("invalid bytes: ") + error.what()};
    }
    catch (apache::thrift::TException const& error)
    {
        return {Fault::Bytes, std::string("invalid bytes: ") + error.what()};
    }

    if constexpr (requires { converter.ToOrThrow(record, destination); })
    {
        try
        {
            return Detail::ResultOf(converter.ToOrThrow(record, destination));
        }
        catch (BadValue const& badValue)
        {
            return {Fault::Value, std::string("invalid value: ") + badValue.what()};
        }
    }
    else
        return Detail::ResultOf(converter.To(record, destination));
}

/// The same with a new record.
template<typename TConverter, typename TDestination>
CodecResult Decode(TConverter const& converter, std::span<std::uint8_t const> const bytes, TDestination& destination,
                   Bounds const& bounds = {})
{
    decltype(Detail::SourceOf(converter)) record;
    return Decode(converter, bytes, record, destination, bounds);
}

/// Converts a domain object to a record and appends that to what `writer` holds. On a failure the writer holds what it
/// held before. `record` is the record in between, as for Decode().
///
///     Wire::BinaryWriter writer;
///     auto const result = Wire::Encode(ClipToThriftConverter(), clip, writer);
///     if (result.Success()) Send(writer.Bytes());
template<typename TConverter, typename TSource, typename TRecord>
CodecResult Encode(TConverter const& converter, TSource const& source, TRecord& record, BinaryWriter& writer)
{
    record = TRecord();
    auto result = Detail::ResultOf(converter.To(source, record));
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

/// The same with a new record.
template<typename TConverter, typename TSource>
CodecResult Encode(TConverter const& converter, TSource const& source, BinaryWriter& writer)
{
    decltype(Detail::DestinationOf(converter)) record;
    return Encode(converter, source, record, writer);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
