#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct Playlist;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class Playlist;
} // namespace Generated

/// Applies the wire record `Playlist` to a domain `Playlist`, as it stands. The track is replaced by what could be read
/// of it, and the header takes what could be read of it: what they report is not looked at.
///
/// Failure: "Playlist is empty" when no flag is set; the destination is then unchanged.
///
/// Ends the process: what ends it in ThriftToAudioVideoTrackConverter and ThriftToSequenceConverter.
///
/// Lost on the way: an element that fails and those behind it, and the fields of the header behind one that fails;
/// `numberOfElements` beside elements; an `auxTrackClipUmId` above 8 bytes is cut; the rest as ThriftToElementConverter and
/// ThriftToSequenceConverter say.
class ThriftToPlaylistConverter : public Converter<Generated::Playlist, Corvane::Data::Sequences::Playlist>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::Playlist const& source,
                               Corvane::Data::Sequences::Playlist& destination) const;

    ConversionResult To(Generated::Playlist const& source,
                        Corvane::Data::Sequences::Playlist& destination) const noexcept override;

    ConversionResult To(Generated::Playlist&& source,
                        Corvane::Data::Sequences::Playlist& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
