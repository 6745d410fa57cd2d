#include "TimePoints/TimeCodeText.h"

#include "TimePoints/TimeCodeBreakdown.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Talvo::TimePoints
{

namespace
{

/// The texts "00" to "99".
constexpr auto Pairs = []
{
    std::array<char, 200> digits{};
    for (std::size_t number = 0; number < 100; ++number)
    {
        digits[2 * number] = static_cast<char>('0' + number / 10);
        digits[2 * number + 1] = static_cast<char>('0' + number % 10);
    }
    return digits;
}();

void WritePair(char* out, unsigned number) noexcept
{
    std::memcpy(out, Pairs.data() + 2 * number, 2);
}

/// Writes a time code whose fields all have the width of the layout, each to its place. This takes half the time of
/// writing one field after the other. Returns false for any other time code.
bool WriteLayout(TimeCode const& timeCode, std::string& text)
{
    constexpr std::string_view layout = "YYYY-MM-DDThh:mm:ss:ff@rr";
    constexpr std::string_view undated = "-1-0-1-0-1T";
    constexpr std::chrono::sys_days origin{std::chrono::January / 1 / 1900};

    auto const rate = timeCode.Rate().numerator;
    if (timeCode.Sample() < 0 || rate < 10 || rate > 99) return false;
    auto const [days, secondOfDay, frame] = SplitSample(timeCode);
    if (days >= DaysSinceOrigin(10000, 1, 1)) return false;

    if (text.capacity() < layout.size())
        text = std::string(layout); // faster than growing it
    else if (text.size() != layout.size())
        text = layout;
    char* const out = text.data();
    if (timeCode.Dated())
    {
        std::chrono::year_month_day const date{origin + std::chrono::days{days}};
        auto const year = static_cast<unsigned>(int{date.year()});
        WritePair(out, year / 100);
        WritePair(out + 2, year % 100);
        out[4] = '-';
        WritePair(out + 5, unsigned{date.month()});
        out[7] = '-';
        WritePair(out + 8, unsigned{date.day()});
        out[10] = 'T';
    }
    else
        undated.copy(out, undated.size());
    auto const second = static_cast<unsigned>(secondOfDay);
    WritePair(out + 11, second / 3600);
    out[13] = ':';
    WritePair(out + 14, second / 60 % 60);
    out[16] = ':';
    WritePair(out + 17, second % 60);
    out[19] = timeCode.DropFrame() ? ';' : ':';
    WritePair(out + 20, static_cast<unsigned>(frame));
    out[22] = '@';
    WritePair(out + 23, static_cast<unsigned>(rate));
    return true;
}

/// Appends fields to a buffer that is large enough for every time code.
class Writer
{
public:
    void Character(char character) noexcept { *next_++ = character; }

    void Number(std::int64_t number) noexcept
    {
        next_ = std::to_chars(next_, buffer_.data() + buffer_.size(), number).ptr;
    }

    /// Appends a number, with a leading "0" if it is below 10, even if it is negative.
    void Padded(std::int64_t number) noexcept
    {
        if (number < 10) Character('0');
        Number(number);
    }

    std::string_view Text() const noexcept { return {buffer_.data(), next_}; }

private:
    // Room for eight 64-bit numbers with their signs, leading "0"s and separators.
    std::array<char, 192> buffer_;
    char* next_ = buffer_.data();
};

/// Writes one field after the other, of any width. A separate function, so that the one for ordinary time codes stays
/// small.
[[gnu::noinline]] void WriteAnyWidth(TimeCode const& timeCode, std::string& text)
{
    TimeCodeBreakdown const pieces{timeCode};
    bool const dated = timeCode.Dated();
    Writer writer;
    writer.Number(dated ? pieces.year : -1);
    writer.Character('-');
    writer.Padded(dated ? pieces.month : -1);
    writer.Character('-');
    writer.Padded(dated ? pieces.day : -1);
    writer.Character('T');
    writer.Padded(pieces.hour);
    writer.Character(':');
    writer.Padded(pieces.minute);
    writer.Character(':');
    writer.Padded(pieces.second);
    writer.Character(timeCode.DropFrame() ? ';' : ':');
    writer.Padded(pieces.frame);
    writer.Character('@');
    writer.Number(timeCode.Rate().numerator);
    text = writer.Text();
}

} // namespace

void WriteTimeCode(TimeCode const& timeCode, std::string& text)
{
    if (!WriteLayout(timeCode, text)) WriteAnyWidth(timeCode, text);
}

} // namespace Talvo::TimePoints
