#pragma once

#include "Common/Serialization/ConversionResult.h"
#include "records/RecordView.h"
#include "records/Shape.h"
#include "records/Values.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace apache::thrift::protocol
{
class TProtocol;
}
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire
{
class BinaryReader;
}

namespace Talvo::Records
{

/// One wire record whose type is known by its name only: what all records do is compiled once, for tools and tests.
class WireRecord
{
public:
    virtual ~WireRecord() = default;

    virtual void Read(apache::thrift::protocol::TProtocol& protocol) = 0;
    /// Within all bounds of that reader, which counts memory only where it is not called through its base class.
    virtual void Read(Corvane::Zelmar::Serialization::Thrift::Wire::BinaryReader& reader) = 0;
    virtual void Write(apache::thrift::protocol::TProtocol& protocol) const = 0;

    /// Visits the values that were read into this record, in the order of the schema.
    void VisitValues(ValueVisit const& visit) const;
    /// The same, and beside them those of `after`, a record of the same type.
    void VisitValues(WireRecord const& after, FieldSet fieldsAfter, ValueVisit const& visit) const;

    /// False for a record of another type.
    virtual bool operator==(WireRecord const& other) const = 0;

    // These are for tests, and in the library RecordViews, since they take long to compile.

    /// All fields with their flags.
    View Fields() const;
    /// Copies the value of one field from a record of the same type, and not its flag.
    void CopyValue(WireRecord const& other, int id);
    /// Clears the flags of one nested record, or empties it. They count in the order of Fields(), from 0 on, without
    /// those in keys and sets.
    void Spoil(std::size_t nested, bool isEmptied);

private:
    virtual std::type_info const& HeldType() const = 0; ///< The generated class,
    virtual Shape const& HeldShape() const = 0;         ///< its shape,
    virtual void const* Held() const = 0;               ///< and the record of that class.
};

/// One domain object, likewise.
class DomainObject
{
public:
    virtual ~DomainObject() = default;
};

/// How a converter is called.
enum class Form
{
    Constant, ///< `To` with a constant source
    Movable,  ///< `To` with an rvalue as source
    Checked   ///< TryTo(); only to the domain
};

/// What the two conversions of a round trip said; the second one runs only after a success of the first.
struct RoundTrip
{
    Common::Serialization::ConversionResult toDomain;
    std::optional<Common::Serialization::ConversionResult> toWire;
    std::unique_ptr<WireRecord> record; ///< What came back: null unless both succeeded.
};

/// A type of records. The functions are null where a converter that they need is missing.
struct RecordType
{
    using Result = Common::Serialization::ConversionResult;

    std::string_view name;
    std::string_view group; ///< Short name of its namespace.
    char const* asciiFingerprint;
    std::span<std::uint8_t const, 16> binaryFingerprint;
    bool toDomain; ///< There is a converter to the domain.
    bool toWire;   ///< There is a converter from the domain.

    std::unique_ptr<WireRecord> (*make)();
    /// A newly built domain object, the destination for that record.
    std::unique_ptr<DomainObject> (*makeDomain)(WireRecord const&);
    Result (*convertToDomain)(WireRecord const&, DomainObject&, Form);
    Result (*convertToWire)(DomainObject const&, WireRecord&, Form);
    /// Null without equality in the domain, too.
    bool (*equal)(DomainObject const&, DomainObject const&);
    Shape const& (*shape)(); ///< Never null.

    bool ConvertsBothWays() const { return toDomain && toWire; }
};

/// Every record, by namespace, those of data and outer ones first, and name.
std::vector<RecordType> const& RecordTypes();

/// Converts a record into a newly built domain object, checked, and that into a newly built wire record. The type has
/// converters in both directions.
RoundTrip ThroughDomain(RecordType const& type, WireRecord const& record);

/// Whether both records convert, each into a newly built domain object, and these are equal.
bool SameDomain(RecordType const& type, WireRecord const& left, WireRecord const& right);

} // namespace Talvo::Records
