#include "Thrift/Data/Sequences/FromSequenceId.h"

#include "Domain/CorvaneData/Sequences/SequenceId.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/SequenceId_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;

ConversionResult SequenceIdToThriftConverter::To(Corvane::Data::Sequences::SequenceId const& source,
                                                 Generated::SequenceId& destination) const noexcept
{
    TALVO_FLAGGED(destination, serverId) = source.serverId.Value();
    TALVO_FLAGGED(destination, location) = static_cast<std::int32_t>(source.Location());
    return Success();
}

ConversionResult SequenceIdToThriftConverter::To(Corvane::Data::Sequences::SequenceId&& source,
                                                 Generated::SequenceId& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
