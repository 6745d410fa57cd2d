#include "Domain/CorvaneData/Clips/UmId.h"

#include <cstring>

namespace Talvo::Corvane::Data::Clips
{

void UmId::SetUmId(char const* text) noexcept
{
    auto const length = strnlen(text, MaxLength);
    std::memmove(text_.data(), text, length); // the source may be part of this text
    std::memset(text_.data() + length, 0, MaxLength - length);
}

} // namespace Talvo::Corvane::Data::Clips
