#pragma once

// All converters of channels and their states.

#include "Thrift/Data/Channels/FromLoadBoundary.h"
#include "Thrift/Data/Channels/FromPlayerClipOnAir.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Channels/FromRecorderState.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Data/Channels/ToRecorderState.h"
