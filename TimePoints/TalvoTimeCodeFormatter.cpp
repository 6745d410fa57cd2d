#include "TimePoints/TalvoTimeCodeFormatter.h"

#include "TimePoints/TimeCodeText.h"

namespace Talvo::TimePoints
{

TalvoTimeCodeFormatter::~TalvoTimeCodeFormatter() = default;

std::string TalvoTimeCodeFormatter::Format(TimeCode const& timeCode) const
{
    return std::string{TimeCodeText{timeCode}.View()};
}

} // namespace Talvo::TimePoints
