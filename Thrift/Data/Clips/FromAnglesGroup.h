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

/// Writes a domain `Groups::AnglesGroup` into the wire record `AnglesGroup`. It can't fail.
///
/// The wire map is cleared first and then holds one item a camera, in the order of the cameras: the primary angle
/// marked `Primary`, the secondary one `Secondary`, all others `None`. Angles that equal `Angle::Empty()` don't travel.
class AnglesGroupToThriftConverter
    : public Converter<Corvane::Data::Clips::Groups::AnglesGroup, Corvane::Data::Clips::Groups::Generated::AnglesGroup>
{
public:
    ConversionResult To(Corvane::Data::Clips::Groups::AnglesGroup const& source,
                        Corvane::Data::Clips::Groups::Generated::AnglesGroup& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Clips::Groups::AnglesGroup&& source,
                        Corvane::Data::Clips::Groups::Generated::AnglesGroup& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
