// The settings file: any bytes as kestrella.dat. The bag either reads them or says why not
// (62 cut short, 321 no settings block, 13 a value of the wrong type); what it reads it
// writes back to the same bytes; and a start on a file it cannot take shows the message
// and leaves the file as it was.
#include <fuzzer/FuzzedDataProvider.h>

#include "common/fehler.h"
#include "core/starten.h"
#include "feindlich.h"
#include "pruefen.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
const char* const kNamen[] = {"hostsgrösse",         "Aufab1", "AnzeigeLöschen", "InternetStartPage0",
                              "InternetStartPage20", "box1",   "Box31",          "BOX15"};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string inhalt(reinterpret_cast<const char*>(data), size);
    bool lesbar = true;
    try {
        const PropertyBag bag = PropertyBag::AusInhalt(inhalt);
        const std::string wieder = bag.Contents();
        Prüfen(PropertyBag::AusInhalt(wieder).Contents() == wieder, "a bag read back gives other bytes");
        for (const char* name : kNamen)
            for (const BagWert& standard :
                 {BagWert(std::int16_t{5}), BagWert(std::int32_t{0}), BagWert(std::string()), BagWert(false)}) {
                try {
                    bag.ReadProperty(name, standard);
                } catch (const Fehler& f) {
                    Prüfen(f.Nummer() == 13 || f.Nummer() == 6, "a read fails with another number");
                }
            }
    } catch (const Fehler& f) {
        lesbar = false;
        Prüfen(f.Nummer() == kFehlerDateiende || f.Nummer() == kFehlerDateiformat,
               "a damaged block gives another number");
    }

    // The start on this file.
    fake::FakePlattform fp;
    Programm prg{fp.plattform};
    const std::string pfad = "C:\\Programme\\Kestrella\\kestrella.dat";
    fp.files.Put(pfad, inhalt);
    Main(prg);
    bool gemeldet = false;
    for (const auto& m : fp.dialogs.meldungen)
        if (m.text.rfind("(Modul Starten, Properties_Load) Fehler: ", 0) == 0) gemeldet = true;
    if (!lesbar) {
        Prüfen(gemeldet, "a damaged file passes without a message");
        Prüfen(fp.files.Content(pfad) == inhalt, "a damaged file was changed");
    }
    if (gemeldet) Prüfen(fp.files.Exists(pfad), "the settings file is gone after a failed start");
    return 0;
}
