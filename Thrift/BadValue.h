#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// The exception that `ToOrThrow` throws for a value of a wire record that ends the process in `To`: an invalid time
/// code of a clip or of a clip on air, a reference time code of a sequence that has the form of a time code but an
/// invalid value, and a sequence location below 0 or above 109.
///
/// It derives directly from std::exception, so that no handler for a more specific exception catches it.
class BadValue : public std::exception
{
public:
    /// Constructs the exception for the value at `path`, with the reason why it is invalid.
    BadValue(std::string_view path, std::string_view reason);
    ~BadValue() override;

    /// The path of the field within the record: `clips[3].clip.inBoundTodTimecode`. An entry of a map is identified by
    /// its key, in which quotes, backslashes and bytes that can't be printed are written as `\x1f`:
    /// `players["\x00A..."].pgmOnAir.todCurTimecodeOnAir`.
    [[nodiscard]] std::string_view Path() const noexcept;

    /// The reason why the value is invalid. It may contain the peer's text, unescaped.
    [[nodiscard]] std::string_view Reason() const noexcept;

    /// "path: reason"
    [[nodiscard]] char const* what() const noexcept override;

private:
    std::string text_;
    std::size_t pathSize_;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
