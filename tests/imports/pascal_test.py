#!/usr/bin/env python3
"""The unit for Delphi and Free Pascal beside the type library: identifiers, slots in their order and the types of all
parameters, the numbers of the dispinterfaces, values of the enumeration; and no member is missing in the classes."""
import pathlib
import re
import unittest

from approved import of_kind

UNIT = (pathlib.Path(__file__).resolve().parents[2] / "imports/pascal/QVRlib21_TLB.pas").read_text(encoding="utf-8")
TYPES = {"BSTR": "WideString", "VARIANT": "OleVariant", "VARIANT_BOOL": "WordBool", "long": "Integer",
         "short": "SmallInt", "MotoresBD": "MotoresBD", "Connection": "IDispatch", "Command": "IDispatch",
         "ParameterDirectionEnum": "TOleEnum"}
ACCESSORS = {"": "", "get": "Get_", "put": "Set_"}
HEADING = re.compile(r"(function|procedure) &?(\w+)(?:\((.*?)\))?(?:: (\w+))?; (safecall|dispid (\d+));")


def block(start):
    text = re.search(rf"\n  {start}\n(.*?)\n  end;", UNIT, re.S)[1]
    return " ".join(re.sub(r"\{ .*? \}", "", text, flags=re.S).split())


def headings(text):
    """Name, parameters as by reference and type, and result of each."""
    for _, name, parameters, result, _, number in HEADING.findall(text):
        given = [(each.strip().startswith("var "), each.rpartition(": ")[2]) for each in parameters.split(";") if each]
        yield name, given, result, number


def expected(member, types):
    given, result = [], ""
    for each in member.parameters:
        if "retval" in each.flags:
            result = types[each.type]
        else:
            given.append((bool(each.stars), types[each.type]))
    return given, result


class PascalImport(unittest.TestCase):
    def test_slots(self):
        for interface in of_kind("dual interface"):
            with self.subTest(interface.name):
                found = [heading[:3] for heading in headings(block(rf"{interface.name} = interface\(IDispatch\)"))]
                wanted = [(ACCESSORS[each.kind] + each.name, *expected(each, TYPES)) for each in interface.members]
                self.assertEqual(found, wanted)

    def test_numbers_of_the_dispinterfaces(self):
        numbers = {**TYPES, "MotoresBD": "Integer", "ParameterDirectionEnum": "Integer"}
        for interface in [*of_kind("dual interface"), *of_kind("dispinterface")]:
            name = interface.name + ("Disp" if interface.kind == "dual interface" else "")
            text = block(f"{name} = dispinterface")
            found = {name: (int(number), given, result) for name, given, result, number in headings(text)}
            for each, kind, number in re.findall(r"property &?(\w+): (\w+)(?: readonly| writeonly)? dispid (\d+);", text):
                found[each] = (int(number), [], kind)
            wanted = {}
            for member in interface.members:
                given, result = expected(member, numbers)
                if member.kind == "put":
                    # Known by the value of the accessor that reads, if there is one.
                    wanted.setdefault(member.name, (member.id, [], given[-1][1]))
                else:
                    wanted[member.name] = (member.id, given, result)
            with self.subTest(name):
                self.assertEqual(found, wanted)

    def test_written_and_read_properties(self):
        for interface in of_kind("dual interface"):
            kinds = {}
            for member in interface.members:
                if member.kind:
                    kinds.setdefault(member.name, set()).add(member.kind)
            text = block(f"{interface.name}Disp = dispinterface")
            for name, mode in re.findall(r"property &?(\w+): \w+( readonly| writeonly)? dispid", text):
                wanted = {" readonly": {"get"}, " writeonly": {"put"}, "": {"get", "put"}}[mode]
                self.assertEqual(kinds[name], wanted, f"{interface.name}.{name}")

    def test_identifiers(self):
        prefixes = {"library": "LIBID", "dual interface": "IID", "dispinterface": "DIID", "coclass": "CLASS"}
        for kind, prefix in prefixes.items():
            for each in of_kind(kind):
                self.assertIn(f"  {prefix}_{each.name}: TGUID = '{{{each.guid}}}';", UNIT)
        for interface in of_kind("dual interface"):
            for start in (rf"{interface.name} = interface\(IDispatch\)", f"{interface.name}Disp = dispinterface"):
                self.assertTrue(block(start).startswith(f"['{{{interface.guid}}}']"))

    def test_enumeration(self):
        for name, value in of_kind("enum")[0].values.items():
            self.assertIn(f"  {name} = {value};", UNIT)

    def test_every_member_is_in_a_class(self):
        bodies = UNIT[UNIT.index("\nimplementation"):]
        owners = {each.name: each.name.lstrip("_") for each in of_kind("dual interface")}
        for interface in of_kind("dual interface"):
            for member in interface.members:
                name = member.name.removeprefix("iSQL20_")
                owner = "iSQL20" if name != member.name else owners[interface.name]
                called = {"": "", "get": "Get", "put": "Set"}[member.kind] + name
                with self.subTest(interface=interface.name, member=called):
                    self.assertRegex(bodies, rf"(function|procedure) T{owner}\.&?{called}[(:;]")


if __name__ == "__main__":
    unittest.main()
