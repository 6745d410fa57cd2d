#pragma once

// All converters of the records that all families use.

#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromMultiviewerDataOverrides.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToMultiviewerDataOverrides.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"
