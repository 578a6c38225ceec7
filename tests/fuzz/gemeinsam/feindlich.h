// What the fuzz targets hand the program: names and data of the lengths that matter to its
// buffers (empty, 254 to 257, 2000 bytes), with any bytes in them, NUL included; a fake
// registry filled with such names in the places the watchers look at; and a program on the
// fake platform whose settings switch every watcher on.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "core/programm.h"
#include "core/property_bag.h"
#include "fake_plattform.h"

namespace kes::fuzz {

// Bytes of a length the buffers care about, or a short one; any content.
std::string FeindlicheBytes(FuzzedDataProvider& d);
// The same, most often as a text: printable bytes, blanks, quotes and the separators the
// readers split at; sometimes with a NUL inside.
std::string FeindlicherName(FuzzedDataProvider& d);

// Fills the keys the watchers list (autostart, class lists, services, trusted sites, locks,
// open commands, browser pages) with up to anzahl hostile subkeys and values, of every
// value type and of the other types' numbers too.
void RegistryFüllen(fake::FakeRegistry& reg, FuzzedDataProvider& d, int anzahl);

// The program on the fake platform, started with a settings file that switches on what
// boxAn says (a bit per box 1..63), so Alarm is loaded with all its loaders. vorher runs
// before the start, to put baselines and settings in place.
struct FuzzProgramm {
    fake::FakePlattform fp;
    fake::FakeFiles& dateien = fp.files;
    Programm prg{fp.plattform};
    const std::string ordner = "C:\\Programme\\Kestrella\\";

    FuzzProgramm(std::uint64_t boxAn, PropertyBag bag = {}, const std::function<void(FuzzProgramm&)>& vorher = {});
    std::string Daten(const std::string& name) const { return ordner + "daten\\" + name; }
    // Lets the watch cycle tick once.
    void Tick();
    // Answers an open warning with one of its actions, chosen by wahl, and makes sure the
    // window is closed afterwards. True when the action itself closed it.
    bool Antworten(int wahl);
};

}  // namespace kes::fuzz
