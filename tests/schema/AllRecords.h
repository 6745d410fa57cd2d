#pragma once

#include "generated/Angle_types.h"
#include "generated/AnglesGroupCommandReply_types.h"
#include "generated/AnglesGroupCreationEventArgs_types.h"
#include "generated/AnglesGroupDeletionEventArgs_types.h"
#include "generated/AnglesGroupUpdateEventArgs_types.h"
#include "generated/AnglesGroup_types.h"
#include "generated/AudioVideoElement_types.h"
#include "generated/AudioVideoTrack_types.h"
#include "generated/ChainCommandParams_types.h"
#include "generated/ChannelCommandReply_types.h"
#include "generated/ClipCommandEventArgs_types.h"
#include "generated/ClipCommandReply_types.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/ClipDeletionEventArgs_types.h"
#include "generated/ClipMoveEventArgs_types.h"
#include "generated/ClipResultsItem_types.h"
#include "generated/ClipUpdateEventArgs_types.h"
#include "generated/Clip_types.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"
#include "generated/CreateClipsCommandParams_types.h"
#include "generated/CreatePlaylistsCommandParams_types.h"
#include "generated/DeleteAnglesGroupCommandParams_types.h"
#include "generated/DeleteClipsCommandParams_types.h"
#include "generated/DeletePlaylistsCommandParams_types.h"
#include "generated/DialCommandParams_types.h"
#include "generated/DisconnectedFromNetworkEA_types.h"
#include "generated/Element_types.h"
#include "generated/Essences_types.h"
#include "generated/FailureReply_types.h"
#include "generated/GetAnglesGroupsCommandParams_types.h"
#include "generated/GetAnglesGroupsCommandReply_types.h"
#include "generated/GetChannelsCommandParams_types.h"
#include "generated/GetChannelsCommandReply_types.h"
#include "generated/GetClipsCommandParams_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/GetMultiviewerDataCommandParams_types.h"
#include "generated/GetMultiviewerDataCommandReply_types.h"
#include "generated/GetPlaylistsCommandParams_types.h"
#include "generated/GetPlaylistsCommandReply_types.h"
#include "generated/GetServersCommandParams_types.h"
#include "generated/GetServersCommandReply_types.h"
#include "generated/GetTrainsCommandParams_types.h"
#include "generated/GetTrainsCommandReply_types.h"
#include "generated/GoIdleCommandParams_types.h"
#include "generated/Guid_types.h"
#include "generated/LiveCommandParams_types.h"
#include "generated/LoadBoundary_types.h"
#include "generated/LoadClipsCommandParams_types.h"
#include "generated/LoadSequencesCommandParams_types.h"
#include "generated/MassClipDeletionEventArgs_types.h"
#include "generated/MassClipUpdateEventArgs_types.h"
#include "generated/MultiviewerDataOverrides_types.h"
#include "generated/OperationStatus_types.h"
#include "generated/PingCommandParams_types.h"
#include "generated/PlayCommandParams_types.h"
#include "generated/PlayerClipOnAir_types.h"
#include "generated/PlayerDataOverrides_types.h"
#include "generated/PlayerInfoOnAir_types.h"
#include "generated/PlayerStateChangedEA_types.h"
#include "generated/PlayerState_types.h"
#include "generated/PlaylistCommandReply_types.h"
#include "generated/PlaylistResultsItem_types.h"
#include "generated/Playlist_types.h"
#include "generated/RecorderStateChangedEA_types.h"
#include "generated/RecorderState_types.h"
#include "generated/RecordingRange_types.h"
#include "generated/RecordingRangesChangedEA_types.h"
#include "generated/SequenceId_types.h"
#include "generated/Sequence_types.h"
#include "generated/ServerAddedEA_types.h"
#include "generated/ServerInfo_types.h"
#include "generated/ServerRemovedEA_types.h"
#include "generated/SetLoadBoundariesCommandParams_types.h"
#include "generated/SetMultiViewerDataCommandParams_types.h"
#include "generated/StartRecordingCommandParams_types.h"
#include "generated/StepCommandParams_types.h"
#include "generated/StopRecordingCommandParams_types.h"
#include "generated/SuccessReply_types.h"
#include "generated/SyncCommandParams_types.h"
#include "generated/TagProperty_types.h"
#include "generated/Tag_types.h"
#include "generated/Train_types.h"
#include "generated/UnknownCommandReply_types.h"
#include "generated/UpdateAnglesGroupCommandParams_types.h"
#include "generated/UpdateClipsCommandParams_types.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"

#include <string_view>
#include <tuple>

namespace Talvo::Tests::Wire
{

namespace Common = Talvo::Corvane::Data::Generated;
namespace Groups = Talvo::Corvane::Data::Clips::Groups::Generated;
namespace Clips = Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated;
namespace Channels = Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::Generated;
namespace Sequences = Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::Generated;
namespace Servers = Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers::Generated;
namespace Commands = Talvo::Corvane::Zelmar::Serialization::Thrift::Commands::Generated;
namespace Notifier = Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier::Generated;

/// A record type with its name and its published fingerprint.
template<typename T>
struct Entry
{
    using Record = T;

    std::string_view name;
    std::string_view fingerprint;
};

/// All 113 record types. The fingerprints are the published ones, so that they check the schema files.
inline constexpr std::tuple AllRecords{
    Entry<Common::Guid>{"Guid", "EFB929595D312AC8F305D5A794CFEDA1"},
    Entry<Common::MultiviewerDataOverrides>{"MultiviewerDataOverrides", "EEC98DA721CD95EB319BC38B1077E9C8"},
    Entry<Common::OperationStatus>{"OperationStatus", "5AD377B1094BE50585009735A35AB7BD"},
    Entry<Common::PlayerDataOverrides>{"PlayerDataOverrides", "6296E1E63B7074A9ADE4FCE8A326CA61"},
    Entry<Groups::Angle>{"Angle", "C47D59F2C6FBBD6FBA09ECD420C4A271"},
    Entry<Groups::AnglesGroupItem>{"AnglesGroupItem", "54E3C711D333FE0A91C85DE902704698"},
    Entry<Groups::AnglesGroup>{"AnglesGroup", "1D7B4F90C40431CA9855544FA73527C4"},
    Entry<Clips::AsciiOrUtf16String>{"AsciiOrUtf16String", "7D61C9AA00102AB4D8F72A1DA58297DC"},
    Entry<Clips::Clip>{"Clip", "C332C77F3AB2B0E558AAA0A8AC453F82"},
    Entry<Clips::Essence>{"Essence", "7FC3EE7F2F3E29675967EF109747AB00"},
    Entry<Clips::RecordingRange>{"RecordingRange", "19D329A5161F21584F22C9AEC75ABF12"},
    Entry<Clips::Train>{"Train", "E6A6F11A71DE7495DA0C325F68225A6E"},
    Entry<Channels::AbsoluteLoadBoundary>{"AbsoluteLoadBoundary", "56A59CE7FFAF82BCA8A19FAACDE4FB75"},
    Entry<Channels::RelativeLoadBoundary>{"RelativeLoadBoundary", "56A59CE7FFAF82BCA8A19FAACDE4FB75"},
    Entry<Channels::SpecializedLoadBoundary>{"SpecializedLoadBoundary", "26B8BC9A9F653844A4C20C079FA03B8F"},
    Entry<Channels::LoadBoundary>{"LoadBoundary", "CF5BDD82A4A1116B039D074765EE7FB9"},
    Entry<Channels::PlayerClipOnAir>{"PlayerClipOnAir", "671F380777106EED29C984F0879AB66E"},
    Entry<Channels::PlayerInfoOnAir>{"PlayerInfoOnAir", "9D4C6F8B7EE31E0F322D73B80733A54F"},
    Entry<Channels::PlayerState>{"PlayerState", "D7FEB66070AC036112EBA97F10F312C1"},
    Entry<Channels::RecorderState>{"RecorderState", "1D2F40028F92013E87E1DCB135B1CF7C"},
    Entry<Sequences::AudioVideoElement>{"AudioVideoElement", "9D3E197D2E5ADC6A8F5045F436F9FBE9"},
    Entry<Sequences::AudioVideoTrack>{"AudioVideoTrack", "24CCBF1568B5844C6F79A9AD193B18C5"},
    Entry<Sequences::Speed>{"Speed", "989D1F1AE8D148D5E2119FFEC4BBBEE3"},
    Entry<Sequences::Element>{"Element", "22BFBC27206309B6064EEF7A811A1EA6"},
    Entry<Sequences::Playlist>{"Playlist", "4E8FFFB2BE1B800B1FD891C8FD966003"},
    Entry<Sequences::Sequence>{"Sequence", "52F2555E12546CA3F81ECC6E871925AC"},
    Entry<Sequences::SequenceId>{"SequenceId", "989D1F1AE8D148D5E2119FFEC4BBBEE3"},
    Entry<Sequences::Tag>{"Tag", "2188FBA7088523F22E2EBB2AA8BE67E9"},
    Entry<Sequences::TagProperty>{"TagProperty", "0567AAD692DA9F84DAD97605B27167D4"},
    Entry<Servers::ServerInfo>{"ServerInfo", "A78E896E99F09699164F2AA2AD05709A"},
    Entry<Commands::AnglesGroupCommandReply>{"AnglesGroupCommandReply", "0AD1D41F314EEB11659ED40419FEC95A"},
    Entry<Commands::ChainCommandParams>{"ChainCommandParams", "71ED414E168A6EE647A9F70565BB7735"},
    Entry<Commands::ChannelResult>{"ChannelResult", "8F08D348DAC60BC1842FF819760E5F83"},
    Entry<Commands::ChannelCommandReply>{"ChannelCommandReply", "4AB2FE5C5101C40EC59FE83B104CEFD1"},
    Entry<Commands::ClipCommandReply>{"ClipCommandReply", "D9DA03D78F38D5DF421B90E959F582E8"},
    Entry<Commands::ClipResultsItem>{"ClipResultsItem", "9474F32E5EEF0BC3102886ECE39F3770"},
    Entry<Commands::CreateAnglesGroupCommandParams>{"CreateAnglesGroupCommandParams",
                                                    "A41F0E5DD255CEED7104CB19B64F3BD3"},
    Entry<Commands::CreateClipParams>{"CreateClipParams", "2CB05A78CDD66C3E2FD274619D16D52E"},
    Entry<Commands::CreateClipsCommandParams>{"CreateClipsCommandParams", "3BB3EC8559443E77A0C8E37E99549F74"},
    Entry<Commands::CreatePlaylistsCommandParams>{"CreatePlaylistsCommandParams", "4EB3A00FB964C49847D6A98FDCFD2E48"},
    Entry<Commands::DeleteAnglesGroupCommandParams>{"DeleteAnglesGroupCommandParams",
                                                    "A963880F55F6F22FCC67AD7BA0E1894D"},
    Entry<Commands::DeleteClipsCommandParams>{"DeleteClipsCommandParams", "12B4D17D95DB337FA8E03B06C04ACB27"},
    Entry<Commands::DeletePlaylistsCommandParams>{"DeletePlaylistsCommandParams", "12B4D17D95DB337FA8E03B06C04ACB27"},
    Entry<Commands::DialCommandParams>{"DialCommandParams", "7B228BC000EDDD33D1568A940C743D71"},
    Entry<Commands::FailureReply>{"FailureReply", "BDAF55DAA660FA1ADBE30760752211A8"},
    Entry<Commands::GetAnglesGroupsCommandParams>{"GetAnglesGroupsCommandParams", "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::GetAnglesGroupsCommandReply>{"GetAnglesGroupsCommandReply", "826A9560A60AD8064654DA5FD75522FC"},
    Entry<Commands::GetChannelsCommandParams>{"GetChannelsCommandParams", "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::GetChannelsCommandReply>{"GetChannelsCommandReply", "DD23D39C7D22BD3EC4730D37F7D27694"},
    Entry<Commands::GetClipsCommandParams>{"GetClipsCommandParams", "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::GetClipsCommandReply>{"GetClipsCommandReply", "E3CA51A6C7A6EEA0E30438B43070E206"},
    Entry<Commands::GetMultiviewerDataCommandParams>{"GetMultiviewerDataCommandParams",
                                                     "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::GetMultiviewerDataCommandReply>{"GetMultiviewerDataCommandReply",
                                                    "73E199CCD072A8F398289AEF458F45E9"},
    Entry<Commands::GetPlaylistsCommandParams>{"GetPlaylistsCommandParams", "77A80F773D669E0723819332E495760B"},
    Entry<Commands::GetPlaylistsCommandReply>{"GetPlaylistsCommandReply", "63ABBE36EA8FCE9D54ED942AF10D6329"},
    Entry<Commands::GetServersCommandParams>{"GetServersCommandParams", "54E3C711D333FE0A91C85DE902704698"},
    Entry<Commands::GetServersCommandReply>{"GetServersCommandReply", "9995C2A23DE41E1668A7F238C0BE2CB9"},
    Entry<Commands::GetTrainsCommandParams>{"GetTrainsCommandParams", "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::GetTrainsCommandReply>{"GetTrainsCommandReply", "95D4FE32AD6846E636E06A566BD08D42"},
    Entry<Commands::GoIdleCommandParams>{"GoIdleCommandParams", "BD990225C35061D28B87A1FFC2886BC7"},
    Entry<Commands::LiveCommandParams>{"LiveCommandParams", "311A00471B3C75D572E927E86BD8A1CA"},
    Entry<Commands::LoadClipCommandParam>{"LoadClipCommandParam", "227503B659ACD16923E17974FDFC87CE"},
    Entry<Commands::LoadClipsCommandParams>{"LoadClipsCommandParams", "8D23793FF7800183F89AFC343749E70C"},
    Entry<Commands::LoadSequenceCommandParam>{"LoadSequenceCommandParam", "DB1586E7779DD48792B9610DEB15DB98"},
    Entry<Commands::LoadSequencesCommandParams>{"LoadSequencesCommandParams", "17BEE29E4A3A71933C0889A196FE1786"},
    Entry<Commands::PingCommandParams>{"PingCommandParams", "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::PlayCommandParams>{"PlayCommandParams", "D9DDF04E98F06B1BE75292B1696CE60F"},
    Entry<Commands::PlaylistCommandReply>{"PlaylistCommandReply", "CCA41053AD6E32A037149533EF1571F2"},
    Entry<Commands::PlaylistResultsItem>{"PlaylistResultsItem", "7E12E86E29E32588395DE4159E00CC75"},
    Entry<Commands::SetLoadBoundariesCommandParam>{"SetLoadBoundariesCommandParam", "E6DE10117F381374F39A7148DE759A62"},
    Entry<Commands::SetLoadBoundariesCommandParams>{"SetLoadBoundariesCommandParams",
                                                    "40FB3E0661956ABADF363625A5F94BCE"},
    Entry<Commands::SetMultiviewerDataCommandParams>{"SetMultiviewerDataCommandParams",
                                                     "C838CEDA3569FF5F4D4FDA6F181B67FB"},
    Entry<Commands::StartRecordingCommandParams>{"StartRecordingCommandParams", "75BFACD857D529F9DB123EFE6D771275"},
    Entry<Commands::StepCommandParams>{"StepCommandParams", "7B228BC000EDDD33D1568A940C743D71"},
    Entry<Commands::StopRecordingCommandParams>{"StopRecordingCommandParams", "75BFACD857D529F9DB123EFE6D771275"},
    Entry<Commands::SuccessReply>{"SuccessReply", "771E7EF40B572D2BFAB12C49547ADCBF"},
    Entry<Commands::SyncCommandParams>{"SyncCommandParams", "3BF4F28A12883EE9C65063C1C77BEC34"},
    Entry<Commands::UnknownCommandReply>{"UnknownCommandReply", "EFB929595D312AC8F305D5A794CFEDA1"},
    Entry<Commands::UpdateAnglesGroupCommandParams>{"UpdateAnglesGroupCommandParams",
                                                    "2C725B3DDF3239AD60FE0A195B8E28A0"},
    Entry<Commands::UpdateClipParams>{"UpdateClipParams", "7E4D946E1BFC62A5F93C1157D95C1531"},
    Entry<Commands::UpdateClipsCommandParams>{"UpdateClipsCommandParams", "E0795776F3EB9FA66E9C6A37843C571D"},
    Entry<Commands::UpdatePlaylistParams>{"UpdatePlaylistParams", "0103CA7CDF55A9FAAFD8D9B515789F4D"},
    Entry<Commands::UpdatePlaylistsCommandParams>{"UpdatePlaylistsCommandParams", "80A343E62B816DB85AE84B43F675C7EF"},
    Entry<Notifier::AnglesGroupCreationEventArgs>{"AnglesGroupCreationEventArgs", "09A3298317A7D98DDAD80E836A49BE24"},
    Entry<Notifier::AnglesGroupCreationFinishedEventArgs>{"AnglesGroupCreationFinishedEventArgs",
                                                          "FCFFC9BFB8A68A454C3186408714F6AD"},
    Entry<Notifier::AnglesGroupCreationFailedEventArgs>{"AnglesGroupCreationFailedEventArgs",
                                                        "211C18C98F7620C152D87A3FCF24AEAA"},
    Entry<Notifier::AnglesGroupDeletionEventArgs>{"AnglesGroupDeletionEventArgs", "7EB53619A45EC3A61C1486064A4B5C01"},
    Entry<Notifier::AnglesGroupDeletionFinishedEventArgs>{"AnglesGroupDeletionFinishedEventArgs",
                                                          "E42E798CCE003AD237B1B9B78D04EEAF"},
    Entry<Notifier::AnglesGroupDeletionFailedEventArgs>{"AnglesGroupDeletionFailedEventArgs",
                                                        "E4A606196B3CF6369ED76295C222A9A1"},
    Entry<Notifier::AnglesGroupUpdateEventArgs>{"AnglesGroupUpdateEventArgs", "09A3298317A7D98DDAD80E836A49BE24"},
    Entry<Notifier::AnglesGroupUpdateFinishedEventArgs>{"AnglesGroupUpdateFinishedEventArgs",
                                                        "FCFFC9BFB8A68A454C3186408714F6AD"},
    Entry<Notifier::AnglesGroupUpdateFailedEventArgs>{"AnglesGroupUpdateFailedEventArgs",
                                                      "211C18C98F7620C152D87A3FCF24AEAA"},
    Entry<Notifier::ClipCommandEventArgs>{"ClipCommandEventArgs", "38AC190E0E699693660F19EFCC2F1D26"},
    Entry<Notifier::ClipCreationStartedEventArgs>{"ClipCreationStartedEventArgs", "4044730F0BF917CAB38AE18CB9F28A44"},
    Entry<Notifier::ClipCreationFinishedEventArgs>{"ClipCreationFinishedEventArgs", "4044730F0BF917CAB38AE18CB9F28A44"},
    Entry<Notifier::ClipCreationFailedEventArgs>{"ClipCreationFailedEventArgs", "299D83004E9A5DC1F261D9C3F5C755A2"},
    Entry<Notifier::ClipDeletionFinishedEventArgs>{"ClipDeletionFinishedEventArgs", "0EF95D2B330B2226524E586EC34960DF"},
    Entry<Notifier::ClipDeletionFailedEventArgs>{"ClipDeletionFailedEventArgs", "8CD28FBEE14BE1F5B06EB784B123651C"},
    Entry<Notifier::ClipMoveStartedEventArgs>{"ClipMoveStartedEventArgs", "655BDD15175D3D92FBB98B2B5FE8DFF9"},
    Entry<Notifier::ClipMoveFinishedEventArgs>{"ClipMoveFinishedEventArgs", "655BDD15175D3D92FBB98B2B5FE8DFF9"},
    Entry<Notifier::ClipMoveFailedEventArgs>{"ClipMoveFailedEventArgs", "D09EBBB0D60BCFCDF33B1FF512ED1FC8"},
    Entry<Notifier::ClipUpdateFinishedEventArgs>{"ClipUpdateFinishedEventArgs", "2BF6BE404E1E28445BEEDC90979C08CC"},
    Entry<Notifier::ClipUpdateFailedEventArgs>{"ClipUpdateFailedEventArgs", "D09EBBB0D60BCFCDF33B1FF512ED1FC8"},
    Entry<Notifier::DisconnectedFromNetworkEventArgs>{"DisconnectedFromNetworkEventArgs",
                                                      "E86CACEB22240450EDCBEFC3A83970E4"},
    Entry<Notifier::MassClipDeletionFinishedEventArgs>{"MassClipDeletionFinishedEventArgs",
                                                       "0F93AB1B793CA8516138B278CB901339"},
    Entry<Notifier::MassClipDeletionFailedEventArgs>{"MassClipDeletionFailedEventArgs",
                                                     "B9AAC9E5F00958B53B9DC9B369719FDC"},
    Entry<Notifier::MassClipUpdateFinishedEventArgs>{"MassClipUpdateFinishedEventArgs",
                                                     "0F93AB1B793CA8516138B278CB901339"},
    Entry<Notifier::MassClipUpdateFailedEventArgs>{"MassClipUpdateFailedEventArgs", "B9AAC9E5F00958B53B9DC9B369719FDC"},
    Entry<Notifier::PlayerStateChangedEventArgs>{"PlayerStateChangedEventArgs", "82BAA70347123D125B0A0454403B13F2"},
    Entry<Notifier::RecorderStateChangedEventArgs>{"RecorderStateChangedEventArgs", "84B8F823F3D0E7059933186103447D29"},
    Entry<Notifier::RecordingRangesChangedEventArgs>{"RecordingRangesChangedEventArgs",
                                                     "06BED656A29FDEB28CABE59DF54B286B"},
    Entry<Notifier::ServerAddedEventArgs>{"ServerAddedEventArgs", "C40F093BFAAD226875EECAA9B64733FC"},
    Entry<Notifier::ServerRemovedEventArgs>{"ServerRemovedEventArgs", "E86CACEB22240450EDCBEFC3A83970E4"}};

} // namespace Talvo::Tests::Wire
