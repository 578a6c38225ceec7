#!/usr/bin/env bash
# Fails when a tracked file names a place outside the repository that holds someone else's
# data: the repository must build, test and benchmark on a fresh clone and nothing else.
#
# The rule, over every tracked text file (the fuzz corpus is data, not paths, and is left
# out; so is this script, which has to name what it looks for):
#   - a climb out of the repository into a sibling folder named shared, written with a
#     slash, with backslashes, or as the two separate path parts of a join;
#   - an absolute path into a tree of user or project data: /work/, /home/, /root/, /mnt/,
#     /media/, /srv/, /opt/, /var/, /tmp/ (a throwaway folder goes in the build tree
#     instead; the X server's socket folder /tmp/.X11-unix is the system's, not data);
#   - the user's home folder: ~/, $HOME, ${HOME}, expanduser, a lookup of "HOME".
# Paths of the system itself are allowed: /usr, /bin, /etc, /proc, /dev, /sys name the tools,
# packages and kernel interfaces of the machine the project is built on, not another
# repository's files.
set -euo pipefail
cd "$(dirname "$0")/.."
self=tools/outside_paths.sh
rule='\.\.(/|\\+|["'"'"'] *, *["'"'"'])shared\b'
rule+='|(^|[^A-Za-z0-9_.-])/(work|home|root|mnt|media|srv|opt|var|tmp)/'
rule+='|~/|\$HOME\b|\$\{HOME\}|expanduser|["'"'"']HOME["'"'"']'
hits=$(git ls-files -z -- . ":!:tests/fuzz/corpus" ":!:$self" |
  xargs -0 grep -I -n -E "$rule" -- 2>/dev/null | grep -v -E '/tmp/\.X11-unix/' || true)
if [ -n "$hits" ]; then
  echo "Tracked files name places outside the repository:" >&2
  echo "$hits" >&2
  exit 1
fi
