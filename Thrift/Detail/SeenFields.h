#pragma once

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Remembers whether any field of a wire record was there, which decides the "is empty" failures.
class SeenFields
{
public:
    /// Counts a field by its flag, and gives the flag back.
    bool operator()(bool const isSet) noexcept
    {
        any_ = any_ || isSet;
        return isSet;
    }

    bool None() const noexcept { return !any_; }

private:
    bool any_ = false;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
