#pragma once

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

namespace Generated
{
class Essence;
} // namespace Generated

/// Writes a domain `Clip::Essence` into the wire record `Essence`: all thirteen fields with their flags, including
/// zeros. It can't fail. Domain enumerators outside their table are written as 0.
class EssenceToThriftConverter : public Converter<Corvane::Data::Clips::Clip::Essence, Generated::Essence>
{
public:
    ConversionResult To(Corvane::Data::Clips::Clip::Essence const& source,
                        Generated::Essence& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Clip::Essence&& source,
                        Generated::Essence& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
