"""One end-to-end scenario as data, run by one runner: the settings, how the machine stands
before, what changes, which warning comes with which texts and buttons, which answer is
given, and what must hold after it.

    szenario(Szenario(name=..., einstellungen=dict(box26=1), änderung=[reg_add(...)], ...))

registers a test of that name in the calling module. The steps and checks are small
functions of the harness made by the helpers below; a text may be such a function too, for
what is known only while the test runs (a size, a path in the prefix). Whatever the outcome,
the steps of `aufräumen` run at the end: the prefix serves every run."""

import dataclasses
import inspect
import os
from typing import Callable

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, visible_titles
from harness import TESTS, check, wait_until

Schritt = Callable  # (h) -> None
Prüfung = Callable  # (h) -> None, raises when it does not hold


@dataclasses.dataclass
class Szenario:
    name: str
    einstellungen: dict
    änderung: list
    texte: list = dataclasses.field(default_factory=list)  # visible texts of the warning
    knöpfe: list = dataclasses.field(default_factory=list)  # buttons the bar shows
    ohne_knöpfe: list = dataclasses.field(default_factory=list)  # buttons it must not show
    antwort: str = ""  # the button clicked; "" leaves the window open
    bestätigen: tuple = ()  # (title, button) of the question the answer opens
    danach: list = dataclasses.field(default_factory=list)  # checks after the window has gone
    vorher: list = dataclasses.field(default_factory=list)  # steps before the program folder
    im_ordner: list = dataclasses.field(default_factory=list)  # steps in the new program folder
    aufräumen: list = dataclasses.field(default_factory=list)
    im_fenster: list = dataclasses.field(default_factory=list)  # checks while the warning is open
    bild: str = ""  # a picture of the warning in e2e-shots for a person to look at
    ruhig_vorher: float = 0  # seconds without a warning after the start, before the change
    ruhig: float = 2.5  # seconds without the warning coming again after the answer


def szenario(s):
    def lauf(h):
        try:
            ausführen(h, s)
        finally:
            for schritt in s.aufräumen:
                schritt(h)

    lauf.__name__ = s.name
    lauf.__module__ = inspect.currentframe().f_back.f_globals["__name__"]
    TESTS.append(lauf)
    return s


def ausführen(h, s):
    for schritt in s.vorher:
        schritt(h)
    h.program_folder(s.name)
    for schritt in s.im_ordner:
        schritt(h)
    h.settings(aufab1=1, **s.einstellungen)
    h.start()
    check(wait_until(lambda: hidden_windows(h), 30), "the program did not start")
    if s.ruhig_vorher:
        kam = wait_until(lambda: WARNING_TITLE in visible_titles(h), s.ruhig_vorher, 0.3)
        check(not kam, "a warning came before the change, for what the machine held at the start")
    for schritt in s.änderung:
        schritt(h)
    hwnd = h.wait_window(WARNING_TITLE, 15)
    controls = [c for c in h.texts(WARNING_TITLE) if c["visible"]]
    texts = [c["text"] for c in controls]
    for text in s.texte:
        text = text(h) if callable(text) else text
        check(text in texts, f"{text!r} missing, the warning shows {texts}")
    shown = [c["text"] for c in controls if c["class"].lower() == "button"]
    for knopf in s.knöpfe:
        check(knopf in shown, f"button {knopf!r} missing, the bar shows {shown}")
    for knopf in s.ohne_knöpfe:
        check(knopf not in shown, f"button {knopf!r} should not be there, the bar shows {shown}")
    for prüfung in s.im_fenster:
        prüfung(h)
    if s.bild:
        h.kd("redraw", hwnd)
        h.screenshot(os.path.join(h.shots, s.bild))
    if not s.antwort:
        return
    h.click(hwnd, s.antwort)
    if s.bestätigen:
        h.wait_window(s.bestätigen[0], 10)
        h.click(s.bestätigen[0], s.bestätigen[1])
    # By handle: at stage 1 a next warning, with the same title, may be up before this one
    # is seen to go.
    h.gone(hwnd, 10)
    for prüfung in s.danach:
        prüfung(h)
    if s.ruhig:
        kam = wait_until(lambda: WARNING_TITLE in visible_titles(h), s.ruhig, 0.3)
        check(not kam, f"the warning came again within {s.ruhig} s of {s.antwort!r}")


# --- steps -------------------------------------------------------------------------------

def reg_add(key, name, data, kind="REG_SZ"):
    return lambda h: h.reg_add(key, name, data, kind)


def reg_delete(key, name=None):
    return lambda h: h.reg_delete(key, name)


# --- checks ------------------------------------------------------------------------------

def reg_query(h, key, *args):
    """reg query's output, or None when the key or value is not there."""
    out = h.run(["wine", "reg", "query", key, *args], env=h.tool_env, check=False)
    return out.stdout.decode("cp1252", "replace") if out.returncode == 0 else None


def reg_fehlt(key, name):
    return lambda h: check(reg_query(h, key, "/v", name) is None, f"{key}\\{name} is still there")


def datei_text(h, relativ):
    """A file of the program folder as text; "" when it is not there."""
    path = os.path.join(h.folder, relativ)
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
