// What one cycle of the system folder watcher costs on the real API, against the folder
// walk alone: the usual cycle (equal counts, nothing searched), a cycle with one new file
// and one with one missing file (the searches run). The warning is counted, not shown.
// Prints figures; asserts nothing. Usage: systemordner_bench [rounds]
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "platform/alledateien.h"
#include "platform/prozesse1.h"
#include "platform/win32/echte_plattform.h"
#include "watchers/systemordner.h"

namespace {
using namespace kes;

// The watcher's context without a program around it: boxes 16 and 17 on, nothing deferred.
class BenchKontext : public WächterKontext {
public:
    explicit BenchKontext(Plattform& p) : p_(p), tabelle_(p) {}
    Plattform& P() override { return p_; }
    Prozesswerte& W() override { return w_; }
    std::int16_t Box(int index) override { return index == 16 || index == 17 ? 1 : 0; }
    bool Später(const std::string&) override { return false; }
    void Warnen(Kategorie, const std::function<void(Warnung&)>&, Ton) override { ++warnungen; }
    void Sprechblase(const std::string&, const std::string&, const std::string&, const std::string&) override {}
    void Log(const std::string&, const std::vector<std::string>&, const std::string&) override {}
    Prozesse1& Prozesstabelle() override { return tabelle_; }
    int warnungen = 0;

private:
    Plattform& p_;
    Prozesswerte w_;
    Prozesse1 tabelle_;
};

template <typename F>
void Messen(const char* name, int runden, F schritt) {
    std::vector<double> ms;
    std::size_t anzahl = 0;
    for (int i = 0; i < runden; ++i) {
        const auto start = std::chrono::steady_clock::now();
        anzahl = schritt();
        ms.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    const double erste = ms.front();
    std::sort(ms.begin(), ms.end());
    std::printf("%-44s %6zu entries   first %8.2f ms   min %8.2f ms   median %8.2f ms\n", name, anzahl, erste,
                ms.front(), ms[ms.size() / 2]);
}
}  // namespace

int main(int argc, char** argv) {
    const int runden = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20;
    win32::EchtePlattform echt;
    Plattform& p = echt.plattform;
    BenchKontext k(p);
    k.W().Systemordner = SystemVerzeichnis(p);
    ListView basis, jetzt, windows, wow64;
    ListBox ausnahmen;
    WindowsDateien w(k, windows, basis, wow64, jetzt, ausnahmen);
    w.LadeWindowsSys32();
    const ListItem letzte = basis.Items.back();
    std::printf("%d rounds each, %zu files in %s\n", runden, basis.Items.size(), k.W().Systemordner.c_str());

    // What the watcher's yields cost: one per row filled and one per row searched.
    Messen("yields with nothing pending, one per file", runden, [&] {
        for (std::size_t i = 0; i < basis.Items.size(); ++i) p.timers.PumpMessages();
        return basis.Items.size();
    });
    Messen("raw walk (FindFirstFileA, nothing kept)", runden, [&] {
        WIN32_FIND_DATAA fd;
        std::size_t n = 0;
        const HANDLE h = ::FindFirstFileA((k.W().Systemordner + "\\*.*").c_str(), &fd);
        if (h == INVALID_HANDLE_VALUE) return n;
        do n += !(fd.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
        while (::FindNextFileA(h, &fd));
        ::FindClose(h);
        return n;
    });
    Messen("walk alone (DateienSuchen *.*)", runden, [&] {
        std::vector<DateiEintrag> records;
        DateienSuchen(p, k.W().Systemordner, false, "*.*", records);
        return records.size();
    });
    Messen("cycle, equal counts (snapshot with lengths)", runden, [&] {
        w.TesteWindowsSystem32Gelöscht();
        w.TesteWindowsSystem32Erstellt();
        return jetzt.Items.size();
    });
    basis.Items.pop_back();  // the last file counts as new
    Messen("cycle, one new file (search)", runden, [&] {
        w.TesteWindowsSystem32Gelöscht();
        w.TesteWindowsSystem32Erstellt();
        return basis.Items.size();
    });
    basis.Items.push_back(letzte);
    basis.Items.insert(basis.Items.begin(), ListItem{k.W().Systemordner + "\\gibt-es-nicht.dll", false, {"1"}, {}, 0});
    Messen("cycle, one missing file (search)", runden, [&] {
        w.TesteWindowsSystem32Gelöscht();
        w.TesteWindowsSystem32Erstellt();
        return basis.Items.size();
    });
    std::printf("warnings raised: %d (one per searching round)\n", k.warnungen);
    return 0;
}
