"""The tree keeps the rule of dependency, the check of it notices each breach, and no source file is long."""

import tempfile
import unittest
from pathlib import Path

from include_graph import NOT_SOURCES, complaints

ROOT = Path(__file__).resolve().parents[2]
LONGEST = 350  # lines, of any source file but the tables of texts
KINDS = {".h", ".cpp", ".qml", ".py", ".txt", ".cmake", ".frag", ".vert", ".glsl", ""}


def long_files():
    for path in ROOT.rglob("*"):
        file = path.relative_to(ROOT)
        if path.is_file() and path.suffix in KINDS and file.parts[0] not in NOT_SOURCES:
            lines = len(path.read_text(errors="replace").splitlines())
            if lines > LONGEST and not file.match("l10n/texts/*"):
                yield f"{file}: {lines} lines"


class TheTree(unittest.TestCase):
    def test_keeps_the_rule_of_dependency(self):
        self.assert_nothing(complaints(ROOT))

    def test_has_no_long_files(self):
        self.assert_nothing(list(long_files()))

    def assert_nothing(self, found):
        if found:
            self.fail("\n" + "\n".join(found))


class TheCheck(unittest.TestCase):
    """A small tree that keeps the rule, and breaches of it one by one."""

    TREE = {
        "l10n/L10n.h": "#include <string>\n",
        "platform/CMakeLists.txt": "add_library(vorbel_platform STATIC\n    runloop/Queue.cpp)\n",
        "platform/runloop/Queue.h": "",
        "platform/runloop/Queue.cpp": '#include "platform/runloop/Queue.h"\n',
        "platform/runloop/QtQueue.h": "#include <QObject>\n",
        "engine/Game.h": '#include "platform/runloop/Queue.h"\n#include "l10n/L10n.h"\n',
        "app/View.cpp": '#include "engine/Game.h"\n#include "platform/runloop/QtQueue.h"\n#include <QQuickItem>\n',
    }

    def judge(self, breach):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**self.TREE, **breach}.items():
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            return complaints(folder)

    def assert_refused(self, name, text, reason):
        found = self.judge({name: text})
        self.assertTrue(any(reason in sentence for sentence in found), found)

    def test_accepts_arrows_that_point_down(self):
        self.assertEqual([], self.judge({}))

    def test_refuses_an_arrow_that_points_up(self):
        self.assert_refused("platform/random/R.h", '#include "engine/Game.h"\n', "arrows point down")
        self.assert_refused("l10n/Table.cpp", '#include "platform/runloop/Queue.h"\n', "arrows point down")
        self.assert_refused("scene/Court.cpp", '#include "app/View.cpp"\n', "arrows point down")

    def test_refuses_a_toolkit_in_the_game(self):
        bullet = ("<btBulletDynamicsCommon.h>", "<bullet/LinearMath/btVector3.h>")
        for header in ("<QString>", "<QtCore/qglobal.h>", "<GL/gl.h>", '"SDL_mixer.h"', "<SDL2/SDL.h>", *bullet):
            for folder in ("engine", "career", "scene", "l10n", "platform/scenegraph"):
                self.assert_refused(f"{folder}/X.cpp", f"#include {header}\n", "is not known here")

    def test_refuses_a_toolkit_behind_a_header(self):
        self.assert_refused("scene/Court.cpp", '#include "platform/runloop/QtQueue.h"\n', "reaches Qt through")
        self.assert_refused("platform/runloop/Queue.h", "# include <QTimer>\n", "platform/runloop/Queue.cpp: reaches Qt")

    def test_refuses_the_wrong_toolkit_in_a_wrapper(self):
        self.assert_refused("platform/audio/Mixer.cpp", "#include <QObject>\n", "Qt is not known here")

    def test_refuses_a_folder_outside_the_design(self):
        self.assert_refused("helpers/X.h", "", "not a folder of the design")

    def test_refuses_an_include_that_does_not_start_at_the_root(self):
        self.assert_refused("engine/Turn.cpp", '#include "Game.h"\n', "not a path from the root")


if __name__ == "__main__":
    unittest.main()
