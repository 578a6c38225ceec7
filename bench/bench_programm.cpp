#include "bench_programm.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <vector>

#include "assistant/form2.h"
#include "core/starten.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "platform/liste_schreiben.h"
#include "warning/form3.h"
#include "warning/kategorien.h"
#include "watchers/waechter.h"

namespace kes::bench {

namespace {
constexpr int kNein = 7;

// The warning at hand accepted as the person at the machine would: "Übernehmen", and
// where that opens a menu, the entry that keeps the thing for good; a warning that shows
// no "Übernehmen" but "Original" is answered with that, which silences it as well. False
// when the window is still open, so the bench can tell a category it cannot accept.
bool Übernehmen(Programm& prg) {
    Form3Fenster& f = prg.Form3();
    const auto& knöpfe = Zeile(prg.Kategorieschlüssel).knöpfe;
    const auto zeigt = [&](int n) { return std::find(knöpfe.begin(), knöpfe.end(), n) != knöpfe.end(); };
    if (!zeigt(1) && zeigt(8))
        f.Image_Click(8);
    else
        f.Image1_Click();
    if (prg.Form3Geladen() && f.Popup.Menü == "dienst") f.dienst1_Click(1);
    if (prg.Form3Geladen() && f.Popup.Menü == "killprozess") f.killprozess1_Click(0);
    const bool zu = !prg.Form3Geladen();
    // Put off for the run, so the next cycles reach the rows behind it; a category that
    // cannot be put off is closed by the title bar's box and comes again.
    if (!zu) f.Image6_Click();
    if (prg.Form3Geladen()) prg.Form3Entladen();
    prg.Beschäftigt = false;
    prg.Aufräumen();
    return zu;
}
}  // namespace

int StilleDialoge::ShowMessage(const std::string& text, const std::string&, int) {
    gefragt.push_back(text);
    return kNein;
}

BenchPlattform::BenchPlattform(const std::string& programmordner)
    : system(programmordner + "\\Kestrella.exe"), plattform{echt.registry, echt.files,     echt.shell,   dialoge,
                                                            ton,           echt.timers,    system,       echt.dialup,
                                                            tray,          echt.processes, echt.details, echt.profiles,
                                                            echt.changes} {}

int AllesÜbernehmen(Programm& prg, int höchstens) {
    AlarmFenster& alarm = prg.Alarm();
    std::map<std::string, int> nichtÜbernommen, angenommen;
    int übernommen = 0, stille = 0;
    for (int runde = 0; runde < höchstens && stille < 2; ++runde) {
        prg.Beschäftigt = false;
        alarm.Timer1.SetEnabled(true);
        prg.TimerTick(kTimerAlarm1);
        if (!prg.Form3Geladen()) {
            ++stille;
            continue;
        }
        stille = 0;
        const std::string name = KategorieName(prg.Kategorieschlüssel);
        if (Übernehmen(prg))
            ++übernommen, ++angenommen[name];
        else
            ++nichtÜbernommen[name];
    }
    for (const auto& [name, n] : angenommen) std::printf("  accepted: %s (%d)\n", name.c_str(), n);
    for (const auto& [name, n] : nichtÜbernommen)
        std::printf("  not accepted, put off for the run instead: %s (%d)\n", name.c_str(), n);
    if (stille < 2) std::printf("  the cycles did not fall silent within %d rounds\n", höchstens);
    return übernommen;
}

int Vorbereiten(Programm& prg, BenchPlattform& bp) {
    // No settings file yet: the start opens the assistant.
    Main(prg);
    Form2Fenster& assistent = prg.Form2();
    assistent.Command2_Click(0);  // "Alle Werte des Systems übernehmen"
    assistent.Command3_Click();   // "Fertig"; the question after it is answered "Nein"
    prg.Aufräumen();

    AlarmFenster& alarm = prg.Alarm();
    std::vector<int> boxen(std::begin(kOrdnerOptionen), std::end(kOrdnerOptionen));
    for (const WächterZeile& z : Wächtertabelle()) boxen.push_back(z.box);
    for (int box : boxen) {
        // The assistant sets box 19 from code, which loads no baseline: the click does,
        // as the next start's settings would.
        if (alarm.Box1[static_cast<std::size_t>(box)].value() == 1 && box != 19 && box != 20) continue;
        alarm.Box1[static_cast<std::size_t>(box)].setValue(1);
        alarm.Box1_Click(box);
    }
    // The cycles are run by hand from here on: a tick that came during a walk's yields
    // would start a cycle inside the one being timed.
    alarm.Timer1.SetInterval(24 * 3600 * 1000);
    // The long walks first stand aside: at ten times the entries every accepted warning
    // would otherwise cost a whole cycle of them. They run in the last rounds.
    const int lang[] = {4, 19, 20, 28};
    for (int box : lang) alarm.Box1[static_cast<std::size_t>(box)].setValue(0);
    int n = AllesÜbernehmen(prg, 5000);
    for (int box : lang) alarm.Box1[static_cast<std::size_t>(box)].setValue(1);
    n += AllesÜbernehmen(prg);
    // The boxes set from code are stored as a click would store them.
    prg.EinstellungenSpeichern();
    // An accepted ActiveX object lasts for the run only; the panel's writer of the list
    // keeps it for the program started later from this folder.
    ListeSchreiben(prg.p, prg.Programmordner, "daten\\Activex.txt", alarm.List6.Items);
    std::printf("prepared: %d warnings accepted; %zu questions answered \"Nein\"\n", n, bp.dialoge.gefragt.size());
    return n;
}

}  // namespace kes::bench
