"""What the pages of a built site refer to."""
import html.parser
import pathlib
import re
import urllib.parse


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.path, self.ids, self.links, self.parts = path, set(), [], []
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        found = dict(attributes)
        if "id" in found:
            self.ids.add(found["id"])
        if tag == "a" and "href" in found:
            self.links.append(found["href"])
        elif "src" in found or tag == "link" and "href" in found:
            self.parts.append(found.get("src") or found["href"])


class Site:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.pages = {path.relative_to(self.folder).as_posix(): Page(path)
                      for path in sorted(self.folder.rglob("*.html"))}

    def problem(self, name, link):
        """Why a link of that page does not hold; None when it does, and for links to other places of the web."""
        if re.match(r"(https?|mailto):", link):
            return None
        file, _, anchor = urllib.parse.unquote(link).partition("#")
        target = (self.folder / name).parent / file.partition("?")[0] if file else self.folder / name
        if not target.is_file():
            return f"{link}: there is no such file"
        if not target.resolve().is_relative_to(self.folder.resolve()):
            return f"{link}: it leaves the site"
        page = self.pages.get(target.resolve().relative_to(self.folder.resolve()).as_posix())
        if anchor and page and anchor not in page.ids:
            return f"{link}: the page has no such anchor"
        return None

    def problems(self, name):
        page = self.pages[name]
        outside = [f"{part}: a part of the page from outside" for part in page.parts if re.match(r"(\w+:)?//", part)]
        found = [self.problem(name, link) for link in page.links + page.parts]
        return outside + [each for each in dict.fromkeys(found) if each]
