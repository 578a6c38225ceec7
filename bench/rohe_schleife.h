// The floor a watch cycle is measured against: the same registry keys, folders and
// process and module snapshots that the watchers look at, listed by the plainest loop the
// Win32 API allows, with no compare, no yield to the message loop and no copy kept beyond
// a count. One function per row of the watcher table, so each watcher has its own floor.
// Where a watcher cannot tell without it (whether a service starts by itself), the raw
// loop reads the one value that tells.
#pragma once

#include <cstddef>
#include <string>

#include "watchers/aenderungsquellen.h"

namespace kes::bench {

// Where the folders lie; the registry places are fixed.
struct RohOrte {
    std::string windows;      // the Windows folder, no trailing "\"
    std::string system;       // the system folder, no trailing "\"
    std::string favoriten;    // the favourites folder
    std::string startup;      // the user's autostart folder
    std::string startupAlle;  // the autostart folder of all users
};

// Each returns the number of entries it saw, so that the work cannot be left out.
// The one of a watcher by its box; a box that runs no watcher sees nothing.
std::size_t Roh(int box, const RohOrte& o);
// The floor of a row that names its change places and has no function of its own above:
// each key's values (and, where the row reads below it, every key under it with its
// values), each folder's top level.
std::size_t RohDerOrte(const Änderungsorte& orte);
std::size_t RohProzesse();
std::size_t RohFavoriten(const RohOrte& o);
std::size_t RohStartseiten();
std::size_t RohDfue();
std::size_t RohAutostartOrdner(const RohOrte& o);
std::size_t RohAutostartRegistry();
std::size_t RohOnline();
std::size_t RohHosts(const RohOrte& o);
std::size_t RohWindowsOrdner(const RohOrte& o);
std::size_t RohSystemOrdner(const RohOrte& o);
std::size_t RohActiveX(const RohOrte& o);
std::size_t RohBHO();
std::size_t RohShellService();
std::size_t RohTaskScheduler();
std::size_t RohURLSearchHooks();
std::size_t RohRegeditSperre();
std::size_t RohTaskmanagerSperre();
std::size_t RohDienste();
std::size_t RohVertrauenswuerdigeSeiten();
std::size_t RohShellBefehle();

// What the watchers' own rules add to the floor, listed just as plainly: the length of
// each file read anew through a handle (the folder lists' second column), and each
// module's path asked of its process, opened once, with the version block of each
// program file (the process watcher's maker).
std::size_t RohOrdnerMitLängen(const std::string& ordner);
std::size_t RohProzesseMitPfaden();

}  // namespace kes::bench
