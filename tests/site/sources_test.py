"""What the checks of the manual's pictures and excerpts find, and what becomes of links to schemas."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/manual"))

import assemble  # noqa: E402
import diagrams  # noqa: E402
import excerpts  # noqa: E402

DRAWING = """
digraph d {
  node [fontname="sans-serif"]
  a [label="One"]
  b [shape=box]
  a -> b [label="to", color="#112233"]
}
"""
PAGE = "# Page\n\nText.\n\nFrom `examples/one.cpp`:\n\n```cpp\nint one() {{\n{}\n}}\n```\n"


class Pictures(unittest.TestCase):
    def setUp(self):
        work = tempfile.TemporaryDirectory()
        self.addCleanup(work.cleanup)
        self.folder = pathlib.Path(work.name)
        self.source, self.picture = self.folder / "d.dot", self.folder / "d.svg"
        self.source.write_text(DRAWING)
        self.picture.write_bytes(diagrams.drawn_from(self.source))

    def found(self):
        return list(diagrams.problems(self.folder))

    def test_are_current_when_they_were_drawn_from_their_source(self):
        self.assertEqual(self.found(), [])

    def test_are_current_whatever_the_font(self):
        self.source.write_text(DRAWING.replace('"sans-serif"', '"monospace", fontsize=22'))
        self.assertEqual(self.found(), [])

    def test_are_out_of_date_when_the_source_has_changed(self):
        for old, new in (("One", "Two"), ("a -> b", "b -> a"), (' [label="to"', ' [label="on"'), ("shape=box", ""),
                         ("#112233", "#332211"), ("a -> b", "c; a -> b"), ("digraph d", "digraph e")):
            with self.subTest(new):
                self.assertIn(old, DRAWING)
                self.source.write_text(DRAWING.replace(old, new))
                self.assertEqual(self.found(), ["d.svg is not what d.dot draws; draw it again with dot -Tsvg"])

    def test_are_missed(self):
        self.picture.unlink()
        self.assertEqual(self.found(), ["d.svg is missing; draw it with dot -Tsvg from d.dot"])

    def test_without_a_source_are_told(self):
        self.source.unlink()
        self.assertEqual(self.found(), ["d.svg has no source d.dot"])


class Excerpts(unittest.TestCase):
    def found(self, source, page):
        with tempfile.TemporaryDirectory() as work:
            root = pathlib.Path(work)
            for folder in ("docs/manual/en", "examples"):
                (root / folder).mkdir(parents=True)
            if source is not None:
                (root / "examples/one.cpp").write_text(source)
            (root / "docs/manual/en/page.md").write_text(page)
            return list(excerpts.problems(root))

    def test_are_in_their_source_at_any_depth(self):
        source = "struct S {\n  int one() {\n    return 1;\n  }\n};\n"
        self.assertEqual(self.found(source, PAGE.format("  return 1;")), [])

    def test_that_differ_are_told(self):
        for source in ("int one() {\n  return 2;\n}\n", "int one() {\n}\n  return 1;\n", ""):
            self.assertEqual(self.found(source, PAGE.format("  return 1;")),
                             ["en/page.md: its example differs from examples/one.cpp: int one() {"])

    def test_of_a_source_that_is_gone_are_told(self):
        self.assertEqual(self.found(None, PAGE.format("")), ["en/page.md: there is no examples/one.cpp"])

    def test_are_only_what_follows_the_name(self):
        page = "From `examples/one.cpp`:\n\nText.\n\n```cpp\nint two();\n```\n"
        self.assertEqual(self.found("int one();\n", page), [])


class Schemas(unittest.TestCase):
    def setUp(self):
        work = tempfile.TemporaryDirectory()
        self.addCleanup(work.cleanup)
        self.folder = pathlib.Path(work.name)
        name = "qvrscript-build-servers.md"
        self.page = assemble.Page(assemble.Site(self.folder), "en", name, assemble.MANUAL / "en" / name, self.folder)

    def test_go_to_the_site_with_the_page_that_links_to_them(self):
        name = "qvrscript-run.schema.json"
        self.assertEqual(self.page.change("run", f"../schemas/{name}", False), f"[run](schemas/{name})")
        self.assertEqual((self.folder / "schemas" / name).read_bytes(), (assemble.SCHEMAS / name).read_bytes())

    def test_that_are_not_there_are_told(self):
        with self.assertRaises(assemble.Broken) as told:
            self.page.change("run", "../schemas/none.json", False)
        self.assertEqual(str(told.exception), "docs/manual/en/qvrscript-build-servers.md: there is no none.json")


if __name__ == "__main__":
    unittest.main()
