#include "Thrift/Data/ToPlayerDataOverrides.h"

#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Detail/Reading.h"
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

/// Sets the mode. An unknown mode is ignored.
void ReadControlMode(Generated::ControlMode::type const mode, Multiviewer::PlayerDataOverrides& destination)
{
    switch (mode)
    {
    case Generated::ControlMode::Lever:
        destination.ControlMode(ControlType::Lever);
        break;
    case Generated::ControlMode::Full:
        destination.ControlMode(ControlType::Full);
        break;
    case Generated::ControlMode::None:
        destination.ControlMode(ControlType::None);
        break;
    }
}

/// Sets the mode. An unknown mode is ignored.
void ReadProgramMode(Generated::ProgramMode::type const mode, Multiviewer::PlayerDataOverrides& destination)
{
    switch (mode)
    {
    case Generated::ProgramMode::Program:
        destination.ProgramMode(ProgramType::Program);
        break;
    case Generated::ProgramMode::Preview:
        destination.ProgramMode(ProgramType::Preview);
        break;
    }
}

} // namespace

ConversionResult ToPlayerDataOverrides::To(Generated::PlayerDataOverrides const& source,
                                           Multiviewer::PlayerDataOverrides& destination) const noexcept
{
    static ThriftToGuidConverter const toGuid;
    auto const& isset = source.__isset;

    Corvane::Data::Channels::Guid playerGuid;
    if (auto const result = Read("playerGuid", toGuid, source.playerGuid, playerGuid); !result.success)
        return Nested(result);

    destination.PlayerGuid(playerGuid);
    if (isset.clipCreationIn) destination.GetClipCreationBoudaries().TimePointIn({source.clipCreationIn});
    if (isset.clipCreationOut) destination.GetClipCreationBoudaries().TimePointOut({source.clipCreationOut});
    if (isset.isFirstControlledMediaOutput)
        destination.IsFirstControlledMediaOutput(source.isFirstControlledMediaOutput);
    if (isset.controlMode) ReadControlMode(source.controlMode, destination);
    if (isset.programMode) ReadProgramMode(source.programMode, destination);
    if (isset.isPostRollEnabled) destination.IsPostRollEnabled(source.isPostRollEnabled);
    if (isset.message) destination.Message(source.message);
    return Success();
}

ConversionResult ToPlayerDataOverrides::To(Generated::PlayerDataOverrides&& source,
                                           Multiviewer::PlayerDataOverrides& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
