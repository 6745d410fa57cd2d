#include "tests/tools/Tool.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

Outcome Run(std::vector<std::string> command, std::string const& input, std::string const& outputPath)
{
    auto const in = TemporaryPath("in");
    auto const out = outputPath.empty() ? TemporaryPath("out") : outputPath;
    auto const err = TemporaryPath("err");
    Write(in, input);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);

    std::vector<char*> argv;
    for (auto& argument : command) argv.push_back(argument.data());
    argv.push_back(nullptr);

    pid_t child = 0;
    int status = 0;
    rusage usage{};
    int const error = posix_spawn(&child, argv[0], &files, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (error != 0 || wait4(child, &status, 0, &usage) != child)
    {
        ADD_FAILURE() << command[0] << " does not start";
        return {-1, {}, {}, 0};
    }
    return {WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status),
            outputPath.empty() ? Read(out) : std::string(), Read(err), usage.ru_maxrss};
}

Outcome RunTool(std::vector<std::string> arguments, std::string const& input, std::string const& outputPath)
{
    arguments.insert(arguments.begin(), TALVO_WIRE);
    return Run(std::move(arguments), input, outputPath);
}

Outcome RunShell(std::string const& line)
{
    static auto const path = std::filesystem::path(TALVO_WIRE).parent_path().string();
    return Run({"/bin/bash", "-c", "set -o pipefail; PATH=" + path + ":$PATH; " + line});
}

std::string TemporaryPath(std::string const& name)
{
    struct Folder
    {
        std::filesystem::path path = testing::TempDir() + "talvo-wire-" + std::to_string(getpid());

        Folder() { std::filesystem::create_directory(path); }
        ~Folder() { std::filesystem::remove_all(path); }
    };
    static Folder const folder;
    return folder.path / name;
}

std::string Read(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

void Write(std::string const& path, std::string const& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string Sample(std::string const& file)
{
    return Read(TALVO_SAMPLES "/" + file);
}

std::string Transcoded(std::string const& record, std::string const& bytes, std::string const& from,
                       std::string const& to)
{
    auto const outcome = RunTool({"transcode", record, "-p", from, "--to", to, "-o", "-"}, bytes);
    EXPECT_EQ(outcome.status, 0) << record << ' ' << from << ' ' << to << ' ' << outcome.errors;
    return outcome.output;
}

std::string Number(std::size_t const number)
{
    std::string bytes;
    for (auto const shift : {24U, 16U, 8U, 0U}) bytes += static_cast<char>(number >> shift & 0xFFU);
    return bytes;
}

void ExpectRefused(Outcome const& outcome, std::string const& text)
{
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, testing::IsEmpty());
    EXPECT_THAT(outcome.errors, OneLine(text));
}
