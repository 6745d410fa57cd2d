#include "tests/schema/AnyRecord.h"

#include "tools/records/All.h"

#include <sstream>
#include <type_traits>

namespace Talvo::Tests
{
namespace
{

template<typename T>
class HeldRecord final : public AnyRecord
{
    // Without these moves each growth of a list would copy its records.
    static_assert(std::is_nothrow_move_constructible_v<T> && std::is_nothrow_move_assignable_v<T>);
    static_assert(std::has_virtual_destructor_v<T>);

public:
    void Read(apache::thrift::protocol::TProtocol& protocol) override { record_.read(&protocol); }
    void Write(apache::thrift::protocol::TProtocol& protocol) const override { record_.write(&protocol); }

    std::string Text() const override
    {
        std::ostringstream text;
        text << record_;
        return text.str();
    }

    bool operator==(AnyRecord const& other) const override
    {
        auto const* const same = dynamic_cast<HeldRecord const*>(&other);
        return same != nullptr && record_ == same->record_;
    }

private:
    T record_;
};

template<typename T, typename TToWire, typename TToDomain, typename TDomain, TDomain (*newDomain)(T const&)>
RecordType TypeOf(Tools::Record<T, TToWire, TToDomain, TDomain, newDomain> const& record)
{
    constexpr bool hasFlags = requires(T wire)
    {
        wire.__isset;
    };
    return {record.name, T::ascii_fingerprint, T::binary_fingerprint, hasFlags,
            []() -> std::unique_ptr<AnyRecord> { return std::make_unique<HeldRecord<T>>(); }};
}

} // namespace

std::vector<RecordType> const& AllRecordTypes()
{
    static auto const types = []
    {
        std::vector<RecordType> all;
        Tools::ForEachRecord([&all](auto const& record, auto) { all.push_back(TypeOf(record)); });
        return all;
    }();
    return types;
}

} // namespace Talvo::Tests
