// The whole program in the benchmark's process, on the real registry, files, processes and
// message pump, with its program folder put where the benchmark says. Only what would
// speak to the person at the machine stays quiet: message boxes answer "Nein" and are
// counted, sounds and the tray icon do nothing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/programm.h"
#include "platform/win32/echte_plattform.h"

namespace kes::bench {

class StilleDialoge : public DialogApi {
public:
    int ShowMessage(const std::string& text, const std::string& title, int flags) override;
    std::vector<std::string> gefragt;
};

class StillerTon : public SoundApi {
public:
    bool PlayResource(const std::string&, unsigned) override { return true; }
};

class StillesTray : public TrayApi {
public:
    bool Notify(int, const TrayRecord&) override { return true; }
};

// The real system seam with the program file placed in the program folder of the bench.
class BenchSystem : public win32::Win32System {
public:
    explicit BenchSystem(std::string programmdatei) : datei_(std::move(programmdatei)) {}
    std::string ExecutablePath() override { return datei_; }
    std::string CommandLine() override { return ""; }
    // The real program started beside the bench holds the instance mutex too.
    bool PreviousInstance() override { return false; }

private:
    std::string datei_;
};

struct BenchPlattform {
    explicit BenchPlattform(const std::string& programmordner);
    win32::EchtePlattform echt;
    StilleDialoge dialoge;
    StillerTon ton;
    StillesTray tray;
    BenchSystem system;
    Plattform plattform;
};

// The options of the folder watchers besides their own boxes: warn of created and of
// deleted files.
inline constexpr int kOrdnerOptionen[] = {16, 17};

// Makes the program folder what "Alle Werte des Systems übernehmen" leaves, then turns
// every watcher box on through the panel's own click handler and accepts every warning
// the cycles raise until two cycles in a row stay silent. Returns the number of warnings
// accepted; the categories that could not be accepted are printed.
int Vorbereiten(Programm& prg, BenchPlattform& bp);

// Runs cycles and accepts what they raise until two in a row stay silent; returns the
// number of warnings accepted. For processes that started after the baseline was taken.
int AllesÜbernehmen(Programm& prg, int höchstens = 400);

}  // namespace kes::bench
