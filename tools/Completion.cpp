#include "tools/Completion.h"

#include "tools/Protocols.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace Talvo::Tools
{

namespace
{

using Words = std::vector<std::string>;

bool TakesValue(CLI::Option const& option)
{
    return option.get_items_expected_max() > 0;
}

/// The words that an option or argument takes, by the name of its type.
Words ValuesOf(CLI::Option const& option, CLI::App const& command)
{
    auto const type = option.get_type_name();
    if (type == "PROTOCOL") return {"binary", "compact", "json"};
    if (type == "ENCODING") return {"bytes", "hex", "base64"};
    if (type == "WHEN") return {"auto", "always", "never"};
    Words names;
    if (type == "NAME")
        for (auto const& record : RecordTypes())
            if (command.get_name() != "convert" || record.ConvertsBothWays()) names.emplace_back(record.name);
    return names;
}

/// The option of that name, such as `-p`; null if there is none.
CLI::Option const* FindOption(CLI::App const& command, std::string const& name)
{
    auto const options = command.get_options();
    auto const found = std::ranges::find_if(options, [&](auto const* each)
                                            { return name.starts_with('-') && each->check_name(name); });
    return found == options.end() ? nullptr : *found;
}

Words AllOptions(CLI::App const& command)
{
    Words names;
    for (auto const* const option : command.get_options())
        for (auto const& name : option->get_lnames()) names.push_back("--" + name);
    return names;
}

Words AllCommands(CLI::App const& app)
{
    Words names;
    for (auto const* const command : app.get_subcommands([](CLI::App const*) { return true; }))
        names.push_back(command->get_name());
    auto const options = AllOptions(app);
    names.insert(names.end(), options.begin(), options.end());
    return names;
}

/// What may stand after the first `words` of a command.
Words Possible(CLI::App const& command, Words const& words, bool const isOption)
{
    if (auto const* const option = words.empty() ? nullptr : FindOption(command, words.back());
        option != nullptr && TakesValue(*option))
        return ValuesOf(*option, command);
    if (isOption) return AllOptions(command);

    std::size_t position = 0; // of the positional argument
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        if (auto const* const option = FindOption(command, words[i]))
            i += TakesValue(*option) ? 1 : 0;
        else
            ++position;
    }
    for (auto const* const option : command.get_options())
        if (option->get_positional() && position-- == 0) return ValuesOf(*option, command);
    return {};
}

} // namespace

std::vector<std::string> Completions(CLI::App const& app, std::vector<std::string> const& words)
{
    if (words.empty()) return {};
    Words possible;
    if (words.size() == 1)
        possible = AllCommands(app);
    else
        for (auto const* const command :
             app.get_subcommands([&](CLI::App const* each) { return each->get_name() == words[0]; }))
            possible = Possible(*command, {words.begin() + 1, words.end() - 1}, words.back().starts_with('-'));
    std::erase_if(possible, [&](auto const& word) { return !word.starts_with(words.back()); });
    return possible;
}

} // namespace Talvo::Tools
