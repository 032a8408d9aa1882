#pragma once

#include <string>

namespace tarnel::host {

// The SQL script of an empty task database: tables, keys, indexes and the settings of every section with their
// defaults. The section OutWizard stays empty, since the wizard makes its rows at its first start.
std::string taskDatabaseScript();

// The settings alone, as rows for the table Settings.
std::string defaultSettingsScript();

}  // namespace tarnel::host
