#include "benchmarks/PeerMessages.h"

#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "TimePoints/TalvoTimeCodeParser.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <utility>

namespace Talvo::Benchmarks::Peer
{

// Texts and time codes use the same functions as in our converters.
using namespace Corvane::Zelmar::Serialization::Thrift::Detail;
using namespace Corvane::Data;
using Corvane::Notification::ClipCreationFinishedEventArgs;
using Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply;

namespace
{

template<typename Enumeration>
std::int32_t Number(Enumeration const value)
{
    return static_cast<std::int32_t>(value);
}

template<typename Enumeration>
void Take(Enumeration& destination, std::int32_t const number)
{
    destination = static_cast<Enumeration>(number);
}

void Assign(std::string& destination, Guid const& source)
{
    destination.assign(reinterpret_cast<char const*>(source.Bytes()), source.Size);
}

Guid GuidOf(std::string const& bytes)
{
    return {reinterpret_cast<unsigned char const*>(bytes.data()), static_cast<unsigned int>(bytes.size())};
}

template<std::size_t Size>
void Fill(FixedText<Size> const& source, Text& message)
{
    message.mutable_data()->assign(source.payload.data(), Size);
    message.set_is_utf16(source.isUtf16);
}

template<std::size_t Size>
void Read(Text const& message, FixedText<Size>& destination)
{
    FillFrom<Size>(message.data(), destination.payload.data());
    destination.isUtf16 = message.is_utf16();
}

void Fill(Clips::Clip::Essence const& source, Essence& message)
{
    message.set_type(Number(source.Type()));
    message.set_recording_status(Number(source.recordingStatus));
    message.set_archive_status(Number(source.archiveStatus));
    message.set_metadata(Number(source.Metadata()));
    message.set_block_size(Number(source.blockSize));
    message.set_video_compression_type(Number(source.VideoCompressionType()));
    message.set_audio_compression_type(Number(source.AudioCompressionType()));
    message.set_video_compression_info(Number(source.VideoCompressionInfo()));
    message.set_audio_configuration(Number(source.audioConfiguration));
    message.set_video_compression_rate(source.videoCompressionRate);
    message.set_audio_compression_rate(source.audioCompressionRate);
    message.set_horizontal_frame_size(source.horizontalFrameSize);
    message.set_vertical_frame_size(source.verticalFrameSize);
}

void Read(Essence const& message, Clips::Clip::Essence& destination)
{
    using namespace Clips::Essences;
    destination.Clear(static_cast<Type>(message.type()));
    Take(destination.recordingStatus, message.recording_status());
    Take(destination.archiveStatus, message.archive_status());
    destination.Metadata(static_cast<Metadata>(message.metadata()));
    Take(destination.blockSize, message.block_size());
    destination.VideoCompressionType(static_cast<VideoCompressionType>(message.video_compression_type()));
    destination.AudioCompressionType(static_cast<AudioCompressionType>(message.audio_compression_type()));
    destination.VideoCompressionInfo(static_cast<VideoCompressionInfo>(message.video_compression_info()));
    Take(destination.audioConfiguration, message.audio_configuration());
    destination.videoCompressionRate = message.video_compression_rate();
    destination.audioCompressionRate = message.audio_compression_rate();
    destination.horizontalFrameSize = message.horizontal_frame_size();
    destination.verticalFrameSize = message.vertical_frame_size();
}

void Fill(Channels::PlayerClipOnAir const& source, PlayerClipOnAir& message)
{
    if (source.hasClipOnAir) Fill(source.clipOnAir, *message.mutable_clip_on_air());
    if (IsPresent(source.curTimePointOnAir)) message.set_cur_time_point_on_air(source.curTimePointOnAir.position);
    if (IsPresent(source.todCurTimecodeOnAir))
        WriteTimeCode(source.todCurTimecodeOnAir, *message.mutable_tod_cur_timecode_on_air());
    if (IsPresent(source.userCurTimecodeOnAir))
        WriteTimeCode(source.userCurTimecodeOnAir, *message.mutable_user_cur_timecode_on_air());
}

void Read(PlayerClipOnAir const& message, Channels::PlayerClipOnAir& destination)
{
    destination.hasClipOnAir = message.has_clip_on_air();
    if (message.has_clip_on_air()) Read(message.clip_on_air(), destination.clipOnAir);
    if (message.has_cur_time_point_on_air()) destination.curTimePointOnAir = {message.cur_time_point_on_air()};
    if (message.has_tod_cur_timecode_on_air())
        AssignGuarded(destination.todCurTimecodeOnAir, message.tod_cur_timecode_on_air());
    if (message.has_user_cur_timecode_on_air())
        AssignGuarded(destination.userCurTimecodeOnAir, message.user_cur_timecode_on_air());
}

void FillInfoOnAir(Channels::PlayerState const& source, PlayerInfoOnAir& message)
{
    if (IsNonZero(source.playoutConfig)) message.set_playout_config(Number(source.playoutConfig));
    message.set_status(Number(source.onAirStatus));
    message.set_mode(Number(source.onAirMode));
    if (source.commonSpeedNumerator != 0 && source.commonSpeedDenominator != 0)
    {
        message.set_common_speed_numerator(source.commonSpeedNumerator);
        message.set_common_speed_denominator(source.commonSpeedDenominator);
    }
    if (source.curVideoSpeedNumerator != 0 && source.curVideoSpeedDenominator != 0)
    {
        message.set_cur_video_speed_numerator(source.curVideoSpeedNumerator);
        message.set_cur_video_speed_denominator(source.curVideoSpeedDenominator);
    }
    message.set_audio_pgm_instruction(source.audioPgmInstruction);
    message.set_audio_pgm_instruction_dec_speed_d(source.audioPgmInstructionDecSpeedD);
    message.set_field_pgm(source.fieldPgm);
    message.set_field_pgm_audio(source.fieldPgmAudio);
    message.set_field_preview(source.fieldPreview);
    message.set_cur_field_in_protect(source.curFieldInProtect);
    message.set_cur_field_out_protect(source.curFieldOutProtect);
    message.set_limit_in(source.limitIn);
    message.set_limit_out(source.limitOut);
    message.set_limit_user_in(source.limitUserIn);
    message.set_limit_user_out(source.limitUserOut);
}

void ReadInfoOnAir(PlayerInfoOnAir const& message, Channels::PlayerState& destination)
{
    if (message.has_playout_config()) Take(destination.playoutConfig, message.playout_config());
    Take(destination.onAirStatus, message.status());
    Take(destination.onAirMode, message.mode());
    if (message.has_common_speed_numerator() && message.has_common_speed_denominator())
    {
        destination.commonSpeedNumerator = message.common_speed_numerator();
        destination.commonSpeedDenominator = message.common_speed_denominator();
    }
    if (message.has_cur_video_speed_numerator() && message.has_cur_video_speed_denominator())
    {
        destination.curVideoSpeedNumerator = message.cur_video_speed_numerator();
        destination.curVideoSpeedDenominator = message.cur_video_speed_denominator();
    }
    destination.audioPgmInstruction = message.audio_pgm_instruction();
    destination.audioPgmInstructionDecSpeedD = static_cast<std::uint16_t>(message.audio_pgm_instruction_dec_speed_d());
    destination.fieldPgm = message.field_pgm();
    destination.fieldPgmAudio = message.field_pgm_audio();
    destination.fieldPreview = message.field_preview();
    destination.curFieldInProtect = message.cur_field_in_protect();
    destination.curFieldOutProtect = message.cur_field_out_protect();
    destination.limitIn = message.limit_in();
    destination.limitOut = message.limit_out();
    destination.limitUserIn = message.limit_user_in();
    destination.limitUserOut = message.limit_user_out();
}

// The type has the numbers of the wire record: 0 is absolute, and those of a reference are higher by one.

void Fill(Channels::Boundary const& source, LoadBoundary& message)
{
    if (source.IsAbsolute())
    {
        message.set_timepoint(source.Timepoint().position);
        return;
    }
    message.set_type(Number(source.GetRelativeTo()) + 1);
    message.set_field_count(source.FieldCount());
}

void Read(LoadBoundary const& message, Channels::Boundary& destination)
{
    using RelativeTo = Channels::Boundary::RelativeTo;
    destination =
        message.has_timepoint()
            ? Channels::Boundary::AbsoluteBoundary({message.timepoint()})
            : Channels::Boundary::RelativeBoundary(static_cast<RelativeTo>(message.type() - 1), message.field_count());
}

void Fill(Sequences::SequenceId const& source, SequenceId& message)
{
    message.set_location(source.Location());
    message.set_server_id(source.serverId.Value());
}

void Read(SequenceId const& message, Sequences::SequenceId& destination)
{
    destination = {Servers::ServerId(message.server_id()), message.location()};
}

void Fill(Sequences::Tag const& source, Tag& message)
{
    message.set_id(source.id);
    message.set_command_type(Number(source.commandType));
    message.set_field(source.field);
    for (auto const& [key, property] : source.properties)
    {
        auto& sent = (*message.mutable_properties())[Number(key)];
        sent.set_data_type(Number(property.type));
        sent.mutable_value()->Add(property.value.begin(), property.value.end());
    }
}

void Read(Tag const& message, Sequences::Tag& destination)
{
    destination.id = message.id();
    destination.field = message.field();
    for (auto const& [key, property] : message.properties())
    {
        auto& read = destination.properties[static_cast<Sequences::TagProperty::Key>(key)];
        Take(read.type, property.data_type());
        read.value.assign(property.value().begin(), property.value().end());
    }
}

void Fill(Sequences::Element const& source, Element& message)
{
    message.set_id(source.id);
    Fill(source.sequenceId, *message.mutable_sequence_id());
    message.set_position(source.position);
    message.set_um_id(source.umId.GetUmId());
    message.set_in_boundary_type(Number(source.inBoundaryType));
    message.set_out_boundary_type(Number(source.outBoundaryType));
    message.set_effect_position(Number(source.effectPosition));
    message.set_still_mode(Number(source.stillMode));
    message.set_transition_timer(source.transitionTimer);
    message.mutable_tags()->Reserve(static_cast<int>(source.tags.size()));
    for (auto const& tag : source.tags) Fill(tag, *message.add_tags());
    message.mutable_speed()->set_numerator(source.speed.numerator);
    message.mutable_speed()->set_denominator(source.speed.denominator);
    message.set_internal_loop_id(source.internalLoopId);
    message.set_internal_loop_run_nb(source.internalLoopRunNb);
}

void Read(Element const& message, Sequences::Element& destination)
{
    destination.id = message.id();
    Read(message.sequence_id(), destination.sequenceId);
    destination.position = message.position();
    destination.umId.SetUmId(message.um_id().c_str());
    Take(destination.inBoundaryType, message.in_boundary_type());
    Take(destination.outBoundaryType, message.out_boundary_type());
    Take(destination.effectPosition, message.effect_position());
    Take(destination.stillMode, message.still_mode());
    destination.transitionTimer = message.transition_timer();
    destination.tags.reserve(static_cast<std::size_t>(message.tags().size()));
    for (auto const& tag : message.tags())
        Read(tag, destination.tags.emplace_back(static_cast<Sequences::Tag::CommandType>(tag.command_type())));
    destination.speed = {message.speed().numerator(), message.speed().denominator()};
    destination.internalLoopId = message.internal_loop_id();
    destination.internalLoopRunNb = message.internal_loop_run_nb();
}

void Fill(Sequences::AudioVideoElement const& source, AudioVideoElement& message)
{
    message.set_video_effect_type(Number(source.videoEffectType));
    message.set_audio_effect_type(Number(source.audioEffectType));
    message.set_video_effect_duration(source.videoEffectDuration);
    message.set_audio_effect_duration(source.audioEffectDuration);
    message.set_video_field_in(source.videoFieldIn);
    message.set_video_field_out(source.videoFieldOut);
    message.set_audio_field_in(source.audioFieldIn);
    message.set_audio_field_out(source.audioFieldOut);
    Fill(source, *message.mutable_element());
}

void Read(AudioVideoElement const& message, Sequences::AudioVideoElement& destination)
{
    Take(destination.videoEffectType, message.video_effect_type());
    Take(destination.audioEffectType, message.audio_effect_type());
    destination.videoEffectDuration = message.video_effect_duration();
    destination.audioEffectDuration = message.audio_effect_duration();
    destination.videoFieldIn = message.video_field_in();
    destination.videoFieldOut = message.video_field_out();
    destination.audioFieldIn = message.audio_field_in();
    destination.audioFieldOut = message.audio_field_out();
    Read(message.element(), destination);
}

void Fill(Sequences::Track<Sequences::AudioVideoElement> const& source, AudioVideoTrack& message)
{
    if (source.elements.empty() && source.numberOfElements != 0)
        message.set_number_of_elements(source.numberOfElements);
    message.mutable_elements()->Reserve(static_cast<int>(source.elements.size()));
    for (auto const& element : source.elements) Fill(element, *message.add_elements());
}

void Read(AudioVideoTrack const& message, Sequences::Track<Sequences::AudioVideoElement>& destination)
{
    if (message.has_number_of_elements()) destination.numberOfElements = message.number_of_elements();
    destination.elements.clear();
    destination.elements.reserve(static_cast<std::size_t>(message.elements().size()));
    for (auto const& element : message.elements()) Read(element, destination.elements.emplace_back());
}

void Fill(Sequences::Sequence const& source, Sequence& message)
{
    Fill(source.id, *message.mutable_id());
    message.set_um_id(source.umId.GetUmId());
    Fill(source.varId, *message.mutable_var_id());
    Fill(source.name, *message.mutable_name());
    message.set_is_time_code_regen(source.isTimeCodeRegen);
    WriteTimeCode(source.timeCodeRegenReference, *message.mutable_time_code_regen_reference());
    message.set_time_code_regen_base(Number(source.timeCodeRegenBase));
    message.set_time_code_regen_source(Number(source.timeCodeRegenSource));
    message.set_time_code_regen_output(Number(source.timeCodeRegenOutput));
    message.set_time_code_regen_type(Number(source.timeCodeRegenType));
    message.set_duration_with_effects(source.durationWithEffects);
    message.set_duration_without_effects(source.durationWithoutEffects);
    message.set_play_rate_numerator(source.playRate.numerator);
    message.set_play_rate_denominator(source.playRate.denominator);
    message.set_is_fixed_duration(source.isFixedDuration);
    message.set_archive_status(Number(source.archiveStatus));
}

void Read(Sequence const& message, Sequences::Sequence& destination)
{
    Read(message.id(), destination.id);
    destination.umId.SetUmId(message.um_id().c_str());
    Read(message.var_id(), destination.varId);
    Read(message.name(), destination.name);
    destination.isTimeCodeRegen = message.is_time_code_regen();
    AssignGuarded(destination.timeCodeRegenReference, message.time_code_regen_reference());
    Take(destination.timeCodeRegenBase, message.time_code_regen_base());
    Take(destination.timeCodeRegenSource, message.time_code_regen_source());
    Take(destination.timeCodeRegenOutput, message.time_code_regen_output());
    Take(destination.timeCodeRegenType, message.time_code_regen_type());
    destination.durationWithEffects = message.duration_with_effects();
    destination.durationWithoutEffects = message.duration_without_effects();
    destination.playRate = {message.play_rate_numerator(), message.play_rate_denominator()};
    destination.isFixedDuration = message.is_fixed_duration();
    Take(destination.archiveStatus, message.archive_status());
}

void FillCommand(ClipCreationFinishedEventArgs const& source, ClipCommand& message)
{
    message.set_local_machine_serial(source.localMachineSerial);
    message.set_request_source(Number(source.requestSource));
    message.set_operation_number(source.operationNumber);
    message.set_user_ticket(source.userTicket);
    Assign(*message.mutable_command_guid(), source.commandGuid);
    message.set_sub_command_index(source.subCommandIndex);
}

void ReadCommand(ClipCommand const& message, ClipCreationFinishedEventArgs& destination)
{
    destination.localMachineSerial = message.local_machine_serial();
    Take(destination.requestSource, message.request_source());
    destination.operationNumber = message.operation_number();
    destination.userTicket = static_cast<std::uint16_t>(message.user_ticket());
    destination.commandGuid = GuidOf(message.command_guid());
    destination.subCommandIndex = message.sub_command_index();
}

} // namespace

void Fill(Clips::Clip const& source, Clip& message)
{
    using Clips::Essences::RecordingStatus;
    message.mutable_um_id()->assign(UntilNul(source.umId));
    message.mutable_source_um_id()->assign(UntilNul(source.sourceUmId));
    message.mutable_fill_and_key_um_id()->assign(UntilNul(source.fillAndKeyUmId));
    message.mutable_material_id()->assign(UntilNul(source.materialId));
    Fill(source.name, *message.mutable_name());
    Fill(source.varId, *message.mutable_var_id());
    message.mutable_keywords()->Reserve(static_cast<int>(source.keywords.size()));
    for (auto const& keyword : source.keywords) Fill(keyword, *message.add_keywords());
    message.mutable_user_bits()->assign(source.userBits.begin(), source.userBits.end());
    message.set_is_3d(source.is3D);
    message.set_is_dual(source.isDual);
    message.set_is_twin_rec(source.isTwinRec);
    message.set_is_legacy_timecode_drop(source.isLegacyTimecodeDrop);
    message.set_train_status(Number(source.trainStatus));
    if (IsNonZero(source.sourceEngine)) message.set_source_engine(Number(source.sourceEngine));
    if (IsNonZero(source.uhdDivisionMode)) message.set_uhd_division_mode(Number(source.uhdDivisionMode));
    if (IsNonZero(source.hdrProfile)) message.set_hdr_profile(Number(source.hdrProfile));
    if (IsNonZero(source.alphaArchiveStatus)) message.set_alpha_archive_status(Number(source.alphaArchiveStatus));
    message.set_archive_status(Number(source.archiveStatus));
    if (IsNonZero(source.fillAndKeyStatus)) message.set_fill_and_key_status(Number(source.fillAndKeyStatus));
    message.set_user_protect(source.userProtect);
    message.set_camera(Number(source.camera));
    if (IsNonZero(source.afdAspectRatio)) message.set_afd_aspect_ratio(Number(source.afdAspectRatio));
    if (IsNonZero(source.codedFrameAspectRatio))
        message.set_coded_frame_aspect_ratio(Number(source.codedFrameAspectRatio));
    message.set_video_format(Number(source.videoFormat));
    message.set_video_standard(Number(source.VideoStandard()));
    message.set_user_timecode_type(Number(source.userTimecodeType));
    if (IsNonZero(source.primaryTimecode)) message.set_primary_timecode(Number(source.primaryTimecode));
    if (IsNonZero(source.rating)) message.set_rating(Number(source.rating));
    if (IsNonZero(source.preferentialCamera)) message.set_preferential_camera(Number(source.preferentialCamera));
    message.set_in_bound_field(source.inBoundField);
    message.set_short_in_bound_field(source.shortInBoundField);
    message.set_short_out_bound_field(source.shortOutBoundField);
    message.set_out_bound_field(source.outBoundField);
    message.set_legacy_timecode_offset(source.legacyTimecodeOffset);
    message.set_kvi_index(source.kviIndex);
    message.set_user_lock(source.userLock);
    message.set_thumbnail_offset(source.thumbnailOffset);
    message.set_sequence(source.sequence);
    message.set_machine_serial(source.machineSerial);
    message.set_nb_audio_video_channels(source.nbAudioVideoChannels);
    message.set_dolby_mono_signal(source.dolbyMonoSignal);
    if (IsPresent(source.InBoundTodTimecode()))
        WriteTimeCode(source.InBoundTodTimecode(), *message.mutable_in_bound_tod_timecode());
    if (IsPresent(source.InBoundUserTimecode()))
        WriteTimeCode(source.InBoundUserTimecode(), *message.mutable_in_bound_user_timecode());
    if (IsPresent(source.inBoundTimepoint)) message.set_in_bound_timepoint(source.inBoundTimepoint.position);
    if (source.intraEssence.recordingStatus != RecordingStatus::NotPresent)
        Fill(source.intraEssence, *message.mutable_intra_essence());
    if (source.longGopEssence.recordingStatus != RecordingStatus::NotPresent)
        Fill(source.longGopEssence, *message.mutable_long_gop_essence());
    if (source.lowResEssence.recordingStatus != RecordingStatus::NotPresent)
        Fill(source.lowResEssence, *message.mutable_low_res_essence());
}

void Read(Clip const& message, Clips::Clip& destination)
{
    TimePoints::TalvoTimeCodeParser const parser;
    AssignBounded(destination.umId, message.um_id());
    AssignBounded(destination.sourceUmId, message.source_um_id());
    AssignBounded(destination.fillAndKeyUmId, message.fill_and_key_um_id());
    AssignBounded(destination.materialId, message.material_id());
    Read(message.name(), destination.name);
    Read(message.var_id(), destination.varId);
    auto const keywords = std::min(message.keywords().size(), static_cast<int>(destination.keywords.size()));
    for (int i = 0; i < keywords; ++i) Read(message.keywords(i), destination.keywords[static_cast<std::size_t>(i)]);
    auto const userBits = std::min(message.user_bits().size(), destination.userBits.size());
    std::copy_n(message.user_bits().begin(), userBits, destination.userBits.begin());
    destination.is3D = message.is_3d();
    destination.isDual = message.is_dual();
    destination.isTwinRec = message.is_twin_rec();
    destination.isLegacyTimecodeDrop = message.is_legacy_timecode_drop();
    Take(destination.trainStatus, message.train_status());
    if (message.has_source_engine()) Take(destination.sourceEngine, message.source_engine());
    if (message.has_uhd_division_mode()) Take(destination.uhdDivisionMode, message.uhd_division_mode());
    if (message.has_hdr_profile()) Take(destination.hdrProfile, message.hdr_profile());
    if (message.has_alpha_archive_status()) Take(destination.alphaArchiveStatus, message.alpha_archive_status());
    Take(destination.archiveStatus, message.archive_status());
    if (message.has_fill_and_key_status()) Take(destination.fillAndKeyStatus, message.fill_and_key_status());
    destination.userProtect = message.user_protect();
    Take(destination.camera, message.camera());
    if (message.has_afd_aspect_ratio()) Take(destination.afdAspectRatio, message.afd_aspect_ratio());
    if (message.has_coded_frame_aspect_ratio())
        Take(destination.codedFrameAspectRatio, message.coded_frame_aspect_ratio());
    Take(destination.videoFormat, message.video_format());
    destination.VideoStandard(static_cast<Clips::VideoStandard>(message.video_standard()));
    Take(destination.userTimecodeType, message.user_timecode_type());
    if (message.has_primary_timecode()) Take(destination.primaryTimecode, message.primary_timecode());
    if (message.has_rating()) Take(destination.rating, message.rating());
    if (message.has_preferential_camera()) Take(destination.preferentialCamera, message.preferential_camera());
    destination.inBoundField = message.in_bound_field();
    destination.shortInBoundField = message.short_in_bound_field();
    destination.shortOutBoundField = message.short_out_bound_field();
    destination.outBoundField = message.out_bound_field();
    destination.legacyTimecodeOffset = message.legacy_timecode_offset();
    destination.kviIndex = message.kvi_index();
    destination.userLock = message.user_lock();
    destination.thumbnailOffset = message.thumbnail_offset();
    destination.sequence = message.sequence();
    destination.machineSerial = message.machine_serial();
    destination.nbAudioVideoChannels = message.nb_audio_video_channels();
    destination.dolbyMonoSignal = message.dolby_mono_signal();
    if (message.has_in_bound_tod_timecode())
        destination.TrySetInBoundTodTimecode(parser.Parse(message.in_bound_tod_timecode()));
    if (message.has_in_bound_user_timecode())
        destination.TrySetInBoundUserTimecode(parser.Parse(message.in_bound_user_timecode()));
    if (message.has_in_bound_timepoint()) destination.inBoundTimepoint = {message.in_bound_timepoint()};
    if (message.has_intra_essence()) Read(message.intra_essence(), destination.intraEssence);
    if (message.has_long_gop_essence()) Read(message.long_gop_essence(), destination.longGopEssence);
    if (message.has_low_res_essence()) Read(message.low_res_essence(), destination.lowResEssence);
}

void Fill(Channels::PlayerState const& source, PlayerState& message)
{
    message.set_serial(source.serial);
    message.set_channel_index(source.channelIndex);
    message.mutable_name()->assign(UntilNul(source.name));
    message.set_status(Number(source.status));
    message.set_mode(Number(source.mode));
    FillInfoOnAir(source, *message.mutable_info_on_air());
    Fill(source.pgmOnAir, *message.mutable_pgm_on_air());
    Fill(source.previewOnAir, *message.mutable_preview_on_air());
    if (IsPresent(source.pgmInTimePointOnAir))
        message.set_pgm_in_time_point_on_air(source.pgmInTimePointOnAir.position);
    if (IsPresent(source.pgmShortInTimePointOnAir))
        message.set_pgm_short_in_time_point_on_air(source.pgmShortInTimePointOnAir.position);
    if (IsPresent(source.pgmShortOutTimePointOnAir))
        message.set_pgm_short_out_time_point_on_air(source.pgmShortOutTimePointOnAir.position);
    if (IsPresent(source.pgmOutTimePointOnAir))
        message.set_pgm_out_time_point_on_air(source.pgmOutTimePointOnAir.position);
    if (IsPresent(source.todPgmInTimecodeOnAir))
        WriteTimeCode(source.todPgmInTimecodeOnAir, *message.mutable_tod_pgm_in_timecode_on_air());
    if (IsPresent(source.todPgmShortInTimecodeOnAir))
        WriteTimeCode(source.todPgmShortInTimecodeOnAir, *message.mutable_tod_pgm_short_in_timecode_on_air());
    if (IsPresent(source.todPgmShortOutTimecodeOnAir))
        WriteTimeCode(source.todPgmShortOutTimecodeOnAir, *message.mutable_tod_pgm_short_out_timecode_on_air());
    if (IsPresent(source.todPgmOutTimecodeOnAir))
        WriteTimeCode(source.todPgmOutTimecodeOnAir, *message.mutable_tod_pgm_out_timecode_on_air());
    if (IsPresent(source.userPgmInTimecodeOnAir))
        WriteTimeCode(source.userPgmInTimecodeOnAir, *message.mutable_user_pgm_in_timecode_on_air());
    if (IsPresent(source.userPgmShortInTimecodeOnAir))
        WriteTimeCode(source.userPgmShortInTimecodeOnAir, *message.mutable_user_pgm_short_in_timecode_on_air());
    if (IsPresent(source.userPgmShortOutTimecodeOnAir))
        WriteTimeCode(source.userPgmShortOutTimecodeOnAir, *message.mutable_user_pgm_short_out_timecode_on_air());
    if (IsPresent(source.userPgmOutTimecodeOnAir))
        WriteTimeCode(source.userPgmOutTimecodeOnAir, *message.mutable_user_pgm_out_timecode_on_air());
    if (IsNonZero(source.globalLoopMode)) message.set_global_loop_mode(Number(source.globalLoopMode));
    Fill(source.inBoundary, *message.mutable_in_boundary());
    Fill(source.outBoundary, *message.mutable_out_boundary());
}

void Read(PlayerState const& message, Channels::PlayerState& destination)
{
    destination.serial = message.serial();
    destination.channelIndex = message.channel_index();
    AssignBounded(destination.name, message.name());
    Take(destination.status, message.status());
    Take(destination.mode, message.mode());
    ReadInfoOnAir(message.info_on_air(), destination);
    Read(message.pgm_on_air(), destination.pgmOnAir);
    Read(message.preview_on_air(), destination.previewOnAir);
    if (message.has_pgm_in_time_point_on_air()) destination.pgmInTimePointOnAir = {message.pgm_in_time_point_on_air()};
    if (message.has_pgm_short_in_time_point_on_air())
        destination.pgmShortInTimePointOnAir = {message.pgm_short_in_time_point_on_air()};
    if (message.has_pgm_short_out_time_point_on_air())
        destination.pgmShortOutTimePointOnAir = {message.pgm_short_out_time_point_on_air()};
    if (message.has_pgm_out_time_point_on_air())
        destination.pgmOutTimePointOnAir = {message.pgm_out_time_point_on_air()};
    if (message.has_tod_pgm_in_timecode_on_air())
        AssignGuarded(destination.todPgmInTimecodeOnAir, message.tod_pgm_in_timecode_on_air());
    if (message.has_tod_pgm_short_in_timecode_on_air())
        AssignGuarded(destination.todPgmShortInTimecodeOnAir, message.tod_pgm_short_in_timecode_on_air());
    if (message.has_tod_pgm_short_out_timecode_on_air())
        AssignGuarded(destination.todPgmShortOutTimecodeOnAir, message.tod_pgm_short_out_timecode_on_air());
    if (message.has_tod_pgm_out_timecode_on_air())
        AssignGuarded(destination.todPgmOutTimecodeOnAir, message.tod_pgm_out_timecode_on_air());
    if (message.has_user_pgm_in_timecode_on_air())
        AssignGuarded(destination.userPgmInTimecodeOnAir, message.user_pgm_in_timecode_on_air());
    if (message.has_user_pgm_short_in_timecode_on_air())
        AssignGuarded(destination.userPgmShortInTimecodeOnAir, message.user_pgm_short_in_timecode_on_air());
    if (message.has_user_pgm_short_out_timecode_on_air())
        AssignGuarded(destination.userPgmShortOutTimecodeOnAir, message.user_pgm_short_out_timecode_on_air());
    if (message.has_user_pgm_out_timecode_on_air())
        AssignGuarded(destination.userPgmOutTimecodeOnAir, message.user_pgm_out_timecode_on_air());
    if (message.has_global_loop_mode()) Take(destination.globalLoopMode, message.global_loop_mode());
    Read(message.in_boundary(), destination.inBoundary);
    Read(message.out_boundary(), destination.outBoundary);
}

void Fill(Sequences::Playlist const& source, Playlist& message)
{
    Fill(source.audioVideoTrack, *message.mutable_audio_video_track());
    message.set_aux_track_clip_um_id(source.auxTrackClipUmId.GetUmId());
    Fill(source, *message.mutable_sequence());
}

void Read(Playlist const& message, Sequences::Playlist& destination)
{
    Read(message.audio_video_track(), destination.audioVideoTrack);
    destination.auxTrackClipUmId.SetUmId(message.aux_track_clip_um_id().c_str());
    Read(message.sequence(), destination);
}

void Fill(ClipCreationFinishedEventArgs const& source, ClipCreationFinished& message)
{
    FillCommand(source, *message.mutable_clip_command());
    Fill(source.sourceClip, *message.mutable_source_clip());
    Fill(source.newClip, *message.mutable_new_clip());
    message.set_creation_type(Number(source.creationType));
    message.set_network_type(Number(source.networkType));
    message.set_database_revision(source.databaseRevision);
}

void Read(ClipCreationFinished const& message, ClipCreationFinishedEventArgs& destination)
{
    ReadCommand(message.clip_command(), destination);
    Read(message.source_clip(), destination.sourceClip);
    Read(message.new_clip(), destination.newClip);
    Take(destination.creationType, message.creation_type());
    Take(destination.networkType, message.network_type());
    destination.databaseRevision = message.database_revision();
}

void Fill(GetClipsCommandReply const& source, GetClipsReply& message)
{
    Assign(*message.mutable_guid(), source.commandGuid);
    message.set_revision(source.revision);
    message.mutable_clips()->Reserve(static_cast<int>(source.RemainingCount()));
    while (source.MoveNext()) Fill(source.CurrentClip(), *message.add_clips());
}

void Read(GetClipsReply const& message, GetClipsCommandReply& destination)
{
    std::list<Clips::Clip> clips;
    for (auto const& clip : message.clips()) Read(clip, clips.emplace_back());
    destination = {GuidOf(message.guid()), message.revision(), std::move(clips)};
}

} // namespace Talvo::Benchmarks::Peer
