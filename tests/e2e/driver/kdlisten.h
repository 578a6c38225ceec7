// kdriver's commands that act as the mouse on a list and as the system at the end of a
// session: choose a row of a list view or list box and press and release a mouse button
// over it, which is what opens the control panel's context menus; and ask the windows of
// one program whether the session may end, then tell them that it does.
#pragma once

#include <windows.h>

#include <string>

namespace kdlisten {

// "row-click WINDOW TEXT [right|left]": in WINDOW, the first visible list view or list box
// that has a row whose first text is TEXT. That row becomes the only selected one, and the
// button goes down and up over its middle. Exit 1 when no list has such a row.
int ZeileKlicken(HWND fenster, const std::string& text, bool rechts);

// "end-session CLASS": the system's two messages to every top-level window of the process
// that owns a window of CLASS: WM_QUERYENDSESSION, and, when none refused, WM_ENDSESSION
// with TRUE. One line per window: hwnd, class, its answer to the question.
int SitzungBeenden(const std::string& klasse);

}  // namespace kdlisten
