#!/usr/bin/env python3
"""Mutation testing of the portable logic: how many small faults do the native suites catch?

Usage: tools/mutation.py [--mutants N] [--seed S] [--timeout SECONDS] [--tree DIR] [--first I] [--last J]

Every candidate site in the .cpp files of src/watchers, src/warning, src/panel and src/core is
listed in a fixed order; a seeded sample of N of them (default 200, seed 1, the kinds in equal
shares) is applied one at a time. Kinds of mutant:
  comparison  == and != swapped, < <= > >= turned round (a < b becomes a >= b)
  boundary    < and <=, > and >= exchanged (off by one at the edge)
  boolean     true and false swapped, && and || swapped
  constant    an integer literal n becomes n + 1 (off by one in a count or index)
  call        a statement that is nothing but a call is deleted

The repository's tracked files are copied to a tree of its own (default build-mutation/, beside
build-native: the worktree is never changed, so the script may run while work goes on), built
natively (Debug, ccache if CCACHE is set up in the environment), and after each mutation only the
changed file is compiled again and the test programs relinked. A mutant is killed when
unit_tests or contract_fake fails or runs past the time limit; it survives when both pass.
A mutant that does not compile counts in neither column. The soak test is left out: it runs
for a fixed time and would only multiply the run time. Prints one line per mutant, then the
score (killed / (killed + survived)) and the survivors as file:line and mutation.

Not part of ./test.sh: each mutant costs a compile, two links and up to two suite runs, so a
sample of 200 takes hours. Run it niced on a shared machine: nice -n 19 tools/mutation.py.
Ctrl-C or a TERM stops it after putting the current file back and prints the figures so far.
"""
import argparse, os, random, re, shutil, signal, subprocess, sys, time

ORDNER = ("src/watchers", "src/warning", "src/panel", "src/core")
REPO = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

VERGLEICH = {"==": "!=", "!=": "==", "<": ">=", ">=": "<", ">": "<=", "<=": ">"}
GRENZE = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
# Binary operators stand between blanks in this code base (clang-format): a template's
# angle brackets, shifts and arrows never do.
OPERATOR = re.compile(r"(?<= )(==|!=|<=|>=|<|>|&&|\|\|)(?= )")
WAHRHEIT = re.compile(r"\b(true|false)\b")
ZAHL = re.compile(r"(?<![\w.'])(\d+)(?![\w.'])")
AUFRUF = re.compile(r"^\s*(?:[A-Za-z_]\w*(?:\.|->|::))*[A-Za-z_]\w*\(.*\);\s*$")
KEIN_AUFRUF = re.compile(r"^\s*(return|if|while|for|switch|case|delete|throw|using|static_assert)\b")


def code_teil(zeile):
    """The line without its // comment and with string and char literals blanked, so that a
    mutation never lands in text; None for lines no mutant should touch."""
    s = zeile.strip()
    if not s or s.startswith(("#", "//", "/*", "*")):
        return None
    aus, i, n = [], 0, len(zeile)
    while i < n:
        c = zeile[i]
        if c in "\"'":
            ende = i + 1
            while ende < n and zeile[ende] != c:
                ende += 2 if zeile[ende] == "\\" else 1
            aus.append(c + " " * (min(ende, n) - i - 1) + (c if ende < n else ""))
            i = ende + 1
            continue
        if zeile.startswith("//", i):
            break
        aus.append(c)
        i += 1
    return "".join(aus)


def klammern_ausgeglichen(s):
    tiefe = 0
    for c in s:
        tiefe += c == "("
        tiefe -= c == ")"
        if tiefe < 0:
            return False
    return tiefe == 0


def kandidaten(quelle):
    """Every (file, line index, column, old text, new text, kind) in a fixed order."""
    alle = []
    for ordner in ORDNER:
        for name in sorted(os.listdir(os.path.join(quelle, ordner))):
            if not name.endswith(".cpp"):
                continue
            datei = f"{ordner}/{name}"
            with open(os.path.join(quelle, datei), encoding="utf-8") as f:
                zeilen = f.read().split("\n")
            for nr, zeile in enumerate(zeilen):
                code = code_teil(zeile)
                if code is None:
                    continue
                for m in OPERATOR.finditer(code):
                    op = m.group(1)
                    if op in ("&&", "||"):
                        alle.append((datei, nr, m.start(), op, "||" if op == "&&" else "&&", "boolean"))
                        continue
                    alle.append((datei, nr, m.start(), op, VERGLEICH[op], "comparison"))
                    if op in GRENZE:
                        alle.append((datei, nr, m.start(), op, GRENZE[op], "boundary"))
                for m in WAHRHEIT.finditer(code):
                    alt = m.group(1)
                    alle.append((datei, nr, m.start(), alt, "false" if alt == "true" else "true", "boolean"))
                for m in ZAHL.finditer(code):
                    if code[max(0, m.start() - 2):m.start()] == "0x":
                        continue
                    alle.append((datei, nr, m.start(), m.group(1), str(int(m.group(1)) + 1), "constant"))
                if AUFRUF.match(code) and not KEIN_AUFRUF.match(code) and klammern_ausgeglichen(code):
                    start = len(code) - len(code.lstrip())
                    ende = code.rstrip().rindex(";") + 1
                    alle.append((datei, nr, start, zeile[start:ende], ";", "call"))
    return alle


def kopieren(ziel):
    """The tracked files into the mutation tree; unchanged files keep their times, so that a
    second run builds only what changed."""
    dateien = subprocess.run(["git", "ls-files", "-z"], cwd=REPO, check=True,
                             capture_output=True).stdout.decode().split("\0")
    for d in filter(None, dateien):
        q, z = os.path.join(REPO, d), os.path.join(ziel, d)
        if not os.path.isfile(q):
            continue
        with open(q, "rb") as f:
            inhalt = f.read()
        if os.path.exists(z):
            with open(z, "rb") as f:
                if f.read() == inhalt:
                    continue
        os.makedirs(os.path.dirname(z), exist_ok=True)
        with open(z, "wb") as f:
            f.write(inhalt)
        shutil.copymode(q, z)


def bauen(bau, ziel):
    r = subprocess.run(["cmake", "--build", bau, "-j2", "--target", ziel],
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return r.returncode == 0


def besteht(programm, grenze):
    """True when the suite passes within the limit; it stops at the first failure."""
    try:
        r = subprocess.run([programm, "--gtest_brief=1", "--gtest_fail_fast"], stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, timeout=grenze)
        return r.returncode == 0
    except subprocess.TimeoutExpired:
        return False


def stichprobe(alle, anzahl, seed):
    """The same number of each kind, in turn (integer literals alone are half the sites and
    would crowd out the rest); within a kind, a seeded shuffle."""
    rng = random.Random(seed)
    arten = {}
    for k in alle:
        arten.setdefault(k[5], []).append(k)
    for liste in arten.values():
        rng.shuffle(liste)
    auswahl, reihe = [], sorted(arten)
    while len(auswahl) < min(anzahl, len(alle)):
        for art in reihe:
            if arten[art] and len(auswahl) < anzahl:
                auswahl.append(arten[art].pop())
    return auswahl


def pruefen(quelle, bau, programme, grenze, datei, nr, spalte, alt, neu):
    """Applies one mutant, builds and runs the suites, puts the file back: "killed",
    "survived" or "does not compile"."""
    pfad = os.path.join(quelle, datei)
    with open(pfad, encoding="utf-8") as f:
        original = f.read()
    zeilen = original.split("\n")
    z = zeilen[nr]
    assert z[spalte:spalte + len(alt)] == alt, (datei, nr, alt)
    zeilen[nr] = z[:spalte] + neu + z[spalte + len(alt):]
    try:
        with open(pfad, "w", encoding="utf-8") as f:
            f.write("\n".join(zeilen))
        for p in programme:
            if not bauen(bau, os.path.basename(p)):
                return "does not compile"
            if not besteht(p, grenze):
                return "killed"
        return "survived"
    finally:
        # A fresh time stamp, so that the next build compiles the original again.
        with open(pfad, "w", encoding="utf-8") as f:
            f.write(original)


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    ap.add_argument("--mutants", type=int, default=200)
    ap.add_argument("--seed", type=int, default=1)
    ap.add_argument("--timeout", type=float, default=0, help="seconds per suite (default: 5 x the clean run, at least 20)")
    ap.add_argument("--tree", default=os.path.join(REPO, "build-mutation"))
    # Two runs on trees of their own may share one sample: --last 100 and --first 101.
    ap.add_argument("--first", type=int, default=1, help="the first mutant of the sample to apply (from 1)")
    ap.add_argument("--last", type=int, default=0, help="the last mutant of the sample to apply (0: the end)")
    a = ap.parse_args()

    # A run in the background ignores Ctrl-C; a TERM ends it the same way.
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    quelle, bau = os.path.join(a.tree, "quelle"), os.path.join(a.tree, "bau")
    kopieren(quelle)
    r = subprocess.run(["cmake", "-S", quelle, "-B", bau, "-DCMAKE_BUILD_TYPE=Debug", "-DKES_BENCH=OFF"],
                       capture_output=True, text=True)
    if r.returncode != 0:
        sys.exit("configure failed:\n" + r.stdout + r.stderr)
    programme = [os.path.join(bau, "tests", p) for p in ("unit_tests", "contract_fake")]
    beginn = time.time()
    for p in programme:
        if not bauen(bau, os.path.basename(p)):
            sys.exit(f"the clean tree does not build: cmake --build {bau} --target {os.path.basename(p)}")
    t = time.time()
    for p in programme:
        if not besteht(p, 3600):
            sys.exit(f"the clean tree fails its own tests: {p}")
    grenze = a.timeout or max(20.0, 5 * (time.time() - t))
    print(f"mutation: clean build and run {t - beginn:.0f} s + {time.time() - t:.1f} s, limit {grenze:.0f} s per suite", flush=True)

    alle = kandidaten(quelle)
    auswahl = stichprobe(alle, a.mutants, a.seed)
    print(f"mutation: {len(alle)} candidate sites, {len(auswahl)} sampled with seed {a.seed}", flush=True)

    getoetet, ueberlebt, kaputt = 0, [], 0
    start = time.time()
    fertig = 0
    try:
        for i, (datei, nr, spalte, alt, neu, art) in enumerate(auswahl, 1):
            if i < a.first or (a.last and i > a.last):
                continue
            ergebnis = pruefen(quelle, bau, programme, grenze, datei, nr, spalte, alt, neu)
            beschreibung = f"{datei}:{nr + 1}: {art}: {alt} -> {neu}"
            if ergebnis == "does not compile":
                kaputt += 1
            elif ergebnis == "killed":
                getoetet += 1
            else:
                ergebnis = "SURVIVED"
                ueberlebt.append(beschreibung)
            fertig = i
            print(f"[{i}/{len(auswahl)} {time.time() - start:.0f} s] {ergebnis}: {beschreibung}", flush=True)
    except KeyboardInterrupt:
        print(f"stopped after {fertig} of {len(auswahl)} mutants", flush=True)

    gezaehlt = getoetet + len(ueberlebt)
    print(f"\nmutation score: {getoetet}/{gezaehlt} killed ({100.0 * getoetet / max(gezaehlt, 1):.1f} %), "
          f"{len(ueberlebt)} survived, {kaputt} did not compile; seed {a.seed}, {fertig} of {len(auswahl)} mutants, "
          f"{time.time() - start:.0f} s")
    if ueberlebt:
        print("survivors:")
        for s in ueberlebt:
            print("  " + s)


if __name__ == "__main__":
    main()
