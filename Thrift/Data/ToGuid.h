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

/// Replaces a domain `Guid` with the bytes of the wire record `Guid`, or with `Guid::Empty()` when its flag is clear.
/// It can't fail. A longer value is cut to its first sixteen bytes, and a shorter one is filled with zeros.
class ThriftToGuidConverter : public Converter<Corvane::Data::Generated::Guid, Corvane::Data::Guid>
{
public:
    ConversionResult To(Corvane::Data::Generated::Guid const& source,
                        Corvane::Data::Guid& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Generated::Guid&& source,
                        Corvane::Data::Guid& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
