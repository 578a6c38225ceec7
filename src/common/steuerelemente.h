// Control models: the plain data behind every control of the program's windows. The logic
// reads and writes them as the windows' own controls; the Win32 views draw them and write
// user edits back. Nothing here knows about a real window.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/seam/timer_api.h"

namespace kes {

// The system's colour of window text, as a colour value.
inline constexpr long kSystemFensterText = 0x80000008L;

struct Label {
    std::string Caption;
    bool Visible = true;
    long ForeColor = -1;  // -1: the system's colour
    long BackColor = -1;
};

struct TextBox {
    std::string Text;
    bool Visible = true;
};

struct CheckBox {
    std::string Caption;
    int Value = 0;
    bool Visible = true;
    bool Enabled = true;
};

struct CommandButton {
    std::string Caption;
    bool Visible = true;
    bool Enabled = true;
};

struct PictureBox {
    bool Visible = true;
    int Height = 0;
};

// A picture button; its caption is a separate label, as on the warning window.
struct Image {
    bool Visible = true;
    std::string ToolTipText;
};

struct MenuItem {
    std::string Caption;
    bool Checked = false;
    bool Visible = true;
    bool Separator = false;
    bool Enabled = true;
};

struct ListItem {
    std::string Text;
    bool Selected = false;
    std::vector<std::string> SubItems;  // SubItems[0] is column 2
    std::vector<long> ForeColors;       // [0] the item, [n] sub-item n; missing means the list's colour
    int SmallIcon = 0;                  // picture number in the window's image list; 0 none

    const std::string& SubItem(std::size_t column) const;  // 1-based like the list view; "" if absent
    void SetSubItem(std::size_t column, const std::string& text);
};

struct ListView {
    std::vector<std::string> Columns;
    // Widths in pixels by column; missing or 0 shares out what is left.
    std::vector<int> ColumnWidths;
    std::vector<ListItem> Items;
    bool Visible = true;
    long ForeColor = 0;
    // A sorted list keeps its rows in ascending order of the key column (0 the item text),
    // as text without regard to case; rows of equal keys keep the order they came in.
    bool Sorted = false;
    int SortKey = 0;

    ListItem& Add(const std::string& text);
    // Brings the rows into the order of a sorted list; nothing when sorting is off. Whoever
    // adds rows to a list that may be sorted calls it once the row has its sub-items.
    void Sortieren();
};

struct ListBox {
    std::vector<std::string> Items;
    bool Visible = true;
    int ListIndex = -1;  // the selected line, -1 for none

    // The selected line's text; "" when none is selected.
    std::string Text() const;
};


// A window timer. Enabling or changing the interval restarts it, as window timers do.
class Timer {
public:
    Timer(TimerApi& api, int id, int intervalMs) : api_(api), id_(id), interval_(intervalMs) {}
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    bool Enabled() const { return enabled_; }
    int Interval() const { return interval_; }
    int Id() const { return id_; }
    void SetEnabled(bool on);
    void SetInterval(int ms);

private:
    void Apply();
    TimerApi& api_;
    int id_;
    int interval_;
    bool enabled_ = false;
};

// Interval in milliseconds from a stage, computed in 16 signed bits as the design demands.
std::int16_t IntervallAusStufe(std::int16_t stufe);

}  // namespace kes
