#include "TimePoints/TalvoTimeCodeFormatter.h"

#include "TimePoints/TimeCodeText.h"

namespace Talvo::TimePoints
{

TalvoTimeCodeFormatter::~TalvoTimeCodeFormatter() = default;

std::string TalvoTimeCodeFormatter::Format(TimeCode const& timeCode) const
{
    std::string text;
    WriteTimeCode(timeCode, text);
    return text;
}

} // namespace Talvo::TimePoints
