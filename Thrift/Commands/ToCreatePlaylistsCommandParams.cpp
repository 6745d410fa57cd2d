#include "Thrift/Commands/ToCreatePlaylistsCommandParams.h"

#include "Domain/HighLevelOperations/Commands/CreatePlaylistsCommandParams.h"
#include "Thrift/Data/Identifiers.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/CreatePlaylistsCommandParams_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

using namespace Detail;

ConversionResult ThriftToCreatePlaylistsCommandParamsConverter::ToOrThrow(
    Generated::CreatePlaylistsCommandParams const& source,
    HighLevelOperations::Commands::CreatePlaylistsCommandParams& destination) const
{
    static Data::Sequences::ThriftToPlaylistConverter const playlistConverter;

    ReadGuid(source.commandGuid, destination.commandGuid);
    destination.playlists.clear();
    if (source.__isset.playlists) AppendAll("playlists", playlistConverter, source.playlists, destination.playlists);
    return Success();
}

ConversionResult ThriftToCreatePlaylistsCommandParamsConverter::To(
    Generated::CreatePlaylistsCommandParams const& source,
    HighLevelOperations::Commands::CreatePlaylistsCommandParams& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToCreatePlaylistsCommandParamsConverter::To(
    Generated::CreatePlaylistsCommandParams&& source,
    HighLevelOperations::Commands::CreatePlaylistsCommandParams& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
