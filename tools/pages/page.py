"""One page in one language: HTML that is well-formed XML too, so that any reader of either checks it."""

import re
from html import escape

RIGHT_TO_LEFT = {"ar"}
CLASSES = ("bc1", "bc2", "bc3", "bc4")


def _heading(text):
    return f"<h2>{escape(text)}</h2>"


def _list(lines, kind="ul"):
    items = "\n".join(f"<li>{line}</li>" for line in lines)
    return f"<{kind}>\n{items}\n</{kind}>"


def _key(line):
    """A key in brackets and what it does, such as "[SPACE] — throw"."""
    keys, _, action = line.rpartition("]")
    names = [name.strip(" ]") for name in keys.split("[") if name.strip()]
    return " ".join(f"<kbd>{escape(name)}</kbd>" for name in names) + escape(action)


def _rules(text):
    """The goal, the numbered rules, the keys: paragraphs with a blank line between."""
    goal, rules, controls = (part.split("\n") for part in text.split("\n\n"))
    title, *keys = controls
    return [
        f"<p>{escape(goal[0])}</p>",
        _list([escape(rule.partition(". ")[2]) for rule in rules], "ol"),
        f"<h3>{escape(title)}</h3>",
        keys,
    ]


def _about(text):
    """The game in one line; who made it, and what else they make."""
    _, makers, others = (part.split("\n") for part in text.split("\n\n"))
    credit, description = makers
    title, *works = others
    return description, [
        f"<p>{escape(credit)}</p>",
        f"<p>{escape(title)}</p>",
        _list([escape(work.lstrip("·・ ")) for work in works]),
    ]


def _languages(current, names):
    links = (
        f"<b>{name}</b>" if code == current else f'<a href="{code}.html" hreflang="{code}" lang="{code}">{name}</a>'
        for code, name in names.items()
    )
    return "\n".join(links)


def page(language, text, names, licence):
    """The whole file. `text` is the language's table, `names` what each language calls itself, by code."""
    direction = "rtl" if language in RIGHT_TO_LEFT else "ltr"
    description, about = _about(text["about.text"])
    goal, rules, controls, keys = _rules(text["rules.text"])
    dash = re.search(r"\](\W+)", keys[0])[1]  # each language's own
    shortcuts = [
        f"<kbd>Ctrl</kbd>+<kbd>N</kbd>{dash}{escape(text['menu.startGame'])}",
        f"<kbd>F11</kbd>{dash}{escape(text['menu.toggleFullScreen'])}",
    ]
    classes = (f"<dt>{name.upper()}</dt>\n<dd>{escape(text['bc.desc.' + name])}</dd>" for name in CLASSES)
    body = "\n".join(
        [
            f"<p>{escape(description)}</p>",
            f'<p><img src="arena.jpg" width="1200" height="800" alt="{escape(text["menu.gameMenu"])}"/></p>',
            _heading(text["page.boccia.title"]),
            f"<p>{escape(text['page.boccia.text'])}</p>",
            _heading(text["menu.rules"]),
            goal,
            rules,
            controls,
            _list([_key(key) for key in keys] + shortcuts),
            _heading(text["menu.sportClass"]),
            "<dl>",
            *classes,
            "</dl>",
            _heading(text["menu.about"]),
            *about,
            _heading(text["page.licence"]),
            f'<pre lang="en" dir="ltr">{escape(licence.strip())}</pre>',
        ]
    )
    return f"""<!DOCTYPE html>
<html lang="{language}" dir="{direction}">
<head>
<meta charset="utf-8"/>
<meta name="viewport" content="width=device-width, initial-scale=1"/>
<title>VORBEL</title>
<link rel="stylesheet" href="pages.css"/>
<link rel="icon" href="../Icon48.png"/>
</head>
<body>
<nav>
{_languages(language, names)}
</nav>
<main>
<h1><img src="../Logo.png" alt="VORBEL"/></h1>
{body}
</main>
</body>
</html>
"""
