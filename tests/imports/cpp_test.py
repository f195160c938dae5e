#!/usr/bin/env python3
"""The C++ import beside the type library: identifiers, slots in their order, types of all parameters, values of the
enumeration; and no member of the contract is missing in the classes."""
import pathlib
import re
import unittest

from approved import of_kind

HEADER = (pathlib.Path(__file__).resolve().parents[2] / "imports/cpp/QVRlib21.hpp").read_text(encoding="utf-8")
# ADO's objects are any objects to the header.
OBJECTS = {"Connection*": "IDispatch*", "Command*": "IDispatch*"}


def slots_of(name):
    body = re.search(rf"struct {name} : IDispatch {{(.*?)\n}};", HEADER, re.S)[1]
    found = re.findall(r"virtual HRESULT STDMETHODCALLTYPE (\w+)\(([^)]*)\) = 0;", body)
    return [(member, [" ".join(each.split()).rsplit(" ", 1)[0] for each in parameters.split(",")] if parameters else [])
            for member, parameters in found]


def expected_slot(member):
    name = f"{member.kind}_{member.name}" if member.kind else member.name
    types = []
    for each in member.parameters:
        kind = each.type + each.stars
        types.append(kind.replace(kind[:-1], OBJECTS[kind[:-1]]) if kind[:-1] in OBJECTS else kind)
    return name, types


def guid_of(pattern):
    text = re.search(pattern + r"\s*=\s*\{([^;]*)\};", HEADER)[1]
    numbers = [int(each, 16) for each in re.findall(r"0x(\w+)", text)]
    tail = "".join(f"{each:02X}" for each in numbers[3:])
    return f"{numbers[0]:08X}-{numbers[1]:04X}-{numbers[2]:04X}-{tail[:4]}-{tail[4:]}"


def class_body(name):
    return re.search(rf"\nclass {name}(?: : public \w+)? {{(.*?)\n}};", HEADER, re.S)[1]


class CppImport(unittest.TestCase):
    def test_slots(self):
        for interface in of_kind("dual interface"):
            with self.subTest(interface.name):
                self.assertEqual(slots_of(interface.name), [expected_slot(each) for each in interface.members])
                self.assertEqual([each.slot for each in interface.members], list(range(7, 7 + len(interface.members))))

    def test_identifiers(self):
        for interface in of_kind("dual interface"):
            self.assertEqual(guid_of(rf"kInterfaceId<raw::{interface.name}>"), interface.guid)
        for each in of_kind("coclass"):
            if "creatable" in each.rest:
                self.assertEqual(guid_of(f"kClassId_{each.name}"), each.guid)
        self.assertEqual(guid_of("kLibraryId"), of_kind("library")[0].guid)
        self.assertEqual(guid_of("kScriptEventsId"), of_kind("dispinterface")[0].guid)

    def test_enumeration(self):
        enum = of_kind("enum")[0]
        body = re.search(rf"enum {enum.name} : std::int32_t {{(.*?)}};", HEADER, re.S)[1]
        self.assertEqual(dict(re.findall(r"(\w+) = (\d+)", body)), enum.values)

    def test_every_member_is_in_a_class(self):
        classes = {"_iSQL20": "iSQL20", "_cSQL20": "cSQL20", "_uSQL20": "uSQL20", "_QVRcfp": "QVRcfp",
                   "_QVRScr": "QVRScr", "_QVRprp": "QVRprp", "_Ov": "Ov"}
        for interface in of_kind("dual interface"):
            for member in interface.members:
                name = member.name.removeprefix("iSQL20_")
                body = class_body("iSQL20" if name != member.name else classes[interface.name])
                called = f"{member.kind}_{name}" if member.kind else name
                with self.subTest(interface=interface.name, member=called):
                    self.assertRegex(body, rf"->{called}\(")


if __name__ == "__main__":
    unittest.main()
