// Small helpers that no one owner has: file presence and deletion, path parts, sizes as
// text, the stored sounds, window placement, list colours, and handing URLs to the shell.
#pragma once

#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

class Fenster;
struct ListView;

// True when the file can be opened for reading; a locked file counts as absent.
bool DateiVorhanden(Plattform& p, const std::string& datei);
// The number the program's messages give for a failed file operation, from the system's
// error code: 53 file not found, 70 access denied (also locked or in use), 75 for the rest
// (a path that does not exist, a bad name).
int LaufzeitFehler(long systemFehler);
// Clears the attributes and deletes; on failure tells the user with the number of
// LaufzeitFehler and gives false.
bool DateiLöschen(Plattform& p, const std::string& datei);
// The message of a file that would not go, for the Win32 error FEHLER.
void DateiNichtGelöscht(Plattform& p, const std::string& datei, long fehler);
// Behind the last ":" or "\"; the whole text when it holds neither.
std::string DateiName(const std::string& pfad);
// Up to and with the last ":", "/" or "\"; empty when it holds none.
std::string DateiOrdner(const std::string& pfad);
// A size as the user reads it ("1 Byte", "1,00 KB", "734 Bytes"); with mitBytes the exact
// count follows from 1024 on. Sizes from 1000000 to 10000000 KB have no text.
std::string GrösseFormat(double bytes, bool mitBytes, const Zahlenformat& zf);
bool SoundSpielen(Plattform& p, const std::string& name, unsigned flags = 0);
void ImmerOben(Fenster& fenster, bool oben);
// Centres on the screen, or on the owner when one is given.
void FensterMitte(Plattform& p, Fenster& fenster, const Fenster* besitzer = nullptr);
// Fore colour of list entries: column 0 all, 1 the item, n the sub-item n-1; row below 1 all.
void ListeFärben(ListView& liste, long farbe, int spalte, int zeile);
void SeiteÖffnen(Plattform& p, const std::string& url);
void MailSchreiben(Plattform& p, const std::string& adresse, const std::string& betreff, const std::string& text);

// The two readers of the data files: whole lines, and comma-separated fields. The field
// reader is the one for every comma-read file: a comma ends an entry as a line end does,
// quotes around an entry go, and the first empty entry ends the reading.
std::vector<std::string> ZeilenLesen(const std::string& inhalt);
// The lines up to the first empty one, which ends the reading of most lists.
std::vector<std::string> ZeilenBisLeer(const std::string& inhalt);
std::vector<std::string> FelderLesen(const std::string& inhalt);

}  // namespace kes
