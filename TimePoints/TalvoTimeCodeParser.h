#pragma once

#include "TimePoints/TimeCodeParser.h"

namespace Talvo::TimePoints
{

/// Reads the text form in which time codes travel, dated (`2000-01-01T00:01:00;02@30`) or undated (`00:01:00;02@30`).
/// The whole text must be of one of the two shapes:
///
///     dated    = year "-" month "-" day "T" undated     year: four digits, the first not 0
///     undated  = hour ":" minute ":" second (":" | ";") frame "@" rate
///
/// month, day, hour, minute, second and frame have two digits each, the first of month at most 1, of day at most 3, of
/// hour at most 2, of minute and second at most 5; rate has one digit or more. ";" means drop-frame counting. The
/// values are then judged as TimeCodeBuilder judges them.
///
/// | Text | Parse | IsStringFormatValid | TryParse |
/// |---|---|---|---|
/// | of neither shape | std::invalid_argument | false | false |
/// | of a shape, with a bad value | std::out_of_range, text of TimeCodeBuilder | false | false |
/// | of a shape, with a rate too large for an `int` | std::out_of_range, text "stoi" | the same exception | false |
///
/// A rate too large wins over every other bad value. Nothing is allocated for a good text.
class TalvoTimeCodeParser : public TimeCodeParser
{
public:
    ~TalvoTimeCodeParser() override;

    /// The time code. The text of the std::invalid_argument is "TalvoTimeCodeParser the string '", the whole input and
    /// "' has not the expected format.".
    TimeCode Parse(std::string const& text) const override;

    /// Whether Parse() would succeed; throws only for a rate that is too large for an `int`.
    bool IsStringFormatValid(std::string const& text) const override;

    /// True and what Parse() returns, or, whatever Parse() throws, false and TimeCode::Empty(). Never throws. A derived
    /// class that overrides Parse() decides this as well. In this class a bad text costs no exception.
    std::pair<bool, TimeCode> TryParse(std::string const& text) const override;
};

} // namespace Talvo::TimePoints
