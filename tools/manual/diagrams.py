"""Whether the diagrams' pictures are what Graphviz draws from their sources."""
import pathlib
import shutil
import subprocess
import xml.etree.ElementTree as ElementTree

SVG = "{http://www.w3.org/2000/svg}"


def shape(picture):
    """The parts of a picture: kind, name, texts, and what is drawn in which colours. Places and sizes are left aside:
    they follow from the fonts of the machine that drew it."""
    parts = []
    for group in ElementTree.fromstring(picture).iter(f"{SVG}g"):
        own = list(group) if group.get("class") == "graph" else list(group.iter())
        texts = ["".join(each.itertext()) for each in own if each.tag == f"{SVG}text"]
        drawn = sorted((each.tag.removeprefix(SVG), each.get("fill", ""), each.get("stroke", ""),
                        each.get("stroke-width", ""), each.get("stroke-dasharray", ""), each.get("font-weight", ""))
                       for each in own if each.tag not in (f"{SVG}g", f"{SVG}title"))
        parts.append((group.get("class"), group.findtext(f"{SVG}title"), texts, drawn))
    return sorted(parts)


def drawn_from(source):
    return subprocess.run(["dot", "-Tsvg", source], check=True, capture_output=True).stdout


def problems(folder):
    """Each as one sentence; none when every source has its current picture and every picture its source."""
    if not shutil.which("dot"):
        yield "dot is missing, which draws the pictures; install graphviz"
        return
    for source in sorted(pathlib.Path(folder).glob("*.dot")):
        picture = source.with_suffix(".svg")
        if not picture.exists():
            yield f"{picture.name} is missing; draw it with dot -Tsvg from {source.name}"
        elif shape(picture.read_bytes()) != shape(drawn_from(source)):
            yield f"{picture.name} is not what {source.name} draws; draw it again with dot -Tsvg"
    for picture in sorted(pathlib.Path(folder).glob("*.svg")):
        if not picture.with_suffix(".dot").exists():
            yield f"{picture.name} has no source {picture.stem}.dot"
