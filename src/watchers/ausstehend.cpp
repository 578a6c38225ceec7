// Loaders and watchers whose categories are not watched yet. They keep their place in the
// load order and in the cycle, and do nothing.
#include "panel/alarm.h"

namespace kes {

void AlarmFenster::LadeProzessFirmen() {}
void AlarmFenster::LadeProzesse() {}
void AlarmFenster::LadeFavoriten() {}
void AlarmFenster::LadeStartPage() {}
void AlarmFenster::LadeDFÜ() {}
void AlarmFenster::LadeAutostart() {}
void AlarmFenster::LadeWindowsausnahme() {}
void AlarmFenster::LadeWindows() {}
void AlarmFenster::LadeWindowsSys32() {}
void AlarmFenster::LadeBHO() {}
void AlarmFenster::LadeActiveX() {}
void AlarmFenster::LadeShellService() {}
void AlarmFenster::LadeSharedTaskScheduler() {}
void AlarmFenster::LadeURLSearchHook() {}
void AlarmFenster::LadeDienste() {}
void AlarmFenster::LadeDiensteHersteller() {}
void AlarmFenster::LadeToolbar() {}

void AlarmFenster::TesteProzesse() {}
void AlarmFenster::TesteFavoriten() {}
void AlarmFenster::TesteStartPage() {}
void AlarmFenster::TesteDFÜ() {}
void AlarmFenster::TesteAutostartOrdner() {}
void AlarmFenster::TesteWindowsGelöscht() {}
void AlarmFenster::TesteWindowsErstellt() {}
void AlarmFenster::TesteWindowsSystem32Gelöscht() {}
void AlarmFenster::TesteWindowsSystem32Erstellt() {}
void AlarmFenster::Testeactivx() {}
void AlarmFenster::TesteBHO() {}
void AlarmFenster::TesteShellService() {}
void AlarmFenster::TesteSharedTaskScheduler() {}
void AlarmFenster::TesteSonstiges() {}
void AlarmFenster::TesteSonstiges1() {}
void AlarmFenster::TesteSonstiges2() {}
void AlarmFenster::TesteDienste() {}
void AlarmFenster::TesteToolBar() {}
void AlarmFenster::TesteToolBar1() {}
void AlarmFenster::TesteHTafile() {}

}  // namespace kes
