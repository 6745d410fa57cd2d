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

/// Applies the wire record `Playlist` to a domain `Playlist`. The destination is not reset. The track is replaced by
/// the elements that could be read, and the header takes the fields that could be read; their results are ignored.
///
/// Failure: "Playlist is empty" when no flag is set; the destination is then unchanged.
///
/// Ends the process: anything that ends it in ThriftToAudioVideoTrackConverter and ThriftToSequenceConverter.
///
/// Lost: an element that fails and those after it, and the fields of the header after one that fails;
/// `numberOfElements` if there are elements too; an `auxTrackClipUmId` above 8 bytes is cut; what
/// ThriftToElementConverter and ThriftToSequenceConverter lose.
class ThriftToPlaylistConverter : public Converter<Generated::Playlist, Corvane::Data::Sequences::Playlist>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::Playlist const& source,
                               Corvane::Data::Sequences::Playlist& destination) const;

    ConversionResult To(Generated::Playlist const& source,
                        Corvane::Data::Sequences::Playlist& destination) const noexcept override;

    ConversionResult To(Generated::Playlist&& source,
                        Corvane::Data::Sequences::Playlist& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
