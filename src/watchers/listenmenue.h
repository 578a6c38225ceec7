// The context menus of the control panel's lists: each baseline or exception list that the
// user manages has one, opened on a mouse release over the list. Its captions stand in the
// row of the watcher that owns the list; what a choice does is the watcher's own code. The
// panel only opens the menu and passes the choice on.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include "common/fehler.h"
#include "common/steuerelemente.h"
#include "platform/seam/plattform.h"

namespace kes {

class AlarmDaten;
class Grundliste;

// The panel's lists that have a context menu, by their control names: the one list, in the
// order of the enumeration, which the count follows.
// clang-format off
#define KES_AUSNAHMELISTEN(X) \
    X(List1) \
    X(ListView6) \
    X(List4) \
    X(ListView2) \
    X(List3) \
    X(ListView1) \
    X(List5) \
    X(List8) \
    X(ListView8) \
    X(List6) \
    X(ListView9) \
    X(ListView10) \
    X(List9) \
    X(List10) \
    X(ListView11) \
    X(ListView12) \
    X(ListView14) \
    X(ListView15) \
    X(ListView16) \
    X(ListView17) \
    X(ListView18) \
    X(ListView19) \
    X(ListView20) \
    X(ListView21) \
    X(ListView22) \
    X(ListView23) \
    X(ListView24) \
    X(ListView25) \
    X(ListView26) \
    X(ListView27)
// clang-format on

enum class Ausnahmeliste {
#define KES_AUSNAHMELISTE_WERT(name) name,
    KES_AUSNAHMELISTEN(KES_AUSNAHMELISTE_WERT)
#undef KES_AUSNAHMELISTE_WERT
};

#define KES_AUSNAHMELISTE_EINS(name) +1
inline constexpr int kAusnahmelistenAnzahl = 0 KES_AUSNAHMELISTEN(KES_AUSNAHMELISTE_EINS);
#undef KES_AUSNAHMELISTE_EINS

// What a choice in a list's menu may ask of the panel.
class ListenPanel {
public:
    virtual ~ListenPanel() = default;
    // The message of a routine whose errors are not caught: it stops, the program runs on.
    virtual void Fehlermeldung(const std::string& routine, int nummer) = 0;
    // The panel's window, the parent of the dial-up entry editor.
    virtual std::uintptr_t Fensterhandle() const = 0;
    virtual Plattform& P() = 0;
};

// The count label of a page whose list is a section file.
inline std::string Ausnahmenzahl(std::size_t n) {
    return "Ausnahmen:   [Einträge: " + std::to_string(n) + "]";
}

// Runs a menu choice whose errors are not caught, so that an error ends it with a message
// naming its routine instead of ending the program.
template <typename Tun>
void Gemeldet(ListenPanel& panel, const char* routine, Tun&& tun) {
    try {
        std::forward<Tun>(tun)();
    } catch (const Fehler& f) {
        panel.Fehlermeldung(routine, f.Nummer());
    } catch (const std::exception&) {
        panel.Fehlermeldung(routine, 5);
    }
}

struct Listenmenü {
    Ausnahmeliste liste{};
    // The list the menu belongs to: a list box or a list view of Alarm.
    ListBox AlarmDaten::*kasten = nullptr;
    ListView AlarmDaten::*ansicht = nullptr;
    // The list with its file, and the loader that fills the list from the file alone (a
    // file put back from a backup is read in again by it).
    Grundliste& (*datei)(AlarmDaten& a) = nullptr;
    void (*laden)(AlarmDaten& a) = nullptr;
    const char* menü = nullptr;
    // Design captions; "" where the caption is set before each opening.
    std::array<const char*, 2> einträge{};
    int löschEintrag = 0;           // the entry that deletes and gets the caption
    const char* schwanz = nullptr;  // the caption's tail behind the quoted text
    // Entry index of the menu chosen.
    void (*wahl)(AlarmDaten& a, ListenPanel& panel, int index) = nullptr;
    // The text between the caption's quotes where it is not the selected entry's text.
    std::string (*gezeigt)(const AlarmDaten& a) = nullptr;
};

}  // namespace kes
