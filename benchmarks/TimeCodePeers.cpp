// Compares time codes as text with those of FFmpeg. Its form, "hh:mm:ss:ff", has no date and no rate; the rate is a
// separate argument. Without a date our code does the same work; with a date it does more.

#include "benchmarks/Comparison.h"

#include "TimePoints/TalvoTimeCodeFormatter.h"
#include "TimePoints/TalvoTimeCodeParser.h"

#include <benchmark/benchmark.h>

extern "C"
{
#include <libavutil/timecode.h>
}

#include <array>
#include <string>

namespace
{

using namespace Talvo::Benchmarks;
using namespace Talvo::TimePoints;

std::string const Dated = "2024-02-29T23:58:57;28@30";
std::string const Undated = "23:58:57;28@30";
constexpr char const* PeerText = "23:58:57;28";
constexpr AVRational PeerRate{30000, 1001};

AVTimecode PeerTimeCode()
{
    AVTimecode timeCode{};
    av_timecode_init_from_string(&timeCode, PeerRate, PeerText, nullptr);
    return timeCode;
}

void AddParse(char const* const name, std::string const& text)
{
    benchmark::RegisterBenchmark(name,
                                 [&text](benchmark::State& state)
                                 {
                                     TalvoTimeCodeParser const parser;
                                     for (auto _ : state)
                                     {
                                         auto timeCode = parser.Parse(text);
                                         benchmark::DoNotOptimize(timeCode);
                                     }
                                 });
}

void AddFormat(char const* const name, std::string const& text)
{
    benchmark::RegisterBenchmark(name,
                                 [&text](benchmark::State& state)
                                 {
                                     TalvoTimeCodeFormatter const formatter;
                                     auto const timeCode = TalvoTimeCodeParser().Parse(text);
                                     for (auto _ : state)
                                     {
                                         auto formatted = formatter.Format(timeCode);
                                         benchmark::DoNotOptimize(formatted);
                                     }
                                 });
}

Comparisons Add()
{
    AddParse("parse time code", Undated);
    AddParse("parse dated time code", Dated);
    AddFormat("format time code", Undated);
    AddFormat("format dated time code", Dated);
    benchmark::RegisterBenchmark("av_timecode_init_from_string",
                                 [](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         auto timeCode = PeerTimeCode();
                                         benchmark::DoNotOptimize(timeCode);
                                     }
                                 });
    benchmark::RegisterBenchmark("av_timecode_make_string",
                                 [](benchmark::State& state)
                                 {
                                     auto const timeCode = PeerTimeCode();
                                     for (auto _ : state)
                                     {
                                         std::array<char, AV_TIMECODE_STR_SIZE> text;
                                         av_timecode_make_string(&timeCode, text.data(), 0);
                                         benchmark::DoNotOptimize(text);
                                     }
                                 });
    return {{"parse time code", "av_timecode_init_from_string", 1.0 / 8},
            {"parse dated time code", "av_timecode_init_from_string", {}},
            {"format time code", "av_timecode_make_string", 1.0 / 5},
            {"format dated time code", "av_timecode_make_string", {}}};
}

} // namespace

int main(int argc, char** argv)
{
    return Run(argc, argv, &Add);
}
