// What "Später" puts on the deferred list for a category: the text its watcher asks the
// list by. These read one field of the window and serve the rows of several watchers; a
// watcher with a text of its own declares it beside its branches.
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
}  // namespace später

}  // namespace kes
