#include "Thrift/BadValue.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

namespace
{

constexpr std::string_view Separator = ": ";

} // namespace

BadValue::BadValue(std::string_view const path, std::string_view const reason)
    : text_(std::string(path).append(Separator).append(reason))
    , pathSize_(path.size())
{
}

BadValue::~BadValue() = default;

std::string_view BadValue::Path() const noexcept
{
    return std::string_view(text_).substr(0, pathSize_);
}

std::string_view BadValue::Reason() const noexcept
{
    return std::string_view(text_).substr(pathSize_ + Separator.size());
}

char const* BadValue::what() const noexcept
{
    return text_.c_str();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
