// schlaefer: a program of the tests' own that does nothing but stay running, so that the
// process watcher has a new process to find. It has no version block, so no maker.
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    for (;;) Sleep(1000);
}
