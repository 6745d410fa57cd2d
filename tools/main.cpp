#include "Thrift/Version.h"
#include "tools/Commands.h"
#include "tools/Completion.h"
#include "tools/Failure.h"
#include "tools/Suggestion.h"
#include "tools/Text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <limits>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <unistd.h>

namespace
{

using namespace Talvo::Tools;
using Talvo::Corvane::Zelmar::Serialization::Thrift::Version;

/// The command line as it was given.
struct Arguments
{
    std::string record;
    std::string file = "-";
    std::string otherFile;
    std::string protocol = "binary";
    std::string toProtocol;
    std::string output;
    std::string encoding = "bytes";
    bool framed = false;
    bool all = false;
    Limits limits;
    bool json = false;
    std::string colour = "auto";

    Source From() const
    {
        return {record, file, ParseProtocol(protocol), limits, ParseEncoding(encoding), framed, all};
    }
    Target To() const { return {output, ParseProtocol(toProtocol.empty() ? protocol : toProtocol)}; }
    Style Printed() const { return {json, !json && HasColour(colour)}; }
};

constexpr char ExitStatuses[] = "Exit status: 0 done, 1 a conversion failed or two records differ, 2 wrong usage or a "
                                "file that holds no such record.";

CLI::App* AddCommand(CLI::App& app, char const* name, char const* description, std::string const& examples)
{
    auto* const command = app.add_subcommand(name, description);
    command->footer(std::string(ExitStatuses) + "\n\nExamples, with files of examples/samples:\n" + examples);
    return command;
}

void AddLimit(CLI::App& command, char const* const name, std::uint32_t& limit, char const* const description)
{
    command.add_option(name, limit, description)
        ->type_name("N")
        ->capture_default_str()
        ->check(CLI::Range(1, std::numeric_limits<std::int32_t>::max()).description(""));
}

void AddFileName(CLI::App& command, Arguments& arguments)
{
    command.add_option("FILE", arguments.file, "File that is read; - or nothing for standard input")->type_name("");
}

void AddMaxBytes(CLI::App& command, Arguments& arguments)
{
    AddLimit(command, "--max-bytes", arguments.limits.bytes, "The largest file that is read");
}

/// How the bytes of a file are read.
void AddReading(CLI::App& command, Arguments& arguments,
                char const* const protocol = "Its protocol: binary (default), compact or json")
{
    command.add_option("-p,--protocol", arguments.protocol, protocol)->type_name("PROTOCOL");
    command
        .add_option("--encoding", arguments.encoding, "How the file writes its bytes: bytes (default), hex or base64")
        ->type_name("ENCODING");
    command.add_flag("--framed", arguments.framed,
                     "Each record is in a frame; without this, frames and message headers are found");
    AddMaxBytes(command, arguments);
    AddLimit(command, "--max-elements", arguments.limits.elements, "The longest list, set or map that is read");
}

void AddAll(CLI::App& command, Arguments& arguments)
{
    command.add_flag("--all", arguments.all, "The file holds one or more records, one after the other");
}

void AddRecordName(CLI::App& command, Arguments& arguments)
{
    command.add_option("RECORD", arguments.record, "Name of the record, as list shows it")
        ->required()
        ->type_name("NAME");
}

void AddRecord(CLI::App& command, Arguments& arguments)
{
    AddRecordName(command, arguments);
    AddFileName(command, arguments);
    AddReading(command, arguments);
    AddAll(command, arguments);
}

void AddJson(CLI::App& command, Arguments& arguments)
{
    command.add_flag("--json", arguments.json,
                     "Print JSON; in its strings each byte is one character, U+0000 to U+00FF");
}

void AddColour(CLI::App& command, Arguments& arguments)
{
    command.add_option("--color", arguments.colour, "auto (default: on a terminal, without NO_COLOR), always or never")
        ->type_name("WHEN")
        ->check(CLI::IsMember({"auto", "always", "never"}).description(""));
}

void AddTarget(CLI::App& command, Arguments& arguments, char const* file, char const* protocol)
{
    command.add_option("--to", arguments.toProtocol, protocol)->type_name("PROTOCOL");
    command.add_option("-o,--output", arguments.output, file)->type_name("FILE");
}

/// Everywhere, in converters too, which could not throw.
[[noreturn]] void EndOutOfMemory()
{
    static constexpr char Sentence[] = "talvo-wire: it needs more memory than there is\n";
    std::ignore = write(STDERR_FILENO, Sentence, sizeof Sentence - 1);
    std::_Exit(static_cast<int>(ExitStatus::BadInput));
}

/// Throws Failure where `word` is neither a command nor an option.
void ExpectCommand(CLI::App const& app, std::string const& word)
{
    auto const known = Completions(app, {""});
    if (word.starts_with('-') || std::ranges::find(known, word) != known.end()) return;
    std::vector<std::string_view> const names(known.begin(), known.end());
    auto const suggestion = Suggestion(word, names);
    throw Failure("there is no command '" + word + '\'' +
                  (suggestion.empty() ? "; talvo-wire --help shows the usage" : suggestion));
}

ExitStatus Run(int argc, char** argv)
{
    CLI::App app("Reads, prints and converts the wire records of the video server's object model.", "talvo-wire");
    app.footer("Each command has a --help with examples.\n" + std::string(ExitStatuses));
    app.require_subcommand(1);
    app.set_version_flag("--version", "talvo-wire " + std::string(Version), "Print the version and exit");
    Arguments arguments;

    auto* const list = AddCommand(app, "list", "List all records, and which directions have a converter",
                                  "  talvo-wire list\n"
                                  "  talvo-wire list --json");
    AddJson(*list, arguments);

    auto* const guess = AddCommand(app, "guess", "Name the records that fit the bytes of a file, best first",
                                   "  talvo-wire guess train.compact\n"
                                   "  talvo-wire guess --json --protocol binary < guid.binary");
    AddFileName(*guess, arguments);
    AddReading(*guess, arguments, "Its protocol; all of them are tried if not given");
    AddAll(*guess, arguments);
    AddJson(*guess, arguments);
    AddColour(*guess, arguments);

    auto* const print = AddCommand(app, "print", "Read a record and print it",
                                   "  talvo-wire print Clip clip-utf16-name.binary\n"
                                   "  talvo-wire print Train --protocol compact --json < train.compact");
    AddRecord(*print, arguments);
    AddJson(*print, arguments);
    AddColour(*print, arguments);

    auto* const convert =
        AddCommand(app, "convert", "Convert a record to the domain and back, and print what changed",
                   "  talvo-wire convert Clip clip-long-texts.binary\n"
                   "  talvo-wire convert Train train.compact -p compact --to binary -o train-back.binary");
    AddRecord(*convert, arguments);
    AddTarget(*convert, arguments, "File for the record that came back",
              "Protocol of that file; the one of -p if not given");
    AddJson(*convert, arguments);
    AddColour(*convert, arguments);

    auto* const diff = AddCommand(app, "diff", "Print the values in which two records differ",
                                  "  talvo-wire diff Clip clip-minimal.binary clip-minimal.binary --json\n"
                                  "  talvo-wire diff Train --protocol compact train.compact train.compact --json");
    AddRecordName(*diff, arguments);
    diff->add_option("A", arguments.file, "File of the one; - for standard input")->required()->type_name("FILE");
    diff->add_option("B", arguments.otherFile, "File of the other")->required()->type_name("FILE");
    AddReading(*diff, arguments);
    AddJson(*diff, arguments);
    AddColour(*diff, arguments);

    auto* const transcode =
        AddCommand(app, "transcode", "Write a record in another protocol",
                   "  talvo-wire transcode Clip clip-minimal.binary -p binary --to json -o -\n"
                   "  talvo-wire transcode Train train.compact -p compact --to binary -o - | talvo-wire print Train");
    AddRecord(*transcode, arguments);
    AddTarget(*transcode, arguments, "File to write; - for standard output", "Protocol to write");
    for (auto const* name : {"--protocol", "--to", "--output"}) transcode->get_option(name)->required();

    auto* const encode = AddCommand(app, "encode", "Write the records of JSON that print --json has written",
                                    "  talvo-wire print Clip clip-minimal.binary --json | talvo-wire encode -o -\n"
                                    "  talvo-wire print Guid --json guid.binary | talvo-wire encode --to json -o -");
    AddFileName(*encode, arguments);
    AddMaxBytes(*encode, arguments);
    AddTarget(*encode, arguments, "File to write; - for standard output", "Protocol to write; binary if not given");
    encode->get_option("--output")->required();

    auto status = ExitStatus::Done;
    std::vector<std::string> const words(argv + std::min(argc, 1), argv + argc);
    if (!words.empty() && words[0] == "complete") // for the shells
    {
        for (auto const& word : Completions(app, {words.begin() + 1, words.end()})) std::cout << word << '\n';
        return status;
    }
    if (!words.empty()) ExpectCommand(app, words[0]);
    try
    {
        app.parse(argc, argv);
        if (*list)
            List(arguments.Printed());
        else if (*guess)
        {
            std::array const given{ParseProtocol(arguments.protocol)};
            bool const isGiven = guess->count("--protocol") > 0;
            GuessTypes(arguments.From(), isGiven ? std::span<Protocol const>(given) : AllProtocols,
                       arguments.Printed());
        }
        else if (*print)
            Print(arguments.From(), arguments.Printed());
        else if (*convert)
        {
            if (arguments.output == "-") throw Failure("convert reports on standard output, so -o needs a file");
            status = Convert(arguments.From(), arguments.To(), arguments.Printed());
        }
        else if (*diff)
            status = Diff(arguments.From(), arguments.otherFile, arguments.Printed());
        else if (*encode)
            EncodeJson(arguments.From(), arguments.To());
        else if (*transcode)
            Transcode(arguments.From(), arguments.To());
    }
    catch (CLI::Success const& helpOrVersion)
    {
        app.exit(helpOrVersion);
    }
    catch (CLI::ParseError const& error)
    {
        throw Failure(std::string(error.what()) + "; talvo-wire --help shows the usage");
    }

    if (!std::cout.flush()) throw Failure("can't write to standard output");
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    std::set_new_handler(EndOutOfMemory);
    std::ios::sync_with_stdio(false);
    try
    {
        return static_cast<int>(Run(argc, argv));
    }
    catch (std::bad_alloc const&) // of Thrift's buffers, which are not made by new
    {
        EndOutOfMemory();
    }
    catch (std::exception const& error)
    {
        Report(error.what());
        return static_cast<int>(ExitStatus::BadInput);
    }
}
