#include "TimePoints/TalvoTimeCodeParser.h"

#include "TimePoints/TimeCodeBuilder.h"
#include "TimePoints/TimeCodeText.h"

#include <charconv>
#include <stdexcept>
#include <system_error>
#include <typeinfo>

namespace Talvo::TimePoints
{

namespace
{

enum class Shape
{
    Neither,
    RateTooLarge,
    WellFormed
};

constexpr unsigned Digit(char character) noexcept
{
    return static_cast<unsigned>(character - '0'); // above 9 for a character that is not a digit
}

/// Reads two digits at `position`, the first at most `firstMost`. Returns false if they are not there; `number` is then
/// meaningless.
constexpr bool ReadPair(std::string_view text, std::size_t position, unsigned firstMost, int& number) noexcept
{
    auto const tens = Digit(text[position]);
    auto const ones = Digit(text[position + 1]);
    number = static_cast<int>(10 * tens + ones);
    return tens <= firstMost && ones <= 9;
}

/// Reads `YYYY-MM-DDT` from the start of a text, which has to be long enough.
bool ScanDate(std::string_view text, TimeCodeBuilder& fields) noexcept
{
    int century = 0;
    int year = 0;
    if (text[0] == '0' || !ReadPair(text, 0, 9, century) || !ReadPair(text, 2, 9, year) || text[4] != '-' ||
        !ReadPair(text, 5, 1, fields.month) || text[7] != '-' || !ReadPair(text, 8, 3, fields.day) || text[10] != 'T')
        return false;

    fields.year = 100 * century + year;
    return true;
}

/// Reads `hh:mm:ss:ff@rate`, which has to be the whole text.
Shape ScanClock(std::string_view text, TimeCodeBuilder& fields) noexcept
{
    constexpr std::size_t ratePosition = 12;
    if (text.size() <= ratePosition || !ReadPair(text, 0, 2, fields.hour) || text[2] != ':' ||
        !ReadPair(text, 3, 5, fields.minute) || text[5] != ':' || !ReadPair(text, 6, 5, fields.second) ||
        (text[8] != ':' && text[8] != ';') || !ReadPair(text, 9, 9, fields.sample) || text[11] != '@' ||
        Digit(text[ratePosition]) > 9)
        return Shape::Neither;

    int rate = 0;
    if (text.size() != ratePosition + 2 || !ReadPair(text, ratePosition, 9, rate)) // most rates have two digits
    {
        char const* const end = text.data() + text.size();
        auto const [rateEnd, error] = std::from_chars(text.data() + ratePosition, end, rate);
        if (rateEnd != end) return Shape::Neither;
        if (error != std::errc{}) return Shape::RateTooLarge;
    }
    fields.numerator = rate;
    fields.dropFrame = text[8] == ';';
    return Shape::WellFormed;
}

/// Reads a text in one of the two forms. The values are not checked, except that the rate has to fit an `int`.
Shape Scan(std::string_view text, TimeCodeBuilder& fields) noexcept
{
    constexpr std::size_t clockPosition = 11;
    fields.dated = text.size() > clockPosition && text[clockPosition - 1] == 'T'; // an undated text has a digit there
    if (!fields.dated)
    {
        fields.year = 1950;
        return ScanClock(text, fields);
    }
    return ScanDate(text, fields) ? ScanClock(text.substr(clockPosition), fields) : Shape::Neither;
}

/// Like Scan(), but throws for a rate that is too large, with the text that callers expect.
bool ScanOrThrow(std::string_view text, TimeCodeBuilder& fields)
{
    auto const shape = Scan(text, fields);
    if (shape == Shape::RateTooLarge) throw std::out_of_range("stoi");
    return shape == Shape::WellFormed;
}

/// A separate function, so that parsing valid texts does not pay for building the message.
[[noreturn, gnu::cold, gnu::noinline]] void ThrowNeitherShape(std::string const& text)
{
    throw std::invalid_argument("TalvoTimeCodeParser the string '" + text + "' has not the expected format.");
}

} // namespace

TalvoTimeCodeParser::~TalvoTimeCodeParser() = default;

TimeCode TalvoTimeCodeParser::Parse(std::string const& text) const
{
    TimeCodeBuilder fields;
    if (!ScanOrThrow(text, fields)) ThrowNeitherShape(text);
    return fields.Build();
}

bool TalvoTimeCodeParser::IsStringFormatValid(std::string const& text) const
{
    TimeCodeBuilder fields;
    return ScanOrThrow(text, fields) && fields.FirstFault() == TimeCodeBuilder::Fault::None;
}

std::pair<bool, TimeCode> TalvoTimeCodeParser::TryParse(std::string const& text) const
{
    // A derived class may override Parse(), which then decides. This class decides without an exception.
    if (typeid(*this) == typeid(TalvoTimeCodeParser))
    {
        auto const timeCode = ReadTimeCode(text);
        return {timeCode.has_value(), timeCode.value_or(TimeCode::Empty())};
    }
    try
    {
        return {true, Parse(text)};
    }
    catch (...)
    {
        return {false, TimeCode::Empty()};
    }
}

std::optional<TimeCode> ReadTimeCode(std::string_view text) noexcept
{
    TimeCodeBuilder fields;
    if (Scan(text, fields) != Shape::WellFormed || fields.FirstFault() != TimeCodeBuilder::Fault::None)
        return std::nullopt;
    return fields.BuildUnchecked();
}

} // namespace Talvo::TimePoints
