// The lists of the control panel as the user manages them: each shows one baseline or
// exception list, opens its context menu on a mouse release, and deletes what the user
// chose there. Entries only ever come in through the warning window and the assistant; a
// deleted entry is simply no longer known, so the next watch cycle may warn of it again.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "panel/panel_kontext.h"
#include "watchers/alarm_daten.h"

namespace kes {

// The panel's lists that have a context menu, by their control names.
enum class Ausnahmeliste {
    List1,
    ListView6,
    List4,
    ListView2,
    List3,
    ListView1,
    List5,
    List8,
    ListView8,
    List6,
    ListView9,
    ListView10,
    List9,
    List10,
    ListView11,
    ListView12,
};
inline constexpr int kAusnahmelistenAnzahl = static_cast<int>(Ausnahmeliste::ListView12) + 1;

// A context menu of a list, hidden at the top level of the window.
struct ListenMenü {
    std::string Name;
    std::vector<MenuItem> Einträge;
};

class Ausnahmelisten {
public:
    // FENSTER is the panel that shows the lists: the parent of the dial-up entry editor.
    Ausnahmelisten(PanelKontext& k, AlarmDaten& a, const Fenster& fenster);

    ListenMenü& Menü(Ausnahmeliste liste) { return menüs_[static_cast<std::size_t>(liste)]; }

    // A mouse button released over the list (which button does not matter): in a list with
    // items, the deleting entry gets its caption and the view is asked to open the menu.
    void MausLos(Ausnahmeliste liste);
    // The view pops this list's menu up near the list once and clears it.
    std::optional<Ausnahmeliste> Popup;

    // The user chose entry index of the list's menu.
    void MenüKlick(Ausnahmeliste liste, int index);

private:
    // The text between the quotes of the caption.
    std::string GezeigterText(Ausnahmeliste liste) const;
    // ww(19): the count of the service baseline.
    void DiensteZählen();
    // A routine whose errors are not caught ends with a message naming it, never a crash.
    void Fehlermeldung(const std::string& routine, int nummer);

    PanelKontext& k_;
    AlarmDaten& a_;
    const Fenster& fenster_;
    std::array<ListenMenü, kAusnahmelistenAnzahl> menüs_;
};

}  // namespace kes
