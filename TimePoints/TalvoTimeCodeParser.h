#pragma once

#include "TimePoints/TimeCodeParser.h"

namespace Talvo::TimePoints
{

/// Reads the text form of time codes, dated (`2000-01-01T00:01:00;02@30`) or undated (`00:01:00;02@30`). The whole text
/// must match one of the two forms:
///
///     dated    = year "-" month "-" day "T" undated     year: four digits, the first not 0
///     undated  = hour ":" minute ":" second (":" | ";") frame "@" rate
///
/// month, day, hour, minute, second and frame have two digits each, the first of month at most 1, of day at most 3, of
/// hour at most 2, of minute and second at most 5; rate has one digit or more. ";" means drop-frame counting. The
/// values are then checked as TimeCodeBuilder checks them.
///
/// | Text | Parse | IsStringFormatValid | TryParse |
/// |---|---|---|---|
/// | of neither form | std::invalid_argument | false | false |
/// | of either form, with an invalid value | std::out_of_range, text of TimeCodeBuilder | false | false |
/// | of either form, with a rate too large for an `int` | std::out_of_range, text "stoi" | the same exception | false |
///
/// A rate that is too large is reported before any other invalid value. Parsing a valid text allocates nothing.
class TalvoTimeCodeParser : public TimeCodeParser
{
public:
    ~TalvoTimeCodeParser() override;

    /// Returns the time code. The text of the std::invalid_argument is "TalvoTimeCodeParser the string '", the whole
    /// input and "' has not the expected format.".
    TimeCode Parse(std::string const& text) const override;

    /// Whether Parse() would succeed; throws only for a rate that is too large for an `int`.
    bool IsStringFormatValid(std::string const& text) const override;

    /// Returns true and the result of Parse(), or false and TimeCode::Empty() if Parse() would throw. Never throws. If
    /// a derived class overrides Parse(), its Parse() decides. In this class an invalid text causes no exception.
    std::pair<bool, TimeCode> TryParse(std::string const& text) const override;
};

} // namespace Talvo::TimePoints
