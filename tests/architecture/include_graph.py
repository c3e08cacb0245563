#!/usr/bin/env python3
"""Which folder includes which. Run as a script it prints the graph of the tree, a folder a line, with counts."""

import re
import subprocess
from collections import Counter
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*(<[^>]+>|"[^"]+")', re.MULTILINE)
SUFFIXES = {".h", ".hpp", ".cpp", ".cc", ".inc"}


def tracked(root):
    """The files that belong to the tree, as paths relative to the root: whatever else lies about is not read."""
    # Whoever owns the checkout, here it is only read.
    command = ["git", "-c", "safe.directory=*", "-C", str(root), "ls-files", "-z"]
    listed = subprocess.run(command, check=True, capture_output=True, text=True).stdout.split("\0")
    return [Path(name) for name in listed if name and (root / name).is_file()]


def sources(root):
    return sorted(file for file in tracked(root) if file.suffix in SUFFIXES)


def headers_of(root, file):
    """What a file includes, as (header, whether it was written in quotes)."""
    return [(quoted[1:-1], quoted[0] == '"') for quoted in INCLUDE.findall((root / file).read_text())]


def room(file):
    """The folder that a file belongs to: a top folder, or one of the platform's."""
    parts = file.parts[:-1]
    return "/".join(parts[:2] if parts[:1] == ("platform",) else parts[:1])


def include_graph(root):
    """How many times files of one room include files of another: {(from, to): count}."""
    arrows = Counter()
    for file in sources(root):
        for header, _ in headers_of(root, file):
            if (root / header).is_file() and room(Path(header)) != room(file):
                arrows[room(file), room(Path(header))] += 1
    return arrows


def reach(start, includes):
    """All project files that the start includes, directly or through others, with the way to each."""
    ways = {start: [start]}
    queue = [start]
    while queue:
        file = queue.pop()
        for header in includes.get(file, ()):
            if header not in ways:
                ways[header] = ways[file] + [header]
                queue.append(header)
    return ways


def main():
    root = Path(__file__).resolve().parents[2]
    arrows = include_graph(root)
    for folder in sorted({room(file) for file in sources(root)}):
        below = [f"{to} {count}" for (start, to), count in sorted(arrows.items()) if start == folder]
        print(f"{folder:20} -> {', '.join(below) or 'nothing'}")


if __name__ == "__main__":
    main()
