#include "ui/win32/bilder.h"

#include <iterator>

#include "platform/win32/unique_handle.h"
#include "ui/win32/fenster_ansicht.h"

namespace kes::ui {

namespace {
struct Bild {
    int nummer;        // as the models set it in ListItem::SmallIcon and SymbolBild::Bild
    const char* name;  // the icon resource
};
// The numbers the lists use, each with the picture that says what the row is.
constexpr Bild kBilder[] = {
    {1, "SCHLUESSEL"},  // a registry key: registry rows, domains, the start page, a service's name
    {2, "FAVORIT"},     // a browser favourite
    {3, "TELEFON"},     // a dial-up connection
    {4, "DATEI"},       // a file's name
    {5, "ORDNER"},      // a file's full path
    {13, "DIENST"},     // a service or a shell object that starts with the system
    {14, "GLOBUS"},     // a browser helper object
    {26, "WERT"},       // a registry value of the baseline
};

// The list and the place of each picture in it; a picture that did not load has none, and
// the others keep their places.
struct Liste {
    win32::UniqueImageList bilder;
    int stelle[std::size(kBilder)];
};

const Liste& Geladen() {
    static const Liste liste = [] {
        Liste l{win32::MakeImageList(16, static_cast<int>(std::size(kBilder))), {}};
        for (std::size_t i = 0; i < std::size(kBilder); ++i) {
            // The list keeps a copy; the loaded icon goes at once.
            const win32::UniqueIcon icon = win32::LoadOwnedIcon(::GetModuleHandleA(nullptr), kBilder[i].name, 16);
            const int stelle = l.bilder && icon ? ::ImageList_ReplaceIcon(l.bilder.Get(), -1, icon.Get()) : -1;
            l.stelle[i] = stelle < 0 ? I_IMAGENONE : stelle;
        }
        return l;
    }();
    return liste;
}
}  // namespace

HIMAGELIST Bilderliste() {
    return Geladen().bilder.Get();
}

int BildIndex(int nummer) {
    for (std::size_t i = 0; i < std::size(kBilder); ++i)
        if (kBilder[i].nummer == nummer) return Geladen().stelle[i];
    return I_IMAGENONE;
}

HICON BildIcon(int nummer, int grösse) {
    for (const Bild& b : kBilder)
        if (b.nummer == nummer) return ProgrammIcon(b.name, grösse);
    return nullptr;
}

}  // namespace kes::ui
