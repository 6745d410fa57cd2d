#pragma once

// All converters of sequences and playlists.

#include "Thrift/Data/Sequences/FromAudioVideoElement.h"
#include "Thrift/Data/Sequences/FromAudioVideoTrack.h"
#include "Thrift/Data/Sequences/FromElement.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Data/Sequences/FromSequence.h"
#include "Thrift/Data/Sequences/FromSequenceId.h"
#include "Thrift/Data/Sequences/FromTag.h"
#include "Thrift/Data/Sequences/FromTagProperty.h"
#include "Thrift/Data/Sequences/ToAudioVideoElement.h"
#include "Thrift/Data/Sequences/ToAudioVideoTrack.h"
#include "Thrift/Data/Sequences/ToElement.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Data/Sequences/ToSequence.h"
#include "Thrift/Data/Sequences/ToSequenceId.h"
#include "Thrift/Data/Sequences/ToTag.h"
#include "Thrift/Data/Sequences/ToTagProperty.h"
