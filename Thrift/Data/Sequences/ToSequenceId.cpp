#include "Thrift/Data/Sequences/ToSequenceId.h"

#include "Domain/CorvaneData/Sequences/SequenceId.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/SequenceId_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::SequenceId;
using Corvane::Data::Servers::ServerId;

ConversionResult ThriftToSequenceIdConverter::ToOrThrow(Generated::SequenceId const& source,
                                                        SequenceId& destination) const
{
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.serverId)) destination.serverId = ServerId(source.serverId);
    // An invalid location is a BadValue, never a failure.
    if (seen(isset.location))
        destination = OrBadValue(
            "location", [&] { return SequenceId(destination.serverId, static_cast<std::uint32_t>(source.location)); });
    return seen.None() ? Failure("SequenceId is empty") : Success();
}

ConversionResult ThriftToSequenceIdConverter::To(Generated::SequenceId const& source,
                                                 SequenceId& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToSequenceIdConverter::To(Generated::SequenceId&& source, SequenceId& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
