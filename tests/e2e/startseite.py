"""End-to-end tests of the start page watcher: a new "Start Page" written with `wine reg add`
raises the warning, and "Original" puts the saved text back; with box 9 on the program puts
it back alone, without a warning, within two intervals, and says so in the log.

The saved start pages are what the prefix holds when the test begins, set with
kestrella-dat as the assistant would have saved them."""

import os
import re
import time

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import check, test, wait_until

HKCU, HKLM = "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"
MAIN = r"Software\Microsoft\Internet Explorer\Main"
SEARCH = r"Software\Microsoft\Internet Explorer\Search"
# The nineteen watched values; row n is the saved start page n. Row 18 is the default value.
ROWS = [
    (HKCU, MAIN, "Start Page"), (HKCU, MAIN, "Search Page"), (HKCU, MAIN, "Local Page"),
    (HKLM, MAIN, "Start Page"), (HKLM, MAIN, "Search Page"), (HKLM, MAIN, "Local Page"),
    (HKLM, MAIN, "Default_Page_URL"), (HKLM, MAIN, "Default_Search_URL"), (HKLM, MAIN, "Search Bar"),
    (HKCU, MAIN, "Default_Search_URL"), (HKCU, MAIN, "Search Bar"),
    (HKCU, SEARCH, "CustomizeSearch"), (HKCU, SEARCH, "SearchAssistant"),
    (HKLM, SEARCH, "CustomizeSearch"), (HKLM, SEARCH, "SearchAssistant"),
    (HKLM, r"SOFTWARE\Microsoft\Windows\CurrentVersion\Internet Settings\SafeSites", "search.msn.com"),
    (HKLM, r"SOFTWARE\Microsoft\Windows\CurrentVersion\URL\Prefixes", "www"),
    (HKLM, r"SOFTWARE\Microsoft\Windows\CurrentVersion\URL\DefaultPrefix", ""),
    (HKCU, MAIN, "Default_Page_URL"),
]
START_PAGE = HKCU + "\\" + MAIN
NEW_PAGE = "http://kestrella-e2e.invalid/start"
HEADLINE = "Registrierungsschlüssel des IExplorers wurde geändert."
VALUE_LINE = re.compile(r"^    (.*?)    (REG_[A-Z_]+)(?:    (.*))?$")


def reg_read(h, key, name):
    """The value's text as `reg query` shows it; "" when key or value is missing."""
    which = ["/ve"] if name == "" else ["/v", name]
    res = h.run(["wine", "reg", "query", key, *which], env=h.tool_env, check=False)
    if res.returncode != 0:
        return ""
    for line in res.stdout.decode("cp1252", "replace").splitlines():
        m = VALUE_LINE.match(line.rstrip("\r"))
        if m:
            return m.group(3) or ""
    return ""


def saved_pages(h):
    """InternetStartPage1..19 as the prefix holds them now; empty ones are left out, as a
    missing key reads as the empty text."""
    pages = {}
    for n, (root, key, name) in enumerate(ROWS, 1):
        text = reg_read(h, root + "\\" + key, name)
        if text:
            pages[f"InternetStartPage{n}"] = text
    return pages


def put_back(h, original):
    """The prefix serves every run: its own Start Page goes back as it was."""
    if original:
        h.reg_add(START_PAGE, "Start Page", original)
    else:
        h.reg_delete(START_PAGE, "Start Page")


def read_log(h):
    with open(os.path.join(h.folder, "Kestrella.log"), "rb") as f:
        return f.read().decode("cp1252")


def quiet_for(h, secs):
    return not wait_until(lambda: WARNING_TITLE in visible_titles(h), secs, 0.3)


def start_watching(h, name, **extra):
    h.program_folder(name)
    values = dict(box8=1, box2=1, aufab1=1, **saved_pages(h))
    values.update(extra)
    h.settings(**values)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    check(quiet_for(h, 3), "the prefix's own browser values raised a warning")


@test
def new_start_page_warns_and_original_puts_the_saved_text_back(h):
    original = reg_read(h, START_PAGE, "Start Page")
    try:
        start_watching(h, "startseite")
        h.reg_add(START_PAGE, "Start Page", NEW_PAGE)
        hwnd = h.wait_window(WARNING_TITLE, 15)
        texts = [c["text"] for c in h.texts(WARNING_TITLE) if c["visible"]]
        check(HEADLINE in texts, f"headline missing: {texts}")
        line = f"Neuer Wert : {NEW_PAGE}        Original war: {original}"
        check(line in texts, f"{line!r} missing: {texts}")
        check(START_PAGE + "\\Start Page" in texts, f"the value's path is missing: {texts}")
        h.screenshot(os.path.join(h.shots, "warnung-startseite.png"))

        h.click(hwnd, "Original")
        h.gone(hwnd, 10)
        now = reg_read(h, START_PAGE, "Start Page")
        check(now == original, f"Start Page is {now!r} after Original, not the saved {original!r}")
        entry = ("IExplorer Start Page wurde geändert.\r\nRegistry: " + START_PAGE + "\\Start Page\r\n"
                 f"Wert: {NEW_PAGE}\r\n< Zurückgesetzt OK > auf {original}")
        check(entry in read_log(h), f"no restore entry in Kestrella.log: {read_log(h)!r}")
        check(quiet_for(h, 2), "the restored value raised a warning again")
    finally:
        put_back(h, original)


@test
def new_start_page_put_back_alone_with_box9_within_two_intervals(h):
    original = reg_read(h, START_PAGE, "Start Page")
    interval = 3
    try:
        start_watching(h, "startseite9", box9=1, aufab1=interval)
        began = time.monotonic()
        h.reg_add(START_PAGE, "Start Page", NEW_PAGE)
        back = wait_until(lambda: reg_read(h, START_PAGE, "Start Page") == original, 4 * interval, 0.2)
        took = time.monotonic() - began
        check(back, f"Start Page was not put back within {4 * interval} s")
        # From before the change to after the read that saw it back: an upper bound.
        check(took <= 2 * interval, f"Start Page came back after {took:.1f} s, more than two intervals")
        check(WARNING_TITLE not in visible_titles(h), "a warning came although box 9 puts the value back")
        entry = ("IExplorer Start Page wurde geändert.\r\nRegistry: " + START_PAGE + "\\Start Page\r\n"
                 f"Wert: {NEW_PAGE}\r\n< Zurückgesetzt auf {original} >")
        check(entry in read_log(h), f"no restore entry in Kestrella.log: {read_log(h)!r}")
        check(quiet_for(h, interval + 1), "a warning came after the value was put back")
    finally:
        put_back(h, original)
