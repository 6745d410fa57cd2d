#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Channels
{
class Boundary;
} // namespace Talvo::Corvane::Data::Channels

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

namespace Generated
{
class LoadBoundary;
} // namespace Generated

/// Replaces a domain `Boundary` with the wire record `LoadBoundary`.
///
/// Failure: "LoadBoundary is empty" when the flag of `type`, of `specializedLoadBoundary` or of the member that `type`
/// selects is clear; the destination is then unchanged.
///
/// Lost: the high word of a field count; an unknown type reads as RelativeToOppositeLoadBoundary.
class ThriftToLoadBoundaryConverter : public Converter<Generated::LoadBoundary, Corvane::Data::Channels::Boundary>
{
public:
    ConversionResult To(Generated::LoadBoundary const& source,
                        Corvane::Data::Channels::Boundary& destination) const noexcept override;

    ConversionResult To(Generated::LoadBoundary&& source,
                        Corvane::Data::Channels::Boundary& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
