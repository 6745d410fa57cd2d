#pragma once

#include "Domain/CorvaneData/Clips/Enums.h"
#include "generated/Clip_types.h"
#include "generated/Essences_types.h"

/// Converts the enumerations of the clip family between the domain and the wire.
///
/// Every function looks its value up in a table and can't fail: a value outside the table gives the number 0 of the
/// result.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::EnumConverter
{

/// @{

/// Returns the value on the other side from the enumeration's table.
Generated::TrainStatus::type ToGeneratedEnum(Corvane::Data::Clips::TrainStatus value) noexcept;
Corvane::Data::Clips::TrainStatus FromGeneratedEnum(Generated::TrainStatus::type value) noexcept;

Generated::SourceEngine::type ToGeneratedEnum(Corvane::Data::Clips::SourceEngine value) noexcept;
Corvane::Data::Clips::SourceEngine FromGeneratedEnum(Generated::SourceEngine::type value) noexcept;

Generated::UhdDivisionMode::type ToGeneratedEnum(Corvane::Data::Clips::UhdDivisionMode value) noexcept;
Corvane::Data::Clips::UhdDivisionMode FromGeneratedEnum(Generated::UhdDivisionMode::type value) noexcept;

Generated::HdrProfile::type ToGeneratedEnum(Corvane::Data::Clips::HdrProfile value) noexcept;
Corvane::Data::Clips::HdrProfile FromGeneratedEnum(Generated::HdrProfile::type value) noexcept;

Generated::AlphaArchiveStatus::type ToGeneratedEnum(Corvane::Data::Clips::AlphaArchiveStatus value) noexcept;
Corvane::Data::Clips::AlphaArchiveStatus FromGeneratedEnum(Generated::AlphaArchiveStatus::type value) noexcept;

Generated::ArchiveStatus::type ToGeneratedEnum(Corvane::Data::Clips::ArchiveStatus value) noexcept;
Corvane::Data::Clips::ArchiveStatus FromGeneratedEnum(Generated::ArchiveStatus::type value) noexcept;

Generated::FillAndKeyStatus::type ToGeneratedEnum(Corvane::Data::Clips::FillAndKeyStatus value) noexcept;
Corvane::Data::Clips::FillAndKeyStatus FromGeneratedEnum(Generated::FillAndKeyStatus::type value) noexcept;

Generated::Camera::type ToGeneratedEnum(Corvane::Data::Clips::Camera value) noexcept;
Corvane::Data::Clips::Camera FromGeneratedEnum(Generated::Camera::type value) noexcept;

Generated::AfdAspectRatio::type ToGeneratedEnum(Corvane::Data::Clips::AfdAspectRatio value) noexcept;
Corvane::Data::Clips::AfdAspectRatio FromGeneratedEnum(Generated::AfdAspectRatio::type value) noexcept;

Generated::CodedFrameAspectRatio::type ToGeneratedEnum(Corvane::Data::Clips::CodedFrameAspectRatio value) noexcept;
Corvane::Data::Clips::CodedFrameAspectRatio FromGeneratedEnum(Generated::CodedFrameAspectRatio::type value) noexcept;

Generated::VideoFormat::type ToGeneratedEnum(Corvane::Data::Clips::VideoFormat value) noexcept;
Corvane::Data::Clips::VideoFormat FromGeneratedEnum(Generated::VideoFormat::type value) noexcept;

Generated::VideoStandard::type ToGeneratedEnum(Corvane::Data::Clips::VideoStandard value) noexcept;
Corvane::Data::Clips::VideoStandard FromGeneratedEnum(Generated::VideoStandard::type value) noexcept;

Generated::TimecodeType::type ToGeneratedEnum(Corvane::Data::Clips::TimecodeType value) noexcept;
Corvane::Data::Clips::TimecodeType FromGeneratedEnum(Generated::TimecodeType::type value) noexcept;

Generated::PrimaryTimecode::type ToGeneratedEnum(Corvane::Data::Clips::PrimaryTimecode value) noexcept;
Corvane::Data::Clips::PrimaryTimecode FromGeneratedEnum(Generated::PrimaryTimecode::type value) noexcept;

Generated::Rating::type ToGeneratedEnum(Corvane::Data::Clips::Rating value) noexcept;
Corvane::Data::Clips::Rating FromGeneratedEnum(Generated::Rating::type value) noexcept;

Generated::PreferentialCamera::type ToGeneratedEnum(Corvane::Data::Clips::PreferentialCamera value) noexcept;
Corvane::Data::Clips::PreferentialCamera FromGeneratedEnum(Generated::PreferentialCamera::type value) noexcept;

Generated::Type::type ToGeneratedEnum(Corvane::Data::Clips::Essences::Type value) noexcept;
Corvane::Data::Clips::Essences::Type FromGeneratedEnum(Generated::Type::type value) noexcept;

Generated::RecordingStatus::type ToGeneratedEnum(Corvane::Data::Clips::Essences::RecordingStatus value) noexcept;
Corvane::Data::Clips::Essences::RecordingStatus FromGeneratedEnum(Generated::RecordingStatus::type value) noexcept;

Generated::EssenceArchiveStatus::type ToGeneratedEnum(Corvane::Data::Clips::Essences::ArchiveStatus value) noexcept;
Corvane::Data::Clips::Essences::ArchiveStatus FromGeneratedEnum(Generated::EssenceArchiveStatus::type value) noexcept;

Generated::Metadata::type ToGeneratedEnum(Corvane::Data::Clips::Essences::Metadata value) noexcept;
Corvane::Data::Clips::Essences::Metadata FromGeneratedEnum(Generated::Metadata::type value) noexcept;

Generated::BlockSize::type ToGeneratedEnum(Corvane::Data::Clips::Essences::BlockSize value) noexcept;
Corvane::Data::Clips::Essences::BlockSize FromGeneratedEnum(Generated::BlockSize::type value) noexcept;

Generated::VideoCompressionType::type
ToGeneratedEnum(Corvane::Data::Clips::Essences::VideoCompressionType value) noexcept;
Corvane::Data::Clips::Essences::VideoCompressionType
FromGeneratedEnum(Generated::VideoCompressionType::type value) noexcept;

Generated::AudioCompressionType::type
ToGeneratedEnum(Corvane::Data::Clips::Essences::AudioCompressionType value) noexcept;
Corvane::Data::Clips::Essences::AudioCompressionType
FromGeneratedEnum(Generated::AudioCompressionType::type value) noexcept;

Generated::VideoCompressionInfo::type
ToGeneratedEnum(Corvane::Data::Clips::Essences::VideoCompressionInfo value) noexcept;
Corvane::Data::Clips::Essences::VideoCompressionInfo
FromGeneratedEnum(Generated::VideoCompressionInfo::type value) noexcept;

Generated::AudioConfiguration::type ToGeneratedEnum(Corvane::Data::Clips::Essences::AudioConfiguration value) noexcept;
Corvane::Data::Clips::Essences::AudioConfiguration
FromGeneratedEnum(Generated::AudioConfiguration::type value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::EnumConverter
