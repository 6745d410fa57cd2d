#include "Thrift/Data/Sequences/FromTag.h"

#include "Domain/CorvaneData/Sequences/Tag.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/FromTagProperty.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/Tag_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::TagProperty;
using EnumConverter::FromGeneratedEnum;
using EnumConverter::ToGeneratedEnum;

ConversionResult TagToThriftConverter::To(Corvane::Data::Sequences::Tag const& source,
                                          Generated::Tag& destination) const noexcept
{
    TagPropertyToThriftConverter const fromProperty;

    // A key that is there already is skipped.
    auto const send = [&](Generated::TagPropertyKey::type const key, TagProperty const& property)
    {
        auto const [entry, isNew] = destination.properties.try_emplace(key);
        if (!isNew) return Success();
        auto result = fromProperty.To(property, entry->second);
        if (!result.success) destination.properties.erase(entry);
        return result;
    };

    TALVO_FLAGGED(destination, id) = source.id;
    TALVO_FLAGGED(destination, commandType) = ToGeneratedEnum(source.commandType);
    TALVO_FLAGGED(destination, field) = source.field;
    // Keys outside the table all travel as Value. So that the outcome does not hang on the order of a hash map, the
    // tag's own Value goes before them, and of them the lowest.
    decltype(source.properties)::const_pointer unknown = nullptr;
    for (auto const& entry : source.properties)
    {
        auto const key = ToGeneratedEnum(entry.first);
        if (FromGeneratedEnum(key) != entry.first)
        {
            if (unknown == nullptr || entry.first < unknown->first) unknown = &entry;
        }
        else if (auto const result = send(key, entry.second); !result.success)
            return Nested(result);
    }
    if (unknown != nullptr)
    {
        if (auto const result = send(ToGeneratedEnum(unknown->first), unknown->second); !result.success)
            return Nested(result);
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
