// kdriver's commands on the processes of the Wine prefix: list them, end one, read one's
// memory figures. The harness needs them to find a Kestrella that has no window left, to
// end it by id, and to measure the working set in the soak.
#pragma once

namespace kdprozesse {

// "procs": one line per process, its id and executable name separated by a tab.
int Liste();
// "kill PID": ends the process and waits up to 10 s until it has ended.
int Beenden(const char* pid);
// "memory PID": working set, peak working set, private bytes, in bytes, tab-separated.
int Speicher(const char* pid);

}  // namespace kdprozesse
