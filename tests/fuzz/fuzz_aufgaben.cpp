// Task files as the scheduler's folders may hold them: any bytes under any name Windows
// allows, read as XML and as the .job format, locked or gone before the read. Neither
// parser fails, and what they give is one line of the baseline (no control character, no
// blank at either end). The watcher warns of the new file by its path; an accepted task
// is known from then on, also once its baseline is read back from the file, whose lines
// are the list's.
#include "feindlich.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "platform/aufgabendatei.h"
#include "pruefen.h"
#include "warning/form3.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
const std::string kNeu = "C:\\WINDOWS\\system32\\Tasks";
const std::string kAlt = "C:\\WINDOWS\\Tasks";

void Einzeilig(const std::string& befehl) {
    for (char c : befehl) Prüfen(static_cast<unsigned char>(c) >= 0x20 && c != '\x7F', "a control character");
    Prüfen(befehl.empty() || (befehl.front() != ' ' && befehl.back() != ' '), "a blank at an end");
}

// A name Windows would create: none of its forbidden characters, no blank or dot at the end.
std::string Dateiname(std::string name) {
    for (char& c : name)
        if (static_cast<unsigned char>(c) < 0x20 || std::string("\\/:*?\"<>|").find(c) != std::string::npos) c = '_';
    while (!name.empty() && (name.back() == ' ' || name.back() == '.')) name.pop_back();
    return name.empty() || name == "." ? "a" : name;
}

std::vector<std::string> Zeilen(const ListView& l) {
    std::vector<std::string> z;
    for (const ListItem& i : l.Items) z.push_back(i.Text);
    return z;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider d(data, size);
    const int art = d.ConsumeIntegralInRange(0, 3);  // XML, .job, locked, gone before the read
    const bool job = art == 1;
    const std::string pfad =
        (job ? kAlt : kNeu + "\\Unter") + "\\" + Dateiname(d.ConsumeRandomLengthString(40)) + (job ? ".job" : "");
    const std::string inhalt = d.ConsumeRandomLengthString(8000);
    Einzeilig(AufgabenbefehlXml(inhalt));
    Einzeilig(AufgabenbefehlJob(inhalt));

    fuzz::FuzzProgramm f(1ull << 42, {}, [&](fuzz::FuzzProgramm& f) {
        f.dateien.MakeDirs(kNeu);
        f.dateien.MakeDirectory(kNeu + "\\Unter");  // MakeDirs would name it in lower case
        f.dateien.MakeDirs(kAlt);
    });
    f.Tick();
    Prüfen(!f.prg.Form3Geladen(), "the first pass warned instead of taking the tasks");
    f.dateien.Put(pfad, inhalt);
    if (art == 2) f.dateien.Lock(pfad);
    if (art == 3) f.fp.timers.beimPumpen.push_back([&] { f.dateien.Delete(pfad); });

    GeplanteAufgaben& w = f.prg.Alarm().geplanteAufgaben;
    for (int runde = 0; runde < 3 && d.remaining_bytes() > 0; ++runde) {
        f.Tick();
        if (!f.prg.Form3Geladen()) continue;
        Prüfen(art != 3, "a task gone before its read warned");
        Prüfen(f.prg.Form3().Label1[1].Caption == "Name: " + pfad, "the warning names another file");
        Einzeilig(f.prg.Form3().Text1[1].Text);
        const int wahl = d.ConsumeIntegralInRange(0, 7);
        if (!f.Antworten(wahl) || wahl != 0) continue;
        f.Tick();
        Prüfen(!f.prg.Form3Geladen(), "an accepted task warns again");
        const auto datei = f.dateien.ReadAll(f.Daten("GeplanteAufgaben.txt"));
        Prüfen(datei && ZeilenBisLeer(*datei) == Zeilen(w.liste), "the baseline's file holds other lines");
        w.Laden();
        f.Tick();
        Prüfen(!f.prg.Form3Geladen(), "an accepted task warns again once read back");
    }
    Prüfen(f.dateien.OpenFinds() == 0, "a file walk left open");
    return 0;
}
