#include "Thrift/Commands/FromDeletePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeletePlaylistsCommandParams.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/DeletePlaylistsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult DeletePlaylistsCommandParamsToThriftConverter::To(
    HighLevelOperations::Commands::DeletePlaylistsCommandParams const& source,
    Generated::DeletePlaylistsCommandParams& destination) const noexcept
{
    static Data::GuidToThriftConverter const guidConverter;

    SendGuid(source.commandGuid, TALVO_FLAGGED(destination, commandGuid));
    AppendAll("playlists", guidConverter, source.playlists, destination.playlists);
    if (!source.playlists.empty()) destination.__isset.playlists = true;
    return Success();
}

ConversionResult
DeletePlaylistsCommandParamsToThriftConverter::To(HighLevelOperations::Commands::DeletePlaylistsCommandParams&& source,
                                                  Generated::DeletePlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
