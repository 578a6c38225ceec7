"""End-to-end scenarios as data, run by one runner: the settings, how the machine stands
before, and one warning after another in the same run of the program: what changes, which
texts and buttons the warning shows, which answer is given, and what must hold after it.

    szenario(Szenario(name=..., einstellungen=dict(box26=1), warnungen=[Warnung(...), ...]))

registers a test of that name in the calling module. The steps and checks are small
functions of the harness made by the helpers below; a text may be such a function too, for
what is known only while the test runs (a size, a path in the prefix). Whatever the outcome,
the program is stopped and the steps of `aufräumen` run at the end: the prefix serves every
run."""

import dataclasses
import inspect
import os
import re
from typing import Callable

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import TESTS, check, wait_until

Schritt = Callable  # (h) -> None
Prüfung = Callable  # (h) -> None, raises when it does not hold
JA_LÖSCHEN = ("Achtung!", "Ja löschen")  # the question every delete asks first


@dataclasses.dataclass
class Warnung:
    änderung: list
    texte: list = dataclasses.field(default_factory=list)  # visible texts of the warning
    zellen: list = dataclasses.field(default_factory=list)  # cells of its lists, in any case
    knöpfe: list = dataclasses.field(default_factory=list)  # buttons the bar shows
    ohne_knöpfe: list = dataclasses.field(default_factory=list)  # buttons it must not show
    im_fenster: list = dataclasses.field(default_factory=list)  # checks while the window is open
    bild: str = ""  # a picture of the warning in e2e-shots for a person to look at
    antwort: str = ""  # the button clicked; "" leaves the window open
    bestätigen: tuple = ()  # (title, button) of the question the answer opens
    danach: list = dataclasses.field(default_factory=list)  # checks after the window has gone
    ruhig: float = 0  # seconds without a warning after the answer


@dataclasses.dataclass
class Szenario:
    name: str
    einstellungen: dict
    warnungen: list
    vorher: list = dataclasses.field(default_factory=list)  # steps before the program folder
    im_ordner: list = dataclasses.field(default_factory=list)  # steps in the new program folder
    grundlinien: list = dataclasses.field(default_factory=list)  # daten files the first pass writes
    aufräumen: list = dataclasses.field(default_factory=list)
    ruhig_vorher: float = 0  # seconds without a warning after the start, before the change
    ruhig: float = 2.5  # seconds without a warning after the last answer


def szenario(s):
    def lauf(h):
        try:
            ausführen(h, s)
        finally:
            h.stop_program()
            for schritt in s.aufräumen:
                schritt(h)

    lauf.__name__ = s.name
    lauf.__module__ = inspect.currentframe().f_back.f_globals["__name__"]
    TESTS.append(lauf)
    return s


def ruhig(h, secs, warum):
    if secs:
        kam = wait_until(lambda: WARNING_TITLE in visible_titles(h), secs, 0.3)
        check(not kam, f"a warning came within {secs} s {warum}")


def ausführen(h, s):
    for schritt in s.vorher:
        schritt(h)
    h.program_folder(s.name)
    for schritt in s.im_ordner:
        schritt(h)
    h.settings(aufab1=1, **s.einstellungen)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    daten = os.path.join(h.folder, "daten")
    check(wait_until(lambda: all(os.path.exists(os.path.join(daten, f)) for f in s.grundlinien), 15),
          f"the first pass did not write {s.grundlinien}")
    ruhig(h, s.ruhig_vorher, "of the start, for what the machine held before the change")
    for w in s.warnungen:
        warnen(h, w)
    if s.warnungen and s.warnungen[-1].antwort:
        ruhig(h, s.ruhig, "of the last answer")


def warnen(h, w):
    for schritt in w.änderung:
        schritt(h)
    hwnd = h.wait_window(WARNING_TITLE, 15)
    controls = [c for c in h.texts(hwnd) if c["visible"]]
    texts = [c["text"] for c in controls]
    for text in w.texte:
        text = text(h) if callable(text) else text
        check(text in texts, f"{text!r} missing, the warning shows {texts}")
    cells = [cell.lower() for c in controls for row in c["rows"] for cell in row]
    for zelle in w.zellen:
        zelle = zelle(h) if callable(zelle) else zelle
        check(zelle.lower() in cells, f"{zelle!r} missing, the warning's lists hold {cells}")
    shown = [c["text"] for c in controls if c["class"].lower() == "button"]
    for knopf in w.knöpfe:
        check(knopf in shown, f"button {knopf!r} missing, the bar shows {shown}")
    for knopf in w.ohne_knöpfe:
        check(knopf not in shown, f"button {knopf!r} should not be there, the bar shows {shown}")
    for prüfung in w.im_fenster:
        prüfung(h)
    if w.bild:
        h.kd("redraw", hwnd)
        h.screenshot(os.path.join(h.shots, w.bild))
    if not w.antwort:
        return
    h.click(hwnd, w.antwort)
    if w.bestätigen:
        h.wait_window(w.bestätigen[0], 10)
        h.click(w.bestätigen[0], w.bestätigen[1])
    # By handle: at stage 1 a next warning, with the same title, may be up before this one
    # is seen to go.
    h.gone(hwnd, 10)
    for prüfung in w.danach:
        prüfung(h)
    ruhig(h, w.ruhig, f"of {w.antwort!r}")


# --- steps -------------------------------------------------------------------------------

def reg_add(key, name, data, kind="REG_SZ"):
    return lambda h: h.reg_add(key, name, data, kind)


def reg_delete(key, name=None):
    return lambda h: h.reg_delete(key, name)


def reg32(*args):
    """reg.exe in the 32-bit view, as a 32-bit installer writes: reg32("add", KEY, "/v", ...)."""
    return lambda h: h.run(["wine", "reg", *args, "/reg:32"], env=h.tool_env, check=False)


def wert_gemerkt(key, name):
    """Two steps: the value as the prefix holds it is noted, and put back at the end."""
    vorher = {}

    def merken(h):
        vorher["wert"] = reg_wert(h, key, name)

    def zurück(h):
        if vorher.get("wert") is None:
            h.reg_delete(key, name)
        else:
            h.reg_add(key, name, vorher["wert"])

    return merken, zurück


# --- checks ------------------------------------------------------------------------------

def reg_query(h, key, *args):
    """reg query's output, or None when the key or value is not there."""
    out = h.run(["wine", "reg", "query", key, *args], env=h.tool_env, check=False)
    return out.stdout.decode("cp1252", "replace") if out.returncode == 0 else None


def reg_wert(h, key, name):
    """The data of a value as reg query prints it; None when the key or value is missing. The
    name "" is the key's default value, which reg prints as "(Default)" or "(Standard)"."""
    out = reg_query(h, key, *(["/ve"] if name == "" else ["/v", name]))
    for line in (out or "").splitlines():
        # A name may hold blanks: the type is what splits name from data.
        m = re.match(r"^\s*(.*?)\s+(REG_\w+)\s?(.*)$", line)
        if m and (m.group(1).lower() == name.lower() if name else m.group(1).startswith("(")):
            return m.group(3).strip()
    return None


def reg_ist(key, name, data):
    return lambda h: check(reg_wert(h, key, name) == data, f"{key}\\{name} is {reg_wert(h, key, name)!r}, not {data!r}")


def reg_fehlt(key, name=None, *reg_args):
    """The value, or the whole key when NAME is None, is not there."""
    wert = ["/v", name] if name is not None else []
    return lambda h: check(reg_query(h, key, *wert, *reg_args) is None, f"{key}\\{name or ''} is still there")


def reg_da(key, name=None, *reg_args):
    wert = ["/v", name] if name is not None else []
    return lambda h: check(reg_query(h, key, *wert, *reg_args) is not None, f"{key}\\{name or ''} went")


def text_ohne_fall(text):
    """The warning shows TEXT, compared without regard to case: Wine spells some folders in
    lower case where Windows does not."""
    def prüfen(h):
        texts = [c["text"].lower() for c in h.texts(WARNING_TITLE) if c["visible"]]
        check(text.lower() in texts, f"{text!r} missing, the warning shows {texts}")
    return prüfen


def datei_text(h, relativ):
    """A file of the program folder (daten\\x.txt) as text; "" when it is not there."""
    path = os.path.join(h.folder, *relativ.split("\\"))
    if not os.path.exists(path):
        return ""
    with open(path, "rb") as f:
        return f.read().decode("cp1252")


def enthält(relativ, *teile):
    """The file of the program folder holds every part."""
    def prüfen(h):
        text = datei_text(h, relativ)
        for teil in teile:
            check(teil in text, f"{relativ} lacks {teil!r}: {text!r}")
    return prüfen


def log_enthält(*teile):
    return enthält("Kestrella.log", *teile)
