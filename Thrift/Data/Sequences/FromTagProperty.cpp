#include "Thrift/Data/Sequences/FromTagProperty.h"

#include "Domain/CorvaneData/Sequences/TagProperty.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/TagProperty_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;

ConversionResult TagPropertyToThriftConverter::To(Corvane::Data::Sequences::TagProperty const& source,
                                                  Generated::TagProperty& destination) const noexcept
{
    TALVO_FLAGGED(destination, dataType) = EnumConverter::ToGeneratedEnum(source.type);
    // Appended: integers that the destination already holds stay in front.
    destination.value.insert(destination.value.end(), source.value.begin(), source.value.end());
    destination.__isset.value = true;
    return Success();
}

ConversionResult TagPropertyToThriftConverter::To(Corvane::Data::Sequences::TagProperty&& source,
                                                  Generated::TagProperty& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
