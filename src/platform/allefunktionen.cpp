#include "platform/allefunktionen.h"

#include "common/fehler.h"
#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "common/text.h"

namespace kes {

bool DateiVorhanden(Plattform& p, const std::string& datei) {
    return p.files.CanRead(datei);
}

int LaufzeitFehler(long systemFehler) {
    switch (systemFehler) {
        case 2:  // ERROR_FILE_NOT_FOUND
            return kFehlerDateiNichtGefunden;
        case 5:   // ERROR_ACCESS_DENIED, also a read-only file or a folder
        case 32:  // ERROR_SHARING_VIOLATION
        case 33:  // ERROR_LOCK_VIOLATION
            return kFehlerZugriffVerweigert;
        default:  // a missing folder, a bad name, and whatever else keeps the file
            return kFehlerDateizugriff;
    }
}

bool DateiLöschen(Plattform& p, const std::string& datei) {
    p.files.SetAttributes(datei, kAttrNormal);
    const long fehler = p.files.Delete(datei);
    if (fehler == 0) return true;
    DateiNichtGelöscht(p, datei, fehler);
    return false;
}

void DateiNichtGelöscht(Plattform& p, const std::string& datei, long fehler) {
    p.dialogs.ShowMessage(
        "Datei :" + datei + "\r\nkonnte nicht gelöscht werden.\r\nFehler Nr: " + std::to_string(LaufzeitFehler(fehler)),
        "", kMbOk);
}

std::string DateiName(const std::string& pfad) {
    const auto pos = pfad.find_last_of(":\\");
    return pos == std::string::npos ? pfad : pfad.substr(pos + 1);
}

std::string DateiOrdner(const std::string& pfad) {
    const auto pos = pfad.find_last_of(":/\\");
    return pos == std::string::npos ? std::string() : pfad.substr(0, pos + 1);
}

std::string GrösseFormat(double n, bool mitBytes, const Zahlenformat& zf) {
    const double k = n / 1024;
    std::string text;
    if (n < 1024) {
        text = FormatGruppiert(n, zf.thousands) + " Byte" + (n == 1 ? "" : "s");
    } else if (k < 10) {
        text = FormatFest(k, 2, zf.decimal) + " KB";
    } else if (k < 100) {
        text = FormatFest(k, 1, zf.decimal) + " KB";
    } else if (k < 1000) {
        text = FormatFest(k, 0, zf.decimal) + " KB";
    } else if (k < 10000) {
        text = FormatFest(n / 1048576, 2, zf.decimal) + " MB";
    } else if (k < 100000) {
        text = FormatFest(n / 1048576, 1, zf.decimal) + " MB";
    } else if (k < 1000000) {
        text = FormatFest(n / 1048576, 0, zf.decimal) + " MB";
    } else if (k > 10000000) {
        text = FormatFest(n / 1048576 / 1024, 2, zf.decimal) + " GB";
    }
    // From 1000000 to 10000000 KB there is no branch, and the text stays empty.
    if (mitBytes && n >= 1024) text += " (" + FormatGruppiert(n, zf.thousands) + " Bytes)";
    return text;
}

bool SoundSpielen(Plattform& p, const std::string& name, unsigned flags) {
    return p.sound.PlayResource(name, flags);
}

void ImmerOben(Fenster& fenster, bool oben) {
    fenster.Topmost = oben;
}

void FensterMitte(Plattform& p, Fenster& fenster, const Fenster* besitzer) {
    if (besitzer) {
        fenster.Move(besitzer->Left + (besitzer->Width - fenster.Width) / 2,
                     besitzer->Top + (besitzer->Height - fenster.Height) / 2);
    } else {
        fenster.Move((p.system.ScreenWidth() - fenster.Width) / 2, (p.system.ScreenHeight() - fenster.Height) / 2);
    }
}

void ListeFärben(ListView& liste, long farbe, int spalte, int zeile) {
    if (zeile > static_cast<int>(liste.Items.size())) return;
    auto färben = [&](ListItem& item) {
        const std::size_t spalten = item.SubItems.size() + 1;
        if (item.ForeColors.size() < spalten) item.ForeColors.resize(spalten, -1);
        if (spalte == 0) {
            for (auto& f : item.ForeColors) f = farbe;
        } else if (static_cast<std::size_t>(spalte) <= spalten) {
            item.ForeColors[spalte - 1] = farbe;
        }
    };
    if (zeile < 1) {
        for (auto& item : liste.Items) färben(item);
    } else {
        färben(liste.Items[zeile - 1]);
    }
}

void SeiteÖffnen(Plattform& p, const std::string& url) {
    p.shell.OpenWithShell("", url, "", kSwShowNormal);
}

void MailSchreiben(Plattform& p, const std::string& adresse, const std::string& betreff, const std::string& text) {
    p.shell.OpenWithShell("Open", "mailto:" + adresse + "?Subject=" + betreff + "&Body=" + text, "", kSwShowNormal);
}

std::vector<std::string> ZeilenLesen(const std::string& inhalt) {
    // Line Input: a line ends at CR LF or a lone CR; a last line without an end still counts.
    std::vector<std::string> zeilen;
    std::string zeile;
    for (std::size_t i = 0; i < inhalt.size(); ++i) {
        const char c = inhalt[i];
        if (c == '\r') {
            zeilen.push_back(zeile);
            zeile.clear();
            if (i + 1 < inhalt.size() && inhalt[i + 1] == '\n') ++i;
        } else {
            zeile += c;
        }
    }
    if (!zeile.empty()) zeilen.push_back(zeile);
    return zeilen;
}

std::vector<std::string> FelderLesen(const std::string& inhalt) {
    // Input #: a comma or a line end ends an entry; an entry in quotes is read without them
    // and may hold commas. Blanks around an entry go. The first empty entry ends the reading.
    std::vector<std::string> felder;
    std::size_t i = 0;
    const std::size_t n = inhalt.size();
    auto zeilenende = [&](std::size_t j) { return inhalt[j] == '\r' || inhalt[j] == '\n'; };
    while (i < n) {
        while (i < n && (inhalt[i] == ' ' || inhalt[i] == '\t')) ++i;
        std::string feld;
        if (i < n && inhalt[i] == '"') {
            ++i;
            while (i < n && inhalt[i] != '"') feld += inhalt[i++];
            if (i < n) ++i;
            while (i < n && inhalt[i] != ',' && !zeilenende(i)) ++i;
        } else {
            while (i < n && inhalt[i] != ',' && !zeilenende(i)) feld += inhalt[i++];
            while (!feld.empty() && (feld.back() == ' ' || feld.back() == '\t')) feld.pop_back();
        }
        if (feld.empty()) break;
        if (i < n && inhalt[i] == ',') {
            ++i;
        } else if (i < n && inhalt[i] == '\r') {
            ++i;
            if (i < n && inhalt[i] == '\n') ++i;
        } else if (i < n) {
            ++i;  // a lone line feed
        }
        felder.push_back(feld);
    }
    return felder;
}

std::vector<std::string> ZeilenBisLeer(const std::string& inhalt) {
    std::vector<std::string> zeilen = ZeilenLesen(inhalt);
    for (std::size_t i = 0; i < zeilen.size(); ++i)
        if (zeilen[i].empty()) {
            zeilen.resize(i);
            break;
        }
    return zeilen;
}

}  // namespace kes
