"""Links from the reference to the manual's pages, in the reader's language where there is such a page."""
import pathlib

from markdown import headings, slug, title


class Guides:
    def __init__(self, manual, language):
        self.manual, self.language = pathlib.Path(manual), language

    def text(self, language, page):
        path = self.manual / language / page
        return path.read_text(encoding="utf-8") if path.exists() else None

    def problem(self, target):
        """Why the target cannot be linked to; None when it can. The English pages are complete."""
        page, _, anchor = target.partition("#")
        text = self.text("en", page)
        if text is None:
            return f"the manual has no page {page}"
        if anchor and anchor not in map(slug, headings(text)):
            return f"{page} has no heading #{anchor}"
        return None

    def link(self, target):
        page, _, anchor = target.partition("#")
        english = self.text("en", page)
        own = self.text(self.language, page)
        if own is None:
            return f"[{title(english)}](../../en/{target})"
        if anchor:
            anchor = self.translated(anchor, headings(english), headings(own))
        return f"[{title(own)}](../{page}{'#' + anchor if anchor else ''})"

    @staticmethod
    def translated(anchor, english, own):
        """The heading at the same place of the translated page; the page itself when the two do not match."""
        if len(english) != len(own):
            return ""
        return slug(own[[slug(each) for each in english].index(anchor)])
