// Time codes as text: written, read and rejected.

#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCodeBuilder.h"

#include <exception>
#include <iostream>

using namespace Talvo::TimePoints;

int main()
{
    TimeCodeBuilder const newYear{
        .year = 2000, .month = 1, .day = 1, .minute = 1, .sample = 2, .numerator = 30, .dropFrame = true};
    std::cout << TalvoTimeCodeFormatter().Format(newYear.Build()) << '\n';

    TimeCode const timeCode = TalvoTimeCodeParser().Parse("2025-05-17T20:45:00:00@25");
    std::cout << timeCode.Sample() << " samples at " << timeCode.Rate().numerator << " a second\n";

    for (auto const* text : {"23:59:59:24@25", "2025-02-29T20:45:00:00@25", "00:01:00;00@30", "today"})
    {
        try
        {
            auto const parsed = TalvoTimeCodeParser().Parse(text);
            std::cout << text << ": " << TalvoTimeCodeFormatter().Format(parsed) << '\n';
        }
        catch (std::exception const& error)
        {
            std::cout << text << ": " << error.what() << '\n';
        }
    }

    auto const [isTimeCode, value] = TalvoTimeCodeParser().TryParse("25:00:00:00@25");
    std::cout << isTimeCode << ' ' << (value == TimeCode::Empty()) << '\n';
}
