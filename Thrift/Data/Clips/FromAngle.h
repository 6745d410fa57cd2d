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

/// Writes a domain `Groups::Angle` into the wire record `Angle`: the camera, then the clip's identifier. It can't fail.
class AngleToThriftConverter
    : public Converter<Corvane::Data::Clips::Groups::Angle, Corvane::Data::Clips::Groups::Generated::Angle>
{
public:
    ConversionResult To(Corvane::Data::Clips::Groups::Angle const& source,
                        Corvane::Data::Clips::Groups::Generated::Angle& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Groups::Angle&& source,
                        Corvane::Data::Clips::Groups::Generated::Angle& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
