#include "Domain/CorvaneData/Sequences/SequenceId.h"

#include <stdexcept>

namespace Talvo::Corvane::Data::Sequences
{

SequenceId::SequenceId(Servers::ServerId const server, std::uint32_t const location)
    : serverId(server)
    , location_(location)
{
    if (location > MaxLocation) throw std::invalid_argument("SequenceId.Location : invalid location number");
}

} // namespace Talvo::Corvane::Data::Sequences
