// An answer in the warning window, for the journal: what the window showed and which
// button or menu entry was taken, with the backup of what the action removed. Taken from
// the window before the action runs, since the action may close it, and written when the
// action is over, unless its backup failed and it removed nothing.
#pragma once

#include <string>

#include "platform/journal.h"
#include "platform/sicherung.h"
#include "watchers/warnung.h"

namespace kes {

class Form3Fenster;
class WarnKontext;

// The journal line of the window as it stands (event, category, target, headline and rows).
JournalEintrag Journalzeile(Form3Fenster& f, const std::string& ereignis, const std::string& aktion);

class Antwort {
public:
    Antwort(Form3Fenster& f, const std::string& aktion);
    ~Antwort();
    Antwort(const Antwort&) = delete;
    Antwort& operator=(const Antwort&) = delete;

private:
    friend void Sichern(Form3Fenster& f, Sicherung& s);
    Form3Fenster& f_;
    Plattform& p_;
    std::string programmordner_;
    JournalEintrag eintrag_;
    bool abgebrochen_ = false;
};

// Thrown by Sichern when the backup could not be written: the user has been told, nothing
// is removed, and the window stays for another answer.
struct SicherungFehlt {};

// An empty backup for an action of the window.
Sicherung SicherungFür(Form3Fenster& f);

// Writes the backup of what the running answer's action is about to remove and notes its
// name on the answer; throws SicherungFehlt when it could not be written.
void Sichern(Form3Fenster& f, Sicherung& s);

}  // namespace kes
