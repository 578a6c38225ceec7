#!/usr/bin/env python3
"""Copies C++ sources with their string and character literals turned into code page 1252.

clang knows no execution character set but UTF-8, while the program's texts are bytes of
code page 1252 (g++ does it with -fexec-charset). So the fuzz build compiles copies in
which every non-ASCII character inside a literal is an octal escape of its 1252 byte;
identifiers and comments stay UTF-8, as clang reads them. A copy is rewritten only when
its content changes, so that make rebuilds only what changed.

usage: cp1252.py SOURCE_ROOT OUT_ROOT DIR...   (DIRs relative to SOURCE_ROOT)
"""
import os
import sys


def literals_to_cp1252(text: str) -> str:
    out = []
    i, n = 0, len(text)
    state = "code"  # code, line, block, string, char
    while i < n:
        c = text[i]
        if state == "code":
            if text.startswith("//", i):
                state = "line"
            elif text.startswith("/*", i):
                state = "block"
            elif c == '"':
                state = "string"
            elif c == "'":
                state = "char"
            out.append(c)
        elif state == "line":
            if c == "\n":
                state = "code"
            out.append(c)
        elif state == "block":
            if text.startswith("*/", i):
                out.append("*/")
                i += 2
                state = "code"
                continue
            out.append(c)
        else:
            end = '"' if state == "string" else "'"
            if c == "\\" and i + 1 < n:
                out.append(text[i:i + 2])
                i += 2
                continue
            if c == end:
                state = "code"
                out.append(c)
            elif ord(c) < 128:
                out.append(c)
            else:
                out.extend("\\%03o" % b for b in c.encode("cp1252"))
        i += 1
    return "".join(out)


def main() -> int:
    if len(sys.argv) < 4:
        print(__doc__, file=sys.stderr)
        return 2
    root, out_root = sys.argv[1], sys.argv[2]
    for rel in sys.argv[3:]:
        for folder, _, files in os.walk(os.path.join(root, rel)):
            for name in files:
                if not name.endswith((".h", ".cpp")):
                    continue
                src = os.path.join(folder, name)
                dst = os.path.join(out_root, os.path.relpath(src, root))
                with open(src, encoding="utf-8") as f:
                    new = literals_to_cp1252(f.read())
                old = None
                if os.path.exists(dst):
                    with open(dst, encoding="utf-8") as f:
                        old = f.read()
                if new != old:
                    os.makedirs(os.path.dirname(dst), exist_ok=True)
                    with open(dst, "w", encoding="utf-8") as f:
                        f.write(new)
    return 0


if __name__ == "__main__":
    sys.exit(main())
