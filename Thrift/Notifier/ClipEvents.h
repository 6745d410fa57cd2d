#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Notifier/FromClipCommandEventArgs.h"
#include "Thrift/Notifier/ToClipCommandEventArgs.h"
#include "generated/ClipCommandEventArgs_types.h"
#include "generated/Clip_types.h"

#include <cstdint>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// The frame of the clip events. Going out, an event converts its clip command block, then its clips, each with a flag of
// its own, then its other fields. Coming in, it tests its required flags, converts its clips into new ones, builds an
// event around them, takes it over, and only then reads the clip command block into the destination: a block that fails
// leaves the event with the placeholders and everything else filled in. The database revision is read whether set or
// not.

/// Converts the nested records of an event one after the other. The first that fails ends it: those after it are not
/// converted, and `Result()` is its failure. Each conversion says whether it succeeded.
class NestedRecords
{
public:
    /// The event's base, its clip command block, to the wire.
    bool SendCommand(Notification::ClipCommandEventArgs const& source,
                     Notifier::Generated::ClipCommandEventArgs& destination)
    {
        if (result_.success) result_ = Notifier::ClipCommandEventArgsToThriftConverter().To(source, destination);
        return result_.success;
    }

    /// A clip to the wire.
    bool SendClip(Corvane::Data::Clips::Clip const& source, Data::Clips::Generated::Clip& destination)
    {
        if (result_.success) result_ = Data::Clips::ClipToThriftConverter().To(source, destination);
        return result_.success;
    }

    /// The clip of a field from the wire.
    bool ReadClip(char const* const field, Data::Clips::Generated::Clip const& source,
                  Corvane::Data::Clips::Clip& destination)
    {
        if (result_.success) result_ = Read(field, Data::Clips::ThriftToClipConverter(), source, destination);
        return result_.success;
    }

    /// The clip command block from the wire, into the event's base.
    bool ReadCommand(char const* const field, Notifier::Generated::ClipCommandEventArgs const& source,
                     Notification::ClipCommandEventArgs& destination)
    {
        if (result_.success)
            result_ = Read(field, Notifier::ThriftToClipCommandEventArgsConverter(), source, destination);
        return result_.success;
    }

    Common::Serialization::ConversionResult Result() const { return result_.success ? Success() : Nested(result_); }

private:
    Common::Serialization::ConversionResult result_ = Success();
};

/// An event with placeholders for its clip command block, but for the database revision; `arguments` are those behind
/// the block.
template<typename TEvent, typename... TArguments>
TEvent EventWithPlaceholders(std::int64_t const databaseRevision, TArguments&&... arguments)
{
    return TEvent(0, TEvent::RequestSource::Unknown, 0, 0, Corvane::Data::Guid::Empty(), databaseRevision,
                  std::forward<TArguments>(arguments)...);
}

/// The internal result of a failed event: -1 where it was not sent.
template<typename TWireEvent>
std::int16_t InternalResult(TWireEvent const& source) noexcept
{
    return source.__isset.internalResult ? source.internalResult : std::int16_t{-1};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
