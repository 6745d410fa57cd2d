#pragma once

#include "TimePoints/TimeCodeFormatter.h"

namespace Talvo::TimePoints
{

/// Writes the text form of time codes: `YYYY-MM-DDThh:mm:ss:ff@rate`, with `;` before the frame if the time code is
/// drop-frame. `rate` is the nominal rate in samples per second. TimeCode::Empty() gives `1900-01-01T00:00:00:00@50`.
///
/// Month, day, hour, minute, second and frame below 10 get a leading "0". Two texts can't be parsed back: that of an
/// undated time code, which has -1 for year, month and day and so starts with `-1-0-1-0-1T`, and that of a frame of 100
/// or more, which rates above 100 have.
class TalvoTimeCodeFormatter : public TimeCodeFormatter
{
public:
    ~TalvoTimeCodeFormatter() override;

    /// Returns the text of the time code. Allocates only the result.
    std::string Format(TimeCode const& timeCode) const override;
};

} // namespace Talvo::TimePoints
