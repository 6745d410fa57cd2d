#pragma once

// All converters of servers.

#include "Thrift/Data/Servers/FromServerInfo.h"
#include "Thrift/Data/Servers/ToServerInfo.h"
