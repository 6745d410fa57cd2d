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

/// Writes a domain `Boundary` into the wire record `LoadBoundary`, a union told by hand: `type` says which of the two
/// members counts. It can't fail. The member that doesn't count keeps value and flag, so a record that is used again
/// may hold both; a reference outside RelativeTo leaves `type` as it was.
class LoadBoundaryToThriftConverter : public Converter<Corvane::Data::Channels::Boundary, Generated::LoadBoundary>
{
public:
    ConversionResult To(Corvane::Data::Channels::Boundary const& source,
                        Generated::LoadBoundary& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Channels::Boundary&& source,
                        Generated::LoadBoundary& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
