// Fakes of the shell, the message boxes and the sounds: they record what the program asked
// for, and message boxes answer from a queue the test fills (OK when it is empty).
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "fake_reg_exe.h"
#include "platform/seam/registry_api.h"
#include "platform/seam/shell_api.h"
#include "platform/seam/tray_api.h"

namespace kes::fake {

// Runs command lines as the platform would for the one tool the program starts that
// changes anything: REG DELETE, with reg.exe's reading of its arguments (fake_reg_exe.h).
class FakeShell : public ShellApi {
public:
    explicit FakeShell(RegistryApi& registry) : registry_(registry) {}

    struct Aufruf {
        std::string kommando;
        int show;
    };
    std::vector<Aufruf> kommandos;
    std::vector<std::string> geöffnet;  // OpenWithShell: verb|file|params
    std::map<int, std::string> ordner;
    // Runs for each command line, so a test can make a command change the system.
    std::function<void(const std::string&)> beimStarten;

    bool RunCommand(const std::string& commandLine, int show) override {
        kommandos.push_back({commandLine, show});
        if (beimStarten) beimStarten(commandLine);
        RegDeleteAusführen(registry_, commandLine);
        return true;
    }
    long OpenWithShell(const std::string& verb, const std::string& file, const std::string& params, int) override {
        geöffnet.push_back(verb + "|" + file + "|" + params);
        return 42;
    }
    std::optional<std::string> SpecialFolder(int csidl) override {
        auto it = ordner.find(csidl);
        if (it == ordner.end()) return std::nullopt;
        return it->second;
    }

private:
    RegistryApi& registry_;
};

class FakeDialogs : public DialogApi {
public:
    struct Meldung {
        std::string text, titel;
        int flags;
    };
    std::vector<Meldung> meldungen;
    std::deque<int> antworten;
    // Runs while the box is up, so a test can see what else is open at that moment.
    std::function<void()> beimZeigen;

    int ShowMessage(const std::string& text, const std::string& title, int flags) override {
        meldungen.push_back({text, title, flags});
        if (beimZeigen) beimZeigen();
        if (antworten.empty()) return kIdOk;
        const int a = antworten.front();
        antworten.pop_front();
        return a;
    }
};

class FakeSound : public SoundApi {
public:
    std::vector<std::string> gespielt;
    // Runs as a sound plays, so a test can see what was already set at that moment.
    std::function<void(const std::string&)> beimSpielen;
    bool PlayResource(const std::string& name, unsigned) override {
        if (name != "ALARM" && name != "AUTO") return false;
        gespielt.push_back(name);
        if (beimSpielen) beimSpielen(name);
        return true;
    }
};

}  // namespace kes::fake

namespace kes::fake {

// Records every call with its record; Shown tells what the notification area holds now.
class FakeTray : public TrayApi {
public:
    struct Aufruf {
        int message;
        TrayRecord record;
    };
    std::vector<Aufruf> aufrufe;
    bool Notify(int message, const TrayRecord& record) override {
        aufrufe.push_back({message, record});
        if (message == kNimDelete) angezeigt_ = false;
        if (message == kNimAdd) angezeigt_ = true;
        return true;
    }
    bool Shown() const { return angezeigt_; }
    const TrayRecord& Last() const { return aufrufe.back().record; }

private:
    bool angezeigt_ = false;
};

}  // namespace kes::fake
