"""The one rule of dependency: arrows point down, and libraries stay where they are wrapped.

complaints(root) reads every C++ file of the tree and returns one sentence for each breach.
"""

import re
from graphlib import CycleError, TopologicalSorter
from pathlib import Path

from include_graph import headers_of, reach, sources
from libraries import library_of

# The platform's services as data and interfaces. The real ones stand beside them, in files that know a toolkit.
PLATFORM_DATA = {
    "platform/Platform.h",
    "platform/HeadlessPlatform.h",
    "platform/audio",
    "platform/random",
    "platform/resources",
    "platform/runloop",
    "platform/scenegraph",
    "platform/store",
}
GAME = {"engine", "scene", "career", "rules", "l10n", "math"}
PROGRAM = GAME | {"app", "narration", "platform", "recording"}

# What the files of each top folder may include of this project besides their own: folders, or single headers.
MAY_INCLUDE = {
    "math": set(),
    "l10n": set(),
    "rules": {"math", "l10n"},
    "narration": {"rules", "l10n"},
    "platform": {"math"},
    "scene": {"math", "rules", "l10n", "platform/random", "platform/scenegraph"},
    "career": {"rules", "l10n"},
    "engine": GAME | PLATFORM_DATA | {"platform/physics/PhysicsWorld.h"},
    "recording": GAME | PLATFORM_DATA,
    "app": PROGRAM,
    "tools": GAME | {"platform", "recording"},
    "bench": PROGRAM | {"tools", "tests"},
    "tests": PROGRAM | {"tools"},
}

# The libraries from outside that a top folder may see. POSIX is what the standard library leaves to the system.
TESTING = {"GLM", "POSIX", "Qt", "GoogleTest", "RapidCheck", "Google Benchmark"}
MAY_SEE = {
    "math": {"GLM"},
    "l10n": set(),
    "rules": {"GLM"},
    "narration": {"GLM"},
    "platform": {"GLM", "POSIX"},
    "scene": {"GLM"},
    "career": {"GLM", "nlohmann-json"},
    "engine": {"GLM"},
    "recording": {"GLM", "nlohmann-json"},
    "app": {"GLM", "POSIX", "Qt"},
    "tools": {"GLM", "POSIX"},
    "bench": TESTING,
    "tests": TESTING | {"SDL"},  # makes up controllers
}

# Under platform/, what the files of one CMake target may see besides.
MAY_WRAP = {
    "vorbel_audio_sdl": {"SDL", "mpg123", "ALSA"},
    "vorbel_controllers_sdl": {"SDL"},
    "vorbel_physics": {"Bullet"},
    "vorbel_render": {"Qt", "OpenGL"},
    "vorbel_runloop_qt": {"Qt"},
    "vorbel_speech_service": {"Speech Dispatcher"},
    "vorbel_store_qt": {"Qt"},
}

TARGET = re.compile(r"vorbel_library\(\s*(\w+)\s+SOURCES\s(.*?)(?:LINKS|WRAPS|\))", re.DOTALL)


def allows(permitted, header):
    return any(header == place or header.startswith(place + "/") for place in permitted)


def target_of(root, file):
    """The CMake target of a file of the platform; a header that stands alone belongs to the folder's first."""
    lists = root / file.parent / "CMakeLists.txt"
    found = TARGET.findall(lists.read_text()) if lists.is_file() else []
    compiled = {Path(name).stem: target for target, names in found for name in names.split()}
    return compiled.get(file.stem, found[0][0] if found else None)


def may_see(root, file):
    """The libraries from outside that a file may see."""
    wrapped = MAY_WRAP.get(target_of(root, file), set()) if file.parts[0] == "platform" else set()
    return MAY_SEE[file.parts[0]] | wrapped


def circles(includes):
    """The rooms of app/ are one target, as their QML module is: that they stand in no circle is said here."""
    below = {}
    for file, headers in includes.items():
        if file.parts[0] == "app":
            below.setdefault(file.parent, set()).update(header.parent for header in headers)
            below[file.parent].discard(file.parent)
    try:
        TopologicalSorter(below).prepare()
    except CycleError as error:
        return ["in a circle: " + " -> ".join(map(str, reversed(error.args[1])))]
    return []


def complaints(root):
    root = Path(root)
    files = sources(root)
    if not files:
        return [f"{root}: no source files here"]
    includes, libraries, permitted, found = {}, {}, {}, []
    for file in files:
        top = file.parts[0]
        if top not in MAY_INCLUDE:
            found.append(f"{file}: '{top}' is not a folder of the design")
            continue
        includes[file], libraries[file], permitted[file] = set(), set(), may_see(root, file)
        for header, in_quotes in headers_of(root, file):
            if (root / header).is_file():
                includes[file].add(Path(header))
                if not allows(MAY_INCLUDE[top] | {top}, header):
                    found.append(f"{file}: includes {header}, but arrows point down")
                continue
            library = library_of(header)
            if library == "standard":
                continue
            if library:
                libraries[file].add(library)
                if library not in permitted[file]:
                    found.append(f"{file}: includes {header}, but {library} is not known here")
            elif in_quotes:
                found.append(f"{file}: includes {header}, which is not a path from the root")
            else:
                found.append(f"{file}: includes {header}, which belongs to no library of the design")

    found += circles(includes)
    for file in includes:
        for reached, way in reach(file, includes).items():
            for library in libraries.get(reached, set()) - permitted[file] if len(way) > 1 else ():
                found.append(f"{file}: reaches {library} through " + " -> ".join(map(str, way[1:])))
    return found
