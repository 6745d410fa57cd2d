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

/// Writes a domain `ServerInfo` into the wire record `ServerInfo`. It can't fail.
///
/// The destination is expected to be new and is not reset. Empty texts stay off the wire, with value and flag as they
/// were, and so do the GBE addresses when `hasNoGbeAddresses`; else they are appended to what the destination holds. An
/// address is one number, its first octet in the most significant byte. A chassis outside 1 to 18 travels as 0.
class ServerInfoToThriftConverter : public Converter<Corvane::Data::Servers::ServerInfo, Generated::ServerInfo>
{
public:
    ConversionResult To(Corvane::Data::Servers::ServerInfo const& source,
                        Generated::ServerInfo& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Servers::ServerInfo&& source,
                        Generated::ServerInfo& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
