#!/usr/bin/env python3
"""Looks into the package: its check sums, what has to be there, the libraries' widths, what the Linux program needs, the
links of its pages, and that nothing tells of the machine that built it. Usage: contents.py ZIP SOURCE_FOLDER"""
import hashlib
import pathlib
import posixpath
import re
import struct
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
import zipfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "qvrscript"))
import linked  # noqa: E402

BOTH = ["QVRlib21.dll", "QVRlib21.tlb", "QVRlib21.SxS.manifest", "list_form.exe", "list_form.exe.manifest",
        "qvrscript.exe", "registration_free.exe", "registration_free.exe.manifest"]
WANTED = [f"win{width}/{name}" for width in (32, 64) for name in BOTH] + [
    "imports/cpp/QVRlib21.hpp", "imports/csharp/QVRlib21.cs", "imports/csharp/QVRlib21.nuspec",
    "imports/pascal/QVRlib21_TLB.pas", "imports/python/QVRlib21.py", "imports/python/QVRlib21.pyi",
    "imports/csharp/build/QVRlib21.targets", "README.md", "LEAME.md", "CHANGELOG.md", "SHA256SUMS", "first.vbs",
    "linux/qvrscript", "linux/qvrscript.1", "linux/completions/qvrscript", "docs/failures.md", "docs/automation.md", "examples/gestion/main.cpp", "examples/registration_free/main.cpp",
    "examples/cookbook/list_form.vbs", "examples/list_form/README.md", "docs/images/list-form.png",
    "examples/hosts/vba/Hosts.bas", "examples/hosts/vba/ScriptProgress.cls"]
PAGES = ["README.md", "LEAME.md"]
MACHINES = {0x14C: 32, 0x8664: 64}


def image(data):
    """Width of a program or library, and whether it keeps symbols for a debugger."""
    (header,) = struct.unpack_from("<I", data, 0x3C)
    machine, sections, _, symbols, count = struct.unpack_from("<HHIII", data, header + 4)
    optional = struct.unpack_from("<H", data, header + 20)[0]
    names = [data[at:at + 8] for at in range(header + 24 + optional, header + 24 + optional + 40 * sections, 40)]
    return MACHINES.get(machine), bool(symbols or count or any(name.startswith((b"/", b".debug")) for name in names))


def linux_problems(data, pages):
    """What the Linux program needs that the pages do not tell, and symbols that it keeps."""
    with tempfile.NamedTemporaryFile() as program:
        program.write(data)
        program.flush()
        yield from linked.problems(program.name)
        if ".symtab" in linked.read_elf(program.name, "--sections"):
            yield "linux/qvrscript has symbols"
        versions = re.findall(r"GLIBC_([0-9.]+)", linked.read_elf(program.name, "--version-info"))
    newest = max(versions, key=lambda version: [int(part) for part in version.split(".")])
    for page, text in pages.items():
        if f"glibc {newest} " not in text:
            yield f"linux/qvrscript needs glibc {newest}, which {page} does not tell"


def broken_links(files, name):
    text = re.sub(r"```.*?```", "", files[name].decode(), flags=re.S)
    for target in re.findall(r"\]\(([^)#\s]+)(?:#[^)]*)?\)", text):
        if ":" in target:
            continue
        path = posixpath.normpath(posixpath.join(posixpath.dirname(name), target))
        if path not in files and not any(each.startswith(path + "/") for each in files):
            yield f"{name} links to {target}, which is not there"


def nuget_problems(files, name):
    """What the NuGet package is to be made of is there, and its version is told."""
    package = ElementTree.fromstring(files[name])
    if not re.fullmatch(r"\d+\.\d+\.\d+", package.findtext(".//{*}version")):
        yield f"{name} has no version"
    for each in package.iterfind(".//{*}file"):
        path = posixpath.normpath(posixpath.join(posixpath.dirname(name), each.get("src").replace("\\", "/")))
        if path not in files:
            yield f"{name} wants {path}, which is not there"


def problems(files, source):
    listed = dict(reversed(line.split("  ", 1)) for line in files["SHA256SUMS"].decode().splitlines())
    sums = {name: hashlib.sha256(data).hexdigest() for name, data in files.items() if name != "SHA256SUMS"}
    if listed != sums:
        yield "SHA256SUMS differs from the files"
    yield from (f"{name} is missing" for name in WANTED if name not in files)
    for name, data in files.items():
        for encoding in ("utf-8", "utf-16-le"):
            if source.encode(encoding) in data:
                yield f"{name} names the folder that it was built in"
        if name.endswith((".exe", ".dll")):
            width, symbols = image(data)
            if f"win{width}/" not in name:
                yield f"{name} has {width} bits"
            if symbols:
                yield f"{name} has symbols"
        if name == "linux/qvrscript":
            yield from linux_problems(data, {page: files[page].decode() for page in PAGES})
        if name.endswith((".bas", ".cls", ".cmd")) and data.count(b"\n") != data.count(b"\r\n"):
            yield f"{name} has lines that do not end in CR LF, which Visual Basic's editor and labels of batch files need"
        if name.endswith(".nuspec"):
            yield from nuget_problems(files, name)
        if name.endswith(".md"):
            yield from broken_links(files, name)


def main():
    archive = zipfile.ZipFile(sys.argv[1])
    top = archive.namelist()[0].split("/")[0] + "/"
    outside = [name for name in archive.namelist() if not name.startswith(top)]
    files = {name[len(top):]: archive.read(name) for name in archive.namelist()}
    found = [f"{name} is outside the folder {top}" for name in outside] + list(problems(files, sys.argv[2]))
    print("\n".join(found) or f"{len(files)} files, all as they should be")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
