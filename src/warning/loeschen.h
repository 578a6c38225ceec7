// What the delete branches of several watchers share: the backup of what goes, REG DELETE,
// and a file's removal.
#pragma once

#include <initializer_list>
#include <string>
#include <tuple>
#include <utility>

#include "platform/seam/registry_api.h"

namespace kes {

class Form3Fenster;

namespace entfernen {

// REG DELETE for the key pfad + name, started minimised, not waited for; its result is not
// looked at. löschen has made sure the name is safe on the command line.
void RegDeleteStarten(Form3Fenster& f, const std::string& pfad, const std::string& name, const char* schalter = "/f");

// The backup of keys and values before the branch removes them.
void VorherSichern(Form3Fenster& f, std::initializer_list<std::pair<RegHandle, std::string>> bäume,
                   std::initializer_list<std::tuple<RegHandle, std::string, std::string>> werte = {});

// The file's removal, after its backup.
bool DateiEntfernen(Form3Fenster& f, const std::string& pfad);

}  // namespace entfernen

}  // namespace kes
