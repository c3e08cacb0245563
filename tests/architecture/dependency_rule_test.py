"""The tree keeps the rule of dependency and its style, and the check of the rule notices each breach."""

import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from dependency_rule import complaints
from include_graph import include_graph, tracked

ROOT = Path(__file__).resolve().parents[2]
LONGEST = 250  # lines, of any source file but the tables of texts
TEST_CASE = re.compile(r"^(?:RC_GTEST_PROP|TEST(?:_[FP])?)\((.*)", re.MULTILINE)
TEST_NAME = re.compile(r"\w+Test, [A-Z]\w+")  # TEST(FooTest, ABallOnTheLineIsIn)
KINDS = {".h", ".cpp", ".qml", ".py", ".txt", ".cmake", ".frag", ".vert", ".glsl", ""}


def long_files():
    for file in tracked(ROOT):
        if file.suffix in KINDS and not file.match("l10n/texts/*"):
            lines = len((ROOT / file).read_text(errors="replace").splitlines())
            if lines > LONGEST:
                yield f"{file}: {lines} lines"


def misnamed_tests():
    for file in tracked(ROOT):
        cases = TEST_CASE.findall((ROOT / file).read_text()) if file.suffix == ".cpp" else []
        if cases and not file.stem.endswith("Test"):
            yield f"{file}: holds tests"
        yield from (f"{file}: {case}" for case in cases if not TEST_NAME.match(case))


class TheTree(unittest.TestCase):
    def test_keeps_the_rule_of_dependency(self):
        self.assert_nothing(complaints(ROOT))

    def test_has_no_long_files(self):
        self.assert_nothing(list(long_files()))

    def test_names_its_tests_alike(self):
        self.assert_nothing(list(misnamed_tests()))

    def assert_nothing(self, found):
        if found:
            self.fail("\n" + "\n".join(found))


class TheCheck(unittest.TestCase):
    """A small tree that keeps the rule, and breaches of it one by one."""

    TREE = {
        "l10n/L10n.h": "#include <string>\n",
        "math/Vector.h": "#include <glm/vec3.hpp>\n",
        "rules/Points.h": '#include "l10n/L10n.h"\n#include "math/Vector.h"\n',
        "platform/scenegraph/Node.h": '#include "math/Vector.h"\n',
        "platform/Platform.h": '#include "platform/runloop/Queue.h"\n',
        "platform/runloop/CMakeLists.txt": "vorbel_library(vorbel_runloop SOURCES Queue.cpp)\n"
        "vorbel_library(vorbel_runloop_qt SOURCES QtQueue.cpp LINKS vorbel_runloop Qt6::Core)\n",
        "platform/runloop/Queue.h": '#include "math/Vector.h"\n',
        "platform/runloop/Queue.cpp": '#include "platform/runloop/Queue.h"\n',
        "platform/runloop/QtQueue.h": "#include <QObject>\n",
        "platform/runloop/QtQueue.cpp": '#include "platform/runloop/QtQueue.h"\n',
        "platform/physics/PhysicsWorld.h": "",
        "platform/physics/Shapes.h": "",
        "platform/render/Frame.h": "",
        "scene/Court.h": '#include "rules/Points.h"\n#include "platform/scenegraph/Node.h"\n',
        "narration/Aiming.h": '#include "rules/Points.h"\n',
        "career/Diary.h": "",
        "career/Diary.cpp": '#include "rules/Points.h"\n#include <nlohmann/json.hpp>\n',
        "engine/Game.h": '#include "scene/Court.h"\n#include "platform/physics/PhysicsWorld.h"\n',
        "recording/Recorder.h": '#include "engine/Game.h"\n',
        "app/View.cpp": '#include "engine/Game.h"\n#include "platform/runloop/QtQueue.h"\n#include <QQuickItem>\n',
        "tools/Sim.h": '#include "engine/Game.h"\n',
        "tests/GameTest.cpp": '#include "tools/Sim.h"\n#include <gtest/gtest.h>\n#include <unistd.h>\n',
    }

    def in_a_tree(self, operation, breach, lying_about=()):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**self.TREE, **breach}.items():
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text)
            subprocess.run(["git", "init", "-q", folder], check=True)
            subprocess.run(["git", "-C", folder, "add", "-A"], check=True)
            for name in lying_about:
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text("#include <no_such_library>\n")
            return operation(Path(folder))

    def assert_accepted(self, name, text):
        self.assertEqual([], self.in_a_tree(complaints, {name: text}))

    def assert_refused(self, name, text, reason):
        found = self.in_a_tree(complaints, {name: text})
        self.assertTrue(any(reason in sentence for sentence in found), found)

    def test_accepts_arrows_that_point_down(self):
        self.assertEqual([], self.in_a_tree(complaints, {}))

    def test_reads_only_files_that_belong_to_the_tree(self):
        self.assertEqual([], self.in_a_tree(complaints, {}, ["build-other/Generated.cpp", "engine/Scratch.cpp"]))

    def test_refuses_an_arrow_that_points_up(self):
        for name, header in (
            ("platform/random/R.h", "engine/Game.h"),
            ("l10n/Table.cpp", "platform/runloop/Queue.h"),
            ("l10n/Table.cpp", "math/Vector.h"),
            ("math/Angle.h", "rules/Points.h"),
            ("platform/random/R.h", "rules/Points.h"),
            ("rules/Turn.cpp", "platform/runloop/Queue.h"),
            ("rules/Turn.cpp", "scene/Court.h"),
            ("scene/Court.cpp", "engine/Game.h"),
            ("scene/Court.cpp", "career/Diary.h"),
            ("narration/Aiming.cpp", "scene/Court.h"),
            ("rules/Turn.cpp", "narration/Aiming.h"),
            ("career/Diary.cpp", "engine/Game.h"),
            ("career/Diary.cpp", "scene/Court.h"),
            ("engine/Game.cpp", "app/View.cpp"),
            ("engine/Game.cpp", "recording/Recorder.h"),
            ("recording/Recorder.cpp", "app/View.cpp"),
            ("tools/Sim.cpp", "app/View.cpp"),
        ):
            self.assert_refused(name, f'#include "{header}"\n', "arrows point down")

    def test_refuses_rooms_of_the_program_that_include_each_other(self):
        way = {"app/menu/A.h": '#include "app/hud/B.h"\n', "app/hud/B.h": '#include "app/text/C.h"\n', "app/text/C.h": ""}
        self.assertEqual([], self.in_a_tree(complaints, way))
        found = self.in_a_tree(complaints, {**way, "app/text/C.h": '#include "app/menu/D.h"\n', "app/menu/D.h": ""})
        self.assertTrue(found[0].startswith("in a circle: "), found)

    def test_refuses_what_the_platform_keeps_to_itself(self):
        for name in ("scene/X.cpp", "engine/X.cpp"):
            for header in ("platform/render/Frame.h", "platform/physics/Shapes.h"):
                self.assert_refused(name, f'#include "{header}"\n', "arrows point down")
        self.assert_refused("scene/X.cpp", '#include "platform/physics/PhysicsWorld.h"\n', "arrows point down")
        self.assert_refused("career/X.cpp", '#include "platform/runloop/Queue.h"\n', "arrows point down")

    def test_refuses_a_library_where_it_is_not_known(self):
        outside = ("<btBulletDynamicsCommon.h>", "<bullet/LinearMath/btVector3.h>", "<QString>", "<QtCore/qglobal.h>")
        outside += ("<GL/gl.h>", '"SDL_mixer.h"', "<SDL2/SDL.h>", "<mpg123.h>", "<alsa/asoundlib.h>", "<gtest/gtest.h>")
        outside += ("<libspeechd.h>", "<rapidcheck.h>", "<benchmark/benchmark.h>", "<unistd.h>")
        for header in outside:
            for folder in ("engine", "career", "scene", "rules", "l10n", "math"):
                self.assert_refused(f"{folder}/X.cpp", f"#include {header}\n", "is not known here")
        for folder in ("engine", "scene", "rules", "l10n", "app", "platform/store"):
            self.assert_refused(f"{folder}/X.cpp", "#include <nlohmann/json.hpp>\n", "is not known here")
        self.assert_refused("l10n/X.cpp", "#include <glm/vec3.hpp>\n", "GLM is not known here")
        self.assert_refused("app/X.cpp", "#include <SDL.h>\n", "SDL is not known here")

    def test_refuses_a_library_that_nobody_has_told_it_of(self):
        self.assert_refused("app/X.cpp", "#include <boost/any.hpp>\n", "belongs to no library of the design")
        self.assert_refused("tests/X.cpp", "#include <catch2/catch.hpp>\n", "belongs to no library of the design")

    def test_refuses_a_library_behind_a_header(self):
        self.assert_refused("scene/X.cpp", '#include "platform/runloop/QtQueue.h"\n', "reaches Qt through")
        self.assert_refused("platform/runloop/Queue.h", "# include <QTimer>\n", "platform/runloop/Queue.cpp: reaches Qt")
        self.assert_refused("platform/physics/PhysicsWorld.h", "#include <btBulletDynamicsCommon.h>\n", "reaches Bullet")

    def test_refuses_the_wrong_library_in_a_wrapper(self):
        self.assert_refused("platform/runloop/QtQueue.cpp", "#include <SDL.h>\n", "SDL is not known here")

    def test_accepts_a_wrapped_library_only_in_its_own_target(self):
        self.assert_accepted("platform/runloop/QtQueue.cpp", "#include <QTimer>\n")
        self.assert_refused("platform/runloop/Alone.h", "#include <QTimer>\n", "Qt is not known here")

    def test_refuses_a_folder_outside_the_design(self):
        self.assert_refused("helpers/X.h", "", "not a folder of the design")

    def test_refuses_an_include_that_does_not_start_at_the_root(self):
        self.assert_refused("engine/Turn.cpp", '#include "Game.h"\n', "not a path from the root")

    def test_counts_the_includes_between_folders(self):
        arrows = self.in_a_tree(include_graph, {"engine/Turn.cpp": '#include "scene/Court.h"\n'})
        self.assertEqual(2, arrows["engine", "scene"])
        self.assertEqual(1, arrows["app", "platform/runloop"])
        self.assertNotIn(("app", "app"), arrows)


if __name__ == "__main__":
    unittest.main()
