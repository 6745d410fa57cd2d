#include "TimePoints/TimeCodeText.h"

#include "TimePoints/TimeCodeBreakdown.h"

#include <charconv>
#include <cstdint>
#include <cstring>

namespace Talvo::TimePoints
{

namespace
{

/// "00" to "99".
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

/// Appends to a buffer that is large enough for every time code.
class Writer
{
public:
    explicit Writer(std::array<char, 192>& buffer) noexcept
        : next_(buffer.data())
        , end_(buffer.data() + buffer.size())
    {
    }

    void Character(char character) noexcept { *next_++ = character; }

    /// What an ordinary year and an ordinary rate need is written in pairs.
    void Number(std::int64_t number) noexcept
    {
        if (number >= 10 && number < 100)
            Pair(number);
        else if (number >= 1000 && number < 10000)
        {
            Pair(number / 100);
            Pair(number % 100);
        }
        else
            next_ = std::to_chars(next_, end_, number).ptr;
    }

    /// A number with a "0" in front if it is below 10, a negative one too.
    void Padded(std::int64_t number) noexcept
    {
        if (number >= 0 && number < 100)
            Pair(number);
        else
        {
            if (number < 10) Character('0');
            Number(number);
        }
    }

    char const* Next() const noexcept { return next_; }

private:
    void Pair(std::int64_t number) noexcept
    {
        std::memcpy(next_, Pairs.data() + 2 * number, 2);
        next_ += 2;
    }

    char* next_;
    char* end_;
};

} // namespace

TimeCodeText::TimeCodeText(TimeCode const& timeCode) noexcept
{
    TimeCodeBreakdown const pieces{timeCode};
    bool const dated = timeCode.Dated();

    Writer writer{text_};
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
    size_ = static_cast<std::size_t>(writer.Next() - text_.data());
}

} // namespace Talvo::TimePoints
