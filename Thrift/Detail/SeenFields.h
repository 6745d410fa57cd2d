#pragma once

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

/// Records whether any field of a wire record is set, which decides the "is empty" failures.
class SeenFields
{
public:
    /// Records the flag of a field and returns it.
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
