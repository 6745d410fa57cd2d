#include "Thrift/Commands/FromGetPlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetPlaylistsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using ElementMode = HighLevelOperations::Commands::GetPlaylistsCommandParams::ElementMode;

namespace
{

Generated::ElementConversionMode::type Mode(ElementMode const mode) noexcept
{
    switch (mode)
    {
    case ElementMode::Lazy:
        return Generated::ElementConversionMode::Lazy;
    case ElementMode::OnlyRelative:
        return Generated::ElementConversionMode::OnlyRelative;
    default: // including unknown modes
        return Generated::ElementConversionMode::Normal;
    }
}

} // namespace

ConversionResult
GetPlaylistsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetPlaylistsCommandParams const& source,
                                               Generated::GetPlaylistsCommandParams& destination) const noexcept
{
    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    TALVO_FLAGGED(destination, elementMode) = Mode(source.elementMode);
    // The flag is set or cleared with the filter, so a reused record keeps no stale filter.
    bool const hasFilter = source.idFilter != Corvane::Data::Sequences::Guid::Empty();
    if (hasFilter) SendGuid(source.idFilter, destination.idFilter);
    destination.__isset.idFilter = hasFilter;
    return Success();
}

ConversionResult
GetPlaylistsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::GetPlaylistsCommandParams&& source,
                                               Generated::GetPlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
