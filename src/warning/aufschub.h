// What "Später" puts on the deferred list for a category: the text its watcher asks the
// list by.
#pragma once

#include <string>

namespace kes {

class Form3Fenster;

namespace später {
std::string Text0(const Form3Fenster& f);
std::string Text1(const Form3Fenster& f);
std::string Text3(const Form3Fenster& f);
std::string Zeile2(const Form3Fenster& f);
std::string Label1_1(const Form3Fenster& f);
// The watcher asks by the process name, with case; the path on row 2 would never match.
std::string Zeile1(const Form3Fenster& f);
// Without the data: a deferred value that changes stays deferred.
std::string Registryzeile(const Form3Fenster& f);
}  // namespace später

}  // namespace kes
