"""A machine of one's own to run ./play, ./test and .ci/run on: a copy of the scripts, and a PATH of stand-ins."""

import os
import shutil
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
ORDINARY = """basename bash cat cksum comm cut date dirname echo env find grep head ln ls mkdir mktemp nproc readlink rm sed sh
              sleep sort tail tee timeout touch tr uname xargs""".split()

# What the stand-ins are asked, a line each, is kept in $ASKED.
CMAKE = r"""
echo "cmake $*" >>"$ASKED"
case "$*" in *\;*) echo "CMake takes a semicolon for the end of a path" >&2; exit 1 ;; esac
[ ! -e "$STATE/no-libraries" ] || { echo "Could NOT find Qt6" >&2; exit 1; }
if [ "$1" = -S ]; then
    [ -d "$2/tools" ] || { echo "no tree in '$2'" >&2; exit 1; }
    mkdir -p "$2/build/$4"
    echo "CMAKE_HOME_DIRECTORY:INTERNAL=$2" >"$2/build/$4/CMakeCache.txt"
    touch "$2/build/$4/build.ninja"
elif [ "$1" = --build ]; then
    printf '#!/bin/sh\necho "game from $(readlink -f "$0"):$*"\n' >"$2/vorbel"
    /bin/chmod +x "$2/vorbel"
fi
"""
APT_GET = r"""
echo "apt-get $*" >>"$ASKED"
case "$*" in *install*) [ ! -e "$STATE/no-network" ] || { echo "E: no network" >&2; exit 100; } ;; esac
"""
DPKG_QUERY = r"""
shift 2
for package; do grep -qxF "$package" "$STATE/missing" || echo "installed $package"; done
"""
SUDO = 'echo sudo >>"$ASKED"\nexec "$@"\n'
ID = 'cat "$STATE/user"\n'
CTEST = 'echo "ctest $*" >>"$ASKED"\n'


class Machine:
    """Debian, used by root, with every package installed and without a display."""

    def __init__(self, folder="vorbel"):
        self.place = Path(tempfile.mkdtemp(prefix="scripts-"))
        self.tree = self.place / folder
        self.bin = self.place / "bin"
        self.state = self.place / "state"
        for made in (self.tree, self.bin, self.state, self.place / "home"):
            made.mkdir()
        self._copy_scripts()
        for tool in ORDINARY:
            (self.bin / tool).symlink_to(shutil.which(tool))
        for name, script in (("cmake", CMAKE), ("apt-get", APT_GET), ("dpkg-query", DPKG_QUERY), ("ctest", CTEST),
                             ("id", ID)):
            self.stand_in(self.bin / name, script)
        self.is_user(0)
        self.lacks()

    def _copy_scripts(self):
        shutil.copytree(ROOT / "tools", self.tree / "tools", ignore=shutil.ignore_patterns("__pycache__"))
        (self.tree / ".ci").mkdir()
        for name in ("play", "test", ".ci/run", "CMakePresets.json"):
            shutil.copy(ROOT / name, self.tree / name)
            os.utime(self.tree / name, (0, 0))
        self.stand_in(self.tree / "tools/virtual-display", 'exec "$@"\n')
        for check in ("check-format", "check-qml", "check-signature", "check-tidy"):
            self.stand_in(self.tree / "tools" / check, f'echo "{check}" >>"$ASKED"\n')

    @staticmethod
    def stand_in(path, script):
        path.write_text("#!/bin/bash\n" + script)
        path.chmod(0o755)

    def is_user(self, number, sudo=False):
        (self.state / "user").write_text(f"{number}\n")
        if sudo:
            self.stand_in(self.bin / "sudo", SUDO)

    def lacks(self, *packages):
        (self.state / "missing").write_text("".join(f"{package}\n" for package in packages))

    def is_no_debian(self):
        (self.bin / "apt-get").unlink()
        (self.bin / "dpkg-query").unlink()

    def run(self, script, *arguments, folder="/", **environment):
        """The finished process; what it was told and what it said are in its `stdout`."""
        variables = {"PATH": str(self.bin), "HOME": str(self.place / "home"), "STATE": str(self.state),
                     "ASKED": str(self.state / "asked"), "TMPDIR": str(self.place), **environment}
        return subprocess.run([str(script), *arguments], cwd=folder, env=variables, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def asked(self, tool):
        """What the tool was asked so far."""
        asked = self.state / "asked"
        lines = asked.read_text().splitlines() if asked.exists() else []
        return [line for line in lines if line.split(" ")[0] == tool]

    def remove(self):
        shutil.rmtree(self.place)
