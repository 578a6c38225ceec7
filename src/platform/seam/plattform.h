// All seams of the platform in one bundle, handed to the program at start. The real
// bundle wraps the Win32 API; tests hand in fakes.
#pragma once

#include "platform/seam/change_api.h"
#include "platform/seam/file_api.h"
#include "platform/seam/file_detail_api.h"
#include "platform/seam/process_api.h"
#include "platform/seam/profile_api.h"
#include "platform/seam/registry_api.h"
#include "platform/seam/shell_api.h"
#include "platform/seam/system_api.h"
#include "platform/seam/timer_api.h"
#include "platform/seam/tray_api.h"

namespace kes {

struct Plattform {
    RegistryApi& registry;
    FileApi& files;
    ShellApi& shell;
    DialogApi& dialogs;
    SoundApi& sound;
    TimerApi& timers;
    SystemApi& system;
    DialupApi& dialup;
    TrayApi& tray;
    ProcessApi& processes;
    FileDetailApi& details;
    ProfileApi& profiles;
    ChangeApi& changes;
};

}  // namespace kes
