// Reads arbitrary bytes as any record or as a message header. The in-memory binary protocol has to accept and reject
// what Thrift's own protocol does with the same bounds, read the same values, and write them as the same bytes.
//
// The first byte selects the record; 255 selects the header.

#include "Thrift/Wire/BinaryWriter.h"
#include "tests/Thrift/Wire/Differential.h"
#include "tests/Thrift/WireBytes.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

using namespace Talvo::Tests;

[[noreturn]] void Report(Talvo::Records::RecordType const* const type, char const* const finding)
{
    auto const name = type == nullptr ? std::string_view("a message header") : type->name;
    std::fprintf(stderr, "%.*s %s\n", static_cast<int>(name.size()), name.data(), finding);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* const data, std::size_t const size)
{
    auto const& types = Talvo::Records::RecordTypes();
    if (size < 1) return 0;
    auto const* const type = data[0] == 255 ? nullptr : &types[data[0] % types.size()];
    std::string_view const bytes(reinterpret_cast<char const*>(data + 1), size - 1);

    auto const read = ReadOwn(bytes, ReaderOf(type));
    if (read != ReadPeer(bytes, ReaderOf(type))) Report(type, "is not read alike");
    if (!read || type == nullptr) return 0;

    auto const record = type->make();
    Wire::BinaryReader reader(BytesOf(bytes), DifferentialBounds());
    record->Read(reader);
    Wire::BinaryWriter writer;
    record->Write(writer);
    if (writer.Text() != WrittenBytes(*record, *Protocols()[0])) Report(type, "is not written alike");
    return 0;
}
