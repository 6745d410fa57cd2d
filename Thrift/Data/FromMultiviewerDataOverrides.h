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

/// Replaces the players of the wire record `MultiviewerDataOverrides` with those of a domain
/// `MultiviewerDataOverrides`, in their order. It can't fail.
class FromMultiviewerDataOverrides
    : public Converter<Multiviewer::MultiviewerDataOverrides, Corvane::Data::Generated::MultiviewerDataOverrides>
{
public:
    ConversionResult To(Multiviewer::MultiviewerDataOverrides const& source,
                        Corvane::Data::Generated::MultiviewerDataOverrides& destination) const noexcept override;

    ConversionResult To(Multiviewer::MultiviewerDataOverrides&& source,
                        Corvane::Data::Generated::MultiviewerDataOverrides& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
