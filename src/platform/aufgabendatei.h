// What a task of the Task Scheduler starts, read from its file: the program and its
// arguments, joined by a blank, in code page 1252 (a character outside it becomes "?").
// A file that cannot be parsed, cut short or garbage, names no program: "".
#pragma once

#include <string>

namespace kes {

// A task of the newer scheduler (System32\Tasks): XML, in UTF-16 with its byte order mark
// as Windows writes it, or UTF-8, or ANSI. The Command and Arguments of the first Exec
// action, entities decoded; a task without an Exec action starts no program.
std::string AufgabenbefehlXml(const std::string& inhalt);

// A task of the old scheduler (Windows\Tasks\*.job): the application name and the
// parameters behind the fixed section, each a count of UTF-16 characters (with the closing
// NUL) and the characters.
std::string AufgabenbefehlJob(const std::string& inhalt);

}  // namespace kes
