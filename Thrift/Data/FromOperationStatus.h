#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data
{
struct OperationStatus;
} // namespace Talvo::Corvane::Data

namespace Talvo::Corvane::Data::Generated
{
class OperationStatus;
} // namespace Talvo::Corvane::Data::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

/// Writes a domain `OperationStatus` into one field of the wire record `OperationStatus`. It can't fail.
///
/// A `Failed` status is written as its `result`, any other as its `status`; the other field keeps its value and flag.
/// The result of a status that is not `Failed` is lost.
class OperationStatusToThriftConverter
    : public Converter<Corvane::Data::OperationStatus, Corvane::Data::Generated::OperationStatus>
{
public:
    ConversionResult To(Corvane::Data::OperationStatus const& source,
                        Corvane::Data::Generated::OperationStatus& destination) const noexcept override;

    ConversionResult To(Corvane::Data::OperationStatus&& source,
                        Corvane::Data::Generated::OperationStatus& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
