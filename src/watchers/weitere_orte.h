// The further autostart places, one description per watcher: Winlogon, AppInit_DLLs, the
// debuggers of Image File Execution Options, the Run key of the Explorer policies, Active
// Setup, the boot and security providers, the Winsock providers, the shell's execute hooks
// and overlay icons; and the browser's toolbars, its window title and proxy, the policy locks
// beside the two the program always knew, and the program file types' own keys. Each has its box, its key, its baseline
// file and its list on the panel page "Weitere Autostart-Orte".
#pragma once

#include "watchers/registry_orte.h"

namespace kes {

inline constexpr const char* kWinlogonDatei = "daten\\Winlogon.txt";
inline constexpr const char* kAppInitDatei = "daten\\AppInit.txt";
inline constexpr const char* kImageFileExecutionDatei = "daten\\ImageFileExecution.txt";
inline constexpr const char* kPoliciesRunDatei = "daten\\PoliciesRun.txt";
inline constexpr const char* kActiveSetupDatei = "daten\\ActiveSetup.txt";
inline constexpr const char* kBootSicherheitDatei = "daten\\BootSicherheit.txt";
inline constexpr const char* kWinsockDatei = "daten\\Winsock.txt";
inline constexpr const char* kShellErweiterungenDatei = "daten\\ShellErweiterungen.txt";
inline constexpr const char* kIEToolbarDatei = "daten\\IEToolbar.txt";
inline constexpr const char* kBrowsereinstellungenDatei = "daten\\Browsereinstellungen.txt";
inline constexpr const char* kWeitereSperrenDatei = "daten\\WeitereSperren.txt";
inline constexpr const char* kDateitypenDatei = "daten\\Dateitypen.txt";

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
// The catalogs of the Winsock providers: the protocol entries carry their library at the
// head of a binary item, the name spaces as a path. A 64-bit Windows keeps the 64-bit
// providers in the catalogs ending in 64; the key is one in both views.
constexpr RegistryOrt Katalog(const char* schlüssel, const char* wert) {
    return {kHkeyLocalMachine, schlüssel, Ortsart::Katalog, {wert}};
}
#define KES_WINSOCK "System\\CurrentControlSet\\Services\\WinSock2\\Parameters\\"
inline constexpr RegistryOrt kWinsock_[] = {
    Katalog(KES_WINSOCK "Protocol_Catalog9\\Catalog_Entries", "PackedCatalogItem"),
    Katalog(KES_WINSOCK "Protocol_Catalog9\\Catalog_Entries64", "PackedCatalogItem"),
    Katalog(KES_WINSOCK "NameSpace_Catalog5\\Catalog_Entries", "LibraryPath"),
    Katalog(KES_WINSOCK "NameSpace_Catalog5\\Catalog_Entries64", "LibraryPath"),
};
#undef KES_WINSOCK
// A place whose values name classes: each stands for its class's server file.
constexpr RegistryOrt Klassenort(RegHandle wurzel, const char* schlüssel, Ortsart art, Klassenform form) {
    return {wurzel, schlüssel, art, {""}, wurzel == kHkeyLocalMachine, {}, form};
}
// The execute hooks are values named by their class; an overlay icon is a subkey whose
// default value names its class.
inline constexpr RegistryOrt kShellErweiterungen_[] = {
    Klassenort(kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ShellExecuteHooks",
               Ortsart::AlleWerte, Klassenform::Wertname),
    Klassenort(kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ShellIconOverlayIdentifiers",
               Ortsart::Unterschlüssel, Klassenform::Daten),
};
// A toolbar is a value named by its class; the user's layout values beside them name no
// class and pass.
inline constexpr const char* kToolbar = "Software\\Microsoft\\Internet Explorer\\Toolbar";
inline constexpr const char* kWebBrowser = "Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser";
inline constexpr const char* kShellBrowser = "Software\\Microsoft\\Internet Explorer\\Toolbar\\ShellBrowser";
inline constexpr RegistryOrt kIEToolbar_[] = {
    Klassenort(kHkeyLocalMachine, kToolbar, Ortsart::AlleWerte, Klassenform::Wertname),
    Klassenort(kHkeyLocalMachine, kWebBrowser, Ortsart::AlleWerte, Klassenform::Wertname),
    Klassenort(kHkeyLocalMachine, kShellBrowser, Ortsart::AlleWerte, Klassenform::Wertname),
    Klassenort(kHkeyCurrentUser, kToolbar, Ortsart::AlleWerte, Klassenform::Wertname),
    Klassenort(kHkeyCurrentUser, kWebBrowser, Ortsart::AlleWerte, Klassenform::Wertname),
    Klassenort(kHkeyCurrentUser, kShellBrowser, Ortsart::AlleWerte, Klassenform::Wertname),
};
// A changed text warns with the one known before, and "Original" puts that back, or what
// Windows keeps there; the proxy switch is off where Windows has it alone.
constexpr RegistryOrt Browsertext(RegHandle wurzel, const char* schlüssel, std::array<const char*, 5> namen,
                                  const char* vorgabe = nullptr) {
    return {wurzel, schlüssel,          Ortsart::Werte,    namen,  wurzel == kHkeyLocalMachine,
            {},     Klassenform::Keine, Rückweg::Original, vorgabe};
}
inline constexpr const char* kMain = "Software\\Microsoft\\Internet Explorer\\Main";
inline constexpr const char* kInternetSettings = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
inline constexpr RegistryOrt kBrowsereinstellungen_[] = {
    Browsertext(kHkeyCurrentUser, kMain, {"Window Title"}),
    Browsertext(kHkeyLocalMachine, kMain, {"Window Title"}),
    Browsertext(kHkeyCurrentUser, kInternetSettings, {"ProxyServer", "AutoConfigURL"}),
    Browsertext(kHkeyCurrentUser, kInternetSettings, {"ProxyEnable"}, "0"),
    Browsertext(kHkeyLocalMachine, kInternetSettings, {"ProxyServer", "AutoConfigURL"}),
    Browsertext(kHkeyLocalMachine, kInternetSettings, {"ProxyEnable"}, "0"),
};
// The locks of the Explorer's and the system's policies that the program did not always
// know; the user's locks of the registry editor and the task manager have their own boxes.
// Command prompt locks live under the Windows policies too. The policy keys are one in both
// views.
constexpr RegistryOrt Sperre(RegHandle wurzel, const char* schlüssel, std::array<const char*, 5> namen) {
    return {wurzel, schlüssel, Ortsart::Werte, namen, false, {}, Klassenform::Keine, Rückweg::Freigeben};
}
inline constexpr const char* kPoliciesExplorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
inline constexpr const char* kPoliciesSystem = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";
inline constexpr const char* kWindowsSystem = "Software\\Policies\\Microsoft\\Windows\\System";
inline constexpr std::array<const char*, 5> kExplorerSperren = {"NoFolderOptions", "NoControlPanel", "NoRun", "NoFind",
                                                                "NoDrives"};
inline constexpr RegistryOrt kWeitereSperren_[] = {
    Sperre(kHkeyCurrentUser, kPoliciesExplorer, kExplorerSperren),
    Sperre(kHkeyCurrentUser, kPoliciesExplorer, {"NoViewContextMenu"}),
    Sperre(kHkeyLocalMachine, kPoliciesExplorer, kExplorerSperren),
    Sperre(kHkeyLocalMachine, kPoliciesExplorer, {"NoViewContextMenu"}),
    Sperre(kHkeyCurrentUser, kPoliciesSystem, {"DisableCMD"}),
    Sperre(kHkeyLocalMachine, kPoliciesSystem, {"DisableCMD", "DisableRegistryTools", "DisableTaskMgr"}),
    Sperre(kHkeyCurrentUser, kWindowsSystem, {"DisableCMD"}),
    Sperre(kHkeyLocalMachine, kWindowsSystem, {"DisableCMD"}),
};
// The default value of a program file type's key names its class; "Original" puts back the
// class Windows gives it.
constexpr RegistryOrt Dateityp(const char* endung, const char* klasse) {
    return {kHkeyClassesRoot, endung, Ortsart::Werte, {""}, false, {}, Klassenform::Keine, Rückweg::Original, klasse};
}
inline constexpr RegistryOrt kDateitypen_[] = {
    Dateityp(".exe", "exefile"), Dateityp(".com", "comfile"), Dateityp(".bat", "batfile"), Dateityp(".cmd", "cmdfile"),
    Dateityp(".pif", "piffile"), Dateityp(".scr", "scrfile"), Dateityp(".reg", "regfile"),
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
inline constexpr OrteBeschreibung kWinsockOrte{
    Kategorie::Winsock, kWinsockDatei,
    "Ein neuer Winsock-Anbieter (Protokoll oder Namensraum) wurde im System eingetragen.", orte::kWinsock_};
inline constexpr OrteBeschreibung kShellErweiterungenOrte{
    Kategorie::ShellErweiterungen, kShellErweiterungenDatei,
    "Neuer Eintrag [ShellExecuteHooks / ShellIconOverlayIdentifiers]", orte::kShellErweiterungen_};
inline constexpr OrteBeschreibung kBrowsereinstellungenOrte{Kategorie::Browsereinstellungen, kBrowsereinstellungenDatei,
                                                            "Fenstertitel oder Proxy des IExplorers wurde geändert.",
                                                            orte::kBrowsereinstellungen_};
inline constexpr OrteBeschreibung kWeitereSperrenOrte{Kategorie::WeitereSperren, kWeitereSperrenDatei,
                                                      "Ein Zugang des Systems wurde durch eine Richtlinie gesperrt.",
                                                      orte::kWeitereSperren_};
inline constexpr OrteBeschreibung kDateitypenOrte{Kategorie::Dateitypen, kDateitypenDatei,
                                                  "Die Zuordnung eines Programm-Dateityps wurde geändert.",
                                                  orte::kDateitypen_};
inline constexpr OrteBeschreibung kIEToolbarOrte{Kategorie::IEToolbar, kIEToolbarDatei,
                                                 "Neuer Eintrag [IExplorer Toolbar]", orte::kIEToolbar_};

}  // namespace kes
