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

/// Writes a domain `Boundary` into the wire record `LoadBoundary`. It can't fail. The record is a hand-written union:
/// `type` says which of the two members counts. The other member keeps its value and flag, so a reused record may hold
/// both. A reference outside RelativeTo leaves `type` unchanged.
class LoadBoundaryToThriftConverter : public Converter<Corvane::Data::Channels::Boundary, Generated::LoadBoundary>
{
public:
    ConversionResult To(Corvane::Data::Channels::Boundary const& source,
                        Generated::LoadBoundary& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Channels::Boundary&& source,
                        Generated::LoadBoundary& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
