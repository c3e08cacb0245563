"""The slips are those of a hand: one place each, none in comments, and applying one changes just that place."""

import unittest

from mutations import applied, mutants_of


def after(text):
    return [mutant.after.strip() for mutant in mutants_of("rules/X.cpp", text)]


class TheMutations(unittest.TestCase):
    def test_change_constants(self):
        self.assertEqual(["constexpr int most = 151;"], after("constexpr int most = 150; // 3 s"[:26]))
        self.assertEqual(["double depth = 0.05;"], after("double depth = 0.0;"))
        self.assertEqual(["float alpha = 0.525F;"], after("float alpha = 0.5F;"))

    def test_change_comparisons_signs_and_conditions(self):
        self.assertEqual(["if (a <= b) {"], after("if (a < b) {"))
        self.assertEqual(["x = a - b;"], after("x = a + b;"))
        self.assertEqual(["x = +b;"], after("x = -b;"))
        self.assertEqual(["if (a || !b) {", "if (a && b) {"], after("if (a && !b) {"))
        self.assertEqual(["side = BallColor::blue;"], after("side = BallColor::red;"))

    def test_shorten_texts(self):
        self.assertEqual(['return "Ход";'], after('return "Ход!";'))

    def test_drop_calls_and_exchange_statements(self):
        text = "    clearField();\n    startNewEnd();\n"
        self.assertEqual(["", "startNewEnd();\n    clearField();", ""], after(text))

    def test_leave_comments_templates_and_pointers_alone(self):
        for text in ("// 3 < 4", "std::vector<int> all;", "const Node* next;", "#include <map>", "auto p = q->r;"):
            self.assertEqual([], after(text), text)

    def test_are_applied_where_they_stand(self):
        text = "a();\n    b(1);\n    c();\n"
        for mutant in mutants_of("rules/X.cpp", text):
            changed = applied(mutant, text)
            self.assertNotEqual(text, changed)
            self.assertEqual(text.count("\n"), changed.count("\n"))


if __name__ == "__main__":
    unittest.main()
