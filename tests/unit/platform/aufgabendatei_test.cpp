// The program a task file names: the XML of the newer scheduler in each encoding Windows
// and tools write, and the old binary .job format; what cannot be parsed names none.
#include <gtest/gtest.h>

#include "platform/aufgabendatei.h"

namespace kes {
namespace {

// UTF-16 bytes, little-endian unless asked, with the byte order mark when asked.
std::string Le(const std::u16string& s, bool bom = true, bool be = false) {
    std::string aus = !bom ? "" : be ? "\xFE\xFF" : "\xFF\xFE";
    for (char16_t c : s) {
        aus += static_cast<char>(be ? c >> 8 : c & 0xFF);
        aus += static_cast<char>(be ? c & 0xFF : c >> 8);
    }
    return aus;
}

// A task as Windows writes it: the settings' ExecutionTimeLimit stands before the actions.
std::u16string Aufgabe(const std::u16string& aktionen) {
    return u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n"
           u"<Task version=\"1.2\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\r\n"
           u"  <Settings><ExecutionTimeLimit>PT72H</ExecutionTimeLimit></Settings>\r\n"
           u"  <Actions Context=\"Author\">\r\n" +
           aktionen + u"\r\n  </Actions>\r\n</Task>\r\n";
}

std::string Utf8(const std::string& aktionen, const std::string& kopf = "<?xml version=\"1.0\"?>") {
    return kopf + "\r\n<Task><Actions>" + aktionen + "</Actions></Task>\r\n";
}

struct Fall {
    const char* fall;
    std::string inhalt;
    std::string befehl;
};

const Fall kXml[] = {
    {"UTF-16 with its mark", Le(Aufgabe(u"<Exec><Command>C:\\x.exe</Command><Arguments>/a /b</Arguments>"
                                         u"<WorkingDirectory>C:\\w</WorkingDirectory></Exec>")), "C:\\x.exe /a /b"},
    {"UTF-16 big-endian", Le(Aufgabe(u"<Exec><Command>C:\\x.exe</Command></Exec>"), true, true), "C:\\x.exe"},
    {"UTF-16 without a mark", Le(Aufgabe(u"<Exec><Command>C:\\x.exe</Command></Exec>"), false), "C:\\x.exe"},
    {"UTF-16, characters the code page lacks and one it has",
     Le(Aufgabe(u"<Exec><Command>C:\\\u263A\U0001F600\u00F6\u20AC.exe</Command></Exec>")), "C:\\??\xF6\x80.exe"},
    {"UTF-8 with its mark", "\xEF\xBB\xBF" + Utf8("<Exec><Command>C:\\Gr\xC3\xB6\xC3\x9F" "e.exe</Command></Exec>"),
     "C:\\Gr\xF6\xDF" "e.exe"},
    {"UTF-8 without a mark", Utf8("<Exec><Command>C:\\\xC3\xA4.exe</Command></Exec>"), "C:\\\xE4.exe"},
    // Declared so, bytes that would be UTF-8 are two characters.
    {"ANSI, declared",
     Utf8("<Exec><Command>C:\\\xC3\xA4.exe</Command></Exec>", "<?xml version=\"1.0\" encoding=\"windows-1252\"?>"),
     "C:\\\xC3\xA4.exe"},
    {"ANSI, undeclared", Utf8("<Exec><Command>C:\\\xE4\xF6.exe</Command></Exec>"), "C:\\\xE4\xF6.exe"},
    {"entities and character references",
     Utf8("<Exec><Command>C:\\a&amp;b.exe</Command>"
          "<Arguments>&quot;&lt;x&gt;&apos; &#65;&#x42; &#x20AC; &#x263A; &unbekannt; &amp;amp;</Arguments></Exec>"),
     "C:\\a&b.exe \"<x>' AB \x80 ? &unbekannt; &amp;"},
    {"blanks and line ends around and inside",
     Utf8("<Exec><Command>\r\n  C:\\x.exe\t</Command><Arguments> /a\r\n/b </Arguments></Exec>"), "C:\\x.exe /a  /b"},
    {"no arguments", Utf8("<Exec><Command>C:\\x.exe</Command><Arguments/></Exec>"), "C:\\x.exe"},
    {"arguments without a command", Utf8("<Exec><Arguments>/a</Arguments></Exec>"), "/a"},
    {"arguments first", Utf8("<Exec><Arguments>/a</Arguments><Command>C:\\x.exe</Command></Exec>"), "C:\\x.exe /a"},
    {"no Exec action", Le(Aufgabe(u"<ComHandler><ClassId>{1}</ClassId></ComHandler>")), ""},
    {"an empty Exec", Utf8("<Exec/><Exec><Command>C:\\x.exe</Command></Exec>"), ""},
    {"the first of two Exec actions",
     Utf8("<Exec><Command>C:\\erst.exe</Command></Exec><Exec><Command>C:\\zweit.exe</Command></Exec>"), "C:\\erst.exe"},
    {"a commented-out Exec",
     Utf8("<!-- a > b <Exec><Command>C:\\alt.exe</Command></Exec> --><Exec><Command>C:\\x.exe</Command></Exec>"),
     "C:\\x.exe"},
    {"a namespace prefix and attributes holding > and />",
     Utf8("<t:Exec id=\"a>b\"><t:Command a=\"/>\">C:\\x.exe</t:Command></t:Exec>"), "C:\\x.exe"},
    {"a DOCTYPE", "<!DOCTYPE Task>" + Utf8("<Exec><Command>C:\\x.exe</Command></Exec>"), "C:\\x.exe"},
    {"CDATA", Utf8("<Exec><Command><![CDATA[C:\\a&b<.exe]]></Command></Exec>"), "C:\\a&b<.exe"},
    {"text of an element inside Command is not the command's",
     Utf8("<Exec><Command>C:\\x.exe<i>y</i></Command></Exec>"), "C:\\x.exe"},
    {"cut short inside the command", "<Task><Actions><Exec><Command>C:\\x.e", ""},
    {"cut short after the action", "<Task><Actions><Exec><Command>C:\\x.exe</Command></Exec></Act", "C:\\x.exe"},
    {"cut short inside a tag", "<Task><Actions><Exec><Comm", ""},
    {"cut short inside a comment", "<Task><!-- <Exec>", ""},
    {"empty", "", ""},
    {"one byte", "\xFF", ""},
    {"garbage", std::string("\x00\x01<<>>&;\xFF\xFE<", 11), ""},
};

TEST(Aufgabendatei, XmlTask_CommandAndArgumentsOfTheFirstExec) {
    for (const Fall& f : kXml) EXPECT_EQ(AufgabenbefehlXml(f.inhalt), f.befehl) << f.fall;
}

// The fixed section (0x44 bytes), the running instances (2), then the application name and
// the parameters, each a character count with the NUL and UTF-16 characters.
std::string Job(const std::u16string& programm, const std::u16string& parameter) {
    std::string d(0x44, '\x11');
    d += std::string(2, '\0');
    for (const std::u16string* s : {&programm, &parameter}) {
        const std::size_t n = s->empty() ? 0 : s->size() + 1;
        d += static_cast<char>(n & 0xFF);
        d += static_cast<char>(n >> 8);
        if (n) d += Le(*s + u'\0', false);
    }
    return d + std::string(20, '\x22');  // the rest of the file: user, comment, triggers
}

const Fall kJobs[] = {
    {"name and parameters", Job(u"C:\\WINDOWS\\x.exe", u"/s /q"), "C:\\WINDOWS\\x.exe /s /q"},
    {"no parameters", Job(u"C:\\x.exe", u""), "C:\\x.exe"},
    {"characters of and outside the code page", Job(u"C:\\Gr\u00F6\u00DFe\\\u263A.exe", u"\u20AC"),
     "C:\\Gr\xF6\xDF" "e\\?.exe \x80"},
    {"cut short inside the name", Job(u"C:\\x.exe", u"/s").substr(0, 0x46 + 2 + 6), ""},
    {"cut short before the parameters", Job(u"C:\\x.exe", u"/s").substr(0, 0x46 + 2 + 18), ""},
    {"cut short in the fixed section", Job(u"C:\\x.exe", u"").substr(0, 0x30), ""},
    {"characters after the closing NUL",
     std::string(0x46, '\0') + "\x05" + std::string(1, '\0') + Le(std::u16string(u"ab\0cd", 5), false) +
         std::string(2, '\0'), "ab"},
    {"a count past the end", std::string(0x46, '\0') + "\xFF\xFF" + "ab", ""},
};

TEST(Aufgabendatei, JobTask_ApplicationNameAndParameters) {
    for (const Fall& f : kJobs) EXPECT_EQ(AufgabenbefehlJob(f.inhalt), f.befehl) << f.fall;
}

}  // namespace
}  // namespace kes
