"""End-to-end soak: one grown hosts file, and its warning closed with the close box 110
times, so that it comes back at every cycle. A tray program runs for weeks and raises
thousands of warnings: its working set must not grow with them. Under Wine the count of
GDI and USER objects cannot be read, but a leaked icon shows in the working set (about
16 KB)."""

from e2e_gemeinsam import WARNING_TITLE, hidden_windows, hosts_grown, start_monitoring
from harness import check, test

WARM_UP = 10  # the first warnings load what stays for the whole run
ROUNDS = 100
# A leaked icon per warning would add about 1.6 MB over the rounds.
LIMIT = 1024 * 1024


def close_warnings(h, rounds):
    """Closes ROUNDS warnings one after the other; each must come within 15 s."""
    h.kd("close-each", WARNING_TITLE, str(rounds), "15", timeout=rounds * 16 + 30)


@test
def hosts_warning_raised_and_closed_110_times_keeps_working_set_flat(h):
    start_monitoring(h, "dauerlauf")
    pid = hidden_windows(h)[0]["pid"]
    hosts_grown(h)
    close_warnings(h, WARM_UP)
    before = h.working_set(pid)
    close_warnings(h, ROUNDS)
    after = h.working_set(pid)
    print(f"     working set after warning {WARM_UP}: {before / 1024:.0f} KB, after warning {WARM_UP + ROUNDS}: "
          f"{after / 1024:.0f} KB ({(after - before) / 1024:+.0f} KB)", flush=True)
    check(after - before < LIMIT, f"the working set grew by {(after - before) / 1024:.0f} KB over {ROUNDS} warnings")
