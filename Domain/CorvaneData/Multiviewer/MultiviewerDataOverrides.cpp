#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"

namespace Talvo::Corvane::Multiviewer
{

MultiviewerDataOverrides::MultiviewerDataOverrides(std::uint32_t const count)
    : playerCount(count)
    , players_(count)
{
}

} // namespace Talvo::Corvane::Multiviewer
