#include "Thrift/Commands/ToClipResultsItem.h"

#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Thrift/Commands/Results.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/ClipResultsItem_types.h"

#include <memory>
#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using Corvane::Data::OperationStatus;

ConversionResult
ThriftToClipResultsItemConverter::ToOrThrow(Generated::ClipResultsItem const& source,
                                            HighLevelOperations::Commands::ClipResultsItem& destination) const
{
    Data::Clips::ThriftToClipConverter const toClip;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.operationStatus)) ReadStatus(source, destination);
    if (seen(isset.clip))
    {
        // The clip is converted even if it is then dropped. Its result is ignored.
        auto clip = std::make_unique<Corvane::Data::Clips::Clip>();
        std::ignore = Read("clip", toClip, source.clip, *clip);
        if (destination.OperationStatus().status == OperationStatus::Status::Succeeded)
            destination.clip = std::move(clip);
    }
    return seen.None() ? Failure("ClipResultsItem is empty") : Success();
}

ConversionResult
ThriftToClipResultsItemConverter::To(Generated::ClipResultsItem const& source,
                                     HighLevelOperations::Commands::ClipResultsItem& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToClipResultsItemConverter::To(Generated::ClipResultsItem&& source,
                                     HighLevelOperations::Commands::ClipResultsItem& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
