#pragma once

#include "Common/Serialization/Converter.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

// The frame, under the short names that every converter's header uses.
using Common::Serialization::ConversionResult;
using Common::Serialization::Converter;

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
