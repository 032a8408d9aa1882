#pragma once

namespace tarnel {

// The key below the current user's root key whose subkeys are named after the Outlook profiles.
inline constexpr const char* outlookProfilesKey =
    "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles";

}  // namespace tarnel
