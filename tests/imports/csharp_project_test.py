#!/usr/bin/env python3
"""A C# project that takes the import in by its targets, built from the archive's folders and from those of the NuGet
package: the import is compiled in, the library of the program's width and its manifest are beside the program, and the
program's manifest is the width's unless the project has its own."""
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

from approved import of_kind

ROOT = pathlib.Path(__file__).resolve().parents[2]
IMPORT = ROOT / "imports/csharp"
NUSPEC = ROOT / "packaging/QVRlib21.nuspec"
LIBRARY = ["QVRlib21.dll", "QVRlib21.SxS.manifest"]
PROJECT = """<Project ToolsVersion="4.0" xmlns="http://schemas.microsoft.com/developer/msbuild/2003">
  <PropertyGroup>
    <OutputType>Exe</OutputType>
    <OutputPath>bin/</OutputPath>
    <TargetFrameworkVersion>v4.5</TargetFrameworkVersion>
    <TreatWarningsAsErrors>true</TreatWarningsAsErrors>
    <ApplicationManifest>$(OwnManifest)</ApplicationManifest>
  </PropertyGroup>
  <ItemGroup>
    <Compile Include="program.cs" />
    <Reference Include="System" />
  </ItemGroup>
  <Import Project="$(MSBuildToolsPath)/Microsoft.CSharp.targets" />
  <Import Project="TARGETS" />
  <Target Name="TellManifest" AfterTargets="Build">
    <Message Importance="high" Text="manifest: [$(ApplicationManifest)]" />
  </Target>
</Project>
"""
PROGRAM = "static class Program { static void Main() { new QVRlib21.QVRprp().Borra(); } }\n"
CLASS = "public static class User { public static void Use() { new QVRlib21.QVRprp().Borra(); } }\n"
WITHOUT = "static class Program { static void Main() { } }\n"


def put(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def unpack_archive(folder):
    """The folders as the archive has them, with texts that tell of their width in place of the libraries."""
    shutil.copytree(IMPORT, folder / "imports/csharp")
    for width in ("win32", "win64"):
        for name in LIBRARY:
            put(folder / width / name, f"{width} {name}")
    return folder / "imports/csharp"


def unpack_nuget(folder):
    """As NuGet restores the package that is made of the archive by the list of files."""
    made = unpack_archive(folder / "archive")
    for each in ElementTree.parse(NUSPEC).iterfind(".//{*}file"):
        source = made / each.get("src").replace("\\", "/")
        target = folder / "package" / each.get("target").replace("\\", "/")
        target.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, target)
    shutil.rmtree(folder / "archive")
    return folder / "package"


class CSharpProject(unittest.TestCase):
    def project(self, unpack=unpack_archive, source=PROGRAM):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.bin = self.folder / "program/bin"
        self.targets = unpack(self.folder) / "build/QVRlib21.targets"
        put(self.folder / "program/program.csproj", PROJECT.replace("TARGETS", str(self.targets)))
        put(self.folder / "program/program.cs", source)

    def build(self, **properties):
        # Debian has the assemblies to run with and not those to compile against.
        given = {"NoCompilerStandardLib": "false", **properties}
        options = [f"/p:{name}={value}" for name, value in given.items()]
        return subprocess.run(["xbuild", "/nologo", "/v:minimal", "/t:Build", *options, "program.csproj"],
                              cwd=self.folder / "program", capture_output=True, text=True, stdin=subprocess.DEVNULL,
                              timeout=120)

    def built(self, **properties):
        done = self.build(**properties)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return re.search(r"manifest: \[(.*)\]", done.stdout)[1]

    def names(self):
        return {path.name for path in self.bin.iterdir()}

    def test_takes_the_library_of_the_programs_width(self):
        version = of_kind("library")[0].rest.split()[1]
        for unpack in (unpack_archive, unpack_nuget):
            for platform, width, architecture in (("x86", 32, "x86"), ("x64", 64, "amd64")):
                with self.subTest(unpack.__name__, platform=platform):
                    self.project(unpack)
                    manifest = pathlib.Path(self.built(PlatformTarget=platform))
                    self.assertEqual(manifest.resolve(), (self.targets.parent / f"program{width}.manifest").resolve())
                    self.assertIn(f'"QVRlib21.SxS" version="{version}.0.0" processorArchitecture="{architecture}"',
                                  manifest.read_text(encoding="utf-8"))
                    self.assertEqual(self.names(), {"program.exe", *LIBRARY})
                    for name in LIBRARY:
                        self.assertEqual((self.bin / name).read_text(encoding="utf-8"), f"win{width} {name}")

    def test_leaves_a_projects_own_manifest(self):
        self.project()
        self.assertEqual(self.built(PlatformTarget="x86", OwnManifest="own.manifest"), "own.manifest")

    def test_asks_for_a_width(self):
        self.project()
        done = self.build(PlatformTarget="AnyCPU")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("set PlatformTarget to x86 or x64", done.stdout)

    def test_copies_nothing_where_the_library_is_registered(self):
        self.project()
        self.assertEqual(self.built(PlatformTarget="AnyCPU", QVRlib21Width="registered"), "")
        self.assertEqual(self.names(), {"program.exe"})

    def test_leaves_the_copying_to_the_program(self):
        self.project(source=CLASS)
        self.assertEqual(self.built(PlatformTarget="x86", OutputType="Library"), "")
        self.assertEqual(self.names(), {"program.dll"})

    def test_leaves_out_the_source(self):
        self.project()
        done = self.build(PlatformTarget="x86", QVRlib21Compile="false")
        self.assertIn("CS0246", done.stdout)
        put(self.folder / "program/program.cs", WITHOUT)
        self.built(PlatformTarget="x86", QVRlib21Compile="false")
        self.assertEqual(self.names(), {"program.exe", *LIBRARY})


if __name__ == "__main__":
    unittest.main()
