#pragma once

#include <thrift/protocol/TVirtualProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Talvo::Records
{

/// A protocol that makes up what a record's read asks for: reading a record from it fills the record.
///
/// It needs no description of the schema. It offers each record every field id with every type, until the record has
/// none for a while; the record skips what is not its own and reads the rest. No value is the default of its type,
/// containers have two elements, and numbers go on from field to field, so that no two values and no two keys are
/// alike. Enumerations get numbers as well, most of them outside their lists. Texts hold quotes, a backslash and bytes
/// that are no UTF-8, but no NUL byte.
class RecordFiller
    : public apache::thrift::protocol::TVirtualProtocol<RecordFiller, apache::thrift::protocol::TProtocolDefaults>
{
public:
    /// Which field ids of the outermost record are offered. All fields of nested records always are.
    using Filter = std::function<bool(std::int16_t)>;

    explicit RecordFiller(Filter offered = [](std::int16_t) { return true; });

    /// Fills a record that converters take: with `numbers` in turn, with yes and no in turn, and with texts that are time
    /// codes, no two of a record alike in the first eight characters, which become identifiers. A record is filled in the
    /// same way wherever it stands, but for its first number and its first text.
    static RecordFiller Convertible(
        std::vector<std::int16_t> numbers, Filter offered = [](std::int16_t) { return true; });

    /// The same with other texts, and with yes only.
    static RecordFiller OtherConvertible(std::vector<std::int16_t> numbers);

    /// The same with negative numbers that need all their bytes, no two of a record alike.
    static RecordFiller Wide();

    /// Fills a record with zeros, empty texts and empty containers, all of them there.
    static RecordFiller Zeros();

    /// Nested records lack the field of that id.
    void LeaveOutInside(std::int16_t const id) { leftOutInside_ = id; }

    /// One of the values that converters take, the first being 0, becomes this text or number. Several may be spoiled.
    void Spoil(std::size_t value, std::string text, std::int16_t number);

    /// How many numbers and texts were read that converters take.
    std::size_t Values() const { return values_; }

    /// Those of them that stand in the outermost record and in the records that it holds, not deeper.
    std::vector<std::size_t> const& OwnValues() const { return ownValues_; }

    /// The field ids of the outermost record that were read.
    std::set<std::int16_t> const& FieldIds() const { return fieldIds_; }

    std::uint32_t readStructBegin(std::string& name);
    std::uint32_t readStructEnd();
    std::uint32_t readFieldBegin(std::string& name, apache::thrift::protocol::TType& type, std::int16_t& id);
    std::uint32_t readFieldEnd();
    std::uint32_t skip(apache::thrift::protocol::TType type);

    std::uint32_t readListBegin(apache::thrift::protocol::TType& elements, std::uint32_t& size) const;
    std::uint32_t readListEnd();
    std::uint32_t readSetBegin(apache::thrift::protocol::TType& elements, std::uint32_t& size) const;
    std::uint32_t readSetEnd();
    std::uint32_t readMapBegin(apache::thrift::protocol::TType& keys, apache::thrift::protocol::TType& values,
                               std::uint32_t& size) const;
    std::uint32_t readMapEnd();

    std::uint32_t readBool(bool& value);
    std::uint32_t readBool(std::vector<bool>::reference value);
    std::uint32_t readI16(std::int16_t& value);
    std::uint32_t readI32(std::int32_t& value);
    std::uint32_t readI64(std::int64_t& value);
    std::uint32_t readString(std::string& value);

private:
    struct OpenRecord
    {
        int offers = 0;
        std::int16_t id = 0;
        std::int16_t lastOwn = 0; ///< The last field id that was read, or held back.
        bool skipped = false;
        std::size_t place = 0;   ///< Among the records beside it, from 1 on; 0 of the outermost one.
        std::size_t records = 0; ///< What was read so far: nested records,
        std::size_t numbers = 0; ///< numbers,
        std::size_t booleans = 0;
        std::size_t texts = 0;
        bool hasText = false; ///< Of its own, or of a nested one.
    };

    struct Spoiled
    {
        std::string text;
        std::int16_t number;
    };

    /// What the value that is read next is spoiled with, or null.
    Spoiled const* NextSpoiled();
    /// The next number, where converters take it; `wide` if that is asked for.
    bool ReadConvertible(auto& value, std::int64_t wide);

    Filter offered_;
    std::vector<OpenRecord> open_;
    std::set<std::int16_t> fieldIds_;
    std::int16_t count_ = 0;
    std::vector<std::int16_t> numbers_; ///< Empty: distinct values.
    std::int16_t leftOutInside_ = 0;
    bool isOther_ = false;
    bool isWide_ = false;
    bool isZero_ = false;
    std::size_t values_ = 0;
    std::vector<std::size_t> ownValues_;
    std::map<std::size_t, Spoiled> spoiled_;
};

} // namespace Talvo::Records
