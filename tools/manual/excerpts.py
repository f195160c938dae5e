"""Examples of the manual that are taken from sources which the tests compile, run or parse."""
import re

NAMED = re.compile(r"`(examples/[\w/.-]+)`[^`]*:\s*$")


def excerpts(page):
    """Each block of code behind a paragraph that ends with the name of an example's source, and that name."""
    for place in re.finditer(r"^```\w+\n(.*?)^```$", page, flags=re.M | re.S):
        paragraph = page[:place.start()].rstrip("\n").rpartition("\n\n")[2]
        named = NAMED.search(paragraph)
        if named:
            yield named[1], place[1].splitlines()


def problems(root):
    """Blocks that are not in the source in one piece; how deep it is indented there is left aside."""
    for path in sorted((root / "docs/manual").glob("*/*.md")):
        for source, block in excerpts(path.read_text(encoding="utf-8")):
            where, file = f"{path.parent.name}/{path.name}", root / source
            if not file.exists():
                yield f"{where}: there is no {source}"
                continue
            lines = [line.strip() for line in file.read_text(encoding="utf-8").splitlines()]
            wanted = [line.strip() for line in block]
            if not any(lines[at:at + len(wanted)] == wanted for at in range(len(lines))):
                yield f"{where}: its example differs from {source}: {wanted[0]}"
