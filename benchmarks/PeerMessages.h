#pragma once

#include "benchmarks/peer.pb.h"

namespace Talvo::Corvane::Data
{
namespace Channels
{
class PlayerState;
} // namespace Channels
namespace Clips
{
class Clip;
} // namespace Clips
namespace Sequences
{
struct Playlist;
} // namespace Sequences
} // namespace Talvo::Corvane::Data

namespace Talvo::Corvane::Notification
{
struct ClipCreationFinishedEventArgs;
} // namespace Talvo::Corvane::Notification

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
class GetClipsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Benchmarks::Peer
{

// The code that a user of protobuf writes by hand: each function fills a new or cleared message from a domain object,
// field by field with its setters, or copies every field of a message into a domain object. A text is assigned to the
// message's own string, because the setter with a pointer and a size makes a temporary string.

void Fill(Corvane::Data::Clips::Clip const& source, Clip& message);
void Fill(Corvane::Data::Channels::PlayerState const& source, PlayerState& message);
void Fill(Corvane::Data::Sequences::Playlist const& source, Playlist& message);
void Fill(Corvane::Notification::ClipCreationFinishedEventArgs const& source, ClipCreationFinished& message);
void Fill(Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply const& source, GetClipsReply& message);

void Read(Clip const& message, Corvane::Data::Clips::Clip& destination);
void Read(PlayerState const& message, Corvane::Data::Channels::PlayerState& destination);
void Read(Playlist const& message, Corvane::Data::Sequences::Playlist& destination);
void Read(ClipCreationFinished const& message, Corvane::Notification::ClipCreationFinishedEventArgs& destination);
void Read(GetClipsReply const& message,
          Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply& destination);

} // namespace Talvo::Benchmarks::Peer
