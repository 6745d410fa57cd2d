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

/// Writes a domain `Playlist` into the wire record `Playlist`: its track, the clip of its auxiliary track and its
/// `Sequence` part. It can't fail.
///
/// Lost: `numberOfElements` if there are elements; what ElementToThriftConverter and SequenceToThriftConverter lose.
class PlaylistToThriftConverter : public Converter<Corvane::Data::Sequences::Playlist, Generated::Playlist>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Playlist const& source,
                        Generated::Playlist& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Playlist&& source,
                        Generated::Playlist& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
