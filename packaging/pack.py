#!/usr/bin/env python3
"""Writes a folder as a zip file whose bytes depend on the files alone: in order, all of one time, with SHA256SUMS.
Usage: pack.py FOLDER ZIP SOURCE_FOLDER"""
import hashlib
import os
import pathlib
import re
import sys
import time
import zipfile

# The time of every file: SOURCE_DATE_EPOCH, or the first that the format knows.
EPOCH = max(int(os.environ.get("SOURCE_DATE_EPOCH", "0")), 315532800)


def content(path, name):
    """The bytes of a file; Visual Basic's editor and the command processor want CR LF whatever the checkout made of
    it."""
    data = path.read_bytes()
    if name.endswith((".bas", ".cls", ".cmd")):
        data = re.sub(rb"\r?\n", rb"\r\n", data)
    return data


def main():
    folder, out, source = sys.argv[1:]
    root = pathlib.Path(folder)
    paths = {str(path.relative_to(root)): path for path in root.rglob("*") if path.is_file()}
    files = {name: content(path, name) for name, path in paths.items() if name != "SHA256SUMS"}
    telling = [name for name, data in files.items() for encoding in ("utf-8", "utf-16-le")
               if source.encode(encoding) in data]
    if telling:
        sys.exit(f"pack.py: these name the folder that they were built in: {telling}")
    sums = "".join(f"{hashlib.sha256(files[name]).hexdigest()}  {name}\n" for name in sorted(files))
    files["SHA256SUMS"] = sums.encode()
    moment = time.gmtime(EPOCH)[:6]
    top = pathlib.Path(out).stem
    with zipfile.ZipFile(out, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name in sorted(files):
            entry = zipfile.ZipInfo(f"{top}/{name}", moment)
            executable = name in paths and os.access(paths[name], os.X_OK)
            entry.external_attr = (0o100755 if executable else 0o100644) << 16
            entry.create_system = 3
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, files[name])
    print(f"{out}: {len(files)} files")


if __name__ == "__main__":
    main()
