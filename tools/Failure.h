#pragma once

#include <stdexcept>

namespace Talvo::Tools
{

/// Wrong usage, or a file that can't be read, can't be written or does not hold the record: exit status 2. The text is
/// one line in plain words.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace Talvo::Tools
