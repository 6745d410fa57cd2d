#pragma once

#include "records/Values.h"

#include <string>

namespace Talvo::Tools
{

/// What happened to a value that differs between two records, as far as the two values show; else "changed".
std::string Why(Records::Place const& place);

} // namespace Talvo::Tools
