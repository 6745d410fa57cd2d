#pragma once

// All converters of clips, trains and angles groups.

#include "Thrift/Data/Clips/FromAngle.h"
#include "Thrift/Data/Clips/FromAnglesGroup.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/FromEssence.h"
#include "Thrift/Data/Clips/FromRecordingRange.h"
#include "Thrift/Data/Clips/FromTrain.h"
#include "Thrift/Data/Clips/ToAngle.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Clips/ToEssence.h"
#include "Thrift/Data/Clips/ToRecordingRange.h"
#include "Thrift/Data/Clips/ToTrain.h"
