#include "Domain/CorvaneData/Sequences/Playlist.h"

namespace Talvo::Corvane::Data::Sequences
{

Playlist const& Playlist::Empty()
{
    static Playlist const empty;
    return empty;
}

} // namespace Talvo::Corvane::Data::Sequences
