"""What several end-to-end test files share: titles, starting a watched program, and
changing the hosts file."""

import os

from harness import check, wait_until

HIDDEN_CLASS = "KestrellaStart"
WARNING_TITLE = "Kestrella - Warnung"
# The assistant and the panel share their title; their classes tell them apart.
ASSISTANT_TITLE = "Kestrella V2.2.0 AddOn Halvenik"
ASSISTANT_CLASS = "KestrellaAssistent"
PANEL_CLASS = "KestrellaPanel"
MESSAGE_TITLE = "Kestrella"
QUESTION_TITLE = "Info Kestrella!"


def by_class(h, cls):
    return [w for w in h.windows() if w["class"] == cls]


def visible_of_class(h, cls):
    """The hwnd of the first visible window of the class, or None."""
    return next((w["hwnd"] for w in by_class(h, cls) if w["visible"]), None)


def hidden_windows(h):
    return [w for w in h.windows() if w["class"] == HIDDEN_CLASS]


def visible_titles(h):
    return [w["title"] for w in h.windows() if w["visible"]]


def start_monitoring(h, name, *args, **extra):
    """Program folder with settings that watch the hosts file at stage 1, then started."""
    h.program_folder(name)
    values = {"box15": 1, "hostsgrösse": os.path.getsize(h.hosts_path()), "aufab1": 1}
    values.update(extra)
    h.settings(**values)
    proc = h.start(*args)
    check(wait_until(lambda: hidden_windows(h), 30), f"no hidden {HIDDEN_CLASS} window appeared")
    return proc


def hosts_grown(h):
    """Appends a line to the hosts file; gives (old size, new size)."""
    old = os.path.getsize(h.hosts_path())
    with open(h.hosts_path(), "ab") as f:
        f.write(b"127.0.0.1 kestrella-e2e.invalid\r\n")
    return old, os.path.getsize(h.hosts_path())
