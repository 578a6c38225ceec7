// The notification-area icon. The record is the extended NOTIFYICONDATA the program fills
// for every call; the icon is named by its resource ("BLINKTRAY", "AUS"), empty for none.
#pragma once

#include <cstdint>
#include <string>

namespace kes {

inline constexpr int kNimAdd = 0;
inline constexpr int kNimModify = 1;
inline constexpr int kNimDelete = 2;

struct TrayRecord {
    std::uint32_t cbSize = 488;  // the real call uses the platform's own size of the record
    std::uint32_t uID = 1;
    std::uint32_t uFlags = 23;             // message, icon, tip and info are valid
    std::uint32_t uCallbackMessage = 512;  // tray events arrive as mouse moves on Start
    std::string icon;
    std::string szTip;
    std::uint32_t dwState = 0, dwStateMask = 0;
    std::string szInfo;
    std::uint32_t uTimeout = 1000;
    std::string szInfoTitle;
    std::uint32_t dwInfoFlags = 1;  // 1 information, 2 warning, 3 error
};

class TrayApi {
public:
    virtual ~TrayApi() = default;
    // Shell_NotifyIconA for the hidden window Start; the result is not looked at by the program.
    virtual bool Notify(int message, const TrayRecord& record) = 0;
};

}  // namespace kes
