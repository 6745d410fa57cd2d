#include "Thrift/Commands/ToAnglesGroupCommandReply.h"

#include "Domain/HighLevelOperations/Commands/AnglesGroupCommandReply.h"
#include "Thrift/Commands/ToClipCommandReply.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/AnglesGroupCommandReply_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToAnglesGroupCommandReplyConverter::ToOrThrow(
    Generated::AnglesGroupCommandReply const& source,
    HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const
{
    Data::ThriftToOperationStatusConverter const toStatus;
    ThriftToClipCommandReplyConverter const toClipCommandReply;
    auto const& isset = source.__isset;

    if (!isset.commandGuid || !isset.groupGuid) return Failure("AnglesGroupCommandReply is empty");

    destination = {ReadGuidAs<Corvane::Data::Guid>(source.commandGuid),
                   ReadGuidAs<Corvane::Data::Clips::Groups::Guid>(source.groupGuid)};
    if (isset.operationStatus)
        std::ignore = Read("operationStatus", toStatus, source.operationStatus, destination.operationStatus);
    // If the nested reply fails, the new one has no items.
    if (isset.clipCommandReply)
        std::ignore =
            Read("clipCommandReply", toClipCommandReply, source.clipCommandReply, destination.clipCommandReply);
    return Success();
}

ConversionResult ThriftToAnglesGroupCommandReplyConverter::To(
    Generated::AnglesGroupCommandReply const& source,
    HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToAnglesGroupCommandReplyConverter::To(
    Generated::AnglesGroupCommandReply&& source,
    HighLevelOperations::Commands::AnglesGroupCommandReply& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
