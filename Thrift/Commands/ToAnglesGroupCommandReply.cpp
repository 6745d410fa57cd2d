#include "Thrift/Commands/ToAnglesGroupCommandReply.h"

#include "Domain/HighLevelOperations/Commands/AnglesGroupCommandReply.h"
#include "Thrift/Commands/ToClipCommandReply.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Detail/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/AnglesGroupCommandReply_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToAnglesGroupCommandReplyConverter::To(
    Generated::AnglesGroupCommandReply const& source,
    HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const noexcept
{
    Data::ThriftToOperationStatusConverter const toStatus;
    ThriftToClipCommandReplyConverter const toClipCommandReply;
    auto const& isset = source.__isset;

    if (!isset.commandGuid || !isset.groupGuid) return Failure("AnglesGroupCommandReply is empty");

    destination = {ReadGuidAs<Corvane::Data::Guid>(source.commandGuid),
                   ReadGuidAs<Corvane::Data::Clips::Groups::Guid>(source.groupGuid)};
    if (isset.operationStatus) std::ignore = toStatus.To(source.operationStatus, destination.operationStatus);
    // A reply that fails leaves the new one without items.
    if (isset.clipCommandReply)
        std::ignore = toClipCommandReply.To(source.clipCommandReply, destination.clipCommandReply);
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
