// Tests what a program and the library share at run time: variables, which the linker may copy into the program,
// exceptions and types.

#include "Common/Serialization/Converter.h"
#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/BadValue.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "generated/Clip_constants.h"
#include "generated/Clip_types.h"
#include "generated/Guid_types.h"
#include "generated/OperationResult_types.h"

#include <gmock/gmock.h>

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <typeinfo>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;
using WireClip = Data::Clips::Generated::Clip;

TEST(Boundary, VariablesOfTheLibraryHaveTheirValues)
{
    auto const& cameras = Data::Clips::Generated::_Camera_VALUES_TO_NAMES;
    ASSERT_TRUE(cameras.contains(Data::Clips::Generated::Camera::A));
    EXPECT_EQ(std::string_view(cameras.at(Data::Clips::Generated::Camera::A)), "A");
    EXPECT_GT(Corvane::Data::Generated::_OperationResult_VALUES_TO_NAMES.size(), 10U);

    std::string const text = Corvane::Data::Generated::Guid::ascii_fingerprint;
    EXPECT_EQ(text.size(), 32U);
    EXPECT_EQ(std::stoi(text.substr(0, 2), nullptr, 16), Corvane::Data::Generated::Guid::binary_fingerprint[0]);
    EXPECT_NE(&Data::Clips::Generated::g_Clip_constants, nullptr);
}

TEST(Boundary, ExceptionsOfTheLibraryAreCaughtByTheirType)
{
    WireClip record;
    record.__set_inBoundTodTimecode("today");
    Corvane::Data::Clips::Clip clip;
    Data::Clips::ThriftToClipConverter const converter;
    EXPECT_THROW(std::ignore = converter.ToOrThrow(record, clip), BadValue);
    EXPECT_THROW(std::ignore = converter.ToOrThrow(record, clip), std::exception);
}

TEST(Boundary, TypesAreTheSameOnBothSides)
{
    using Frame = Common::Serialization::Converter<WireClip, Corvane::Data::Clips::Clip>;
    std::unique_ptr<Frame> const frame = std::make_unique<Data::Clips::ThriftToClipConverter>();
    EXPECT_NE(dynamic_cast<Data::Clips::ThriftToClipConverter*>(frame.get()), nullptr);
    auto const& converter = *frame;
    EXPECT_EQ(typeid(converter), typeid(Data::Clips::ThriftToClipConverter));
}

} // namespace
} // namespace Talvo::Tests
