#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

namespace Generated
{
class Essence;
} // namespace Generated

/// Applies the fields of the wire record `Essence` whose flag is set to a domain `Clip::Essence`.
///
/// A `type` first resets the whole destination to the cleared state of that type; without one the other fields are
/// applied to the destination's current state. Unknown enumeration numbers read as 0.
///
/// Failure: "Essence is empty" when no flag is set; the destination is then unchanged.
class ThriftToEssenceConverter : public Converter<Generated::Essence, Corvane::Data::Clips::Clip::Essence>
{
public:
    ConversionResult To(Generated::Essence const& source,
                        Corvane::Data::Clips::Clip::Essence& destination) const noexcept override;

    ConversionResult To(Generated::Essence&& source,
                        Corvane::Data::Clips::Clip::Essence& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
