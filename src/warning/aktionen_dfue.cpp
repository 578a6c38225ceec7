// "Mehr Infos" of a dial-up warning: a menu with the entry's edit dialog and the folder of
// network connections. The warning stays open in both cases.
#include "platform/allefunktionen.h"
#include "platform/dfue.h"
#include "warning/aktionen.h"
#include "warning/form3.h"

namespace kes {

namespace weitere {
void DFÜMenü(Form3Fenster& f) {
    f.Popup = PopupWunsch{"dfü", 1, false, 0};
}
}  // namespace weitere

void Form3Fenster::dfü1_Click(int index) {
    // Whatever opens must come to the front.
    ImmerOben(*this, false);
    Plattform& p = k_.P();
    if (index == 0) {
        // Over the warning, which stays open.
        DFUBearbeiten(p, Text1[0].Text, hWnd);
    } else if (index == 1) {
        p.shell.RunCommand(std::string("rundll32.exe shell32.dll,") + "Control_RunDLL ncpa.cpl", kSwShowNormal);
    }
}

}  // namespace kes
