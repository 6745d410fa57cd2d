#include "Thrift/Data/Sequences/ToTagProperty.h"

#include "Domain/CorvaneData/Sequences/TagProperty.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Detail/Results.h"
#include "generated/TagProperty_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;

ConversionResult ThriftToTagPropertyConverter::To(Generated::TagProperty const& source,
                                                  Corvane::Data::Sequences::TagProperty& destination) const noexcept
{
    if (!source.__isset.dataType || !source.__isset.value) return Failure("TagProperty is empty");

    destination.type = EnumConverter::FromGeneratedEnum(source.dataType);
    destination.value.assign(source.value.begin(), source.value.end());
    return Success();
}

ConversionResult ThriftToTagPropertyConverter::To(Generated::TagProperty&& source,
                                                  Corvane::Data::Sequences::TagProperty& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
