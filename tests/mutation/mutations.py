"""Slips of the hand: changes of one place in a C++ text, each of which some test should notice."""

import re
from dataclasses import dataclass

# What is exchanged for what, as whole tokens.
EXCHANGES = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+=", "++": "--", "--": "++",
    "&&": "||", "||": "&&", "true": "false", "false": "true", "min": "max", "max": "min",
    "red": "blue", "blue": "red", "sin": "cos", "cos": "sin",
}  # fmt: skip

TOKEN = re.compile(
    r"""
    (?P<comment>//.*)
  | (?P<text>"(?:[^"\\]|\\.)*")
  | (?P<char>'(?:[^'\\]|\\.)')
  | (?P<number>(?<![\w.])\d+(?:\.\d+)?(?:[eE][-+]?\d+)?F?(?![\w.]))
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator>->|<=>|<<|>>|::|\+\+|--|\+=|-=|<=|>=|==|!=|&&|\|\||[-+*/<>!&])
    """,
    re.VERBOSE,
)

# Lines that say nothing about what the game does: a slip in them does not compile, or changes no behaviour.
SILENT = re.compile(r"^\s*(#|//|namespace\b|using\b|template\b|friend\b|\[\[nodiscard\]\]|static_assert\b|struct\b|class\b|})")
CALL = re.compile(r"^\s+[\w.:>\-\[\]()*]*\w\(.*\);$")
STATEMENT = re.compile(r"^(\s+)(?!return\b|break\b|case\b|default\b|const\b|constexpr\b|auto\b|if\b|for\b|else\b)[\w.:>*\-]+.*;$")


@dataclass(frozen=True)
class Mutant:
    file: str
    line: int  # from 1, of the first line that differs
    before: str
    after: str  # empty: the line is dropped; two lines: exchanged with the next one

    def __str__(self):
        return f"{self.file}:{self.line}: {self.before.strip()}  ->  {self.after.strip() or '(dropped)'}"

    @property
    def key(self):
        """What stays the same when lines above it come and go."""
        return self.file, self.before.strip(), self.after.strip()


def other_number(number):
    suffix = "F" if number.endswith("F") else ""
    digits = number.removesuffix("F")
    if re.fullmatch(r"\d+", digits):
        return str(int(digits) + 1) + suffix
    value = float(digits)
    return repr(value * 1.05 if value else 0.05) + suffix


def is_sign_or_sum(line, start, end):
    """Whether + - * / < > between these columns calculate or compare: not of a template, a pointer, a reference."""
    before, after = line[:start].rstrip(), line[end:]
    if line[start:end] in "+-" and before and re.search(r"[=(,{?:]$|return$", before):
        return True
    return bool(before) and line[start - 1 : start] == " " and after[:1] == " "


def exchanged(line, match):
    kind, token = match.lastgroup, match.group()
    if kind == "number":
        return other_number(token)
    if kind == "text" and len(token) > 3:
        return token[:-2] + '"'
    if kind == "operator" and token == "!" and line[match.end() : match.end() + 1] != "=":
        return ""
    if kind in ("operator", "word") and token in EXCHANGES:
        if token in ("+", "-", "*", "/", "<", ">") and not is_sign_or_sum(line, match.start(), match.end()):
            return None
        return EXCHANGES[token]
    return None


def mutants_of(file, text):
    """All slips in that text, in its order."""
    lines = text.split("\n")
    found = []
    for index, line in enumerate(lines):
        if SILENT.match(line):
            continue
        for match in TOKEN.finditer(line):
            new = exchanged(line, match)
            if new is not None:
                found.append(Mutant(file, index + 1, line, line[: match.start()] + new + line[match.end() :]))
        if CALL.match(line) and not line.lstrip().startswith("return"):
            found.append(Mutant(file, index + 1, line, ""))
        here = STATEMENT.match(line)
        following = STATEMENT.match(lines[index + 1]) if index + 1 < len(lines) else None
        if here and following and here[1] == following[1]:
            found.append(Mutant(file, index + 1, line, lines[index + 1] + "\n" + line))
    return found


def applied(mutant, text):
    lines = text.split("\n")
    replaced = 2 if "\n" in mutant.after else 1
    lines[mutant.line - 1 : mutant.line - 1 + replaced] = mutant.after.split("\n") if mutant.after else [""]
    return "\n".join(lines)
