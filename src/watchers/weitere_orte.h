// The further autostart places, one description per watcher: Winlogon, AppInit_DLLs, the
// debuggers of Image File Execution Options, the Run key of the Explorer policies, Active
// Setup, and the boot and security providers. Each has its box, its key, its baseline file
// and its list on the panel page "Weitere Autostart-Orte".
#pragma once

#include "watchers/registry_orte.h"

namespace kes {

inline constexpr const char* kWinlogonDatei = "daten\\Winlogon.txt";
inline constexpr const char* kAppInitDatei = "daten\\AppInit.txt";
inline constexpr const char* kImageFileExecutionDatei = "daten\\ImageFileExecution.txt";
inline constexpr const char* kPoliciesRunDatei = "daten\\PoliciesRun.txt";
inline constexpr const char* kActiveSetupDatei = "daten\\ActiveSetup.txt";
inline constexpr const char* kBootSicherheitDatei = "daten\\BootSicherheit.txt";

namespace orte {
inline constexpr const char* kWinlogon = "Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
inline constexpr const char* kPoliciesRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\Run";

inline constexpr RegistryOrt kWinlogon_[] = {
    {kHkeyLocalMachine,
     kWinlogon,
     Ortsart::Werte,
     {"Shell", "Userinit", "Taskman", "System", "VmApplet"},
     true,
     {"Shell", "Userinit"}},
    {kHkeyCurrentUser, kWinlogon, Ortsart::Werte, {"Shell", "Userinit", "Taskman", "System", "VmApplet"}},
    {kHkeyLocalMachine,
     "Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\Notify",
     Ortsart::Unterschlüssel,
     {"DllName"},
     true},
};
inline constexpr RegistryOrt kAppInit_[] = {
    {kHkeyLocalMachine,
     "Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows",
     Ortsart::Werte,
     {"AppInit_DLLs", "LoadAppInit_DLLs"},
     true},
};
// Image File Execution Options and the policies are one key in both views (Windows shares
// them): read once, or every entry would come up twice.
inline constexpr RegistryOrt kImageFileExecution_[] = {
    {kHkeyLocalMachine,
     "Software\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options",
     Ortsart::WertJeSchlüssel,
     {"Debugger"}},
    {kHkeyLocalMachine,
     "Software\\Microsoft\\Windows NT\\CurrentVersion\\SilentProcessExit",
     Ortsart::WertJeSchlüssel,
     {"MonitorProcess"},
     true},
};
inline constexpr RegistryOrt kPoliciesRun_[] = {
    {kHkeyCurrentUser, kPoliciesRun, Ortsart::AlleWerte},
    {kHkeyLocalMachine, kPoliciesRun, Ortsart::AlleWerte},
};
inline constexpr RegistryOrt kActiveSetup_[] = {
    {kHkeyLocalMachine,
     "Software\\Microsoft\\Active Setup\\Installed Components",
     Ortsart::WertJeSchlüssel,
     {"StubPath"},
     true},
};
inline constexpr RegistryOrt kBootSicherheit_[] = {
    {kHkeyLocalMachine, "System\\CurrentControlSet\\Control\\Session Manager", Ortsart::Werte, {"BootExecute"}},
    {kHkeyLocalMachine,
     "System\\CurrentControlSet\\Control\\Lsa",
     Ortsart::Werte,
     {"Authentication Packages", "Notification Packages", "Security Packages"}},
    {kHkeyLocalMachine, "System\\CurrentControlSet\\Control\\Print\\Monitors", Ortsart::WertJeSchlüssel, {"Driver"}},
};
}  // namespace orte

inline constexpr OrteBeschreibung kWinlogonOrte{Kategorie::Winlogon, kWinlogonDatei,
                                                "Ein Winlogon-Eintrag in der Registry ist neu oder wurde geändert.",
                                                orte::kWinlogon_};
inline constexpr OrteBeschreibung kAppInitOrte{Kategorie::AppInitDLLs, kAppInitDatei,
                                               "AppInit_DLLs in der Registry ist neu oder wurde geändert.",
                                               orte::kAppInit_};
inline constexpr OrteBeschreibung kImageFileExecutionOrte{
    Kategorie::ImageFileExecution, kImageFileExecutionDatei,
    "Ein Debugger für ein Programm wurde in der Registry eingetragen oder geändert.", orte::kImageFileExecution_};
inline constexpr OrteBeschreibung kPoliciesRunOrte{
    Kategorie::PoliciesRun, kPoliciesRunDatei,
    "Neuer Eintrag im Autostart der Richtlinien (Policies\\Explorer\\Run) gefunden.", orte::kPoliciesRun_};
inline constexpr OrteBeschreibung kActiveSetupOrte{Kategorie::ActiveSetup, kActiveSetupDatei,
                                                   "Neuer Active Setup-Eintrag (StubPath) in der Registry gefunden.",
                                                   orte::kActiveSetup_};
inline constexpr OrteBeschreibung kBootSicherheitOrte{
    Kategorie::BootSicherheit, kBootSicherheitDatei,
    "Ein Start- oder Sicherheitsmodul des Systems ist neu oder wurde geändert.", orte::kBootSicherheit_};

}  // namespace kes
