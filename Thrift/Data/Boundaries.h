#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Thrift/Data/Channels/FromLoadBoundary.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "generated/LoadBoundary_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Writing a boundary can't fail, so the result is ignored.
inline void SendBoundary(Corvane::Data::Channels::Boundary const& source,
                         Data::Channels::Generated::LoadBoundary& destination) noexcept
{
    static Data::Channels::LoadBoundaryToThriftConverter const loadBoundaryConverter;
    std::ignore = loadBoundaryConverter.To(source, destination);
}

/// Reads a boundary. One that is rejected reads as a new boundary.
inline Corvane::Data::Channels::Boundary ReadBoundary(Data::Channels::Generated::LoadBoundary const& source) noexcept
{
    static Data::Channels::ThriftToLoadBoundaryConverter const loadBoundaryConverter;
    Corvane::Data::Channels::Boundary boundary;
    std::ignore = loadBoundaryConverter.To(source, boundary);
    return boundary;
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
