// What every window model shares: caption, place and size in pixels, visibility, and the
// topmost wish that the view carries out.
#pragma once

#include <cstdint>
#include <string>

namespace kes {

class Fenster {
public:
    virtual ~Fenster() = default;
    std::string Caption;
    bool Visible = false;
    bool Topmost = false;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    int WindowState = 0;  // 0 normal, 1 minimised, 2 maximised
    // Raised by Show; the view brings the window to the front once and clears it.
    bool Vordergrund = false;
    // The handle the view gave the window (0 while it has none): the parent of the
    // platform's own dialogs that the window opens.
    std::uintptr_t hWnd = 0;

    // Showing a window also raises its resize and activate handlers, as the platform does.
    virtual void Show() {
        Visible = true;
        Vordergrund = true;
    }
    void Hide() { Visible = false; }
    void Move(int left, int top) {
        Left = left;
        Top = top;
    }
};

}  // namespace kes
