#include "core/einstellungen.h"

#include <string>

#include "assistant/form2.h"
#include "common/eigene_orte.h"
#include "common/fehler.h"
#include "core/logdatei.h"
#include "core/programm.h"
#include "core/property_bag.h"
#include "core/start.h"
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"
#include "watchers/startseite.h"
#include "watchers/startseiten_tabelle.h"

namespace kes {

namespace {
template <typename T>
T Lies(const PropertyBag& bag, const std::string& name, T standard) {
    return std::get<T>(bag.ReadProperty(name, BagWert(standard)));
}

bool GibtEsDatei(FileApi& files, const std::string& pfad) {
    FindData fd;
    return static_cast<bool>(files.FindFirst(pfad, &fd));
}
}  // namespace

void Properties_Load(Programm& prg) {
    const std::string pfad = prg.Programmordner + kEinstellungsdatei;
    try {
        if (!GibtEsDatei(prg.p.files, pfad)) {
            prg.Intervallstufe = 5;
            prg.Form2().Show();
            return;
        }
        const auto inhalt = prg.p.files.ReadAll(pfad);
        if (!inhalt) throw Fehler(kFehlerDateizugriff, "Pfad/Datei-Zugriffsfehler");
        const PropertyBag bag = PropertyBag::AusInhalt(*inhalt);

        prg.Hostsgrösse = Lies<std::int32_t>(bag, "hostsgrösse", 0);
        prg.Intervallstufe = Lies<std::int16_t>(bag, "Aufab1", 5);
        for (std::size_t i = 0; i < prg.StartSeiten.size(); ++i)
            prg.StartSeiten[i] = Lies<std::string>(bag, "InternetStartPage" + std::to_string(i), "");
        // A file of before the 32-bit rows: what stands there now is what the user had.
        if (!bag.Finde("InternetStartPage" + std::to_string(kErsterSlot32))) Holestartpage32(prg.p, prg);
        // Box 0 is never stored: it mirrors the Run value.
        for (int i = 1; i < kBoxAnzahl; ++i) {
            const auto wert = Lies<std::int16_t>(bag, "box" + std::to_string(i), 0);
            // The first touch loads Alarm with all its loaders, before any box has its value.
            prg.Alarm().Box1[i].setValue(wert);
        }
        prg.AnzeigeLöschen = Lies<bool>(bag, "AnzeigeLöschen", false);
        prg.Sofort = Lies<bool>(bag, "Sofort", true);
        prg.Alarm().Sofort.setValue(prg.Sofort ? 1 : 0);

        AlarmFenster& alarm = prg.Alarm();
        if (alarm.Box1[19].value() == 1) alarm.windowsDateien.LadeWindows();
        if (alarm.Box1[20].value() == 1) alarm.windowsDateien.LadeWindowsSys32();
        if (alarm.Box1[32].value() == 1) alarm.windowsDateien.LadeWindowsSysWow64();

        alarm.Timer1.SetEnabled(true);
        if (prg.Intervallstufe == 0) prg.Intervallstufe = 5;
        // The change of the text runs the stage handler, which saves the settings.
        alarm.AufAb1.SetText(std::to_string(prg.Intervallstufe));
        alarm.Timer1.SetInterval(IntervallAusStufe(prg.Intervallstufe));

        StartFenster& start = prg.Start();
        if (alarm.Timer1.Enabled()) {
            start.fox1[2].Checked = true;
            start.fox1[2].Caption = "Überwachung ist Aktiv";
            start.Aktiviert();
        } else {
            start.fox1[2].Checked = false;
            start.fox1[2].Caption = "Überwachung ist Deaktiviert";
            start.NichtAktiviert();
        }
        prg.Soundflag = alarm.Box1[1].value();
        LogVorbereiten(prg);
    } catch (const Fehler& f) {
        prg.p.dialogs.ShowMessage("(Modul Starten, Properties_Load) Fehler: " + std::to_string(f.Nummer()), "", kMbOk);
    } catch (const std::exception&) {
        prg.p.dialogs.ShowMessage("(Modul Starten, Properties_Load) Fehler: 5", "", kMbOk);
    }
}

void Properties_Save(Programm& prg) {
    PropertyBag bag;
    bag.WriteProperty("hostsgrösse", prg.Hostsgrösse, std::int32_t{0});
    bag.WriteProperty("Aufab1", prg.Intervallstufe, std::int16_t{5});
    bag.WriteProperty("AnzeigeLöschen", prg.AnzeigeLöschen, false);
    bag.WriteProperty("Sofort", prg.Sofort, true);
    // The writer's default for the pages is the number 0, never equal to a text: all go in.
    for (std::size_t i = 0; i < prg.StartSeiten.size(); ++i)
        bag.WriteProperty("InternetStartPage" + std::to_string(i), prg.StartSeiten[i], std::int16_t{0});
    for (int i = 1; i < kBoxAnzahl; ++i)
        bag.WriteProperty("Box" + std::to_string(i), prg.Alarm().Box1[i].value(), std::int16_t{0});

    // Errors are passed over. The old file stays until the new one is complete: without it
    // the next start would be a first run and every option lost.
    DateiErsetzen(prg.p.files, prg.Programmordner + kEinstellungsdatei, bag.Contents());
}

}  // namespace kes
