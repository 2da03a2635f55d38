#!/usr/bin/env python3
"""Writes the English language source (a string table) from the library's built-in texts.

The built-in table in src/common/builtin_texts.inc is the one place the English texts are kept; the
English language file is compiled from this script's output, so run it again after changing that
table. Other languages are written by hand beside it, one identifier per line in the same order.

Usage: make_language_rc.py [--table FILE] [--out FILE]
Only the Python standard library is used.
"""

import argparse
import os
import re

ENTRY = re.compile(r'^\{(\d+), "((?:[^"\\]|\\.)*)"\},$')


def read_table(path):
    """The (identifier, text) pairs of the built-in table, in file order."""
    entries = []
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.strip()
            if not line or line.startswith("//"):
                continue
            match = ENTRY.match(line)
            if not match:
                raise SystemExit("unexpected line in %s: %s" % (path, line))
            # The table holds C++ string literals; a string table doubles its quotes instead.
            text = bytes(match.group(2), "utf-8").decode("unicode_escape").encode("latin-1").decode("utf-8")
            entries.append((int(match.group(1)), text))
    return entries


def rc_source(entries):
    # The resource compiler runs without a preprocessor, so the file can carry no comment.
    lines = [
        "LANGUAGE 9, 1",
        "STRINGTABLE",
        "BEGIN",
    ]
    for identifier, text in entries:
        lines.append('    %d "%s"' % (identifier, text.replace('"', '""')))
    lines.append("END")
    return "\n".join(lines) + "\n"


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--table", default=os.path.join(root, "src", "common", "builtin_texts.inc"))
    parser.add_argument("--out", default=os.path.join(root, "assets", "languages", "Trovane2_EN.rc"))
    args = parser.parse_args()
    with open(args.out, "w", encoding="utf-8", newline="\n") as f:
        f.write(rc_source(read_table(args.table)))


if __name__ == "__main__":
    main()
