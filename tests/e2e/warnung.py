"""End-to-end tests of the warning window and the tray: accepting a changed hosts file,
the tray menu, and pictures of both for a person to look at (BUILD/e2e-shots)."""

import os
import time

from e2e_gemeinsam import WARNING_TITLE, hosts_grown, start_monitoring, visible_titles
from harness import check, test, wait_until


@test
def hosts_warning_accepted_takes_the_size_and_does_not_return(h):
    start_monitoring(h, "hostsaccept")
    _, new = hosts_grown(h)
    hwnd = h.wait_window(WARNING_TITLE, 15)
    h.kd("redraw", hwnd)
    h.screenshot(os.path.join(h.shots, "warnung-hosts.png"))
    buttons = [c["text"] for c in h.texts(WARNING_TITLE) if c["class"].lower() == "button" and c["visible"]]
    for caption in ("Übernehmen", "Original", "Öffnen", "Später", "Kestrella sofort Deaktivieren"):
        check(caption in buttons, f"button {caption!r} missing, the bar shows {buttons}")
    h.click(hwnd, "Übernehmen")
    h.gone(hwnd, 10)
    # Stage 1: three more cycles over the same file.
    time.sleep(3)
    check(WARNING_TITLE not in visible_titles(h), "the accepted change raised the warning again")
    out = h.run(["wine", h.kestrella_dat, "show", h.win_path(os.path.join(h.folder, "kestrella.dat"))],
                env=h.tool_env).stdout.decode("cp1252")
    check(f"hostsgrösse (int32) = {new}" in out, f"the new size {new} was not saved: {out}")


@test
def tray_menu_switches_monitoring_off_and_on(h):
    start_monitoring(h, "tray")
    h.kd("post", "KestrellaStart", "512", "0", "517")
    # The menu opens when the program has taken the click, later on a busy machine.
    menu = wait_until(lambda: h.kd("menu", check=False), 10)
    check(menu, "the tray menu did not open")
    h.screenshot(os.path.join(h.shots, "tray-menu.png"))
    for caption in ("Einstellungen", "Überwachung ist aktiv", "Log-Datei öffnen", "Autostart", "Beenden"):
        check(caption in menu, f"menu entry {caption!r} missing: {menu}")
    h.kd("menu-click", "Überwachung ist aktiv")
    # Switched off: a grown hosts file raises nothing.
    hosts_grown(h)
    time.sleep(3)
    check(WARNING_TITLE not in visible_titles(h), "a warning came while monitoring was off")
    h.kd("post", "KestrellaStart", "512", "0", "514")
    check(wait_until(lambda: "Überwachung ist deaktiviert" in h.kd("menu", check=False), 5),
          "the menu does not say that monitoring is off")
    h.kd("menu-click", "Überwachung ist deaktiviert")
    h.wait_window(WARNING_TITLE, 10)


@test
def hosts_original_menu_writes_the_standard_file(h):
    start_monitoring(h, "hostsoriginal")
    hosts_grown(h)
    hwnd = h.wait_window(WARNING_TITLE, 15)
    h.click(hwnd, "Original")
    check(wait_until(lambda: "Standard setzen" in h.kd("menu", check=False), 5), "the menu of Original did not open")
    h.kd("menu-click", "Standard setzen")
    h.gone(hwnd, 10)
    with open(h.hosts_path(), "rb") as f:
        content = f.read()
    check(content == b"127.0.0.1  localhost\r\n#Orginal Host Datei\r\n", f"hosts file not reset: {content!r}")
    time.sleep(3)
    check(WARNING_TITLE not in visible_titles(h), "the reset hosts file raised a warning")
