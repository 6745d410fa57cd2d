#include "Thrift/Data/Sequences/FromElement.h"

#include "Domain/CorvaneData/Sequences/Element.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/FromSequenceId.h"
#include "Thrift/Data/Sequences/FromTag.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/Element_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using EnumConverter::ToGeneratedEnum;

ConversionResult ElementToThriftConverter::To(Corvane::Data::Sequences::Element const& source,
                                              Generated::Element& destination) const noexcept
{
    SequenceIdToThriftConverter const fromSequenceId;
    TagToThriftConverter const fromTag;

    TALVO_FLAGGED(destination, id) = source.id;
    if (auto const result = fromSequenceId.To(source.sequenceId, destination.sequenceId); !result.success)
        return Nested(result);
    destination.__isset.sequenceId = true;
    TALVO_FLAGGED(destination, position) = source.position;
    TALVO_FLAGGED(destination, umId) = source.umId.GetUmId();
    TALVO_FLAGGED(destination, inBoundaryType) = ToGeneratedEnum(source.inBoundaryType);
    TALVO_FLAGGED(destination, outBoundaryType) = ToGeneratedEnum(source.outBoundaryType);
    TALVO_FLAGGED(destination, effectPosition) = ToGeneratedEnum(source.effectPosition);
    TALVO_FLAGGED(destination, stillMode) = ToGeneratedEnum(source.stillMode);
    TALVO_FLAGGED(destination, transitionTimer) = source.transitionTimer;
    // Appended: tags that the destination already holds stay in front.
    if (auto const result = AppendEach("tags", fromTag, source.tags, destination.tags); !result.success)
        return Nested(result);
    destination.__isset.tags = true;
    TALVO_FLAGGED(destination, internalLoopId) = source.internalLoopId;
    TALVO_FLAGGED(destination, internalLoopRunNb) = source.internalLoopRunNb;
    // The flags inside the speed are unchanged.
    TALVO_FLAGGED(destination, speed).numerator = source.speed.numerator;
    destination.speed.denominator = source.speed.denominator;
    return Success();
}

ConversionResult ElementToThriftConverter::To(Corvane::Data::Sequences::Element&& source,
                                              Generated::Element& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
