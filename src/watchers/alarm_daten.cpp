#include "watchers/alarm_daten.h"

#include "common/pumpenfrei.h"

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
      windowsDateien(k, ListView4, ListView7, ListView5, List5),
      klassenlisten(k, ListView8, ListView9, ListView10, List9, ww),
      activeX(k, List6, List7),
      dienste(k, ListView11, List10, ww),
      sperren(k),
      shellBefehle(k, Text5),
      vertrauenswürdigeSeiten(k, ListView12),
      k_(k) {
    ListView1.Columns = {"Wert"};
}

std::vector<AlarmDaten::ListeMitDatei> AlarmDaten::ListenMitDatei() {
    using A = AlarmDaten;
    return {
        {&prozesse.basis, [](A& a) { a.prozesse.LadeProzesse(); }},
        {&prozesse.firmen, [](A& a) { a.prozesse.LadeProzessFirmen(); }},
        {&favoriten.basis, [](A& a) { a.favoriten.LadeFavoriten(); }},
        {&dfü.basis, [](A& a) { a.dfü.LadeDFÜ(); }},
        {&autostartOrdner.basis, [](A& a) { a.autostartOrdner.LadeAutostart(); }},
        {&autostartRegistry.basis, [](A& a) { a.autostartRegistry.LadeAutostartregistry(); }},
        {&windowsDateien.ausnahmen, [](A& a) { a.windowsDateien.LadeWindowsausnahme(); }},
        {&klassenlisten.bho, [](A& a) { a.klassenlisten.LadeBHO(); }},
        {&klassenlisten.shellService, [](A& a) { a.klassenlisten.LadeShellService(); }},
        {&klassenlisten.taskScheduler, [](A& a) { a.klassenlisten.LadeSharedTaskScheduler(); }},
        {&klassenlisten.urlSearchHooks, [](A& a) { a.klassenlisten.LadeURLSearchHook(); }},
        {&activeX.basis, [](A& a) { a.activeX.LadeActiveX(); }},
        {&dienste.basis, [](A& a) { a.dienste.LadeDienste(); }},
        {&dienste.firmen, [](A& a) { a.dienste.LadeDiensteHersteller(); }},
        {&vertrauenswürdigeSeiten.basis, [](A& a) { a.vertrauenswürdigeSeiten.LadeToolbar(); }},
    };
}

bool AlarmDaten::Später(const std::string& schlüssel) const {
    const Pumpenfrei frei;  // asked live, in the middle of the rows' loops
    for (const auto& eintrag : List8.Items)
        if (eintrag == schlüssel) return true;
    return false;
}

}  // namespace kes
