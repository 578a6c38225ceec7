# Shared steps of run.sh and test.sh: install what the build needs (Debian), then build.
# The native tree holds the portable logic and its tests; the Windows tree the program.

kes_install() {
  local need=()
  command -v x86_64-w64-mingw32-g++-posix >/dev/null || need+=(g++-mingw-w64-x86-64)
  command -v wine >/dev/null || need+=(wine64 wine)
  command -v Xvfb >/dev/null || need+=(xvfb)
  command -v cmake >/dev/null || need+=(cmake)
  command -v g++ >/dev/null || need+=(g++)
  [ -f /usr/src/googletest/CMakeLists.txt ] || need+=(googletest)
  [ -f /usr/include/gtest/gtest.h ] || need+=(libgtest-dev)
  [ -f /usr/include/nlohmann/json.hpp ] || need+=(nlohmann-json3-dev)
  command -v python3 >/dev/null || need+=(python3)
  command -v clang++ >/dev/null || need+=(clang)
  compgen -G '/usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a' >/dev/null || need+=(libclang-rt-14-dev)
  command -v import >/dev/null || need+=(imagemagick)
  [ -d /usr/share/i18n/locales ] || need+=(locales)
  if [ ${#need[@]} -gt 0 ]; then
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    echo "Installing: ${need[*]}"
    $sudo apt-get update -q
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -q --no-install-recommends "${need[@]}"
  fi
}

# Debian's Wine has no preloader: now and then the kernel puts a Wine process's C heap
# across the address where Wine must map its shared user data, and that process ends at
# start with "failed to map the shared user data" (1 of 4 000 starts here, none of 4 000
# with setarch -R). Without address randomisation the heap follows the loader and never
# gets there; every process started from here on inherits that. Call with the script's
# full path and arguments. Where the personality cannot be set (a container's seccomp
# filter may refuse it), the script goes on as it is.
kes_fixed_layout() {
  (( 0x$(cat /proc/self/personality) & 0x40000 )) && return 0
  if setarch -R true 2>/dev/null; then exec setarch -R "$@"; fi
  echo "setarch -R refused: Wine starts with a randomised address layout" >&2
}

# A German locale for Wine: the program's dates and numbers, and umlauts on the command
# lines of the test tools, need it installed, not only named.
kes_locale() {
  locale -a 2>/dev/null | grep -qix 'de_DE\.utf-\?8' && return 0
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo=sudo
  $sudo localedef -i de_DE -f UTF-8 de_DE.UTF-8
}

# Configure quietly, but show everything it said when it fails.
kes_configure() {
  local log
  log=$(mktemp)
  if ! cmake "$@" >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    echo "configure failed: cmake $*" >&2
    return 1
  fi
  rm -f "$log"
}

# Further arguments go to the configuration (test.sh: -DKES_SANITIZE=ON).
kes_build_native() {
  kes_configure -S . -B build-native -DCMAKE_BUILD_TYPE=Debug "$@"
  cmake --build build-native -j2
}

kes_build_win() {
  kes_configure -S . -B build-win -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64.cmake -DCMAKE_BUILD_TYPE=Release
  # A failed build must fail the call: the copies below would hide it.
  cmake --build build-win -j2 || return
  # The program folder as delivered: the program, daten\ beside it, and the settings tool.
  mkdir -p build-win/program/daten
  cp build-win/Kestrella.exe build-win/kestrella-dat.exe build-win/program/
  cp -r daten/. build-win/program/daten/ 2>/dev/null || true
}

# Starts Xvfb on the first free display and exports DISPLAY. Xvfb itself picks the number
# and writes it to a descriptor once it takes connections; a fixed number would be shared
# with any other run on the machine, whose end would take our windows with it. -noreset:
# Xvfb writes the number again at each server reset and ends when nobody reads it.
# KES_XVFB_PID is the server's process, for the caller to end.
kes_xvfb() {
  local dir number=""
  dir=$(mktemp -d)
  mkfifo "$dir/display"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$dir/display" >/dev/null 2>&1 &
  KES_XVFB_PID=$!
  read -r -t 30 number <"$dir/display" || true
  rm -rf "$dir"
  if [ -z "$number" ]; then
    echo "Xvfb did not start" >&2
    return 1
  fi
  export DISPLAY=":$number"
}

# Starts a stage of test.sh: prints its name, and how long the stage before it took.
# `kes_stage end` closes the last one.
kes_stage() {
  if [ -n "${KES_STAGE:-}" ]; then
    echo "== $KES_STAGE: $((SECONDS - KES_STAGE_START)) s"
  fi
  KES_STAGE=$1 KES_STAGE_START=$SECONDS
  [ "$1" = end ] || echo "== $1"
}

# Lines of the program against lines of its tests: tracked files only, the fuzz corpus
# (inputs, not test code) left out. The same count by hand:
#   git ls-files -z src | xargs -0 cat | wc -l
#   git ls-files -z tests ':!:tests/fuzz/corpus' | xargs -0 cat | wc -l
kes_line_count() {
  local src tests
  src=$(git ls-files -z src | xargs -0 cat | wc -l)
  tests=$(git ls-files -z tests ':!:tests/fuzz/corpus' | xargs -0 cat | wc -l)
  echo "lines: src $src, tests $tests ($((100 * tests / src)) % of src)"
  local d parts=""
  for d in $(git ls-files tests ':!:tests/fuzz/corpus' | awk -F/ 'NF > 2 {print $2}' | sort -u); do
    parts+=" $d $(git ls-files -z "tests/$d" ':!:tests/fuzz/corpus' | xargs -0 cat | wc -l),"
  done
  echo "tests by folder:${parts%,}"
}
