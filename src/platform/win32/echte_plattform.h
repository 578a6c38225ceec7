// The real platform: every seam on the Win32 API, bundled as the program hands it over.
#pragma once

#include "platform/seam/plattform.h"
#include "platform/win32/changes_win32.h"
#include "platform/win32/file_details_win32.h"
#include "platform/win32/files_win32.h"
#include "platform/win32/processes_win32.h"
#include "platform/win32/profile_win32.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/system_win32.h"
#include "platform/win32/tray_win32.h"

namespace kes::win32 {

struct EchtePlattform {
    Win32Registry registry;
    Win32Files files;
    Win32Shell shell;
    Win32Dialogs dialogs;
    Win32Sound sound;
    Win32Timers timers;
    Win32System system;
    Win32Dialup dialup;
    Win32Tray tray;
    Win32Processes processes;
    Win32FileDetails details;
    Win32Profiles profiles;
    Win32Changes changes;
    Plattform plattform{registry, files,  shell, dialogs,   sound,   timers,
                        system,   dialup, tray,  processes, details, profiles, changes};
};

}  // namespace kes::win32
