// Kestrella.exe: the real platform, the program, its views, and the one message loop.
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include "core/programm.h"
#include "core/start.h"
#include "core/starten.h"
#include "platform/win32/echte_plattform.h"
#include "ui/win32/oberflaeche.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    INITCOMMONCONTROLSEX icc{sizeof icc, ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES | ICC_TAB_CLASSES};
    ::InitCommonControlsEx(&icc);
    ::CoInitialize(nullptr);

    kes::win32::EchtePlattform plattform;
    kes::Programm prg(plattform.plattform);
    kes::ui::Oberfläche oberfläche(prg);
    plattform.timers.nachNachricht = [&] { oberfläche.Abgleichen(); };
    kes::ui::StartAnsicht::fensterBekannt = [&](HWND h) { plattform.tray.SetzeFenster(h); };
    plattform.tray.fensterBesorgen = [&] { oberfläche.Abgleichen(); };

    if (!kes::Main(prg)) return 0;
    oberfläche.Abgleichen();

    MSG m;
    while (!prg.Beenden && ::GetMessageA(&m, nullptr, 0, 0) > 0) {
        if (!oberfläche.Dialognachricht(m)) {
            ::TranslateMessage(&m);
            ::DispatchMessageA(&m);
        }
        oberfläche.Abgleichen();
        prg.Aufräumen();
    }
    if (prg.StartGeladen()) prg.Start().Form_Unload();
    return 0;
}
