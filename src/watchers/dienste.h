// New services that start automatically. A service is known by its name (daten\dienste.ini,
// whose keys ObjectName and DisplayName hold each other's content, in every reader and
// writer), and excepted when the maker of its file is trusted (daten\dienstefirmen.txt,
// compared without regard to case). A deferred service is known by its file, so all
// services of one shared host file are deferred together.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "common/steuerelemente.h"
#include "platform/infos.h"
#include "platform/versionsgedaechtnis.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;

inline constexpr const char* kDiensteDatei = "daten\\dienste.ini";
inline constexpr const char* kDiensteFirmenDatei = "daten\\dienstefirmen.txt";

class Dienste {
public:
    Dienste(WächterKontext& k, ListView& ListView11, ListBox& List10, std::array<Label, 35>& ww);

    void LadeDienste();
    void LadeDiensteHersteller();
    void TesteDienste();

    ListView& ListView11;  // the known services
    ListBox& List10;       // the trusted makers
    std::array<Label, 35>& ww;
    Grundliste basis;   // ListView11: a section per service
    Grundliste firmen;  // List10

    // The keys the row reads: the services' key with everything below it.
    static Änderungsorte Orte();

private:
    // What the registry says of one service, as far as the walk needed to read it.
    struct Werte {
        bool bild = false;   // has an ImagePath
        bool start = false;  // has a Start value
        std::string startwert, objectName, displayName, imagePath, serviceDll, beschreibung;
    };
    const Werte& Lesen(const std::string& name);

    WächterKontext& k_;
    DateiVersion infos_;  // one record, filled anew for each entry
    // The last walk's list of services and what it read of them, kept while the services'
    // key has not changed: the lists of the user are still compared at every tick.
    std::optional<std::vector<std::string>> liste_;
    std::unordered_map<std::string, Werte> werte_;
    VersionsGedächtnis versionen_;
};

// The first service baseline, when the assistant takes the machine as it stands: every
// service that starts by itself, written to daten\dienste.ini; no such service, no file.
void holedienste(WächterKontext& k);

// The menus of the trusted makers (List10): 0 all of them, 1 the selected one; and of the
// known services (ListView11): 0 the selected ones with their sections, 1 all of them.
void dienst22_Click(AlarmDaten& a, ListenPanel& panel, int index);
void dienst1_Click(AlarmDaten& a, ListenPanel& panel, int index);

}  // namespace kes
