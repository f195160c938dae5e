#!/usr/bin/python3
"""What is published beside the archives: sums that hold, a signature where a command was given, manifests that lead to
what the archive has. Usage: release_test.py ZIP"""
import hashlib
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

import yaml

RELEASE = pathlib.Path(__file__).resolve().parents[2] / "packaging/release.py"
ARCHIVE = pathlib.Path(sys.argv.pop(1))
URL, IDENTIFIER, PUBLISHER = "https://example.invalid/2.x/", "Maker.QVRlib21", 'A "quoted": maker'


class Release(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.out = self.folder / "out"

    def run_release(self, archive=ARCHIVE, *more):
        return subprocess.run([RELEASE, archive, self.out, "--url", URL, "--homepage", "https://example.invalid/",
                               "--identifier", IDENTIFIER, "--publisher", PUBLISHER, "--licence", "Proprietary", *more],
                              capture_output=True, text=True)

    def released(self, *more):
        done = self.run_release(ARCHIVE, *more)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done.stdout

    def signer(self, body):
        program = self.folder / "signer"
        program.write_text(f"#!/bin/sh\n{body}\n")
        program.chmod(0o755)
        return f"{program} --loudly"

    def winget(self, kind):
        with open(self.out / f"winget/{IDENTIFIER}{kind}.yaml", encoding="utf-8") as file:
            return yaml.safe_load(file)

    def test_sums_hold(self):
        self.assertIn("SHA256SUMS is not signed", self.released())
        check = subprocess.run(["sha256sum", "--check", "--strict", self.out / "SHA256SUMS"], cwd=ARCHIVE.parent,
                               capture_output=True, text=True)
        self.assertEqual((check.returncode, check.stdout.splitlines()[0]), (0, f"{ARCHIVE.name}: OK"))

    def test_sums_cover_the_sources_too(self):
        shutil.copy(ARCHIVE, self.folder)
        source = self.folder / f"{ARCHIVE.stem}-source.zip"
        source.write_bytes(b"sources")
        self.assertEqual(self.run_release(self.folder / ARCHIVE.name).returncode, 0)
        lines = (self.out / "SHA256SUMS").read_text().splitlines()
        self.assertEqual([line.split("  ")[1] for line in lines], [ARCHIVE.name, source.name])

    def test_a_signer_gets_the_sums(self):
        self.assertIn("signed by", self.released("--sign", self.signer('echo "$1" > "$2.asc"')))
        self.assertEqual((self.out / "SHA256SUMS.asc").read_text(), "--loudly\n")

    def test_a_failing_signer_fails_the_release(self):
        self.assertNotEqual(self.run_release(ARCHIVE, "--sign", self.signer("exit 3")).returncode, 0)

    def test_scoop_leads_to_the_program(self):
        self.released()
        manifest = json.loads((self.out / "scoop/qvrlib21.json").read_text(encoding="utf-8"))
        self.assertEqual(manifest["url"], URL + ARCHIVE.name)
        self.assertEqual(manifest["hash"], hashlib.sha256(ARCHIVE.read_bytes()).hexdigest())
        names = zipfile.ZipFile(ARCHIVE).namelist()
        self.assertEqual(sorted(manifest["architecture"]), ["32bit", "64bit"])
        for each in manifest["architecture"].values():
            self.assertIn(f"{manifest['extract_dir']}/{each['bin']}".replace("\\", "/"), names)
        for width in ("win32", "win64"):
            self.assertTrue(any(f"$dir\\{width}\\QVRlib21.dll" in line for line in manifest["notes"]))
            self.assertIn(f"{manifest['extract_dir']}/{width}/QVRlib21.dll", names)
        self.assertIn(manifest["version"], ARCHIVE.name)

    def test_winget_leads_to_the_program(self):
        self.released()
        installer, names = self.winget(".installer"), zipfile.ZipFile(ARCHIVE).namelist()
        self.assertEqual([each["Architecture"] for each in installer["Installers"]], ["x64", "x86"])
        for each, width in zip(installer["Installers"], ("win64", "win32")):
            self.assertEqual(each["InstallerUrl"], URL + ARCHIVE.name)
            self.assertEqual(each["InstallerSha256"], hashlib.sha256(ARCHIVE.read_bytes()).hexdigest())
            path = each["NestedInstallerFiles"][0]["RelativeFilePath"].replace("\\", "/")
            self.assertIn(path, names)
            self.assertIn(width, path)

    def test_winget_files_belong_together(self):
        self.released()
        kinds = {"": "version", ".installer": "installer", ".locale.en-US": "defaultLocale", ".locale.es-ES": "locale"}
        files = {path.name for path in (self.out / "winget").iterdir()}
        self.assertEqual(files, {f"{IDENTIFIER}{kind}.yaml" for kind in kinds})
        for kind, name in kinds.items():
            manifest = self.winget(kind)
            self.assertEqual((manifest["PackageIdentifier"], manifest["ManifestType"]), (IDENTIFIER, name))
            self.assertEqual(manifest["ManifestVersion"], "1.9.0")
            self.assertIn(f"-{manifest['PackageVersion']}.zip", ARCHIVE.name)
            if "locale" in kind:
                self.assertEqual(manifest["Publisher"], PUBLISHER)
                self.assertEqual(manifest["PackageLocale"], kind.removeprefix(".locale."))

    def test_what_is_no_archive_is_refused(self):
        for name in ("missing.zip", "QVRlib21-2.0.0.zip"):
            done = self.run_release(self.folder / name)
            self.assertEqual(done.returncode, 1)
            self.assertIn("is no archive QVRlib21-VERSION.zip", done.stderr)
        self.assertFalse(self.out.exists())

    def test_an_archive_without_the_program_is_refused(self):
        path = self.folder / "QVRlib21-2.0.0.zip"
        with zipfile.ZipFile(path, "w") as archive:
            archive.writestr("QVRlib21-2.0.0/README.md", "")
        done = self.run_release(path)
        self.assertEqual((done.returncode, self.out.exists()), (1, False))
        self.assertIn("has no win32\\qvrscript.exe", done.stderr)


if __name__ == "__main__":
    unittest.main()
