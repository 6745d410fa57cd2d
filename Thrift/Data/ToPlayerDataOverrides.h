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

/// Applies the wire record `PlayerDataOverrides` to a domain `PlayerDataOverrides`: always the player, and the
/// overrides whose flag is set. It can't fail. An override is unchanged if its flag is clear or its control or program
/// mode is unknown.
class ToPlayerDataOverrides
    : public Converter<Corvane::Data::Generated::PlayerDataOverrides, Multiviewer::PlayerDataOverrides>
{
public:
    ConversionResult To(Corvane::Data::Generated::PlayerDataOverrides const& source,
                        Multiviewer::PlayerDataOverrides& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Generated::PlayerDataOverrides&& source,
                        Multiviewer::PlayerDataOverrides& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
