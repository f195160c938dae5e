"""Sphinx settings of the manual's site, one build a language: -D language=<code> on the folder of its sources."""
import json
import pathlib
import posixpath

from docutils import nodes
from pygments.lexers.dotnet import VbNetLexer
from sphinx.highlighting import lexers

project = "QVRlib21"
extensions = ["myst_parser"]
root_doc = "index"
exclude_patterns = ["README.txt"]
templates_path = ["templates"]

myst_heading_anchors = 4
myst_url_schemes = ["http", "https", "mailto", "site"]
suppress_warnings = ["misc.highlighting_failure"]  # examples hold dates and statements that no lexer knows
highlight_language = "text"
lexers["vb"] = VbNetLexer()

html_theme = "furo"
html_title = project
html_static_path = ["static"]
html_css_files = ["site.css"]
html_js_files = ["site.js"]
html_use_index = False
html_copy_source = False
html_show_sourcelink = False
html_show_sphinx = False
html_show_copyright = False
html_show_search_summary = False  # it would fetch the pages, which browsers refuse for files
html_permalinks_icon = "#"
smartquotes = False

LANGUAGES = {"en": "English", "es": "Español", "fr": "Français"}
# The theme has no texts of its own in the other languages.
WORDS = {
    "en": {"search": "Search", "languages": "Language", "next": "Next", "previous": "Previous", "toc": "On this page"},
    "es": {"search": "Buscar", "languages": "Idioma", "next": "Siguiente", "previous": "Anterior",
           "toc": "En esta página"},
    "fr": {"search": "Rechercher", "languages": "Langue", "next": "Suivant", "previous": "Précédent",
           "toc": "Sur cette page"},
}
THEME_WORDS = {"es": {"Back to top": "Volver arriba"}, "fr": {"Back to top": "Haut de page"}}


def translated_theme(app):
    """Sphinx's own words, and those that only the theme has."""
    words, known = THEME_WORDS.get(app.config.language, {}), app.translator
    app.builder.templates.environment.install_gettext_callables(
        lambda text: words.get(text.strip()) or known.gettext(text), known.ngettext)


def site_root(page):
    return "../" * (page.count("/") + 1)


def other_languages(app, page, template, context, doctree):
    """The same page in each language that has it, else that language's first page."""
    pages = json.loads((pathlib.Path(app.srcdir).parent / "pages.json").read_text(encoding="utf-8"))
    own = app.config.language
    context["words"] = WORDS[own]
    context["languages"] = [
        {"code": code, "name": LANGUAGES[code], "current": code == own,
         "address": f"{site_root(page)}{code}/{page if page in known or page == 'search' else 'index'}.html"}
        for code, known in pages.items()]


def links_within_site(app, doctree, page):
    """site:es/search.html, from wherever the page is."""
    for reference in doctree.findall(nodes.reference):
        address = reference.get("refuri", "")
        if address.startswith("site:"):
            reference["refuri"] = posixpath.join(site_root(page), address.removeprefix("site:"))
            reference["classes"] = [each for each in reference["classes"] if each != "external"]
            reference["internal"] = True


def setup(app):
    app.connect("builder-inited", translated_theme)
    app.connect("html-page-context", other_languages)
    app.connect("doctree-resolved", links_within_site)

