#pragma once

// Internal, never installed.

#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/ToGuid.h"
#include "generated/Guid_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// The conversion of an identifier can't fail in either direction, so its result is ignored here.

inline void SendGuid(Corvane::Data::Guid const& source, Corvane::Data::Generated::Guid& destination) noexcept
{
    static Data::GuidToThriftConverter const guidConverter;
    std::ignore = guidConverter.To(source, destination);
}

inline Corvane::Data::Generated::Guid SentGuid(Corvane::Data::Guid const& source) noexcept
{
    Corvane::Data::Generated::Guid guid;
    SendGuid(source, guid);
    return guid;
}

inline void ReadGuid(Corvane::Data::Generated::Guid const& source, Corvane::Data::Guid& destination) noexcept
{
    static Data::ThriftToGuidConverter const guidConverter;
    std::ignore = guidConverter.To(source, destination);
}

template<typename TGuid>
TGuid ReadGuidAs(Corvane::Data::Generated::Guid const& source) noexcept
{
    TGuid guid;
    ReadGuid(source, guid);
    return guid;
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
