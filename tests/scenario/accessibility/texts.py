"""The game's own texts, read from its table, so that a better wording breaks no test."""

import os
import re
from pathlib import Path

FOLDER = Path(os.environ["VORBEL_TEXTS"])
LITERAL = r'"(?:[^"\\]|\\.)*"'


def _joined(literals):
    parts = re.findall(LITERAL, literals)
    escapes = {r"\n": "\n", r"\"": '"', r"\\": "\\"}
    return "".join(re.sub(r"\\.", lambda found: escapes[found[0]], part[1:-1]) for part in parts)


def table(language):
    """All texts of a language, by key."""
    source = (FOLDER / "texts" / f"{language}.h").read_text(encoding="utf-8")
    entries = re.findall(r'\{\s*"([\w.]+)",\s*(' + LITERAL + r"(?:\s*" + LITERAL + r")*)\}", source)
    return {key: _joined(literals) for key, literals in entries}


def languages():
    """Each language's name for itself, by code."""
    source = (FOLDER / "AppLanguage.cpp").read_text(encoding="utf-8")
    return dict(re.findall(r'\{"([a-z]{2})",\s*"([^"]+)"\}', source))
