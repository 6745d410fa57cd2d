#include "Thrift/Data/Sequences/ToSequenceId.h"

#include "Domain/CorvaneData/Sequences/SequenceId.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/SequenceId_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::SequenceId;
using Corvane::Data::Servers::ServerId;

ConversionResult ThriftToSequenceIdConverter::To(Generated::SequenceId const& source,
                                                 SequenceId& destination) const noexcept
{
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.serverId)) destination.serverId = ServerId(source.serverId);
    // A bad location throws, which ends the process: it is never a result.
    if (seen(isset.location))
        destination = SequenceId(destination.serverId, static_cast<std::uint32_t>(source.location));
    return seen.None() ? Failure("SequenceId is empty") : Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
