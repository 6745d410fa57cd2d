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

/// Reads a domain `OperationStatus` from the wire record `OperationStatus`, which carries one of its two fields. It
/// can't fail.
///
/// | Sent | Value | `status` | `result` |
/// |---|---|---|---|
/// | `status` (a `result` is then ignored) | `Succeeded` | `Succeeded` | `Success` |
/// | | `Failed` | `Failed` | `DefaultError` |
/// | | any other | the value | `Unknown` |
/// | `result` alone | `Success` | `Succeeded` | `Success` |
/// | | `Unknown` | `NotStarted` | `Unknown` |
/// | | any other | `Failed` | the value |
/// | neither | | unchanged | unchanged |
class ThriftToOperationStatusConverter
    : public Converter<Corvane::Data::Generated::OperationStatus, Corvane::Data::OperationStatus>
{
public:
    ConversionResult To(Corvane::Data::Generated::OperationStatus const& source,
                        Corvane::Data::OperationStatus& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Generated::OperationStatus&& source,
                        Corvane::Data::OperationStatus& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
