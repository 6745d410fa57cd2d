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

constexpr bool IsDigit(char character) noexcept
{
    return character >= '0' && character <= '9';
}

/// Two digits at `position`, the first at most `firstMost`.
constexpr bool HasPair(std::string_view text, std::size_t position, char firstMost) noexcept
{
    return text[position] >= '0' && text[position] <= firstMost && IsDigit(text[position + 1]);
}

constexpr int Pair(std::string_view text, std::size_t position) noexcept
{
    return 10 * (text[position] - '0') + (text[position + 1] - '0');
}

/// Reads `YYYY-MM-DDT` from the start of a text that is long enough.
bool ScanDate(std::string_view text, TimeCodeBuilder& fields) noexcept
{
    if (text[0] == '0' || !HasPair(text, 0, '9') || !HasPair(text, 2, '9') || text[4] != '-' ||
        !HasPair(text, 5, '1') || text[7] != '-' || !HasPair(text, 8, '3') || text[10] != 'T')
        return false;

    fields.year = 100 * Pair(text, 0) + Pair(text, 2);
    fields.month = Pair(text, 5);
    fields.day = Pair(text, 8);
    return true;
}

/// Reads `hh:mm:ss:ff@rate`, the whole text.
Shape ScanClock(std::string_view text, TimeCodeBuilder& fields) noexcept
{
    constexpr std::size_t ratePosition = 12;
    if (text.size() <= ratePosition || !HasPair(text, 0, '2') || text[2] != ':' || !HasPair(text, 3, '5') ||
        text[5] != ':' || !HasPair(text, 6, '5') || (text[8] != ':' && text[8] != ';') || !HasPair(text, 9, '9') ||
        text[11] != '@' || !IsDigit(text[ratePosition]))
        return Shape::Neither;

    int rate = 0;
    if (text.size() == ratePosition + 2 && IsDigit(text[ratePosition + 1])) // most rates
        rate = Pair(text, ratePosition);
    else
    {
        char const* const end = text.data() + text.size();
        auto const [rateEnd, error] = std::from_chars(text.data() + ratePosition, end, rate);
        if (rateEnd != end) return Shape::Neither;
        if (error != std::errc{}) return Shape::RateTooLarge;
    }

    fields.hour = Pair(text, 0);
    fields.minute = Pair(text, 3);
    fields.second = Pair(text, 6);
    fields.dropFrame = text[8] == ';';
    fields.sample = Pair(text, 9);
    fields.numerator = rate;
    return Shape::WellFormed;
}

/// Reads a text of one of the two shapes; the values are not judged, except that the rate has to fit an `int`.
Shape Scan(std::string_view text, TimeCodeBuilder& fields) noexcept
{
    constexpr std::size_t clockPosition = 11;
    if (text.size() > clockPosition && ScanDate(text, fields)) return ScanClock(text.substr(clockPosition), fields);

    fields.year = 1950;
    fields.dated = false;
    return ScanClock(text, fields);
}

/// As Scan(), but a rate too large is thrown, with the text that callers know.
bool ScanOrThrow(std::string_view text, TimeCodeBuilder& fields)
{
    auto const shape = Scan(text, fields);
    if (shape == Shape::RateTooLarge) throw std::out_of_range("stoi");
    return shape == Shape::WellFormed;
}

/// A function of its own: a good text pays nothing for the message.
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
    // A derived class decides with its own Parse(). This one's needs no exception.
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
