#include "tools/FieldPath.h"

#include <utility>

namespace Talvo::Tools
{

void FieldPath::Field(std::string label)
{
    if (levels_.back().state == State::Struct) levels_.back().label = std::move(label);
}

std::optional<std::string> FieldPath::Begin(Kind kind)
{
    if (!levels_.empty() && (levels_.back().state == State::MapKey || levels_.back().state == State::Key))
    {
        levels_.push_back({State::Key, {}, "\"\""}); // what a key without its value is written as
        return std::nullopt;
    }

    auto path = levels_.empty() ? std::string() : Next();
    levels_.push_back({kind == Kind::Struct     ? State::Struct
                       : kind == Kind::Elements ? State::Elements
                                                : State::MapKey,
                       path});
    return path;
}

void FieldPath::End()
{
    auto const level = std::move(levels_.back());
    levels_.pop_back();
    if (level.state == State::Key) Value(level.label);
}

std::optional<std::string> FieldPath::Value(std::string const& text)
{
    auto& level = levels_.back();
    if (level.state != State::MapKey && level.state != State::Key) return Next();

    level.label = text;
    if (level.state == State::MapKey) level.state = State::MapValue;
    return std::nullopt;
}

std::string FieldPath::Next()
{
    auto& level = levels_.back();
    switch (level.state)
    {
    case State::Elements:
        return level.path + '[' + std::to_string(level.index++) + ']';
    case State::MapValue:
        level.state = State::MapKey;
        return level.path + '[' + level.label + ']';
    default:
        return level.path.empty() ? level.label : level.path + '.' + level.label;
    }
}

} // namespace Talvo::Tools
