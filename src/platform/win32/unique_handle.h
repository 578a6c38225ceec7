// One move-only owner for every kind of Win32 handle; the traits name the empty value and
// how to close. Close happens in the destructor; Detach gives the handle up.
//
// The GDI and USER objects of the views (icons, fonts, brushes, bitmaps, menus) are created
// only by the functions at the end of this file, each of which hands its object straight to
// an owner. The build checks that no other file of the Win32 layers calls a creating
// function itself (cmake/gdi_check.cmake): a tray program that raises thousands of
// warnings over weeks must not lose an object with each.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

namespace kes::win32 {

template <typename Traits>
class UniqueHandle {
public:
    using Type = typename Traits::Type;
    UniqueHandle() = default;
    explicit UniqueHandle(Type h) : h_(h) {}
    ~UniqueHandle() { Reset(); }
    UniqueHandle(UniqueHandle&& o) noexcept : h_(o.Detach()) {}
    UniqueHandle& operator=(UniqueHandle&& o) noexcept {
        if (this != &o) Reset(o.Detach());
        return *this;
    }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;

    Type Get() const { return h_; }
    explicit operator bool() const { return h_ != Traits::Empty(); }
    Type Detach() { return std::exchange(h_, Traits::Empty()); }
    void Reset(Type h = Traits::Empty()) {
        if (h_ != Traits::Empty()) Traits::Close(h_);
        h_ = h;
    }

private:
    Type h_ = Traits::Empty();
};

struct KernelTraits {  // files, processes, snapshots, mutexes
    using Type = HANDLE;
    static Type Empty() { return INVALID_HANDLE_VALUE; }
    static void Close(Type h) { ::CloseHandle(h); }
};
struct NullKernelTraits {  // handles whose failure value is NULL (mutexes, processes)
    using Type = HANDLE;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::CloseHandle(h); }
};
struct FindTraits {
    using Type = HANDLE;
    static Type Empty() { return INVALID_HANDLE_VALUE; }
    static void Close(Type h) { ::FindClose(h); }
};
struct KeyTraits {
    using Type = HKEY;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::RegCloseKey(h); }
};
struct MenuTraits {
    using Type = HMENU;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::DestroyMenu(h); }
};
struct IconTraits {
    using Type = HICON;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::DestroyIcon(h); }
};
struct GdiTraits {
    using Type = HGDIOBJ;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::DeleteObject(h); }
};
template <typename T>  // a GDI object of one kind: HFONT, HBRUSH, HBITMAP
struct GdiObjectTraits {
    using Type = T;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::DeleteObject(h); }
};
struct ImageListTraits {
    using Type = HIMAGELIST;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::ImageList_Destroy(h); }
};
struct WindowTraits {
    using Type = HWND;
    static Type Empty() { return nullptr; }
    static void Close(Type h) { ::DestroyWindow(h); }
};

using UniqueFile = UniqueHandle<KernelTraits>;
using UniqueKernel = UniqueHandle<NullKernelTraits>;
using UniqueFind = UniqueHandle<FindTraits>;
using UniqueKey = UniqueHandle<KeyTraits>;
using UniqueMenu = UniqueHandle<MenuTraits>;
using UniqueIcon = UniqueHandle<IconTraits>;
using UniqueGdi = UniqueHandle<GdiTraits>;
using UniqueFont = UniqueHandle<GdiObjectTraits<HFONT>>;
using UniqueBrush = UniqueHandle<GdiObjectTraits<HBRUSH>>;
using UniqueBitmap = UniqueHandle<GdiObjectTraits<HBITMAP>>;
using UniqueWindow = UniqueHandle<WindowTraits>;
using UniqueImageList = UniqueHandle<ImageListTraits>;

// The creating functions of the views, each owned from the start.

// An icon resource of MODULE at SIZE pixels square, loaded as a copy of its own.
inline UniqueIcon LoadOwnedIcon(HINSTANCE module, const char* name, int size) {
    return UniqueIcon(static_cast<HICON>(::LoadImageA(module, name, IMAGE_ICON, size, size, 0)));
}

inline UniqueFont MakeFont(const LOGFONTA& lf) {
    return UniqueFont(::CreateFontIndirectA(&lf));
}

inline UniqueBrush MakeSolidBrush(COLORREF colour) {
    return UniqueBrush(::CreateSolidBrush(colour));
}

inline UniqueMenu MakePopupMenu() {
    return UniqueMenu(::CreatePopupMenu());
}

// An empty list of SIZE x SIZE pictures with 32-bit colour and a mask.
inline UniqueImageList MakeImageList(int size, int count) {
    return UniqueImageList(::ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, count, 0));
}

}  // namespace kes::win32
