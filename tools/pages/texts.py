"""The game's own texts, read from the files of its table."""

import re
from pathlib import Path

FOLDER = Path(__file__).resolve().parents[2] / "l10n"
LITERAL = r'"(?:[^"\\]|\\.)*"'
ESCAPES = {r"\n": "\n", r"\"": '"', r"\\": "\\"}


def _unescaped(found):
    code = found[1]
    return chr(int(code, 16)) if code else ESCAPES[found[0]]


def _joined(literals):
    parts = re.findall(LITERAL, literals)
    return "".join(re.sub(r"\\(?:u([0-9a-f]{4})|.)", _unescaped, part[1:-1]) for part in parts)


def table(language):
    """All texts of a language, by key."""
    source = "".join((FOLDER / folder / f"{language}.h").read_text(encoding="utf-8")
                     for folder in ("texts", "extra", "options"))
    entries = re.findall(r'\{\s*"([\w.]+)",\s*(' + LITERAL + r"(?:\s*" + LITERAL + r")*)\}", source)
    return {key: _joined(literals) for key, literals in entries}


def languages():
    """Each language's name for itself, by code."""
    source = (FOLDER / "AppLanguage.cpp").read_text(encoding="utf-8")
    return dict(re.findall(r'\{"([a-z]{2})",\s*"([^"]+)"\}', source))
