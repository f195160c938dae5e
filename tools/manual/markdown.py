"""The little of Markdown that the manual's tools look at: headings and links outside code."""
import re

FENCE = re.compile(r"^ *(```+|~~~+)")
HEADING = re.compile(r"^(#{1,6}) +(.*?) *#*$")
LINK = re.compile(r"(`+[^`]*`+)|(!?)\[((?:[^\[\]`]|`[^`]*`|\[[^\]]*\])*)\]\(([^()\s]+)\)")


def prose(text):
    """The lines with whether each is outside fenced code."""
    fence = None
    for line in text.split("\n"):
        match = FENCE.match(line)
        if fence:
            if match and match[1].startswith(fence):
                fence = None
            yield line, False
        elif match:
            fence = match[1]
            yield line, False
        else:
            yield line, True


def headings(text):
    return [HEADING.match(line)[2] for line, outside in prose(text) if outside and HEADING.match(line)]


def title(text):
    found = headings(text)
    return found[0] if found else ""


def slug(heading):
    """The anchor that code hosts give a heading."""
    plain = re.sub(r"\[([^\]]*)\]\([^)]*\)|`", r"\1", heading)
    return re.sub(r"[^\w\- ]", "", plain.strip().lower()).replace(" ", "-")


def with_links(text, change):
    """The text with each link replaced by what change(label, target, is_image) gives; links can span lines."""

    def replaced(match):
        return match[0] if match[1] else change(match[3], match[4], bool(match[2]))

    pieces, block = [], []

    def flush():
        if block:
            pieces.append(LINK.sub(replaced, "\n".join(block)))
            block.clear()

    for line, outside in prose(text):
        if outside:
            block.append(line)
        else:
            flush()
            pieces.append(line)
    flush()
    return "\n".join(pieces)
