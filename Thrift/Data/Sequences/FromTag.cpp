#include "Thrift/Data/Sequences/FromTag.h"

#include "Domain/CorvaneData/Sequences/Tag.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/FromTagProperty.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/Tag_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using EnumConverter::ToGeneratedEnum;

ConversionResult TagToThriftConverter::To(Corvane::Data::Sequences::Tag const& source,
                                          Generated::Tag& destination) const noexcept
{
    TagPropertyToThriftConverter const fromProperty;

    TALVO_FLAGGED(destination, id) = source.id;
    TALVO_FLAGGED(destination, commandType) = ToGeneratedEnum(source.commandType);
    TALVO_FLAGGED(destination, field) = source.field;
    for (auto const& [key, property] : source.properties)
    {
        Generated::TagProperty wire;
        if (auto const result = fromProperty.To(property, wire); !result.success) return Nested(result);
        // The first property of a key stays. The order of the hash map decides which one that is; it is not sorted.
        destination.properties.try_emplace(ToGeneratedEnum(key), std::move(wire));
    }
    destination.__isset.properties = true;
    return Success();
}

ConversionResult TagToThriftConverter::To(Corvane::Data::Sequences::Tag&& source,
                                          Generated::Tag& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
