"""What a software centre tells of the game, as AppStream wants it."""

import xml.etree.ElementTree as xml

HOME = "vorbel.example"  # the game has no place on the net yet; this name is reserved and will never be one
ID = "example.vorbel.vorbel"

# Each has its caption in words.ini, and its picture in docs/.
PICTURES = ("arena", "menu")
CONTROLS = ("keyboard", "pointing", "gamepad")


def element(parent, name, text=None, **attributes):
    made = xml.SubElement(parent, name, attributes)
    made.text = text
    return made


def translated(parent, name, said, key):
    """The element once for each language."""
    for language, text in said.items():
        made = element(parent, name, text[key])
        if language != "en":
            made.set("xml:lang", language)


def add_pictures(component, said):
    screenshots = element(component, "screenshots")
    for picture in PICTURES:
        screenshot = element(screenshots, "screenshot")
        if picture == PICTURES[0]:
            screenshot.set("type", "default")
        translated(screenshot, "caption", said, picture)
        element(screenshot, "image", f"https://{HOME}/{picture}.png", type="source")


def add_keywords(component, said):
    keywords = element(component, "keywords")
    for language, text in said.items():
        for word in text["keywords"].split(";"):
            made = element(keywords, "keyword", word)
            if language != "en":
                made.set("xml:lang", language)


def add_releases(component, releases):
    listed = element(component, "releases")
    for version, day, changes in releases:
        description = element(element(listed, "release", version=version, date=day), "description")
        points = element(description, "ul")
        for change in changes:
            element(points, "li", change.replace("`", ""))


def document(said, releases):
    component = xml.Element("component", type="desktop-application")
    element(component, "id", ID)
    element(component, "name", "VORBEL")
    translated(component, "summary", said, "comment")
    element(component, "metadata_license", "MIT")
    element(component, "project_license", "MIT")
    element(component, "developer_name", "The VORBEL team")
    description = element(component, "description")
    for paragraph in ("game", "boccia", "access"):
        translated(description, "p", said, paragraph)
    element(component, "launchable", "vorbel.desktop", type="desktop-id")
    element(element(component, "provides"), "binary", "vorbel")
    categories = element(component, "categories")
    element(categories, "category", "Game")
    element(categories, "category", "SportsGame")
    add_keywords(component, said)
    supports = element(component, "supports")
    for control in CONTROLS:
        element(supports, "control", control)
    languages = element(component, "languages")
    for language in said:
        element(languages, "lang", language, percentage="100")
    element(component, "content_rating", type="oars-1.1")  # none of what it asks for occurs
    element(component, "url", f"https://{HOME}/", type="homepage")
    add_pictures(component, said)
    add_releases(component, releases)
    xml.indent(component)
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + xml.tostring(component, encoding="unicode") + "\n"
