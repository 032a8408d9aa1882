#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnel {

// The names under which a module reports.
struct Module {
  std::string_view project;
  std::string_view name;
};

namespace modules {
inline constexpr Module clsTarnelOutWizard{"TarnelOutWizard", "clsTarnelOutWizard"};
inline constexpr Module m_OutlookWizard{"TarnelOutWizard", "m_OutlookWizard"};
inline constexpr Module frmOutWiz{"TarnelOutWizard", "frmOutWiz"};
inline constexpr Module frmPopHelp{"TarnelExportExcel", "frmPopHelp"};
inline constexpr Module clsSettings{"TarnelExportExcel", "clsSettings"};
inline constexpr Module clsUtilCMD{"dllTarnel", "clsUtilCMD"};
inline constexpr Module clsTaskAppts{"dllTarnel", "clsTaskAppts"};
inline constexpr Module clsVLProjectsList{"dllTarnel", "clsVLProjectsList"};
inline constexpr Module clsTaskList{"dllTarnel", "clsTaskList"};
}  // namespace modules

// The last resort of every procedure: passes the failure to the host's report, then takes all forms down, the wizard
// first. Failures while they go are ignored. Calls nobody back: the caller of the failed procedure goes on.
void ReportWizardError(const Module& module, std::string_view procedure, const std::string& description,
                       std::int32_t number, std::int32_t lineMark = 0);

}  // namespace tarnel
