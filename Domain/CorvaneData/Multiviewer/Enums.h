#pragma once

#include <cstdint>

namespace Talvo::Corvane::Multiviewer
{

/// How a player is controlled. The numbers are those of the wire's `ControlMode`.
enum class ControlType : std::int32_t
{
    Lever = 0,
    Full = 1,
    None = 2
};

/// Which output of a player is shown. The numbers are those of the wire's `ProgramMode`.
enum class ProgramType : std::int32_t
{
    Program = 0,
    Preview = 1
};

} // namespace Talvo::Corvane::Multiviewer
