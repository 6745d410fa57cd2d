#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Clips::Groups
{
class AnglesGroup;
} // namespace Talvo::Corvane::Data::Clips::Groups

namespace Talvo::Corvane::Data::Clips::Groups::Generated
{
class AnglesGroup;
} // namespace Talvo::Corvane::Data::Clips::Groups::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

/// Replaces a domain `Groups::AnglesGroup` with the wire record `AnglesGroup`, whose fields are all required. It can't
/// fail.
///
/// Items are added with `AnglesGroup::AddAngle`, in ascending order of camera. It ignores `NotSet`, so an item of an
/// unknown camera, which reads as `NotSet`, is lost.
class ThriftToAnglesGroupConverter
    : public Converter<Corvane::Data::Clips::Groups::Generated::AnglesGroup, Corvane::Data::Clips::Groups::AnglesGroup>
{
public:
    ConversionResult To(Corvane::Data::Clips::Groups::Generated::AnglesGroup const& source,
                        Corvane::Data::Clips::Groups::AnglesGroup& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Groups::Generated::AnglesGroup&& source,
                        Corvane::Data::Clips::Groups::AnglesGroup& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
