#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// What `ToOrThrow` throws for a value of a wire record that ends the process in `To`: the time codes of a clip and of a
/// clip on air that are invalid, the reference time code of a sequence that has the form of a time code and an invalid
/// value, and sequence locations below 0 or above 109.
///
/// It derives from std::exception alone, so that no handler for a more specific exception catches it on its way.
class BadValue : public std::exception
{
public:
    /// The value of the field `path`, with the reason why it is invalid.
    BadValue(std::string_view path, std::string_view reason);
    ~BadValue() override;

    /// The field, from the record on: `clips[3].clip.inBoundTodTimecode`. An entry of a map is given by its key, in which
    /// quotes, backslashes and bytes that can't be printed are written as `\x1f`:
    /// `players["\x00A..."].pgmOnAir.todCurTimecodeOnAir`.
    [[nodiscard]] std::string_view Path() const noexcept;

    /// Why the value is invalid. It may repeat the peer's text, unescaped.
    [[nodiscard]] std::string_view Reason() const noexcept;

    /// "path: reason"
    [[nodiscard]] char const* what() const noexcept override;

private:
    std::string text_;
    std::size_t pathSize_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
