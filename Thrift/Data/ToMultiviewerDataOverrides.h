#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Multiviewer
{
class MultiviewerDataOverrides;
} // namespace Talvo::Corvane::Multiviewer

namespace Talvo::Corvane::Data::Generated
{
class MultiviewerDataOverrides;
} // namespace Talvo::Corvane::Data::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

/// Applies the players of the wire record `MultiviewerDataOverrides` to those of a domain `MultiviewerDataOverrides`,
/// in their order, each with ToPlayerDataOverrides. The destination determines their number.
///
/// Failure: "Unexpected playerData count" when the wire has a different number; the destination is then unchanged.
class ToMultiviewerDataOverrides
    : public Converter<Corvane::Data::Generated::MultiviewerDataOverrides, Multiviewer::MultiviewerDataOverrides>
{
public:
    ConversionResult To(Corvane::Data::Generated::MultiviewerDataOverrides const& source,
                        Multiviewer::MultiviewerDataOverrides& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Generated::MultiviewerDataOverrides&& source,
                        Multiviewer::MultiviewerDataOverrides& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
