#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data
{
class Guid;
} // namespace Talvo::Corvane::Data

namespace Talvo::Corvane::Data::Generated
{
class Guid;
} // namespace Talvo::Corvane::Data::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

/// Writes the sixteen bytes of a domain `Guid`, in their order, into the wire record `Guid`. It can't fail. The empty
/// identifier is written like any other.
class GuidToThriftConverter : public Converter<Corvane::Data::Guid, Corvane::Data::Generated::Guid>
{
public:
    ConversionResult To(Corvane::Data::Guid const& source,
                        Corvane::Data::Generated::Guid& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Guid&& source,
                        Corvane::Data::Generated::Guid& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
