#include "Domain/CorvaneData/FixedText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Data
{
namespace
{

using namespace std::string_view_literals;

/// Sets a used slot of `N` bytes, and checks its contents, the result, and the object after the slot.
template<std::size_t N>
void ExpectStored(auto const text, std::string_view const stored, bool const isWhole)
{
    constexpr bool isUtf16 = sizeof(text[0]) == 2;
    struct
    {
        FixedText<N> slot;
        std::string_view next = "untouched";
    } used;
    used.slot.isUtf16 = !isUtf16;
    used.slot.payload.fill('x');
    used.slot.end.fill('x');

    EXPECT_EQ(used.slot.Set(text), isWhole) << stored;
    EXPECT_EQ(std::string_view(used.slot.payload.data(), N), stored);
    EXPECT_EQ(used.slot.end, (std::array<char, 2>{}));
    EXPECT_EQ(used.slot.isUtf16, isUtf16);
    EXPECT_EQ(used.next, "untouched");
}

TEST(FixedText, SingleByteTextIsTruncatedOrPaddedWithZeros)
{
    ExpectStored<4>(""sv, "\0\0\0\0"sv, true);
    ExpectStored<4>("ab"sv, "ab\0\0"sv, true);
    ExpectStored<4>("a\0c"sv, "a\0c\0"sv, true);
    ExpectStored<4>("abcd"sv, "abcd"sv, true);
    ExpectStored<4>("abcde"sv, "abcd"sv, false);
    ExpectStored<4>(std::string_view(), "\0\0\0\0"sv, true);
}

TEST(FixedText, Utf16TextIsTruncatedAfterWholeCharacters)
{
    ExpectStored<4>(u""sv, "\0\0\0\0"sv, true);
    ExpectStored<4>(u"\u6771"sv, "\x71\x67\0\0"sv, true);
    ExpectStored<4>(u"\u6771\u00E9"sv, "\x71\x67\xE9\0"sv, true);
    ExpectStored<4>(u"\u6771\u00E9x"sv, "\x71\x67\xE9\0"sv, false);
    // A surrogate pair is kept or dropped as a whole.
    ExpectStored<4>(u"\U0001F3AC"sv, "\x3C\xD8\xAC\xDF"sv, true);
    ExpectStored<4>(u"\U0001F3ACx"sv, "\x3C\xD8\xAC\xDF"sv, false);
    ExpectStored<4>(u"x\U0001F3AC"sv, "x\0\0\0"sv, false);
    // One byte does not hold a code unit.
    ExpectStored<5>(u"xyz"sv, "x\0y\0\0"sv, false);
    ExpectStored<1>(u"x"sv, "\0"sv, false);
}

TEST(FixedText, MayBeSetFromAPartOfItself)
{
    FixedText<8> slot;
    slot.Set("Goal 2:1");
    slot.Set(std::string_view(slot.payload.data() + 5, 3));
    FixedText<8> expected;
    expected.Set("2:1");
    EXPECT_EQ(slot, expected);
}

} // namespace
} // namespace Talvo::Corvane::Data
