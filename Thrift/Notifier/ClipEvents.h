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

// Shared code of the clip events. To the wire, an event's clip command block is converted first, then its clips, each
// with its own flag, then its other fields. From the wire, the required flags are tested, the clips are converted to
// new ones, a new event is built from them and replaces the destination, and only then the clip command block is read
// into the destination: if the block fails, the event holds placeholders for it and everything else. The database
// revision is read regardless of its flag.

/// Converts the nested records of an event one after the other. After the first failure no further record is converted,
/// and `Result()` returns that failure. Each function returns whether all conversions so far succeeded.
class NestedRecords
{
public:
    /// Writes the event's clip command block, which is its base class.
    bool SendCommand(Notification::ClipCommandEventArgs const& source,
                     Notifier::Generated::ClipCommandEventArgs& destination)
    {
        if (result_.success) result_ = Notifier::ClipCommandEventArgsToThriftConverter().To(source, destination);
        return result_.success;
    }

    /// Writes a clip.
    bool SendClip(Corvane::Data::Clips::Clip const& source, Data::Clips::Generated::Clip& destination)
    {
        if (result_.success) result_ = Data::Clips::ClipToThriftConverter().To(source, destination);
        return result_.success;
    }

    /// Reads the clip of a field.
    bool ReadClip(char const* const field, Data::Clips::Generated::Clip const& source,
                  Corvane::Data::Clips::Clip& destination)
    {
        if (result_.success) result_ = Read(field, Data::Clips::ThriftToClipConverter(), source, destination);
        return result_.success;
    }

    /// Reads the clip command block into the event's base class.
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

/// Builds an event with placeholders for its clip command block, except for the database revision; `arguments` are the
/// constructor arguments after the block.
template<typename TEvent, typename... TArguments>
TEvent EventWithPlaceholders(std::int64_t const databaseRevision, TArguments&&... arguments)
{
    return TEvent(0, TEvent::RequestSource::Unknown, 0, 0, Corvane::Data::Guid::Empty(), databaseRevision,
                  std::forward<TArguments>(arguments)...);
}

/// The internal result of a failed event, -1 if it was not sent.
template<typename TWireEvent>
std::int16_t InternalResult(TWireEvent const& source) noexcept
{
    return source.__isset.internalResult ? source.internalResult : std::int16_t{-1};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
