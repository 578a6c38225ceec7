#include "watchers/alarm_daten.h"

#include "common/pumpenfrei.h"
#include "watchers/waechter.h"

namespace kes {

AlarmDaten::AlarmDaten(WächterKontext& k)
    : Timer1(k.P().timers, kTimerAlarm1, 5000),
      prozesse(k, ListView6, List1, List2),
      favoriten(k, List4, Label2, File1),
      startSeite(k, ListView3),
      dfü(k, ListView2),
      autostartOrdner(k, List3, Label2, File1),
      autostartRegistry(k, ListView1, ListView33),
      hosts(k),
      windowsDateien(k, ListView4, ListView7, ListView13, ListView5, List5),
      klassenlisten(k, ListView8, ListView9, ListView10, List9, ww),
      activeX(k, List6, List7),
      dienste(k, ListView11, List10, ww),
      sperren(k),
      shellBefehle(k, Text5),
      vertrauenswürdigeSeiten(k, ListView12),
      winlogon(k, kWinlogonOrte, ListView14),
      appInit(k, kAppInitOrte, ListView15),
      imageFileExecution(k, kImageFileExecutionOrte, ListView16),
      policiesRun(k, kPoliciesRunOrte, ListView17),
      activeSetup(k, kActiveSetupOrte, ListView18),
      bootSicherheit(k, kBootSicherheitOrte, ListView19),
      geplanteAufgaben(k, ListView23),
      änderungen(k.P(), Wächtertabelle().size()),
      k_(k) {
    ListView1.Columns = {"Wert"};
    for (ListView* l : {&ListView14, &ListView15, &ListView16, &ListView17, &ListView18, &ListView19, &ListView23}) {
        l->Columns = {"Eintrag"};
        l->ColumnWidths = {600};  // a line is long; the list scrolls sideways
    }
}

std::vector<AlarmDaten::ListeMitDatei> AlarmDaten::ListenMitDatei() {
    std::vector<ListeMitDatei> listen;
    for (const WächterZeile& z : Wächtertabelle())
        for (const Listenmenü& m : z.listen)
            if (m.menü) listen.push_back({&m.datei(*this), m.laden});
    return listen;
}

RegistryOrte* AlarmDaten::RegistryOrteVon(Kategorie kategorie) {
    for (RegistryOrte* w : {&winlogon, &appInit, &imageFileExecution, &policiesRun, &activeSetup, &bootSicherheit})
        if (w->beschreibung.kategorie == kategorie) return w;
    return nullptr;
}

bool AlarmDaten::Später(const std::string& schlüssel) const {
    const Pumpenfrei frei;  // asked live, in the middle of the rows' loops
    for (const auto& eintrag : List8.Items)
        if (eintrag == schlüssel) return true;
    return false;
}

}  // namespace kes
