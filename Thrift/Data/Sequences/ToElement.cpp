#include "Thrift/Data/Sequences/ToElement.h"

#include "Domain/CorvaneData/Sequences/Element.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/ToSequenceId.h"
#include "Thrift/Data/Sequences/ToTag.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/Element_types.h"

#include <cstddef>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::SequenceId;
using Corvane::Data::Sequences::Tag;
using EnumConverter::FromGeneratedEnum;

namespace
{

/// Appends the tags to the destination. A tag that fails is not added; those before it are kept.
ConversionResult ReadTags(std::vector<Generated::Tag> const& source, std::vector<Tag>& destination)
{
    ThriftToTagConverter const toTag;

    ReserveMore(destination, source.size());
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        // The type is read regardless of its flag.
        auto& tag = destination.emplace_back(FromGeneratedEnum(source[i].commandType));
        if (auto const result = Read({"tags", i}, toTag, source[i], tag); !result.success)
        {
            destination.pop_back();
            return Nested(result);
        }
    }
    return Success();
}

} // namespace

ConversionResult ThriftToElementConverter::ToOrThrow(Generated::Element const& source,
                                                     Corvane::Data::Sequences::Element& destination) const
{
    ThriftToSequenceIdConverter const toSequenceId;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.id)) destination.id = source.id;
    if (seen(isset.sequenceId))
    {
        SequenceId sequenceId;
        if (auto const result = Read("sequenceId", toSequenceId, source.sequenceId, sequenceId); !result.success)
            return Nested(result);
        destination.sequenceId = sequenceId;
    }
    if (seen(isset.position)) destination.position = source.position;
    if (seen(isset.umId)) destination.umId.SetUmId(source.umId.c_str());
    if (seen(isset.inBoundaryType)) destination.inBoundaryType = FromGeneratedEnum(source.inBoundaryType);
    if (seen(isset.outBoundaryType)) destination.outBoundaryType = FromGeneratedEnum(source.outBoundaryType);
    if (seen(isset.effectPosition)) destination.effectPosition = FromGeneratedEnum(source.effectPosition);
    if (seen(isset.stillMode)) destination.stillMode = FromGeneratedEnum(source.stillMode);
    if (seen(isset.transitionTimer)) destination.transitionTimer = source.transitionTimer;
    if (seen(isset.tags))
    {
        if (auto const result = ReadTags(source.tags, destination.tags); !result.success) return Nested(result);
    }
    if (seen(isset.internalLoopId)) destination.internalLoopId = source.internalLoopId;
    if (seen(isset.internalLoopRunNb)) destination.internalLoopRunNb = source.internalLoopRunNb;
    if (seen(isset.speed)) destination.speed = {source.speed.numerator, source.speed.denominator};
    return seen.None() ? Failure("Element is empty") : Success();
}

ConversionResult ThriftToElementConverter::To(Generated::Element const& source,
                                              Corvane::Data::Sequences::Element& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToElementConverter::To(Generated::Element&& source,
                                              Corvane::Data::Sequences::Element& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
