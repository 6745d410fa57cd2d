#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Servers
{
struct ServerInfo;
} // namespace Talvo::Corvane::Data::Servers

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
{

namespace Generated
{
class ServerInfo;
} // namespace Generated

/// Replaces a domain `ServerInfo` with the wire record `ServerInfo`: the destination first becomes a new `ServerInfo`,
/// even if the conversion then fails, and then takes the fields whose flag is set.
///
/// Failures:
/// - "Invalid GBE IP address count.": `gbeIpAddresses` has one element or more than two; the fields before it are
///   applied.
/// - "ServerInfo is empty": no field is set. An empty `gbeIpAddresses` does not count.
///
/// Lost: texts above 32 (`corvaneVersion`), 16 (`hardwareRevision`) and 254 bytes (`hostName`) are cut; a chassis
/// outside 1 to 18 reads as 0.
class ThriftToServerInfoConverter : public Converter<Generated::ServerInfo, Corvane::Data::Servers::ServerInfo>
{
public:
    ConversionResult To(Generated::ServerInfo const& source,
                        Corvane::Data::Servers::ServerInfo& destination) const noexcept override;

    ConversionResult To(Generated::ServerInfo&& source,
                        Corvane::Data::Servers::ServerInfo& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
