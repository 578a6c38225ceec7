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
      winsock(k, kWinsockOrte, ListView20),
      shellErweiterungen(k, kShellErweiterungenOrte, ListView21),
      ieToolbar(k, kIEToolbarOrte, ListView22),
      browsereinstellungen(k, kBrowsereinstellungenOrte, ListView24),
      weitereSperren(k, kWeitereSperrenOrte, ListView25),
      dateitypen(k, kDateitypenOrte, ListView26),
      dienstpfade(k, kDienstpfadeOrte, ListView27),
      geplanteAufgaben(k, ListView23),
      änderungen(k.P(), Wächtertabelle().size()),
      k_(k) {
    ListView1.Columns = {"Wert"};
    std::vector<ListView*> zeilenlisten = {&ListView23};
    for (RegistryOrte* w : RegistryOrteAlle()) zeilenlisten.push_back(&w->liste);
    for (ListView* l : zeilenlisten) {
        l->Columns = {"Eintrag"};
        l->ColumnWidths = {600};  // a line is long; the list scrolls sideways
    }
}

std::array<RegistryOrte*, 13> AlarmDaten::RegistryOrteAlle() {
    return {&winlogon,       &appInit,    &imageFileExecution, &policiesRun, &activeSetup,
            &bootSicherheit, &winsock,    &shellErweiterungen, &ieToolbar,   &browsereinstellungen,
            &weitereSperren, &dateitypen, &dienstpfade};
}

std::vector<AlarmDaten::ListeMitDatei> AlarmDaten::ListenMitDatei() {
    std::vector<ListeMitDatei> listen;
    for (const WächterZeile& z : Wächtertabelle())
        for (const Listenmenü& m : z.listen)
            if (m.menü) listen.push_back({&m.datei(*this), m.laden});
    return listen;
}

RegistryOrte* AlarmDaten::RegistryOrteVon(Kategorie kategorie) {
    for (RegistryOrte* w : RegistryOrteAlle())
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
