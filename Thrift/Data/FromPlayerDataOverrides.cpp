#include "Thrift/Data/FromPlayerDataOverrides.h"

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/PlayerDataOverrides_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;
using Multiviewer::ControlType;
using Multiviewer::ProgramType;

namespace Generated = Corvane::Data::Generated;

namespace
{

/// An unknown mode leaves the wire's value unchanged.
void Send(ControlType const mode, Generated::ControlMode::type& destination) noexcept
{
    switch (mode)
    {
    case ControlType::Lever:
        destination = Generated::ControlMode::Lever;
        break;
    case ControlType::Full:
        destination = Generated::ControlMode::Full;
        break;
    case ControlType::None:
        destination = Generated::ControlMode::None;
        break;
    }
}

/// An unknown mode leaves the wire's value unchanged.
void Send(ProgramType const mode, Generated::ProgramMode::type& destination) noexcept
{
    switch (mode)
    {
    case ProgramType::Program:
        destination = Generated::ProgramMode::Program;
        break;
    case ProgramType::Preview:
        destination = Generated::ProgramMode::Preview;
        break;
    }
}

} // namespace

ConversionResult FromPlayerDataOverrides::To(Multiviewer::PlayerDataOverrides const& source,
                                             Generated::PlayerDataOverrides& destination) const noexcept
{
    static GuidToThriftConverter const toGuid;
    auto const& boundaries = source.GetClipCreationBoudaries();
    auto& isset = destination.__isset;

    if (auto const result = toGuid.To(source.PlayerGuid(), destination.playerGuid); !result.success)
        return Nested(result);
    // Each flag is set or cleared with its override, so a reused record keeps no stale override.
    if (isset.clipCreationIn = boundaries.TimePointIn().HasValue(); isset.clipCreationIn)
        destination.clipCreationIn = boundaries.TimePointIn().Value().position;
    if (isset.clipCreationOut = boundaries.TimePointOut().HasValue(); isset.clipCreationOut)
        destination.clipCreationOut = boundaries.TimePointOut().Value().position;
    if (isset.isFirstControlledMediaOutput = source.IsFirstControlledMediaOutput().HasValue();
        isset.isFirstControlledMediaOutput)
        destination.isFirstControlledMediaOutput = source.IsFirstControlledMediaOutput().Value();
    if (isset.controlMode = source.ControlMode().HasValue(); isset.controlMode)
        Send(source.ControlMode().Value(), destination.controlMode);
    if (isset.programMode = source.ProgramMode().HasValue(); isset.programMode)
        Send(source.ProgramMode().Value(), destination.programMode);
    if (isset.isPostRollEnabled = source.IsPostRollEnabled().HasValue(); isset.isPostRollEnabled)
        destination.isPostRollEnabled = source.IsPostRollEnabled().Value();
    auto const message = source.Message(); // a copy of the text
    if (isset.message = message.HasValue(); isset.message) destination.message = message.Value();
    return Success();
}

ConversionResult FromPlayerDataOverrides::To(Multiviewer::PlayerDataOverrides&& source,
                                             Generated::PlayerDataOverrides& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
