include "PlayerDataOverrides.thrift"

namespace cpp Talvo.Corvane.Data.Generated

struct MultiviewerDataOverrides {
    1: required list<PlayerDataOverrides.PlayerDataOverrides> playersData
}
