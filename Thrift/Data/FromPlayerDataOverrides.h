#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Multiviewer
{
class PlayerDataOverrides;
} // namespace Talvo::Corvane::Multiviewer

namespace Talvo::Corvane::Data::Generated
{
class PlayerDataOverrides;
} // namespace Talvo::Corvane::Data::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

/// Writes a domain `PlayerDataOverrides` into the wire record `PlayerDataOverrides`. It can't fail.
///
/// A missing override clears the flag of its wire field, so a reused record keeps no stale override. A control or
/// program mode outside its enumeration sets the flag and leaves the wire's value unchanged.
///
/// Lost: `reservedValueA` and `reservedValueB`.
class FromPlayerDataOverrides
    : public Converter<Multiviewer::PlayerDataOverrides, Corvane::Data::Generated::PlayerDataOverrides>
{
public:
    ConversionResult To(Multiviewer::PlayerDataOverrides const& source,
                        Corvane::Data::Generated::PlayerDataOverrides& destination) const noexcept override;

    ConversionResult To(Multiviewer::PlayerDataOverrides&& source,
                        Corvane::Data::Generated::PlayerDataOverrides& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
