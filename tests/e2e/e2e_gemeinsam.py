"""What several end-to-end test files share: titles, starting a watched program, and
changing the hosts file."""

import os

from harness import check, wait_until

HIDDEN_CLASS = "KestrellaStart"
WARNING_TITLE = "Kestrella - Warnung"
ASSISTANT_TITLE = "Kestrella - Assistent"
MESSAGE_TITLE = "Kestrella"


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
