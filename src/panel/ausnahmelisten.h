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
#include "watchers/listenmenue.h"

namespace kes {

// A context menu of a list, hidden at the top level of the window.
struct ListenMenü {
    std::string Name;
    std::vector<MenuItem> Einträge;
};

class Ausnahmelisten : private ListenPanel {
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

    // The list whose menu a list of Alarm has, if it has one: the view binds the lists it
    // shows to their menus by this, from the rows that own them.
    std::optional<Ausnahmeliste> ListeVon(const ListBox& kasten) const;
    std::optional<Ausnahmeliste> ListeVon(const ListView& ansicht) const;

private:
    // The menu's captions and what its choices do: from the watcher that owns the list, or
    // the panel's own for the deferred list.
    const Listenmenü& Art(Ausnahmeliste liste) const;
    void Fehlermeldung(const std::string& routine, int nummer) override;
    std::uintptr_t Fensterhandle() const override;
    Plattform& P() override;

    PanelKontext& k_;
    AlarmDaten& a_;
    const Fenster& fenster_;
    std::array<ListenMenü, kAusnahmelistenAnzahl> menüs_;
};

}  // namespace kes
