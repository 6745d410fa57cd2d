#include "tools/Commands.h"
#include "tools/Failure.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <functional>
#include <iostream>

namespace
{

using namespace Talvo::Tools;

/// The command line as it was given.
struct Arguments
{
    std::string record;
    std::string file = "-";
    std::string protocol = "binary";
    std::string toProtocol;
    std::string output;

    Source From() const { return {record, file, ParseProtocol(protocol)}; }
    Target To() const { return {output, ParseProtocol(toProtocol.empty() ? protocol : toProtocol)}; }
};

CLI::App* AddCommand(CLI::App& app, char const* name, char const* description, Arguments& arguments)
{
    auto* const command = app.add_subcommand(name, description);
    command->add_option("RECORD", arguments.record, "Name of the record, as list shows it")->required();
    command->add_option("FILE", arguments.file, "File that holds the record; - or nothing for standard input");
    command->add_option("-p,--protocol", arguments.protocol, "Its protocol: binary (default), compact or json");
    return command;
}

ExitStatus Run(int argc, char** argv)
{
    CLI::App app("Reads, prints and converts the wire records of the video server's object model.", "talvo-wire");
    app.footer("Exit status: 0 done, 1 a conversion failed, 2 wrong usage or a file that holds no such record.");
    app.require_subcommand(1);
    Arguments arguments;

    auto* const list = app.add_subcommand("list", "List all records, and which directions have a converter");
    auto* const print = AddCommand(app, "print", "Read a record and print it", arguments);

    auto* const convert =
        AddCommand(app, "convert", "Convert a record to the domain and back, and print what changed", arguments);
    convert->add_option("-o,--output", arguments.output, "File for the record that came back");
    convert->add_option("--to", arguments.toProtocol, "Protocol of that file; the one of -p if not given");

    auto* const transcode = AddCommand(app, "transcode", "Write a record in another protocol", arguments);
    transcode->get_option("--protocol")->required();
    transcode->add_option("--to", arguments.toProtocol, "Protocol to write")->required();
    transcode->add_option("-o,--output", arguments.output, "File to write; - for standard output")->required();

    try
    {
        app.parse(argc, argv);
    }
    catch (CLI::CallForHelp const& help)
    {
        app.exit(help);
        return ExitStatus::Done;
    }
    catch (CLI::ParseError const& error)
    {
        throw Failure(std::string(error.what()) + "; talvo-wire --help tells the usage");
    }

    auto status = ExitStatus::Done;
    if (*list)
        List();
    else if (*print)
        Print(arguments.From());
    else if (*convert)
    {
        if (arguments.output == "-") throw Failure("convert reports on standard output, so -o needs a file");
        status = Convert(arguments.From(), arguments.To());
    }
    else if (*transcode)
        Transcode(arguments.From(), arguments.To());

    if (!std::cout.flush()) throw Failure("can't write to standard output");
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        return static_cast<int>(Run(argc, argv));
    }
    catch (std::exception const& error)
    {
        std::cerr << "talvo-wire: " << error.what() << '\n';
        return static_cast<int>(ExitStatus::BadInput);
    }
}
