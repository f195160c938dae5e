#!/usr/bin/env python3
"""Writes what is published beside the archives: SHA256SUMS over them, and the manifests for scoop and winget. The sums are
signed by the command of --sign, which gets the file's path and leaves the signature beside it; without it they are not."""
import argparse
import hashlib
import json
import pathlib
import re
import shlex
import subprocess
import sys
import zipfile

TEMPLATES = pathlib.Path(__file__).resolve().parent / "release"
DESCRIPTIONS = {
    "DESCRIPTION": "Automation classes for desktop database applications, and the console program qvrscript",
    "DESCRIPTION_ES": "Clases de automatización para aplicaciones de escritorio con base de datos, y el programa de "
                      "consola qvrscript",
}


def read_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("archive", type=pathlib.Path, help="QVRlib21-VERSION.zip; its sources lie beside it, or not")
    parser.add_argument("out", type=pathlib.Path, help="folder for what is written")
    parser.add_argument("--url", required=True, help="folder of the archives as users download them")
    parser.add_argument("--homepage", required=True)
    parser.add_argument("--identifier", required=True, help="winget's, Publisher.Package")
    parser.add_argument("--publisher", required=True)
    parser.add_argument("--licence", required=True, help="its SPDX identifier, or Proprietary")
    parser.add_argument("--sign", help='for instance "gpg --armor --detach-sign"')
    return parser.parse_args()


def version_of(archive):
    match = re.fullmatch(r"QVRlib21-(\d+\.\d+\.\d+)\.zip", archive.name)
    if not match or not archive.is_file():
        sys.exit(f"release.py: {archive} is no archive QVRlib21-VERSION.zip")
    return match[1]


def release_data(given, version):
    """The values of the templates by their names."""
    programs = {width: rf"win{width}\qvrscript.exe" for width in (32, 64)}
    inside = set(zipfile.ZipFile(given.archive).namelist())
    for program in programs.values():
        if f"{given.archive.stem}/{program}".replace("\\", "/") not in inside:
            sys.exit(f"release.py: {given.archive} has no {program}")
    return {
        "VERSION": version, "FOLDER": given.archive.stem, "HOMEPAGE": given.homepage, "IDENTIFIER": given.identifier,
        "PUBLISHER": given.publisher, "LICENCE": given.licence, "URL": f"{given.url.rstrip('/')}/{given.archive.name}",
        "SHA256": hashlib.sha256(given.archive.read_bytes()).hexdigest(),
        **{f"PROGRAM_{width}": program for width, program in programs.items()},
        **{f"NESTED_{width}": f"{given.archive.stem}\\{program}" for width, program in programs.items()},
        **DESCRIPTIONS,
    }


def write_manifests(out, data):
    for template in sorted(TEMPLATES.rglob("*.in")):
        # A text in JSON's quotes is one in YAML too.
        text = re.sub(r"@(\w+)@", lambda name: json.dumps(data[name[1]], ensure_ascii=False),
                      template.read_text(encoding="utf-8"))
        name = template.name.removesuffix(".in").replace("IDENTIFIER", data["IDENTIFIER"])
        path = out / template.parent.relative_to(TEMPLATES) / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


def write_sums(given, version):
    archives = [given.archive, given.archive.with_name(f"QVRlib21-{version}-source.zip")]
    path = given.out / "SHA256SUMS"
    path.write_text("".join(f"{hashlib.sha256(each.read_bytes()).hexdigest()}  {each.name}\n"
                            for each in archives if each.is_file()), encoding="utf-8")
    return path


def main():
    given = read_arguments()
    version = version_of(given.archive)
    data = release_data(given, version)
    given.out.mkdir(parents=True, exist_ok=True)
    write_manifests(given.out, data)
    sums = write_sums(given, version)
    if given.sign:
        subprocess.run([*shlex.split(given.sign), str(sums)], check=True)
    print(f"{given.out}: {'signed by ' + given.sign if given.sign else 'SHA256SUMS is not signed'}")


if __name__ == "__main__":
    main()
