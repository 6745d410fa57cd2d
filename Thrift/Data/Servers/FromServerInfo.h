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
/// The destination should be new; it is not reset. Empty texts are not written, and their value and flag are unchanged;
/// the same applies to the GBE addresses if `hasNoGbeAddresses` is true. Otherwise the addresses are appended to those
/// in the destination. An address is one number with the first octet in the most significant byte. A chassis outside 1
/// to 18 is written as 0.
class ServerInfoToThriftConverter : public Converter<Corvane::Data::Servers::ServerInfo, Generated::ServerInfo>
{
public:
    ConversionResult To(Corvane::Data::Servers::ServerInfo const& source,
                        Generated::ServerInfo& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Servers::ServerInfo&& source,
                        Generated::ServerInfo& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers
