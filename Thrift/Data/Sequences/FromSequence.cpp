#include "Thrift/Data/Sequences/FromSequence.h"

#include "Domain/CorvaneData/Sequences/Sequence.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/FromSequenceId.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/Sequence_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using EnumConverter::ToGeneratedEnum;

ConversionResult SequenceToThriftConverter::To(Corvane::Data::Sequences::Sequence const& source,
                                               Generated::Sequence& destination) const noexcept
{
    SequenceIdToThriftConverter const fromSequenceId;

    if (auto const result = fromSequenceId.To(source.id, destination.id); !result.success) return Nested(result);
    destination.__isset.id = true;
    TALVO_FLAGGED(destination, umId) = source.umId.GetUmId();
    SendSlot(source.varId, TALVO_FLAGGED(destination, varId));
    SendSlot(source.name, TALVO_FLAGGED(destination, name));
    TALVO_FLAGGED(destination, isTimeCodeRegen) = source.isTimeCodeRegen;
    WriteTimeCode(source.timeCodeRegenReference, TALVO_FLAGGED(destination, timeCodeRegenReference));
    TALVO_FLAGGED(destination, timeCodeRegenBase) = ToGeneratedEnum(source.timeCodeRegenBase);
    TALVO_FLAGGED(destination, timeCodeRegenSource) = ToGeneratedEnum(source.timeCodeRegenSource);
    TALVO_FLAGGED(destination, timeCodeRegenOutput) = ToGeneratedEnum(source.timeCodeRegenOutput);
    TALVO_FLAGGED(destination, timeCodeRegenType) = ToGeneratedEnum(source.timeCodeRegenType);
    TALVO_FLAGGED(destination, durationWithEffects) = source.durationWithEffects;
    TALVO_FLAGGED(destination, durationWithoutEffects) = source.durationWithoutEffects;
    TALVO_FLAGGED(destination, playRateNumerator) = source.playRate.numerator;
    TALVO_FLAGGED(destination, playRateDenominator) = source.playRate.denominator;
    TALVO_FLAGGED(destination, isFixedDuration) = source.isFixedDuration;
    TALVO_FLAGGED(destination, archiveStatus) = Clips::EnumConverter::ToGeneratedEnum(source.archiveStatus);
    return Success();
}

ConversionResult SequenceToThriftConverter::To(Corvane::Data::Sequences::Sequence&& source,
                                               Generated::Sequence& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
