// kestrella-dat's commands on a program folder: the journal shown, and a backup put back
// by the number of its journal line. They take the platform and the output streams, so the
// same code runs on the real machine and on the fakes.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes::werkzeug {

struct JournalAufruf {
    std::string ordner;  // the program folder, ending in a separator
    std::string seit;    // "": every line
    bool json = false;
};

struct RestoreAufruf {
    std::string ordner;
    std::int64_t id = 0;
    bool erzwingen = false;
};

using Aufruf = std::variant<JournalAufruf, RestoreAufruf>;

// The arguments after the program's name, for "journal" and "restore"; the German reason
// when they do not fit. nullopt for another command.
struct Fehlaufruf {
    std::string grund;
};
std::optional<std::variant<Aufruf, Fehlaufruf>> AufrufLesen(const std::vector<std::string>& argumente);

// Where a command writes. The texts of the journal and the messages are in the program's
// code page; a UTF-8 terminal (the native build's) gets them converted. Lines of --json go
// out as the file holds them, UTF-8 on every system.
struct Ausgaben {
    std::ostream& aus;
    std::ostream& fehler;
    bool utf8 = false;
};

// The exit codes: 0 done, 1 the command could not do its work, 2 a call that does not fit.
inline constexpr int kErledigt = 0, kFehlgeschlagen = 1, kFalscherAufruf = 2;

int JournalZeigen(FileApi& files, const JournalAufruf& a, Ausgaben& o);
int Zurückholen(Plattform& p, const RestoreAufruf& a, Ausgaben& o);


// Runs the command on this machine: the real platform on Windows; the native build only
// reads files and answers "restore" with kFalscherAufruf.
int AufDiesemSystem(const Aufruf& a, Ausgaben& o);

}  // namespace kes::werkzeug
