#include "tests/Thrift/Data/Sequences/Values.h"

#include "Thrift/Data/Sequences/FromTag.h"
#include "Thrift/Data/Sequences/ToTag.h"
#include "generated/TagProperty_types.h"
#include "generated/Tag_types.h"
#include "tests/Thrift/Converters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
using Corvane::Data::Sequences::Tag;
using Corvane::Data::Sequences::TagProperty;
using testing::ElementsAre;
using testing::Pair;

using OfTag = Converters<TagToThriftConverter, ThriftToTagConverter>;

Generated::TagProperty WireProperty(std::vector<int> const& value)
{
    Generated::TagProperty property;
    property.dataType = Generated::TagPropertyType::Integer;
    property.value.assign(value.begin(), value.end());
    property.__isset.dataType = property.__isset.value = true;
    return property;
}

/// Returns the values of the properties of a tag by key.
auto ByKey(auto const& properties)
{
    std::map<int, std::vector<int>> values;
    for (auto const& [key, property] : properties)
        values[static_cast<int>(key)].assign(property.value.begin(), property.value.end());
    return values;
}

TEST(TagConversion, CommandTypeResetsTheTagBeforeTheOtherFieldsAreSet)
{
    struct Row
    {
        char const* flags; // i: id, c: command type, f: field, p: no properties, P: one property
        char const* told;
    };
    for (auto const& [flags, told] : {Row{"", "Tag is empty"}, Row{"c", "Tag is empty"}, Row{"p", "Tag is empty"},
                                      Row{"cp", "Tag is empty"}, Row{"i", ""}, Row{"f", ""}, Row{"P", ""},
                                      Row{"ip", ""}, Row{"ci", ""}, Row{"cf", ""}, Row{"cP", ""}, Row{"icfP", ""}})
    {
        auto const has = [flags = std::string_view(flags)](char const flag)
        { return flags.find(flag) != std::string_view::npos; };
        Generated::Tag wire;
        wire.id = 1;
        wire.commandType = Generated::CommandType::Mute;
        wire.field = 2;
        if (has('P')) wire.properties[Generated::TagPropertyKey::Duration] = WireProperty({3});
        wire.__isset.id = has('i');
        wire.__isset.commandType = has('c');
        wire.__isset.field = has('f');
        wire.__isset.properties = has('p') || has('P');

        auto expected = has('c') ? Tag(Tag::CommandType::Mute) : FullTag();
        if (has('i')) expected.id = 1;
        if (has('f')) expected.field = 2;
        if (has('P')) expected.properties.emplace(TagProperty::Key::Duration, TagProperty(3));
        auto tag = FullTag();
        EXPECT_EQ(OfTag::Told(wire, tag), told) << flags;
        EXPECT_EQ(tag, expected) << flags;
    }
}

TEST(TagConversion, ExistingKeysKeepTheirValues)
{
    Generated::Tag wire;
    wire.properties[Generated::TagPropertyKey::Name] = WireProperty({1});
    wire.properties[Generated::TagPropertyKey::Width] = WireProperty({2});
    wire.__isset.properties = true;
    auto expected = FullTag();
    expected.properties.emplace(TagProperty::Key::Width, TagProperty(2));
    EXPECT_EQ(OfTag::Received(wire, FullTag()), expected);

    EXPECT_THAT(ByKey(OfTag::Sent(FullTag(), wire).properties),
                ElementsAre(Pair(0, ElementsAre(1)), Pair(6, ElementsAre(1)), Pair(13, ElementsAre(2)),
                            Pair(15, ElementsAre(-2147483647 - 1, 0, 2147483647)), Pair(17, ElementsAre())));
}

TEST(TagConversion, UnknownWireKeysCollapseToTheFirst)
{
    struct Row
    {
        std::vector<int> keys;
        int kept;
    };
    for (auto const& [keys, kept] : {Row{{18, 99}, 18}, Row{{0, 18}, 0}, Row{{99, -5, 0, 18, -1}, -5}})
    {
        Generated::Tag wire;
        wire.__isset.properties = true;
        for (auto const key : keys)
            wire.properties[static_cast<Generated::TagPropertyKey::type>(key)] = WireProperty({key});
        auto const tag = OfTag::Received(wire, Tag(Tag::CommandType::Custom));
        EXPECT_THAT(ByKey(tag.properties), ElementsAre(Pair(0, ElementsAre(kept))));
    }
}

// Which key is first depends on how the hash map was filled and on its buckets. Sorting would change what peers
// receive.
TEST(TagConversion, UnknownDomainKeysCollapseToTheFirstOfTheHashMap)
{
    std::set<int> kept;
    for (auto const buckets : {1u, 2u, 13u, 1000u})
    {
        std::vector<int> order{-1, 0, 18, 1000};
        do
        {
            Tag tag(Tag::CommandType::Custom);
            tag.properties.max_load_factor(100);
            tag.properties.rehash(buckets);
            tag.properties.emplace(TagProperty::Key::Name, TagProperty(6));
            for (auto const key : order) tag.properties.emplace(static_cast<TagProperty::Key>(key), TagProperty(key));

            auto const first = std::ranges::find_if(tag.properties, [](auto const& entry)
                                                    { return entry.first != TagProperty::Key::Name; });
            auto const number = static_cast<int>(first->first);
            EXPECT_THAT(ByKey(OfTag::Sent(tag).properties),
                        ElementsAre(Pair(0, ElementsAre(number)), Pair(6, ElementsAre(6))));
            kept.insert(number);
        } while (std::next_permutation(order.begin(), order.end()));
    }
    EXPECT_THAT(kept, ElementsAre(-1, 0, 18, 1000)); // each key is the first at least once
}

} // namespace
} // namespace Talvo::Tests
