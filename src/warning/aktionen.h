// The branches of the warning window's actions, one function per category and action,
// reached through the category table. The bodies lie in the file of their action.
#pragma once

#include <string>

#include "warning/aufschub.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool ToolBar(Form3Fenster& f);
bool Dienste(Form3Fenster& f);
bool URLSearchHooks(Form3Fenster& f);
bool KlassenIni(Form3Fenster& f);  // BHO, ShellService, TaskScheduler
bool ActiveX(Form3Fenster& f);
bool WindowsDatei(Form3Fenster& f);
bool AutostartRegistry(Form3Fenster& f);
bool AutostartOrdner(Form3Fenster& f);
bool HostsDatei(Form3Fenster& f);
bool DFÜ(Form3Fenster& f);
bool Favoriten(Form3Fenster& f);
bool Prozesse(Form3Fenster& f);
bool StartPage(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void ToolBar(Form3Fenster& f);
void ToolBar1(Form3Fenster& f);
void Dienste(Form3Fenster& f);
void URLSearchHooks(Form3Fenster& f);
void TaskScheduler(Form3Fenster& f);
void ShellService(Form3Fenster& f);
void BHO(Form3Fenster& f);
void ActiveX(Form3Fenster& f);
void WindowsDatei(Form3Fenster& f);
void AutostartRegistry(Form3Fenster& f);
void AutostartOrdner(Form3Fenster& f);
void DFÜ(Form3Fenster& f);
void Favoriten(Form3Fenster& f);
}  // namespace entfernen

// The file a favourites warning is about: the folder of Label1(1), which ends in "\", and
// the name of Label1(2). The watcher defers by this path, and it is the file to delete.
std::string FavoritenPfad(const Form3Fenster& f);

// The answers of the process and start page warnings.
namespace weitere {
// Image2 of "Prozesse".
void ProzessTöten(Form3Fenster& f);
// The menu of Image1 for "Prozesse": 0 the process, 1 its maker, 2 this run only.
void ProzessZulassen(Form3Fenster& f, int index);
// Image8 of "StartPage".
void StartPageOriginal(Form3Fenster& f);
}  // namespace weitere

namespace weitere {
void HostsMenü(Form3Fenster& f);      // Image8 of "HostsDatei"
void HostsÖffnen(Form3Fenster& f);    // Image9 of "HostsDatei"
void DiensteÖffnen(Form3Fenster& f);  // Image9 of "Dienste"
}  // namespace weitere

// "Original" and "Freigeben" of the registry categories: the expected open command written
// back, a policy lock removed. Both end with raus.
namespace weitere {
void ShellBefehlOriginal(Form3Fenster& f);  // Image8 of "HtaFile"
void SperreFreigeben(Form3Fenster& f);      // Image8 of "RegeditDeaktiviert", "TaskmanagerDeaktiviert"
}  // namespace weitere

// The file warnings' own answers and the dial-up menu (aktionen_dateien.cpp, aktionen_dfue.cpp).
namespace weitere {
void Ausnahmeliste(Form3Fenster& f);  // Image4 of "WindowsDatei"
void NaGut(Form3Fenster& f);          // Image5 of "WindowsDatei"
void DFÜMenü(Form3Fenster& f);        // Image9 of "DFÜ"
}  // namespace weitere

}  // namespace kes
