#!/usr/bin/env python3
"""The C# import beside the type library: it compiles without a warning and its members have help texts; enumerations,
identifiers, slots in their order, numbers, names, types and defaults of all parameters are as the compiled assembly has
them; the classes call what they should, and hear the events."""
import pathlib
import re
import subprocess
import tempfile
import unittest
from dataclasses import replace

from approved import of_kind

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parents[1] / "imports/csharp/QVRlib21.cs"
STRICT = ["-langversion:5", "-warnaserror+", "-warn:4"]
TYPES = {"BSTR": ("String", "BStr"), "VARIANT": ("Object", "Struct"), "VARIANT_BOOL": ("Boolean", "VariantBool"),
         "long": ("Int32", ""), "short": ("Int16", ""), "MotoresBD": ("MotoresBD", ""),
         "Connection": ("Object", "IDispatch"), "Command": ("Object", "IDispatch"),
         "ParameterDirectionEnum": ("ParameterDirectionEnum", "")}
KINDS = {"dual interface": "InterfaceIsDual", "dispinterface": "InterfaceIsIDispatch"}


def run(*command):
    done = subprocess.run(command, capture_output=True, text=True, stdin=subprocess.DEVNULL, timeout=120)
    if done.returncode:
        raise AssertionError(f"{command[0]}: {done.stdout}{done.stderr}")
    return done.stdout


def type_text(kind, reference=""):
    name, marshalled = TYPES[kind]
    return f"{name}{reference}{f' as {marshalled}' if marshalled else ''}"


def parameter_text(parameter):
    optional = "optional" in parameter.flags
    marks = "in,out" if parameter.stars else "in"
    constant = '""' if optional and parameter.type == "BSTR" else parameter.default
    return (f"[{marks}{',optional' if optional else ''}] {type_text(parameter.type, '&' if parameter.stars else '')} "
            f"{parameter.name}{f' = {constant}' if constant else ''}")


def member_text(member):
    answer = next((each for each in member.parameters if "retval" in each.flags), None)
    given = [each for each in member.parameters if each is not answer]
    if member.kind == "put":
        # The type library does not name the value that is put.
        given[-1] = replace(given[-1], name="Valor")
    name = f"{member.kind}_{member.name}" if member.kind else member.name
    parameters = ", ".join(parameter_text(each) for each in given)
    return f"  0x{member.id:x} {name}({parameters}) {type_text(answer.type) if answer else 'Void'}"


def blocks(text):
    """The lines below each head."""
    found = {}
    for line in text.splitlines():
        if line.startswith(" "):
            lines.append(line)
        else:
            lines = found[line] = []
    return found


class CSharpImport(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.library = cls.folder / "QVRlib21.Import.dll"
        # Members without a help text are warnings, too.
        run("mcs", *STRICT, "-target:library", f"-doc:{cls.folder / 'help.xml'}", f"-out:{cls.library}", str(SOURCE))
        cls.contract = blocks(cls.told_by("csharp_import_contract"))

    @classmethod
    def told_by(cls, name):
        program = cls.folder / f"{name}.exe"
        run("mcs", *STRICT, f"-r:{cls.library}", f"-out:{program}", str(HERE / f"{name}.cs"))
        return run("mono", str(program))

    def test_interfaces(self):
        for kind, called in KINDS.items():
            for interface in of_kind(kind):
                with self.subTest(interface.name):
                    found = self.contract.get(f"{called} {interface.name} {{{interface.guid}}}")
                    self.assertEqual(found, [member_text(each) for each in interface.members])

    def test_nothing_else_is_declared(self):
        wanted = {part.name for kind in ("enum", *KINDS) for part in of_kind(kind)} | {"ParameterDirectionEnum"}
        self.assertEqual({head.split()[1] for head in self.contract}, wanted)

    def test_enumeration(self):
        enum = of_kind("enum")[0]
        self.assertEqual(self.contract[f"enum {enum.name}"],
                         [f"  {name} = {value}" for name, value in enum.values.items()])

    def test_classes(self):
        made = dict(re.findall(r'public (\w+)\(\) : this\(Activation\.Of<Raw\.\w+>\("([\w-]+)"\)\)',
                               SOURCE.read_text(encoding="utf-8")))
        self.assertEqual(made, {each.name: each.guid for each in of_kind("coclass") if "creatable" in each.rest})

    def test_calls(self):
        self.assertRegex(self.told_by("csharp_import_calls"), r"^\d{4} calls, 0 findings\n$")


if __name__ == "__main__":
    unittest.main()
