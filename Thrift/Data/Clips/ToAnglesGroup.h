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

/// Replaces a domain `Groups::AnglesGroup` by the wire record `AnglesGroup`, whose fields are all required. It can't
/// fail.
///
/// Items are added in ascending order of camera, each as `AnglesGroup::AddAngle` takes it: `NotSet`, which unknown
/// cameras read as, is lost.
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
