"""The one rule of dependency: arrows point down, and toolkits stay where they are wrapped.

complaints(root) reads every C++ file under the root and returns one sentence for each breach.
"""

import re
from pathlib import Path

GAME = {"engine", "career", "scene"}  # the rooms of one class, GameLogic
BELOW_GAME = {"platform", "l10n"}

# What the files of each top folder may include of this project.
MAY_INCLUDE = {
    "l10n": {"l10n"},
    "platform": {"platform"},
    **{room: GAME | BELOW_GAME for room in GAME},
    "app": {"app"} | GAME | BELOW_GAME,
    "tools": {"tools"} | GAME | BELOW_GAME,
    "bench": {"bench", "tests", "tools", "app"} | GAME | BELOW_GAME,
    "tests": {"tests", "tools", "app"} | GAME | BELOW_GAME,
}

TOOLKITS = {
    "Qt": r"Q[A-Z]\w*(/.*)?|Qt\w*/.*|q[a-z_]+\.h|.*\.moc",
    "OpenGL": r"(GL|GLES\d?|KHR|EGL|epoxy)/.*",
    "SDL": r"SDL.*",
    "Bullet": r"bt[A-Z].*|(bullet/)?(Bullet|LinearMath).*|bullet/.*",
}

# The folders that wrap a toolkit. Everything else under platform/ is plain data and interfaces.
MAY_WRAP = {
    "platform/physics": {"Bullet"},
    "platform/render": {"OpenGL", "Qt"},
    "platform/audio": {"SDL"},
    "platform/runloop": {"Qt"},
    "platform/store": {"Qt"},
    "app": set(TOOLKITS),
    "tools": set(TOOLKITS),
    "tests": set(TOOLKITS),
    "bench": set(TOOLKITS),
}

INCLUDE = re.compile(r'^\s*#\s*include\s*(<[^>]+>|"[^"]+")', re.MULTILINE)
SUFFIXES = {".h", ".hpp", ".cpp", ".cc", ".inc"}
NOT_SOURCES = {"build", ".git"}


def sources(root):
    """The C++ files under the root, as paths relative to it."""
    found = (path.relative_to(root) for path in root.rglob("*") if path.suffix in SUFFIXES)
    return sorted(p for p in found if p.parts[0] not in NOT_SOURCES)


def toolkit_of(header):
    return next((name for name, pattern in TOOLKITS.items() if re.fullmatch(pattern, header)), None)


def data_half(root):
    """The files of platform/ that the library without toolkits compiles, and their headers."""
    lists = (root / "platform/CMakeLists.txt").read_text()
    library = re.search(r"add_library\(vorbel_platform\b([^)]*)\)", lists)
    files = {Path("platform") / name for name in re.findall(r"\S+\.cpp", library[1])} if library else set()
    return files | {f.with_suffix(".h") for f in files}


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


def complaints(root):
    root = Path(root)
    files = sources(root)
    if not files:
        return [f"{root}: no source files here"]
    includes, toolkits, found = {}, {}, []
    for file in files:
        top, folder = file.parts[0], "/".join(file.parts[:2])
        if top not in MAY_INCLUDE:
            found.append(f"{file}: '{top}' is not a folder of the design")
            continue
        includes[file], toolkits[file] = set(), set()
        for quoted in INCLUDE.findall((root / file).read_text()):
            header = quoted[1:-1]
            if (root / header).is_file():
                includes[file].add(Path(header))
                if header.split("/")[0] not in MAY_INCLUDE[top]:
                    found.append(f"{file}: includes {header}, but arrows point down")
            elif toolkit := toolkit_of(header):
                toolkits[file].add(toolkit)
                if toolkit not in MAY_WRAP.get(folder, MAY_WRAP.get(top, set())):
                    found.append(f"{file}: includes {header}, but {toolkit} is not known here")
            elif quoted[0] == '"':
                found.append(f"{file}: includes {header}, which is not a path from the root")

    free_of_toolkits = data_half(root) | {f for f in files if f.parts[0] in GAME | {"l10n"}}
    for file in sorted(free_of_toolkits & includes.keys()):
        for reached, way in reach(file, includes).items():
            for toolkit in toolkits.get(reached, ()):
                found.append(f"{file}: reaches {toolkit} through " + " -> ".join(map(str, way[1:] or way)))
    return found
