#pragma once

#include "TimePoints/TimeCode.h"
#include "TimePoints/TimeCodeText.h"

#include <cstddef>
#include <cstdint>
#include <regex>
#include <stdexcept>
#include <string>

namespace Talvo::TimePoints
{

inline std::string Describe(TimeCode const& timeCode)
{
    return std::to_string(timeCode.Sample()) + " at " + std::to_string(timeCode.Rate().numerator) +
           (timeCode.DropFrame() ? " drop" : "") + (timeCode.Dated() ? " dated" : "");
}

/// Returns the result of `answer()`, or the type and text of the exception that it throws.
template<typename Answer>
std::string Outcome(Answer answer)
{
    try
    {
        return answer();
    }
    catch (std::invalid_argument const& failure)
    {
        return std::string{"invalid_argument: "} + failure.what();
    }
    catch (std::out_of_range const& failure)
    {
        return std::string{"out_of_range: "} + failure.what();
    }
}

/// Returns what Outcome() must return for parsing `text`. Applies the rules of the text form and a plain count, without
/// the product's code.
inline std::string ReferenceOutcome(std::string const& text)
{
    static std::regex const datedShape{regexDatedtcNoDrop};
    static std::regex const undatedShape{regexTC};

    std::smatch match;
    bool const dated = std::regex_search(text, match, datedShape);
    if (!dated && !std::regex_search(text, match, undatedShape))
    {
        auto const message =
            "invalid_argument: TalvoTimeCodeParser the string '" + text + "' has not the expected format.";
        return message.c_str(); // what() ends at the first NUL
    }

    std::size_t next = 1;
    auto const number = [&] { return std::stoi(match[next++]); };
    int const year = dated ? number() : 1970;
    int const month = dated ? number() : 1;
    int const day = dated ? number() : 1;
    int const hour = number();
    int const minute = number();
    int const second = number();
    bool const dropFrame = match[next++] == ";";
    int const frame = number();
    int rate = 0;
    try
    {
        rate = number();
    }
    catch (std::out_of_range const& failure)
    {
        return std::string{"out_of_range: "} + failure.what();
    }

    auto const daysOfYear = [](int y) { return y % 4 == 0 && (y % 100 != 0 || y % 400 == 0) ? 366 : 365; };
    auto const daysOfMonth = [&](int m) {
        return m == 2 ? daysOfYear(year) - 337 : m == 4 || m == 6 || m == 9 || m == 11 ? 30 : 31;
    };

    // The expressions match only valid minutes and seconds.
    auto const decimal = [](auto value) { return std::to_string(value); };
    std::string fault;
    if (year < 1900 || year > 2261)
        fault = "year " + decimal(year) + " must be between 1900 and 2261";
    else if (month < 1 || month > 12)
        fault = "month " + decimal(month) + " must be between 1 and 12";
    else if (day < 1 || day > daysOfMonth(month))
        fault = "day " + decimal(day) + "is negative or greater than " + decimal(daysOfMonth(month)) + " in month " +
                decimal(month);
    else if (hour > 23)
        fault = "hour " + decimal(hour) + " must be between 0 and 23";
    else if (frame >= rate)
        fault = "Sample " + decimal(frame) + " is greater than numerator ratio " + decimal(rate);
    else if (dropFrame && minute % 10 != 0 && second == 0 && frame < (rate == 30 ? 2 : 4))
        fault = "In dropped TimeCode, this value doesn't exist " + decimal(minute) + ":0;" + decimal(frame);
    else if (dropFrame && rate != 30 && rate != 60)
        fault = "Rate " + decimal(rate) + " / 1 is not compatible with drop TC format";
    if (!fault.empty()) return "out_of_range: " + fault;

    std::uint64_t minutes = static_cast<unsigned>(day - 1); // unsigned, since a large rate exceeds 64 bits
    for (int y = 1900; y < year; ++y) minutes += static_cast<unsigned>(daysOfYear(y));
    for (int m = 1; m < month; ++m) minutes += static_cast<unsigned>(daysOfMonth(m));
    minutes = (minutes * 24 + static_cast<unsigned>(hour)) * 60 + static_cast<unsigned>(minute);
    auto samples =
        (minutes * 60 + static_cast<unsigned>(second)) * static_cast<unsigned>(rate) + static_cast<unsigned>(frame);
    if (dropFrame) samples -= (minutes - minutes / 10) * (rate == 30 ? 2 : 4);
    return decimal(static_cast<std::int64_t>(samples)) + " at " + decimal(rate) + (dropFrame ? " drop" : "") +
           (dated ? " dated" : "");
}

} // namespace Talvo::TimePoints
