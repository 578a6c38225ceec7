// "Übernehmen": the accept action of the warning window. Each category makes what was
// warned of part of its baseline: the list of Alarm, then its file written anew, then the
// log entry, then raus. The branches lie with their watcher's warning.
#include "warning/uebernehmen.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "warning/form3.h"
#include "warning/kategorien.h"

namespace kes {

namespace übernehmen {

std::int64_t DateiLänge(Form3Fenster& f, const std::string& pfad) {
    const auto länge = f.K().P().files.Length(pfad);
    if (!länge) throw Fehler(53, "Datei nicht gefunden");
    return *länge;
}

const ListItem& ErsteRegistryzeile(const Form3Fenster& f) {
    static const ListItem leer;
    return f.ListView4.Items.empty() ? leer : f.ListView4.Items[0];
}

}  // namespace übernehmen

void Form3Fenster::Image1_Click() {
    // A failure outside the passed-over steps ends the action with its number; the
    // warning stays open.
    try {
        const Übernahme branch = Zeile(k_.W().Kategorieschlüssel).übernehmen;
        if (!branch || branch(*this)) raus();
    } catch (const Fehler& f) {
        k_.P().dialogs.ShowMessage("(Form3, Übernehmen) Fehler: " + std::to_string(f.Nummer()), "", kMbOk);
    } catch (const std::exception&) {
        k_.P().dialogs.ShowMessage("(Form3, Übernehmen) Fehler: 5", "", kMbOk);
    }
}

}  // namespace kes
