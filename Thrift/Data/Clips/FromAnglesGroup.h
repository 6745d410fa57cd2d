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
/// The wire map is cleared first and then holds one item per camera, in the order of the cameras: the primary angle is
/// marked `Primary`, the secondary one `Secondary`, all others `None`. Angles equal to `Angle::Empty()` are not
/// written.
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
