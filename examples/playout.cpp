// A playlist and the state of the player that plays it, to bytes and back.

#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Channels.h"
#include "Thrift/Sequences.h"
#include "Thrift/Wire/Codec.h"
#include "generated/PlayerState.h"
#include "generated/Playlist.h"

#include <iostream>

namespace
{

namespace Wire = Talvo::Corvane::Zelmar::Serialization::Thrift::Wire;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data;
using Talvo::Corvane::Data::Channels::PlayerState;
using Talvo::Corvane::Data::Sequences::AudioVideoElement;
using Talvo::Corvane::Data::Sequences::Playlist;
using Talvo::Corvane::Data::Sequences::VideoEffectType;

/// Two clips with a mix of ten fields between them.
Playlist TwoClips()
{
    Playlist playlist;
    playlist.name.Set("Evening");
    playlist.playRate = {25, 1};
    AudioVideoElement element;
    element.id = 1;
    element.umId.SetUmId("CLIP0001");
    playlist.audioVideoTrack.elements.push_back(element);
    element.id = 2;
    element.umId.SetUmId("CLIP0002");
    element.videoEffectType = VideoEffectType::Mix;
    element.videoEffectDuration = 10;
    playlist.audioVideoTrack.elements.push_back(element);
    return playlist;
}

/// A player with the first of the clips on its program output.
PlayerState OnAir()
{
    PlayerState state;
    state.serial = 310042;
    state.pgmOnAir.hasClipOnAir = true;
    Talvo::Corvane::Data::Clips::SetUmId(state.pgmOnAir.clipOnAir.umId, "CLIP0001");
    state.pgmOnAir.curTimePointOnAir = {1500};
    return state;
}

/// Sends `value` and returns what a peer receives. Prints what goes wrong.
template<typename TToWire, typename TToDomain, typename TDomain>
TDomain Received(TDomain const& value)
{
    Wire::BinaryWriter writer;
    if (auto const sent = Wire::Encode(TToWire(), value, writer); !sent.Success()) std::cerr << sent.message << '\n';
    TDomain received;
    if (auto const result = Wire::Decode(TToDomain(), writer.Bytes(), received); !result.Success())
        std::cerr << result.message << '\n';
    std::cout << writer.Size() << " bytes\n";
    return received;
}

} // namespace

int main()
{
    auto const playlist =
        Received<Sequences::PlaylistToThriftConverter, Sequences::ThriftToPlaylistConverter>(TwoClips());
    for (auto const& element : playlist.audioVideoTrack.elements)
        std::cout << "element " << element.id << " plays " << element.umId.GetUmId() << '\n';

    auto const state =
        Received<Channels::PlayerStateToThriftConverter, Channels::ThriftToPlayerStateConverter>(OnAir());
    std::cout << "player " << state.serial << " is at " << state.pgmOnAir.curTimePointOnAir.position << '\n';
    return playlist == TwoClips() && state == OnAir() ? 0 : 1;
}
