#pragma once

#include <stdexcept>
#include <string>

namespace Talvo::Tools
{

/// Wrong usage, or a file that can't be read, can't be written or does not hold the record: exit status 2. The text is
/// one line in plain words.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Calls `use`; a Failure of that gets the name of a file or record before its text.
template<typename TUse>
auto Naming(std::string const& name, TUse const& use)
{
    try
    {
        return use();
    }
    catch (Failure const& failure)
    {
        throw Failure(name + ": " + failure.what());
    }
}

} // namespace Talvo::Tools
