#include "TimePoints/TimeCodeBuilder.h"

#include "TimePoints/CalendarTools.h"
#include "TimePoints/SampleCounting.h"

#include <stdexcept>
#include <string>

namespace Talvo::TimePoints
{

namespace
{

constexpr int FirstYear = 1900;
constexpr int LastYear = 2261;

/// The day of undated time codes.
constexpr std::int64_t UndatedDay = DaysSinceOrigin(1970, 1, 1);
static_assert(UndatedDay == 25567);

/// Drop-frame counting exists for these nominal rates only.
constexpr bool HasDropFrame(std::int64_t numerator) noexcept
{
    return numerator == 30 || numerator == 60;
}

} // namespace

bool TimeCodeBuilder::IsValidToBuildWithexception() const
{
    auto const text = [](std::int64_t number) { return std::to_string(number); };

    switch (FirstFault())
    {
    case Fault::None:
        return true;
    case Fault::Year:
        throw std::out_of_range("year " + text(year) + " must be between " + text(FirstYear) + " and " +
                                text(LastYear));
    case Fault::Month:
        throw std::out_of_range("month " + text(month) + " must be between 1 and 12");
    case Fault::Day:
        // No blank after the day: callers expect the text in this form.
        throw std::out_of_range("day " + text(day) + "is negative or greater than " +
                                text(CalendarTools::DayPerMonth(year, month)) + " in month " + text(month));
    case Fault::Hour:
        throw std::out_of_range("hour " + text(hour) + " must be between 0 and 23");
    case Fault::Minute:
        throw std::out_of_range("minute " + text(minute) + " must be between 0 and 59");
    case Fault::Second:
        throw std::out_of_range("second " + text(second) + " must be between 0 and 59");
    case Fault::Denominator:
        throw std::out_of_range("Denominator " + text(denominator) + " must be between equals to 1");
    case Fault::Sample:
        throw std::out_of_range("Sample " + text(sample) + " is greater than numerator ratio " + text(numerator));
    case Fault::DroppedFrame:
        throw std::out_of_range("In dropped TimeCode, this value doesn't exist " + text(minute) + ":" + text(second) +
                                ";" + text(sample));
    case Fault::DropRate:
        throw std::out_of_range("Rate " + text(numerator) + " / " + text(denominator) +
                                " is not compatible with drop TC format");
    }
    return true;
}

TimeCode TimeCodeBuilder::Build() const
{
    if (FirstFault() != Fault::None) IsValidToBuildWithexception(); // throws
    return BuildUnchecked();
}

TimeCodeBuilder::Fault TimeCodeBuilder::FirstFault() const noexcept
{
    if (year < FirstYear || year > LastYear) return Fault::Year;
    if (month < 1 || month > 12) return Fault::Month;
    if (day < 1 || day > CalendarTools::DayPerMonth(year, month)) return Fault::Day;
    if (hour < 0 || hour > 23) return Fault::Hour;
    if (minute < 0 || minute > 59) return Fault::Minute;
    if (second < 0 || second > 59) return Fault::Second;
    if (denominator != 1) return Fault::Denominator;
    if (sample >= numerator) return Fault::Sample; // a negative frame is accepted
    if (!dropFrame) return Fault::None;

    // The dropped numbers are checked before the rate: at a rate without drop-frame counting they are reported first.
    int const lastDropped = numerator == 30 ? 1 : 3;
    if (minute % 10 != 0 && second == 0 && sample <= lastDropped) return Fault::DroppedFrame;
    return HasDropFrame(numerator) ? Fault::None : Fault::DropRate;
}

TimeCode TimeCodeBuilder::BuildUnchecked() const noexcept
{
    auto const days = dated ? DaysSinceOrigin(year, month, day) : UndatedDay;
    auto const count = SamplesSinceOrigin(numerator, dropFrame, days, hour, minute, second, sample);
    return {{numerator, denominator}, count, dropFrame && HasDropFrame(numerator), dated};
}

} // namespace Talvo::TimePoints
