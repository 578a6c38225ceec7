// Not watched yet: the routines keep their places in the load order and in the cycle.
#include "watchers/systemordner.h"

namespace kes {

void WindowsDateien::LadeWindowsausnahme() {}
void WindowsDateien::LadeWindows() {}
void WindowsDateien::LadeWindowsSys32() {}
void WindowsDateien::TesteWindowsGelöscht() {}
void WindowsDateien::TesteWindowsErstellt() {}
void WindowsDateien::TesteWindowsSystem32Gelöscht() {}
void WindowsDateien::TesteWindowsSystem32Erstellt() {}

}  // namespace kes
