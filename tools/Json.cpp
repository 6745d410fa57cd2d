#include "tools/Json.h"

#include <cstdint>
#include <type_traits>
#include <variant>

namespace Talvo::Tools
{

Json BytesToJson(std::string const& bytes)
{
    std::string utf8;
    for (char const byte : bytes)
    {
        auto const character = static_cast<unsigned char>(byte);
        if (character < 0x80U)
            utf8 += byte;
        else
            utf8 += {static_cast<char>(0xC0U | character >> 6U), static_cast<char>(0x80U | (character & 0x3FU))};
    }
    return utf8;
}

Json ToJson(Value const& value)
{
    return std::visit(
        []<typename T>(T const& held) -> Json
        {
            if constexpr (std::is_same_v<T, std::string>)
                return BytesToJson(held);
            else if constexpr (std::is_same_v<T, Empty>)
                return held == Empty::List || held == Empty::Set ? Json::array() : Json::object();
            else
                return held;
        },
        value);
}

Json ToJson(std::optional<Value> const& value)
{
    return value ? ToJson(*value) : Json();
}

Json ToJson(Field const& field)
{
    return {{"path", field.path}, {"value", ToJson(field.value)}};
}

Json ToJson(FieldChange const& change)
{
    return {
        {"path", change.path}, {"before", ToJson(change.before)}, {"after", ToJson(change.after)}, {"why", change.why}};
}

Json ToJson(RecordType const& type)
{
    return {{"name", type.name}, {"namespace", type.group}, {"toDomain", type.toDomain}, {"toWire", type.toWire}};
}

Json ToJson(std::optional<Common::Serialization::ConversionResult> const& result)
{
    if (!result) return {};
    return {{"success", result->success}, {"message", BytesToJson(result->message)}};
}

std::string Text(Json const& json)
{
    return json.dump(-1, ' ', true);
}

} // namespace Talvo::Tools
