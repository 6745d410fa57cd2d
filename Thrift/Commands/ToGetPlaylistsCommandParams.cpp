#include "Thrift/Commands/ToGetPlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Results.h"
#include "generated/GetPlaylistsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;
using ElementMode = HighLevelOperations::Commands::GetPlaylistsCommandParams::ElementMode;

namespace
{

ElementMode Mode(Generated::ElementConversionMode::type const mode) noexcept
{
    switch (mode)
    {
    case Generated::ElementConversionMode::Lazy:
        return ElementMode::Lazy;
    case Generated::ElementConversionMode::OnlyRelative:
        return ElementMode::OnlyRelative;
    default: // including unknown modes
        return ElementMode::Normal;
    }
}

} // namespace

ConversionResult ThriftToGetPlaylistsCommandParamsConverter::To(
    Generated::GetPlaylistsCommandParams const& source,
    HighLevelOperations::Commands::GetPlaylistsCommandParams& destination) const noexcept
{
    ReadGuid(source.commandGuid, destination.commandGuid);
    if (source.__isset.elementMode) destination.elementMode = Mode(source.elementMode);
    if (source.__isset.idFilter) ReadGuid(source.idFilter, destination.idFilter);
    return Success();
}

ConversionResult ThriftToGetPlaylistsCommandParamsConverter::To(
    Generated::GetPlaylistsCommandParams&& source,
    HighLevelOperations::Commands::GetPlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
