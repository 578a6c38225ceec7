#include "common/kategorie.h"

namespace kes {

const char* KategorieName(Kategorie k) {
    switch (k) {
        case Kategorie::Keine:
            return "";
        case Kategorie::Prozesse:
            return "Prozesse";
        case Kategorie::HostsDatei:
            return "HostsDatei";
        case Kategorie::Favorit1:
            return "Favorit1";
        case Kategorie::Favorit2:
            return "Favorit2";
        case Kategorie::Favoriten:
            return "Favoriten";
        case Kategorie::StartPage:
            return "StartPage";
        case Kategorie::DFÜ:
            return "DFÜ";
        case Kategorie::Ordnermeister:
            return "Ordnermeister";
        case Kategorie::OrdnerAllUser:
            return "OrdnerAllUser";
        case Kategorie::AutostartOrdner:
            return "AutostartOrdner";
        case Kategorie::AutostartRegistry:
            return "AutostartRegistry";
        case Kategorie::WindowsDatei:
            return "WindowsDatei";
        case Kategorie::BHO:
            return "BHO";
        case Kategorie::ShellService:
            return "ShellService";
        case Kategorie::TaskScheduler:
            return "TaskScheduler";
        case Kategorie::URLSearchHooks:
            return "URLSearchHooks";
        case Kategorie::ActiveX:
            return "ActiveX";
        case Kategorie::Dienste:
            return "Dienste";
        case Kategorie::RegeditDeaktiviert:
            return "RegeditDeaktiviert";
        case Kategorie::TaskmanagerDeaktiviert:
            return "TaskmanagerDeaktiviert";
        case Kategorie::HtaFile:
            return "HtaFile";
        case Kategorie::ToolBar:
            return "ToolBar";
        case Kategorie::ToolBar1:
            return "ToolBar1";
    }
    return "";
}

}  // namespace kes
