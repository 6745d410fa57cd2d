#include "Domain/CorvaneData/Optional.h"

#include <gmock/gmock.h>

#include <array>
#include <stdexcept>
#include <utility>

namespace Talvo::Corvane::Data
{
namespace
{

struct Counted
{
    static inline int alive = 0;

    explicit Counted(int number)
        : value(number)
    {
        ++alive;
    }
    Counted(Counted const& other)
        : value(other.value)
    {
        if (value < 0) throw std::logic_error("no copy");
        ++alive;
    }
    Counted(Counted&& other) noexcept
        : value(std::exchange(other.value, 0))
    {
        ++alive;
    }
    Counted& operator=(Counted const&) = delete;
    ~Counted() { --alive; }
    bool operator==(Counted const&) const = default;

    int value;
};

using OptionalCounted = Optional<Counted>;

TEST(Optional, IsNullAndThrowsUntilItHasAValue)
{
    OptionalCounted optional;
    EXPECT_FALSE(optional.HasValue());
    EXPECT_EQ(Counted::alive, 0);
    EXPECT_THAT([&] { optional.Value(); },
                testing::ThrowsMessage<std::runtime_error>("Can't retrieve the value of a Null Optional value"));
    optional = Counted(7);
    EXPECT_EQ(optional.Value().value, 7);
    optional.Delete();
    optional.Delete();
    EXPECT_ANY_THROW(optional.Value());
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Optional, CopiesAndMovesFlagAndValueAndDestroysEachOnce)
{
    {
        OptionalCounted const null;
        OptionalCounted first = Counted(1);
        OptionalCounted second = first;
        EXPECT_EQ(second, first);
        EXPECT_EQ(Counted::alive, 2);

        second = OptionalCounted(Counted(2));
        EXPECT_EQ(second.Value().value, 2);
        EXPECT_NE(second, first);

        auto const& self = second;
        second = self;
        EXPECT_EQ(second.Value().value, 2);
        EXPECT_EQ(Counted::alive, 2);

        OptionalCounted third = std::move(first);
        EXPECT_EQ(third.Value().value, 1);
        third = null;
        EXPECT_EQ(third, null);
        EXPECT_NE(third, second);
        third = second;
        EXPECT_EQ(third.Value().value, 2);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Optional, PlacesTheValueDirectlyAfterTheFlag)
{
    static_assert(sizeof(Optional<bool>) == 2 && sizeof(Optional<std::array<char, 5>>) == 6);
    Optional<char> const optional = 'x';
    auto const* bytes = reinterpret_cast<unsigned char const*>(&optional);
    EXPECT_EQ(bytes[0], 1);
    EXPECT_EQ(bytes[1], 'x');
}

} // namespace
} // namespace Talvo::Corvane::Data
