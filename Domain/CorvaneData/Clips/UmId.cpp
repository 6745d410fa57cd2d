#include "Domain/CorvaneData/Clips/UmId.h"

#include <cstring>

namespace Talvo::Corvane::Data::Clips
{

void UmId::SetUmId(char const* text) noexcept
{
    std::strncpy(text_.data(), text, MaxLength); // stops at the NUL and fills up with zeros; the last byte stays zero
}

} // namespace Talvo::Corvane::Data::Clips
