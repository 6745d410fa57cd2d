#include "Domain/CorvaneData/Sequences/Sequence.h"

#include "Domain/CorvaneData/Clips/Clip.h"

namespace Talvo::Corvane::Data::Sequences
{

Sequence::Sequence() noexcept
    : timeCodeRegenReference(Clips::Clip::DefaultTimecode())
{
}

} // namespace Talvo::Corvane::Data::Sequences
