#include "Thrift/Commands/ToDeletePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/DeletePlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/DeletePlaylistsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToDeletePlaylistsCommandParamsConverter::To(
    Generated::DeletePlaylistsCommandParams const& source,
    HighLevelOperations::Commands::DeletePlaylistsCommandParams& destination) const noexcept
{
    static Data::ThriftToGuidConverter const guidConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.playlists.clear();
    if (source.__isset.playlists) AppendAll("playlists", guidConverter, source.playlists, destination.playlists);
    return Success();
}

ConversionResult ThriftToDeletePlaylistsCommandParamsConverter::To(
    Generated::DeletePlaylistsCommandParams&& source,
    HighLevelOperations::Commands::DeletePlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
