// The watchers' compare paths fed from hostile places: registry names and data of every
// length and type in all watched keys, and baselines and exception lists of any bytes.
// Every watcher is on; each warning gets one of its answers, which rewrites the lists and
// reads them back. Nothing may crash, and no command the program starts may name a key
// other than the one of its warning.
#include "common/text.h"
#include "fake_reg_exe.h"
#include "feindlich.h"
#include "pruefen.h"
#include "warning/form3.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
const char* const kListen[] = {"prozesse.txt",      "Firma.txt",         "favoriten.txt",
                               "0190.txt",          "Autostart.txt",     "AutostartREG.txt",
                               "windows.txt",       "bho.ini",           "shellservice.ini",
                               "taskscheduler.ini", "URLSearchHook.txt", "Activex.txt",
                               "dienste.ini",       "dienstefirmen.txt", "V_seiten.txt",
                               "Winlogon.txt",      "AppInit.txt",       "ImageFileExecution.txt",
                               "PoliciesRun.txt",   "ActiveSetup.txt",   "BootSicherheit.txt",
                               "Winsock.txt",       "IEToolbar.txt",     "ShellErweiterungen.txt",
                               "Browsereinstellungen.txt", "WeitereSperren.txt", "Dateitypen.txt", "Dienstpfade.txt",
                               "GeplanteAufgaben.txt"};

bool Endet(const std::string& s, const std::string& ende) {
    return s.size() >= ende.size() && s.compare(s.size() - ende.size(), ende.size(), ende) == 0;
}

// A REG line as reg.exe reads it names the key of the open warning, by its whole name, and
// nothing else; or it is one of the trusted-sites lines that reg.exe refuses, split at the
// blank of "Internet Settings".
void BefehlPrüfen(const Programm& prg, const std::string& zeile) {
    const auto a = fake::Befehlsargumente(zeile);
    if (a.empty() || !GleichOhneFall(a[0], "REG")) return;
    const Form3Fenster* w = prg.Form3Zeiger();
    Prüfen(w != nullptr && a.size() >= 3, "a REG line without a warning");
    bool eigener = false;
    for (int i : {0, 1}) {
        const std::string& name = w->Text1[i].Text;
        eigener = eigener || (!name.empty() && a.size() == 4 && Endet(a[2], "\\" + name) &&
                              a[2].find('"') == std::string::npos && (a[3] == "/f" || a[3] == "/v/f"));
    }
    const bool verweigert = Endet(a[2], "\\CurrentVersion\\Internet") && a.size() >= 4 &&
                            a[3].rfind("Settings\\ZoneMap\\Domains\\", 0) == 0;
    Prüfen(eigener || verweigert, "a REG line names another key than its warning's");
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider d(data, size);
    // Every box on but the automatic deletes, which the input may switch on too.
    std::uint32_t boxen =
        0xFFFFFFFEu & ~((1u << 6) | (1u << 12) | (1u << 31) | (1u << 9) | (1u << 4) | (1u << 19) | (1u << 20));
    boxen |= d.ConsumeIntegral<std::uint32_t>() & ((1u << 6) | (1u << 12) | (1u << 31) | (1u << 9));
    fuzz::FuzzProgramm f(boxen, {}, [&](fuzz::FuzzProgramm& f) {
        const int listen = d.ConsumeIntegralInRange(0, 4);
        for (int i = 0; i < listen; ++i) {
            const char* name = kListen[d.ConsumeIntegralInRange<std::size_t>(0, std::size(kListen) - 1)];
            f.dateien.Put(f.Daten(name), d.ConsumeRandomLengthString(600));
        }
        fuzz::RegistryFüllen(f.fp.registry, d, 12);
    });

    f.fp.shell.beimStarten = [&](const std::string& zeile) { BefehlPrüfen(f.prg, zeile); };
    for (int runde = 0; runde < 6; ++runde) {
        f.Tick();
        if (f.prg.Form3Geladen()) f.Antworten(d.ConsumeIntegralInRange(0, 7));
        if (d.ConsumeIntegralInRange(0, 3) == 0) fuzz::RegistryFüllen(f.fp.registry, d, 2);
    }
    Prüfen(f.fp.registry.OpenHandles() == 0, "a key left open");
    Prüfen(f.dateien.OpenFinds() == 0, "a file walk left open");
    return 0;
}
