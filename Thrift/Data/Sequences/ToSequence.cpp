#include "Thrift/Data/Sequences/ToSequence.h"

#include "Domain/CorvaneData/Sequences/Sequence.h"
#include "Thrift/BadValue.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Texts.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/VideoRates.h"
#include "generated/Sequence_types.h"

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::SequenceId;
using Corvane::Data::Servers::ServerId;
using EnumConverter::FromGeneratedEnum;
using TimePoints::TalvoTimeCodeParser;
using TimePoints::VideoRate;
using TimePoints::VideoRates;

namespace
{

/// The numerator alone decides: a standard rate gets the denominator 1001, regardless of the one that was sent.
std::optional<VideoRate> PlayRate(std::int64_t const numerator, std::int64_t const denominator)
{
    if (denominator == 1) return VideoRate{numerator, 1};
    for (auto const& rate : {VideoRates::Rate2398(), VideoRates::Rate2997(), VideoRates::Rate4795(),
                             VideoRates::Rate5994(), VideoRates::Rate11988()})
    {
        if (numerator == rate.numerator) return rate;
    }
    return std::nullopt;
}

} // namespace

ConversionResult ThriftToSequenceConverter::ToOrThrow(Generated::Sequence const& source,
                                                      Corvane::Data::Sequences::Sequence& destination) const
{
    auto const& isset = source.__isset;
    SeenFields seen;

    // The flags inside the identifier are ignored. An invalid location is a BadValue, never a failure.
    if (seen(isset.id))
        destination.id = OrBadValue(
            "id.location",
            [&] { return SequenceId(ServerId(source.id.serverId), static_cast<std::uint32_t>(source.id.location)); });
    if (seen(isset.umId)) destination.umId.SetUmId(source.umId.c_str());
    if (seen(isset.varId)) ReadSlot(source.varId, destination.varId);
    if (seen(isset.name)) ReadSlot(source.name, destination.name);
    // Fields without "seen" are applied but don't count.
    if (isset.isTimeCodeRegen) destination.isTimeCodeRegen = source.isTimeCodeRegen;
    if (seen(isset.timeCodeRegenReference))
    {
        // Only a text that does not have the form of a time code is a failure. An invalid value is a BadValue.
        try
        {
            destination.timeCodeRegenReference = TalvoTimeCodeParser().Parse(source.timeCodeRegenReference);
        }
        catch (std::invalid_argument const& error)
        {
            return Failure(std::string("Invalid TimeCode format (") + error.what() + ")");
        }
        catch (std::out_of_range const& error)
        {
            throw BadValue("timeCodeRegenReference", error.what());
        }
    }
    if (isset.timeCodeRegenBase) destination.timeCodeRegenBase = FromGeneratedEnum(source.timeCodeRegenBase);
    if (isset.timeCodeRegenSource) destination.timeCodeRegenSource = FromGeneratedEnum(source.timeCodeRegenSource);
    if (isset.timeCodeRegenOutput) destination.timeCodeRegenOutput = FromGeneratedEnum(source.timeCodeRegenOutput);
    if (isset.timeCodeRegenType) destination.timeCodeRegenType = FromGeneratedEnum(source.timeCodeRegenType);
    if (isset.durationWithEffects) destination.durationWithEffects = source.durationWithEffects;
    if (isset.durationWithoutEffects) destination.durationWithoutEffects = source.durationWithoutEffects;
    if (isset.playRateNumerator && isset.playRateDenominator)
    {
        auto const rate = PlayRate(source.playRateNumerator, source.playRateDenominator);
        if (!rate)
            return Failure("Invalid sequence rate " + std::to_string(source.playRateNumerator) + ":" +
                           std::to_string(source.playRateDenominator));
        destination.playRate = *rate;
    }
    if (isset.isFixedDuration) destination.isFixedDuration = source.isFixedDuration;
    if (seen(isset.archiveStatus))
        destination.archiveStatus = Clips::EnumConverter::FromGeneratedEnum(source.archiveStatus);
    return seen.None() ? Failure("Sequence is empty") : Success();
}

ConversionResult ThriftToSequenceConverter::To(Generated::Sequence const& source,
                                               Corvane::Data::Sequences::Sequence& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToSequenceConverter::To(Generated::Sequence&& source,
                                               Corvane::Data::Sequences::Sequence& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
