#!/usr/bin/env python3
"""Puts the sources of the site together: assemble.py REFERENCE FOLDER.

FOLDER gets one folder for each language with the manual's pages, the schemas that they link to, the reference (from the
folder that reference.py wrote) and, in English, those pages of docs/ that the manual links to. Links are made to hold
there. One to a page of another language becomes "site:<language>/<page>.html", which conf.py resolves.
"""
import json
import pathlib
import re
import shutil
import sys

from markdown import title, with_links

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCS = ROOT / "docs"
MANUAL = DOCS / "manual"
SCHEMAS = MANUAL / "schemas"
LANGUAGES = ("en", "es", "fr")
FRENCH_INDEX = "# QVRlib21\n"  # for a language without an index of its own


class Broken(Exception):
    """A link that leads nowhere."""


def site_name(page):
    """README pages are what a folder opens with; "search" is the name of the site's own search."""
    name = page.removesuffix(".md")
    return "search-box" if name == "search" else re.sub(r"(^|/)README$", r"\1index", name)


class Site:
    def __init__(self, reference):
        self.pages = {}  # language: {page without extension: its file}
        self.project = {}  # page of docs/ in the site: its file
        for language in LANGUAGES:
            files = {path.name: path for path in sorted((MANUAL / language).glob("*.md"))}
            files |= {f"reference/{path.name}": path for path in sorted((reference / language).glob("*.md"))}
            if files:
                self.pages[language] = files

    def place(self, path):
        """Where a file of the repository is in the site: language and source name; None when it is not there."""
        for language, files in self.pages.items():
            folder = MANUAL / language
            if path.is_relative_to(folder) and path.relative_to(folder).as_posix() in files:
                return language, path.relative_to(folder).as_posix()
        if path in self.project.values():
            return "en", f"project/{path.name}"
        return None

    def collect_project_pages(self):
        """The pages of docs/ that the manual links to; they are in English."""
        for files in self.pages.values():
            for name, path in files.items():
                folder = virtual(path, name).parent

                def look(label, target, image, folder=folder):
                    path = resolved(folder, target)
                    if path and path.parent == DOCS and path.suffix == ".md" and path.exists():
                        self.project[path.name] = path
                    return ""

                with_links(path.read_text(encoding="utf-8"), look)


def virtual(path, name):
    """Generated pages as if they stood in the repository."""
    if name.startswith("reference/") and not path.is_relative_to(MANUAL):
        return MANUAL / path.parent.name / name
    return path


def resolved(folder, target):
    """The file that a relative link names; None for addresses and for anchors of the same page."""
    file = target.partition("#")[0]
    if not file or re.match(r"[a-z]+:", file):
        return None
    return pathlib.Path((folder / file).resolve())


class Page:
    """One page on its way into the site."""

    def __init__(self, site, language, name, path, target):
        self.site, self.language, self.name, self.path, self.target = site, language, name, path, target
        self.at = virtual(path, name)

    def up(self):
        return "../" * self.name.count("/")

    def change(self, label, target, image):
        mark = "!" if image else ""
        path = resolved(self.at.parent, target)
        if path is None:
            return f"{mark}[{label}]({target})"
        anchor = target[len(target.partition("#")[0]):]
        if image:
            return f"![{label}]({self.copied(path, 'images')})"
        if path.parent == SCHEMAS:
            return f"[{label}]({self.copied(path, 'schemas')})"
        place = self.site.place(path)
        if place is None and self.name.startswith("project/") and path.exists():
            return label  # a page for the library's own developers
        if place is None:
            raise Broken(f"{self.at.relative_to(ROOT)}: the link to {target} leads to nothing that is in the site")
        language, page = place
        if language == self.language:
            return f"[{label}]({self.up()}{site_name(page)}.md{anchor})"
        return f"[{label}](site:{language}/{site_name(page)}.html{anchor})"

    def copied(self, path, folder):
        if not path.exists():
            raise Broken(f"{self.at.relative_to(ROOT)}: there is no {path.name}")
        (self.target / folder).mkdir(exist_ok=True)
        shutil.copy(path, self.target / folder)
        return f"{self.up()}{folder}/{path.name}"

    def write(self, behind=""):
        text = with_links(self.path.read_text(encoding="utf-8"), self.change) + behind
        file = self.target / f"{site_name(self.name)}.md"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")


def toctree(names):
    return "\n```{toctree}\n:hidden:\n:maxdepth: 1\n\n" + "\n".join(names) + "\n```\n"


def order(index, folder, names):
    """The pages as the index links to them, the others behind."""
    linked = []

    def look(label, target, image):
        path = resolved(folder, target)
        if path and path.is_relative_to(folder):
            linked.append(path.relative_to(folder).as_posix())
        return ""

    with_links(index, look)
    return [name for name in dict.fromkeys(linked) if name in names] + [name for name in names if name not in linked]


def write_language(site, language, target):
    files = dict(site.pages[language])
    if language == "en":
        files |= {f"project/{name}": path for name, path in sorted(site.project.items())}
    if "README.md" not in files:
        (target / "index").parent.mkdir(parents=True, exist_ok=True)
        files["README.md"] = target / "README.txt"
        listed = "".join(f"\n- [{title(path.read_text(encoding='utf-8'))}]({name})" for name, path in files.items()
                         if name != "README.md")
        files["README.md"].write_text(f"{FRENCH_INDEX}{listed}\n", encoding="utf-8")
    target.mkdir(parents=True, exist_ok=True)
    top = [name for name in files if name != "README.md" and not re.match(r"reference/(?!README)", name)]
    reference = [name for name in files if re.match(r"reference/(?!README)", name)]
    for name, path in files.items():
        behind = ""
        if name == "README.md":
            names = order(path.read_text(encoding="utf-8"), MANUAL / language, top)
            behind = toctree(site_name(each) for each in names) if names else ""
        elif name == "reference/README.md":
            names = order(path.read_text(encoding="utf-8"), virtual(path, name).parent,
                          [each.removeprefix("reference/") for each in reference])
            behind = toctree(site_name(each) for each in names)
        page = Page(site, language, name, path, target)
        if path.suffix == ".txt":
            page.at = MANUAL / language / "README.md"
        page.write(behind)
    return sorted(site_name(name) for name in files)


def main(arguments):
    reference, folder = (pathlib.Path(each).resolve() for each in arguments)
    site = Site(reference)
    site.collect_project_pages()
    try:
        pages = {language: write_language(site, language, folder / language) for language in site.pages}
    except Broken as broken:
        print(f"manual: {broken}", file=sys.stderr)
        return 1
    (folder / "pages.json").write_text(json.dumps(pages, indent=1), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
