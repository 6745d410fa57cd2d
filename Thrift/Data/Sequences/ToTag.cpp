#include "Thrift/Data/Sequences/ToTag.h"

#include "Domain/CorvaneData/Sequences/Tag.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/ToTagProperty.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/Tag_types.h"

#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::Tag;
using Corvane::Data::Sequences::TagProperty;
using EnumConverter::FromGeneratedEnum;

namespace
{

/// Resets the tag to the state of Tag(type), but keeps its memory.
void Reset(Tag& tag, Tag::CommandType const type) noexcept
{
    tag.id = 0;
    tag.commandType = type;
    tag.field = 0;
    tag.properties.clear();
}

} // namespace

ConversionResult ThriftToTagConverter::To(Generated::Tag const& source, Tag& destination) const noexcept
{
    ThriftToTagPropertyConverter const toProperty;
    auto const& isset = source.__isset;
    SeenFields seen;

    // Read first, and does not count: a record with no other field set fails after the destination was reset.
    if (isset.commandType) Reset(destination, FromGeneratedEnum(source.commandType));
    if (seen(isset.id)) destination.id = source.id;
    if (seen(isset.field)) destination.field = source.field;
    if (seen(isset.properties && !source.properties.empty()))
    {
        for (auto const& [key, wireProperty] : source.properties)
        {
            TagProperty property;
            if (auto const result = Read("properties", toProperty, wireProperty, property); !result.success)
                return Nested(result);
            // A key that is already present keeps its value.
            destination.properties.try_emplace(FromGeneratedEnum(key), std::move(property));
        }
    }
    return seen.None() ? Failure("Tag is empty") : Success();
}

ConversionResult ThriftToTagConverter::To(Generated::Tag&& source, Tag& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
