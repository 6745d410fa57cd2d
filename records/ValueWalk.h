#pragma once

#include "records/Values.h"

#include "generated/RecordFields.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Talvo::Records
{

/// Visits the values of one record or of two records of one type side by side, in the order of the schema. It keeps
/// nothing but the path to where it is.
class ValueWalk
{
public:
    ValueWalk(FieldSet const fieldsAfter, ValueVisit const& visit)
        : fieldsAfter_(fieldsAfter)
        , visit_(visit)
    {
    }

    /// Passes the values that were read into `before`, and beside them those of `after` unless that is null.
    template<typename TRecord>
    void Pass(TRecord const* const before, TRecord const* const after)
    {
        VisitFields(std::type_identity<TRecord>(),
                    [&](int, char const* const name, Requirement const requirement, auto const member, auto const isSet)
                    {
                        auto const counts = [&](TRecord const* const record, FieldSet const fields)
                        {
                            return record != nullptr && (isSet(*record) || (fields == FieldSet::Written &&
                                                                            requirement == Requirement::Default));
                        };
                        auto const* const fieldBefore = counts(before, FieldSet::Read) ? &(before->*member) : nullptr;
                        auto const* const fieldAfter = counts(after, fieldsAfter_) ? &(after->*member) : nullptr;
                        if (fieldBefore != nullptr || fieldAfter != nullptr)
                            Enter(name, fieldBefore, fieldAfter, KindOf(before), KindOf(after));
                    });
    }

private:
    template<typename T>
    static constexpr bool IsScalar = std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_same_v<T, std::string>;
    template<typename T>
    static constexpr bool IsSet = requires
    {
        typename T::key_type;
    };
    template<typename T>
    static constexpr bool IsMap = requires
    {
        typename T::mapped_type;
    };
    template<typename T>
    static constexpr bool IsList = !IsSet<T> && requires(T const& value)
    {
        value.begin();
    };

    /// What the texts of a record are.
    template<typename TRecord>
    static WireText::Kind KindOf(TRecord const* const record)
    {
        if constexpr (std::is_same_v<TRecord, Corvane::Data::Generated::Guid>) return WireText::Kind::Identifier;
        if constexpr (requires { record->isUtf16; })
        {
            if (record != nullptr && record->isUtf16) return WireText::Kind::Utf16;
        }
        return WireText::Kind::Bytes;
    }

    template<typename T>
    static Value ValueOf(T const& value, WireText::Kind const kind)
    {
        if constexpr (std::is_enum_v<T>)
            return Enumerator{static_cast<std::int32_t>(value), EnumeratorName(value)};
        else if constexpr (std::is_same_v<T, std::string>)
            return WireText{value, kind};
        else
            return value;
    }

    template<typename T>
    static Key KeyOf(T const& key)
    {
        if constexpr (IsScalar<T>)
            return {ValueOf(key, WireText::Kind::Bytes)};
        else
        {
            Key only{Empty::Record};
            VisitFields(std::type_identity<T>(),
                        [&](int, char const*, Requirement, auto const member, auto const isSet)
                        {
                            if (isSet(key)) only = {ValueOf(key.*member, KindOf(&key))};
                        });
            return only;
        }
    }

    /// What stands for `value` where that is empty.
    template<typename T>
    static std::optional<Value> EmptyOf(T const* const value, FieldSet const fields)
    {
        if (value == nullptr) return std::nullopt;
        if constexpr (IsList<T> || IsSet<T>)
        {
            if (!value->empty()) return std::nullopt;
            if constexpr (IsMap<T>)
                return Empty::Map;
            else if constexpr (IsSet<T>)
                return Empty::Set;
            else
                return Empty::List;
        }
        else
        {
            bool isEmpty = true;
            VisitFields(std::type_identity<T>(),
                        [&](int, char const*, Requirement const requirement, auto const&, auto const isSet) {
                            isEmpty &=
                                !isSet(*value) && (fields == FieldSet::Read || requirement == Requirement::Optional);
                        });
            return isEmpty ? std::optional<Value>(Empty::Record) : std::nullopt;
        }
    }

    template<typename T>
    void Enter(Step const& step, T const* const before, T const* const after, WireText::Kind const kindBefore,
               WireText::Kind const kindAfter)
    {
        path_.push_back(step);
        if constexpr (IsScalar<T>)
            Visit(before == nullptr ? std::nullopt : std::optional(ValueOf(*before, kindBefore)),
                  after == nullptr ? std::nullopt : std::optional(ValueOf(*after, kindAfter)), false);
        else
        {
            bool const inBoth = before != nullptr && after != nullptr;
            auto const emptyBefore = EmptyOf(before, FieldSet::Read);
            auto const emptyAfter = EmptyOf(after, fieldsAfter_);
            if (emptyBefore) Visit(emptyBefore, emptyAfter, inBoth);
            PassInside(before, after);
            if (emptyAfter && !emptyBefore) Visit(emptyBefore, emptyAfter, inBoth);
        }
        path_.pop_back();
    }

    void Visit(std::optional<Value> const& before, std::optional<Value> const& after, bool const inBoth)
    {
        visit_({path_, before, after, inBoth, cutTo_});
    }

    template<typename T>
    void PassInside(T const* const before, T const* const after)
    {
        if constexpr (IsList<T> || IsSet<T>)
        {
            static T const none;
            auto const& left = before == nullptr ? none : *before;
            auto const& right = after == nullptr ? none : *after;
            if constexpr (IsMap<T>)
                PassEntries(left, right);
            else
                PassElements(left, right, IsList<T> && before != nullptr && after != nullptr);
        }
        else
            Pass(before, after);
    }

    template<typename T>
    void PassElements(T const& before, T const& after, bool const maybeCut)
    {
        auto left = before.begin();
        auto right = after.begin();
        for (std::size_t index = 0; left != before.end() || right != after.end(); ++index)
        {
            if (maybeCut && index == after.size()) cutTo_ = after.size();
            auto const* const elementBefore = left == before.end() ? nullptr : &*left++;
            auto const* const elementAfter = right == after.end() ? nullptr : &*right++;
            Enter(index, elementBefore, elementAfter, WireText::Kind::Bytes, WireText::Kind::Bytes);
        }
        if (maybeCut) cutTo_.reset();
    }

    template<typename T>
    void PassEntries(T const& before, T const& after)
    {
        auto const isLess = before.key_comp();
        auto left = before.begin();
        auto right = after.begin();
        while (left != before.end() || right != after.end())
        {
            auto const isLeft = left != before.end() && (right == after.end() || !isLess(right->first, left->first));
            auto const isRight = right != after.end() && (left == before.end() || !isLess(left->first, right->first));
            Enter(KeyOf(isLeft ? left->first : right->first), isLeft ? &left->second : nullptr,
                  isRight ? &right->second : nullptr, WireText::Kind::Bytes, WireText::Kind::Bytes);
            if (isLeft) ++left;
            if (isRight) ++right;
        }
    }

    FieldSet fieldsAfter_;
    ValueVisit const& visit_;
    std::vector<Step> path_;
    std::optional<std::size_t> cutTo_;
};

} // namespace Talvo::Records
