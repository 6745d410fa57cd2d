#pragma once

#include "records/ConverterTypes.h"

#include <gtest/gtest.h>

#include <string>

namespace Talvo::Tests
{

/// Converts, and returns the text of the failure, which is empty after a success.
template<typename TConverter>
std::string Told(auto const& source, auto& destination)
{
    auto const result = TConverter().To(source, destination);
    EXPECT_EQ(result.success, result.message.empty());
    return result.message;
}

/// The two converters of a record. Sent() and Received() fail the test if the conversion fails.
template<typename TToWire, typename TToDomain>
struct Converters
{
    using ToWire = TToWire;
    using ToDomain = TToDomain;
    using Domain = Records::SourceOf<TToWire>;
    using Wire = Records::SourceOf<TToDomain>;

    static Wire Sent(Domain const& value, Wire wire = {})
    {
        EXPECT_EQ(Tests::Told<TToWire>(value, wire), "");
        return wire;
    }

    static Domain Received(Wire const& wire, Domain domain = Domain())
    {
        EXPECT_EQ(Told(wire, domain), "");
        return domain;
    }

    static std::string Told(Wire const& wire, Domain& domain) { return Tests::Told<TToDomain>(wire, domain); }
};

} // namespace Talvo::Tests
