#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct Element;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class Element;
} // namespace Generated

/// Writes a domain `Element` into the wire record `Element`: every field. It can't fail. `tags` are appended to those
/// in the destination; the flags inside `speed` are unchanged.
///
/// Lost: domain enumerators outside their table, which are written as 0.
class ElementToThriftConverter : public Converter<Corvane::Data::Sequences::Element, Generated::Element>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Element const& source,
                        Generated::Element& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Element&& source,
                        Generated::Element& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
