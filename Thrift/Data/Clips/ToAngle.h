#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Clips::Groups
{
struct Angle;
} // namespace Talvo::Corvane::Data::Clips::Groups

namespace Talvo::Corvane::Data::Clips::Groups::Generated
{
class Angle;
} // namespace Talvo::Corvane::Data::Clips::Groups::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

/// Replaces a domain `Groups::Angle` with the wire record `Angle`, whose fields are all required. It can't fail. An
/// unknown camera reads as `NotSet`, and a missing identifier as the empty one.
class ThriftToAngleConverter
    : public Converter<Corvane::Data::Clips::Groups::Generated::Angle, Corvane::Data::Clips::Groups::Angle>
{
public:
    ConversionResult To(Corvane::Data::Clips::Groups::Generated::Angle const& source,
                        Corvane::Data::Clips::Groups::Angle& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Groups::Generated::Angle&& source,
                        Corvane::Data::Clips::Groups::Angle& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
