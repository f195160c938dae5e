#!/usr/bin/python3
"""The manual's site in a browser, opened from files: site_test.py SITE [RESULTS.xml].

The site is looked at from a zip that was unpacked into a folder with a blank and an accent in its name.
"""
import pathlib
import re
import shutil
import sys
import tempfile
import unittest

import junit
import reference_test  # noqa: F401  run along
import sources_test  # noqa: F401  run along
from browser import NARROW, WIDE, Browser
from links import Site

SEARCHES = [
    ("en", "SqlINSERT", "en/reference/QVRcfp.html#sqlinsert"),
    ("es", "SqlINSERT", "es/reference/QVRcfp.html#sqlinsert"),
    ("en", "sqlinsert", "en/reference/QVRcfp.html#sqlinsert"),
    ("en", "join", "en/reference/QVRcfp.html"),
    ("en", "patterns", "en/literals.html#patterns"),
    ("en", "joining", "en/clauses.html"),
    ("es", "fecha", "es/search-box.html#fechas"),
    ("es", "uniones", "es/reference/uSQL20.html"),
    ("es", "contraseñas", "es/reference/QVRcfp.html"),
    ("es", "busqueda", "es/search-box.html"),
    ("fr", "dates", "fr/search-box.html#dates"),
]
# Elements that are wider than the page and do not scroll inside anything.
OVERFLOWING = """
const wide = document.documentElement.clientWidth;
const inside = (e) => { for (let p = e; p; p = p.parentElement) {
  if (/auto|scroll/.test(getComputedStyle(p).overflowX) && p !== document.documentElement) return true;
} return false; };
return [...document.querySelectorAll(".main *")].filter((e) => e.getBoundingClientRect().right > wide + 1 && !inside(e)
    && e.getClientRects().length && !e.closest(".toc-drawer")).map((e) => e.tagName + "." + e.className).slice(0, 5);
"""


class SitePages(unittest.TestCase):
    """One case for each page, and those of what the site does."""

    def setUp(self):
        browser.resize(WIDE)

    def test_the_browser_tells_what_is_wrong_with_a_page(self):
        page = site.folder.parent / "wrong.html"
        page.write_text("<meta name=viewport content='width=device-width'><script src='none.js'></script>"
                        "<img src='https://example.invalid/a.png'><div class=main><p>narrow</p>"
                        "<div class=wide style='width: 900px'>wide</div></div><script>nothing()</script>")
        browser.open("../wrong.html")
        for complaint in ("none.js", "nothing is not defined"):
            browser.wait(lambda: any(complaint in each for each in browser.complaints()), f"{complaint} is told")
        browser.wait(lambda: "https://example.invalid/a.png" in browser.requests(), "the request is told")
        browser.resize(NARROW)
        self.assertGreater(browser.run("return document.documentElement.scrollWidth"), NARROW)
        self.assertEqual(browser.run(OVERFLOWING), ["DIV.wide"])

    def look_at(self, page):
        browser.open(page)
        self.assertGreater(browser.run("return document.body.innerText.trim().length"), 0)
        self.assertEqual(browser.complaints(), [])
        requests = browser.requests()
        self.assertIn(browser.address(page), requests)
        self.assertEqual([each for each in requests if not re.match(r"file:|data:", each)], [])
        self.assertEqual(site.problems(page), [])
        if page != "index.html":
            current = "return [...document.querySelectorAll('.languages [aria-current]')].map((each) => each.lang)"
            self.assertEqual(browser.run(current), [page.partition("/")[0]])
        browser.resize(NARROW)
        self.assertLessEqual(browser.run("return document.documentElement.scrollWidth"), NARROW)
        self.assertEqual(browser.run(OVERFLOWING), [])

    def search_for(self, language, words, expected):
        browser.open(f"{language}/index.html")
        field = browser.find(".sidebar-search")
        field.send_keys(words)
        field.submit()
        browser.search_summary()
        self.assertEqual(browser.find("input[type=search]").get_attribute("value"), words)
        address = browser.address(expected)
        hits = browser.run("return [...document.querySelectorAll('ul.search a')].map((a) => a.href)")
        self.assertIn(address, hits)
        browser.run("[...document.querySelectorAll('ul.search a')].find((a) => a.href === arguments[0]).click()",
                    address)
        browser.arrive(expected)
        self.assertEqual(browser.complaints(), [])
        self.assertEqual([each for each in browser.requests() if not each.startswith(("file:", "data:"))], [])

    def test_the_search_tells_when_nothing_is_found(self):
        browser.open("es/search.html?q=xyzzyx")
        self.assertIn("no coincide", browser.search_summary())
        self.assertEqual(browser.run("return document.querySelectorAll('ul.search a').length"), 0)

    def test_the_search_counts_in_the_language_of_the_page(self):
        browser.open("es/search.html?q=fecha")
        self.assertRegex(browser.search_summary(), r"^La búsqueda encontró \d+ resultados\.$")

    def test_the_theme_speaks_the_language_of_the_page(self):
        for language, words in {"en": "Back to top", "es": "Volver arriba", "fr": "Haut de page"}.items():
            browser.open(f"{language}/search-box.html")
            self.assertEqual(browser.run("return document.querySelector('.back-to-top').textContent.trim()"), words)

    def test_the_first_page_leads_to_every_language(self):
        browser.open("index.html")
        languages = sorted(path.parent.name for path in site.folder.glob("*/searchindex.js"))
        links = browser.run("return [...document.querySelectorAll('a')].map((a) => a.getAttribute('href'))")
        self.assertEqual(sorted(links), [f"{each}/index.html" for each in languages])

    def test_a_page_leads_to_the_same_page_in_the_other_language(self):
        browser.open("en/reference/QVRcfp.html")
        browser.find(".languages a[lang=es]").click()
        browser.arrive("es/reference/QVRcfp.html")
        self.assertEqual(browser.run("return document.documentElement.lang"), "es")
        browser.find(".languages a[lang=en]").click()
        browser.arrive("en/reference/QVRcfp.html")

    def test_a_page_that_another_language_lacks_leads_to_its_first(self):
        browser.open("en/reference/QVRcfp.html")
        browser.find(".languages a[lang=fr]").click()
        browser.arrive("fr/index.html")

    def test_the_menu_opens_on_a_narrow_screen(self):
        browser.resize(NARROW)
        browser.open("es/index.html")
        left = "return document.querySelector('.sidebar-drawer').getBoundingClientRect().left"
        self.assertLess(browser.run(left), 0)
        browser.find("label.nav-overlay-icon").click()
        browser.wait(lambda: browser.run(left) == 0, "the menu is open")
        link = browser.find(".sidebar-tree a[href='reference/index.html']")
        self.assertTrue(link.is_displayed())
        # The menu is longer than the screen: its reader scrolls.
        browser.run("arguments[0].scrollIntoView({block: 'center', behavior: 'instant'})", link)
        link.click()
        browser.arrive("es/reference/index.html")

    def test_light_and_dark_can_be_chosen_and_stay(self):
        browser.open("en/index.html")
        colour = "return getComputedStyle(document.body).backgroundColor"
        button, seen = browser.find(".theme-toggle-content .theme-toggle"), set()
        for _ in range(3):
            button.click()
            seen.add((browser.run("return document.body.dataset.theme"), browser.run(colour)))
        self.assertEqual({theme for theme, _ in seen}, {"light", "dark", "auto"})
        self.assertGreater(len({colours for _, colours in seen}), 1)
        while browser.run("return document.body.dataset.theme") != "dark":
            button.click()
        dark = browser.run(colour)
        browser.open("es/index.html")
        browser.wait(lambda: browser.run(colour) == dark, "the next page is dark as well")

    def test_an_anchor_is_shown_right_below_the_bar_of_a_narrow_screen(self):
        browser.resize(NARROW)
        browser.open("en/reference/QVRcfp.html#sqlinsert")
        edge = "return document.querySelector(arguments[0]).getBoundingClientRect()[arguments[1]]"
        bar = browser.run(edge, ".mobile-header", "bottom")
        self.assertGreater(bar, 0)
        browser.wait(lambda: bar <= browser.run(edge, ":target > h2", "top") < 2 * bar, "the heading is below the bar")


def add_rows():
    def add(name, method, *arguments):
        setattr(SitePages, f"test_{name}", lambda self: getattr(self, method)(*arguments))

    for page in site.pages:
        add(f"renders_{page}", "look_at", page)
    for language, words, expected in SEARCHES:
        add(f"search_{language}_{words}", "search_for", language, words, expected)


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as work:
        archive = shutil.make_archive(f"{work}/site", "zip", sys.argv[1])
        folder = pathlib.Path(work).resolve() / "Manual en español"
        shutil.unpack_archive(archive, folder)
        site, browser = Site(folder), Browser(folder)
        try:
            add_rows()
            outcome = junit.run("__main__", "reference_test", "sources_test",
                                results=sys.argv[2] if len(sys.argv) > 2 else None)
        finally:
            browser.close()
    sys.exit(outcome)
