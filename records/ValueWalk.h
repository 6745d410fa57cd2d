#pragma once

#include "records/Shape.h"
#include "records/Values.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Talvo::Records
{

/// Visits the values of one record or of two records of one type side by side, in the order of the schema. It keeps
/// nothing but the path to where it is. The addresses that it takes are those of a value of the shape beside them, or
/// null.
class ValueWalk
{
public:
    ValueWalk(FieldSet fieldsAfter, ValueVisit const& visit);

    /// Passes the values that were read into the record `before`, and beside them those of `after`.
    void PassRecord(Shape const& shape, void const* before, void const* after);

    /// Passes the elements of two lists or sets. `maybeCut` is for lists that are both there.
    template<typename T>
    void PassElements(Shape const& shape, T const& before, T const& after, bool const maybeCut)
    {
        auto left = before.begin();
        auto right = after.begin();
        for (std::size_t index = 0; left != before.end() || right != after.end(); ++index)
        {
            if (maybeCut && index == after.size()) cutTo_ = after.size();
            auto const* const elementBefore = left == before.end() ? nullptr : &*left++;
            auto const* const elementAfter = right == after.end() ? nullptr : &*right++;
            EnterElement(*shape.element, index, elementBefore, elementAfter);
        }
        if (maybeCut) cutTo_.reset();
    }

    /// Passes the entries of two maps, in the order of their keys.
    template<typename T>
    void PassEntries(Shape const& shape, T const& before, T const& after)
    {
        auto const isLess = before.key_comp();
        auto left = before.begin();
        auto right = after.begin();
        while (left != before.end() || right != after.end())
        {
            auto const isLeft = left != before.end() && (right == after.end() || !isLess(right->first, left->first));
            auto const isRight = right != after.end() && (left == before.end() || !isLess(left->first, right->first));
            EnterElement(*shape.element, KeyOf(*shape.key, isLeft ? &left->first : &right->first),
                         isLeft ? &left->second : nullptr, isRight ? &right->second : nullptr);
            if (isLeft) ++left;
            if (isRight) ++right;
        }
    }

private:
    static Key KeyOf(Shape const& shape, void const* key);

    void EnterElement(Shape const& shape, Step const& step, void const* before, void const* after);
    void Enter(Shape const& shape, Step const& step, void const* before, void const* after, WireText::Kind textsBefore,
               WireText::Kind textsAfter);
    void Visit(std::optional<Value> const& before, std::optional<Value> const& after, bool inBoth);

    FieldSet fieldsAfter_;
    ValueVisit const& visit_;
    std::vector<Step> path_;
    std::optional<std::size_t> cutTo_;
};

} // namespace Talvo::Records
