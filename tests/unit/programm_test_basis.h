// A program on the fake platform, with helpers to give it a settings file.
#pragma once

#include <gtest/gtest.h>

#include "core/programm.h"
#include "core/property_bag.h"
#include "fake_plattform.h"
#include "panel/alarm.h"
#include "warning/form3.h"

namespace kes::test {

class ProgrammTest : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    Programm prg{fp.plattform};

    const std::string ordner = "C:\\Programme\\Kestrella\\";
    const std::string datPfad = ordner + "kestrella.dat";
    const std::string hostsPfad = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";

    void Einstellungen(const PropertyBag& bag) { fp.files.Put(datPfad, bag.Contents()); }
    PropertyBag GespeicherteEinstellungen() { return PropertyBag::AusInhalt(fp.files.Content(datPfad)); }
    // Main's process-wide values without running the start.
    void Pfade() {
        prg.Programmordner = ordner;
        prg.Windowsordner = "C:\\WINDOWS";
        prg.Systemordner = "C:\\WINDOWS\\system32";
        prg.Logkopf = "\r\n========== 22.11.2026 ===== 14:05:09 ================\r\n";
    }
};

// A program of its own on a fake platform of its own, for tables whose rows each need a
// fresh one; the process-wide paths set as Main sets them.
struct Lauf {
    fake::FakePlattform fp;
    Programm prg{fp.plattform};
    Lauf() {
        prg.Programmordner = "C:\\Programme\\Kestrella\\";
        prg.Windowsordner = "C:\\WINDOWS";
        prg.Systemordner = "C:\\WINDOWS\\system32";
    }
    AlarmFenster& a() { return prg.Alarm(); }
    // A class's server file, registered under CLSID.
    void Server(const std::string& clsid, const std::string& pfad) {
        fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "", pfad);
        fp.files.Put(pfad, "MZ");
    }
};

// A warning open for an action: logging on, the cycle stopped by the busy flag.
class WarnungsTest : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Alarm().Box1[2].setValue(1);
        prg.Beschäftigt = true;
    }
    Form3Fenster& Warnung(Kategorie kategorie) {
        prg.Kategorieschlüssel = kategorie;  // before the first touch, which loads the window
        return prg.Form3();
    }
    std::string Log() { return fp.files.Content(ordner + "Kestrella.log"); }
};

}  // namespace kes::test
