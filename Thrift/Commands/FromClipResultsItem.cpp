#include "Thrift/Commands/FromClipResultsItem.h"

#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/ClipResultsItem_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ClipResultsItemToThriftConverter::To(HighLevelOperations::Commands::ClipResultsItem const& source,
                                                      Generated::ClipResultsItem& destination) const noexcept
{
    Data::OperationStatusToThriftConverter const fromStatus;
    Data::Clips::ClipToThriftConverter const fromClip;

    std::ignore = fromStatus.To(source.OperationStatus(), TALVO_FLAGGED(destination, operationStatus));
    // A clip is written only if the item succeeded and the clip does not hold defaults only.
    auto const& clip = source.Clip();
    bool const hasClip = clip != Corvane::Data::Clips::Clip::Empty();
    if (hasClip) std::ignore = fromClip.To(clip, destination.clip);
    destination.__isset.clip = hasClip;
    return Success();
}

ConversionResult ClipResultsItemToThriftConverter::To(HighLevelOperations::Commands::ClipResultsItem&& source,
                                                      Generated::ClipResultsItem& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
