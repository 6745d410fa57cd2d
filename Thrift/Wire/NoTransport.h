#pragma once

#include <thrift/transport/TTransport.h>

#include <memory>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire::Detail
{

/// A transport that is never open, for protocols that need none. All protocols share one object, without reference
/// counting.
inline std::shared_ptr<apache::thrift::transport::TTransport> NoTransport()
{
    static apache::thrift::transport::TTransport transport;
    return {std::shared_ptr<void>(), &transport};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire::Detail
