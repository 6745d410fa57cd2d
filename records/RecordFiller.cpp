#include "records/RecordFiller.h"

#include <array>
#include <type_traits>
#include <utility>

namespace Talvo::Records
{

using namespace apache::thrift::protocol;

namespace
{

constexpr std::array FieldTypes{T_BOOL, T_I16, T_I32, T_I64, T_STRING, T_STRUCT, T_LIST, T_SET, T_MAP};
constexpr int LargestFieldId = 64;
constexpr int LargestGap = 8;
constexpr std::uint32_t ContainerSize = 2;

} // namespace

RecordFiller::RecordFiller(Filter offered)
    : TVirtualProtocol(std::make_shared<apache::thrift::transport::TMemoryBuffer>())
    , offered_(std::move(offered))
{
}

RecordFiller RecordFiller::Convertible(std::vector<std::int16_t> numbers, Filter offered)
{
    RecordFiller filler(std::move(offered));
    filler.numbers_ = std::move(numbers);
    return filler;
}

RecordFiller RecordFiller::OtherConvertible(std::vector<std::int16_t> numbers)
{
    auto filler = Convertible(std::move(numbers));
    filler.isOther_ = true;
    return filler;
}

RecordFiller RecordFiller::Wide()
{
    auto filler = Convertible({0});
    filler.isWide_ = true;
    return filler;
}

RecordFiller RecordFiller::Zeros()
{
    auto filler = Convertible({0});
    filler.isZero_ = true;
    return filler;
}

void RecordFiller::Spoil(std::size_t const value, std::string text, std::int16_t const number)
{
    spoiled_[value] = {std::move(text), number};
}

RecordFiller::Spoiled const* RecordFiller::NextSpoiled()
{
    if (open_.size() <= 2) ownValues_.push_back(values_);
    auto const spoiled = spoiled_.find(values_++);
    return spoiled == spoiled_.end() ? nullptr : &spoiled->second;
}

bool RecordFiller::ReadConvertible(auto& value, std::int64_t const wide)
{
    if (numbers_.empty()) return false;
    // The first number tells records beside each other apart; the others are the same wherever such a record stands.
    auto& record = open_.back();
    auto const index = record.numbers++ == 0 ? record.place : record.numbers - 1;
    using Number = std::remove_reference_t<decltype(value)>;
    auto const ordinal = static_cast<std::int64_t>(index + 1);
    auto const number =
        isWide_ ? static_cast<Number>(wide * ordinal) : static_cast<Number>(numbers_[index % numbers_.size()]);
    auto const* const spoiled = NextSpoiled();
    value = spoiled != nullptr ? spoiled->number : number;
    return true;
}

std::uint32_t RecordFiller::readStructBegin(std::string&)
{
    auto const place = open_.empty() ? 0 : ++open_.back().records;
    open_.push_back({.place = place});
    return 0;
}

std::uint32_t RecordFiller::readStructEnd()
{
    open_.pop_back();
    return 0;
}

std::uint32_t RecordFiller::readFieldBegin(std::string&, TType& type, std::int16_t& id)
{
    auto& record = open_.back();
    auto const offer = [&]
    {
        auto const [index, typeIndex] = std::div(record.offers++, static_cast<int>(FieldTypes.size()));
        record.id = static_cast<std::int16_t>(index + 1);
        type = FieldTypes[static_cast<std::size_t>(typeIndex)];
    };
    auto const isHeldBack = [&] { return open_.size() == 1 ? !offered_(record.id) : record.id == leftOutInside_; };
    for (offer(); record.id <= LargestFieldId && isHeldBack(); offer()) record.lastOwn = record.id;

    record.skipped = false;
    id = record.id;
    if (record.id > LargestFieldId || record.id > record.lastOwn + LargestGap) type = T_STOP;
    return 0;
}

std::uint32_t RecordFiller::readFieldEnd()
{
    auto& record = open_.back();
    if (record.skipped) return 0;
    record.lastOwn = record.id;
    if (open_.size() == 1) fieldIds_.insert(record.id);
    return 0;
}

std::uint32_t RecordFiller::skip(TType)
{
    open_.back().skipped = true;
    return 0;
}

std::uint32_t RecordFiller::readListBegin(TType&, std::uint32_t& size) const
{
    size = isZero_ ? 0 : ContainerSize;
    return 0;
}

std::uint32_t RecordFiller::readListEnd()
{
    return 0;
}

std::uint32_t RecordFiller::readSetBegin(TType&, std::uint32_t& size) const
{
    size = isZero_ ? 0 : ContainerSize;
    return 0;
}

std::uint32_t RecordFiller::readSetEnd()
{
    return 0;
}

std::uint32_t RecordFiller::readMapBegin(TType&, TType&, std::uint32_t& size) const
{
    size = isZero_ ? 0 : ContainerSize;
    return 0;
}

std::uint32_t RecordFiller::readMapEnd()
{
    return 0;
}

std::uint32_t RecordFiller::readBool(bool& value)
{
    value = !isZero_ && (numbers_.empty() || isOther_ || open_.back().booleans++ % 2 == 0);
    return 0;
}

std::uint32_t RecordFiller::readBool(std::vector<bool>::reference value)
{
    bool read = false;
    readBool(read);
    value = read;
    return 0;
}

std::uint32_t RecordFiller::readI16(std::int16_t& value)
{
    if (!ReadConvertible(value, -0x101)) value = static_cast<std::int16_t>(-++count_);
    return 0;
}

std::uint32_t RecordFiller::readI32(std::int32_t& value)
{
    if (!ReadConvertible(value, -0x10001)) value = 0x10001 * ++count_;
    return 0;
}

std::uint32_t RecordFiller::readI64(std::int64_t& value)
{
    if (!ReadConvertible(value, -0x100000001)) value = -0x100000001 * ++count_;
    return 0;
}

std::uint32_t RecordFiller::readString(std::string& value)
{
    auto& record = open_.back();
    if (numbers_.empty())
        value = "text " + std::to_string(count_++) + " \"\\\x01\x7F\x80\xFF";
    else if (auto const* const spoiled = NextSpoiled())
        value = spoiled->text;
    else if (isZero_)
        value.clear();
    else
    {
        // The first text tells a record apart, and the first one in it the record around it.
        auto const month = record.texts == 0 ? record.place % 9 + 1 : 1;
        auto const* const around = open_.size() > 1 ? &open_[open_.size() - 2] : nullptr;
        auto const year = 2024 + record.texts + (around != nullptr && !around->hasText ? 10 * around->place : 0);
        value = std::to_string(isOther_ ? year + 100 : year) + "-0" + std::to_string(month) + "-10T10:58:57:12@25";
    }
    ++record.texts;
    for (auto& open : open_) open.hasText = true;
    return 0;
}

} // namespace Talvo::Records
