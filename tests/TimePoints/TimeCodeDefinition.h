#pragma once

#include "TimePoints/TimeCodeBuilder.h"
#include "TimePoints/TimeCodeText.h"

#include <cstddef>
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

/// What `answer()` returns, or the type and text of what it throws.
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

/// The language by its definition: the two expressions, std::stoi and the builder.
inline TimeCode ReferenceParse(std::string const& text)
{
    static std::regex const dated{regexDatedtcNoDrop};
    static std::regex const undated{regexTC};

    TimeCodeBuilder builder{.year = 1950};
    std::smatch match;
    builder.dated = std::regex_search(text, match, dated);
    if (!builder.dated && !std::regex_search(text, match, undated))
        throw std::invalid_argument("TalvoTimeCodeParser the string '" + text + "' has not the expected format.");

    std::size_t next = 1;
    auto const number = [&] { return std::stoi(match[next++]); };
    if (builder.dated)
    {
        builder.year = number();
        builder.month = number();
        builder.day = number();
    }
    builder.hour = number();
    builder.minute = number();
    builder.second = number();
    builder.dropFrame = match[next++] == ";";
    builder.sample = number();
    builder.numerator = number();
    return builder.Build();
}

} // namespace Talvo::TimePoints
