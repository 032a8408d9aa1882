#pragma once

namespace tarnel {

// Sets theszConnect by TarnelSettings.txt in the application's folder, which it makes when it is missing. A database
// that isn't there is told, and the file then points at TarnelData.mdb in the same folder. False after two such tries,
// and when the settings file can't be read or written, which is told too.
bool LocateDatabase();

}  // namespace tarnel
