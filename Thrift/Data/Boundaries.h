#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Thrift/Data/Channels/FromLoadBoundary.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "generated/LoadBoundary_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// A boundary can't fail on its way out.
inline void SendBoundary(Corvane::Data::Channels::Boundary const& source,
                         Data::Channels::Generated::LoadBoundary& destination) noexcept
{
    static Data::Channels::LoadBoundaryToThriftConverter const loadBoundaryConverter;
    std::ignore = loadBoundaryConverter.To(source, destination);
}

/// A boundary that is refused reads as a new one.
inline Corvane::Data::Channels::Boundary ReadBoundary(Data::Channels::Generated::LoadBoundary const& source) noexcept
{
    static Data::Channels::ThriftToLoadBoundaryConverter const loadBoundaryConverter;
    Corvane::Data::Channels::Boundary boundary;
    std::ignore = loadBoundaryConverter.To(source, boundary);
    return boundary;
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
