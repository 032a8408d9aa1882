#pragma once

namespace tarnel {

// The sections of the table Settings.
namespace settingsSection {
inline constexpr const char* importanceLevel = "Importance Level";
inline constexpr const char* points = "Points";
inline constexpr const char* difficulty = "Difficulty";
inline constexpr const char* dateFormats = "DateFormats";
inline constexpr const char* layout = "OutWizard";
inline constexpr const char* integration = "OutLookIntegration";
inline constexpr const char* profile = "OutlookProfileString";
}  // namespace settingsSection

// The rows of the section `integration`. Other sections are read in their order, or by names of their own.
namespace integrationSetting {
inline constexpr const char* project = "OutlookProject";
inline constexpr const char* taskMode = "OutTaskSetting";
inline constexpr const char* apptMode = "OutApptSetting";
}  // namespace integrationSetting

}  // namespace tarnel
