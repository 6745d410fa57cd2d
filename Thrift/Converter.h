#pragma once

#include "Common/Serialization/Converter.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

// Short names of the converter interface for the headers of the converters.
using Common::Serialization::ConversionResult;
using Common::Serialization::Converter;

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
