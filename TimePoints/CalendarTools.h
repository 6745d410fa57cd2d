#pragma once

namespace Talvo::TimePoints
{

/// The Gregorian calendar.
class CalendarTools
{
public:
    /// Whether `year` is divisible by 4 and, if it is divisible by 100, also by 400.
    static constexpr bool IsLeapYear(int year) noexcept
    {
        // A multiple of 4 is a multiple of 100 if it is one of 25, and then a multiple of 400 if it is one of 16.
        return year % 4 == 0 && (year % 25 != 0 || year % 16 == 0);
    }

    /// The number of days of `month` (1 to 12); 0 for any other month.
    static constexpr int DayPerMonth(bool isLeapYear, int month) noexcept
    {
        return month < 1 || month > 12 ? 0 : daysPerMonth[isLeapYear ? 1 : 0][month - 1];
    }

    /// The number of days of `month` (1 to 12) in `year`; 0 for any other month.
    static constexpr int DayPerMonth(int year, int month) noexcept { return DayPerMonth(IsLeapYear(year), month); }

private:
    static constexpr int daysPerMonth[2][12] = {{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
                                                {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}};
};

} // namespace Talvo::TimePoints
