#!/usr/bin/env python3
"""The Python import beside the type library: what each member passes on to pywin32, which a stand-in records; names,
arguments and help texts of module and stub; identifiers, enumerations, events."""
import ast
import datetime
import importlib.util
import inspect
import pathlib
import sys
import types
import unittest

from approved import of_kind

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools/contract"))

from idl import read_library  # noqa: E402

MODULE, STUB = ROOT / "imports/python/QVRlib21.py", ROOT / "imports/python/QVRlib21.pyi"
EMPTY = object()
VARIANTS = {"BSTR": 8, "VARIANT": 12, "VARIANT_BOOL": 11, "long": 3, "short": 2, "MotoresBD": 3, "Connection": 9,
            "Command": 9, "ParameterDirectionEnum": 3}
BY_REFERENCE, VOID = 0x4000, 24
SAMPLES = {"BSTR": "text", "VARIANT": ["a", 1], "VARIANT_BOOL": True, "long": 7, "short": 8, "MotoresBD": 2,
           "Connection": object(), "Command": object(), "ParameterDirectionEnum": 3}
ANSWERS = {8: "answer", 12: 1.5, 11: True, 3: 9, 2: 6, VOID: None}
CHANGED = {("EjecutarProcSQL7", "Parametros"): ("c", "d"), ("EjecutarComandos", "TextoMostrar"): "shown"}
KINDS = {"": 1, "get": 2, "put": 4}


class Pointer:
    """An object as pywin32 has it: records what is called through which interface."""

    def __init__(self, calls, interface=None):
        self.calls, self.interface, self.answers = calls, interface, ANSWERS

    def QueryInterface(self, interface, kind):
        assert kind == "IDispatch"
        return Pointer(self.calls, interface)

    def InvokeTypes(self, *call):
        self.calls.append((self.interface, *call))
        _, _, _, (result, _), described, *arguments = call
        back = [self.changed(given) for given, (_, flags) in zip(arguments, described) if flags & 2]
        return (self.answers[result], *back) if back else self.answers[result]

    @staticmethod
    def changed(given):
        return "shown" if isinstance(given, str) else ("c", "d")


def stand_in(name, **members):
    module = types.ModuleType(name)
    vars(module).update(members)
    return module


def load(calls, connections):
    """The module over a pywin32 that is played."""
    def create(class_id, outer, context, interface):
        assert (outer, context, interface) == (None, 1, "IDispatch")
        calls.append(("create", class_id))
        return Pointer(calls)

    numbers = {f"VT_{name}": number for name, number in (("BOOL", 11), ("BSTR", 8), ("BYREF", BY_REFERENCE), ("I2", 2),
                                                         ("DISPATCH", 9), ("I4", 3), ("VARIANT", 12), ("VOID", VOID))}
    played = [stand_in("pythoncom", Empty=EMPTY, IID_IDispatch="IDispatch", CLSCTX_INPROC_SERVER=1,
                       CoCreateInstance=create, **numbers),
              *(stand_in(name) for name in ("win32com", "win32com.client", "win32com.server")),
              stand_in("win32com.client.connect", SimpleConnection=lambda *given: connections.append(given)),
              stand_in("win32com.server.util", wrap=lambda sink: ("wrapped", sink))]
    sys.modules.update({each.__name__: each for each in played})
    spec = importlib.util.spec_from_file_location("QVRlib21", MODULE)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def guid(part):
    return f"{{{part.guid}}}"


def given_to(member):
    """The parameters without the result; the type library does not keep the name of a property's new value."""
    return [each for each in member.parameters if "retval" not in each.flags]


def result_of(member):
    return next((VARIANTS[each.type] for each in member.parameters if "retval" in each.flags), VOID)


def shown_name(member):
    return f"Set{member.name}" if member.kind == "put" and len(given_to(member)) > 1 else member.name


def is_plain(member):
    """Whether Python sees a property."""
    return bool(member.kind) and len(given_to(member)) == (member.kind == "put")


def members_of_classes():
    """Each member with the class that has it and the interface that it is called on."""
    classes = {interface.name: interface.name.lstrip("_") for interface in of_kind("dual interface")}
    for interface in of_kind("dual interface"):
        for member in interface.members:
            if not member.name.startswith("iSQL20_"):
                yield classes[interface.name], interface, member


def by_member(found, name, kind):
    """The function behind a member's name, in a module's class."""
    if not isinstance(found, property):
        return found
    return found.fget if kind == "get" else found.fset


def described(member, parameter):
    changed = (member.name, parameter.name) in CHANGED
    return (VARIANTS[parameter.type] | (BY_REFERENCE if changed else 0), 3 if changed else 1)


def functions(path):
    """The functions of module or stub by class, name, and whether they write a property."""
    for each in ast.parse(path.read_text(encoding="utf-8")).body:
        for function in each.body if isinstance(each, ast.ClassDef) and each.name != "_Events" else ():
            if isinstance(function, ast.FunctionDef):
                writes = any(ast.unparse(mark).endswith(".setter") for mark in function.decorator_list)
                yield (each.name, function.name, writes), function


def stub_defaults(function):
    """The arguments behind self by name, with what they are when left out."""
    names = [each.arg for each in function.args.args]
    defaults = [ast.unparse(each) for each in function.args.defaults]
    return list(zip(names, [None] * (len(names) - len(defaults)) + defaults))[1:]


class PythonImport(unittest.TestCase):
    def setUp(self):
        self.calls, self.connections = [], []
        self.module = load(self.calls, self.connections)

    def object_of(self, name):
        kind = getattr(self.module, name)
        made = kind(Pointer(self.calls)) if name == "iSQL20" else kind()
        self.calls.clear()
        return made

    def call(self, target, member, arguments):
        """As a program does, with a property's assignment."""
        if is_plain(member) and member.kind == "put":
            setattr(target, member.name, *arguments)
            return None
        found = getattr(target, shown_name(member))
        return found if is_plain(member) else found(*arguments)

    def check_call(self, name, interface, member, parameters):
        """Those that are given arrive, and the others are said to be left out."""
        arguments = [SAMPLES[each.type] for each in parameters]
        left = given_to(member)[len(arguments):]
        answer = self.call(self.object_of(name), member, arguments)
        passed = arguments + ["" if (member.name, each.name) in CHANGED else EMPTY for each in left]
        types_told = tuple(described(member, each) for each in given_to(member))
        self.assertEqual(self.calls, [(guid(interface), member.id, 0, KINDS[member.kind], (result_of(member), 0),
                                       types_told, *passed)])
        changed = [CHANGED[member.name, each.name] for each in given_to(member) if (member.name, each.name) in CHANGED]
        expected = ANSWERS[result_of(member)]
        self.assertEqual(answer, (expected, *changed) if changed else expected)

    def test_every_member_passes_on_what_the_type_library_says(self):
        for name, interface, member in members_of_classes():
            with self.subTest(f"{name}.{member.kind} {member.name}"):
                self.check_call(name, interface, member, given_to(member))

    def test_what_is_left_out_is_missing(self):
        seen = 0
        for name, interface, member in members_of_classes():
            required = [each for each in given_to(member) if "optional" not in each.flags]
            if len(required) < len(given_to(member)):
                seen += 1
                with self.subTest(f"{name}.{member.name}"):
                    self.check_call(name, interface, member, required)
        self.assertGreaterEqual(seen, 8)

    def test_queries_have_the_contract_under_its_own_names(self):
        contract = next(each for each in of_kind("dual interface") if each.name == "_iSQL20")
        for name in ("cSQL20", "uSQL20"):
            self.assertTrue(issubclass(getattr(self.module, name), self.module.iSQL20))
            for member in contract.members:
                with self.subTest(f"{name}.{member.kind} {member.name}"):
                    self.check_call(name, contract, member, given_to(member))

    def test_names_of_the_arguments(self):
        for name, _, member in members_of_classes():
            function = by_member(vars(getattr(self.module, name))[shown_name(member)], member.name, member.kind)
            found = [(each.name, each.default is not inspect.Parameter.empty)
                     for each in list(inspect.signature(function).parameters.values())[1:]]
            wanted = [(each.name, "optional" in each.flags) for each in given_to(member)]
            if member.kind == "put":
                wanted[-1] = ("Valor", False)
            self.assertEqual(found, wanted, f"{name}.{member.name}")

    def test_no_other_members(self):
        told = {(name, shown_name(member)) for name, _, member in members_of_classes()}
        told |= {("QVRScr", f"on_{event.name.lower()}") for event in of_kind("dispinterface")[0].members}
        for name in {name for name, _ in told}:
            found = {each for each in vars(getattr(self.module, name)) if not each.startswith("_")}
            self.assertEqual(found, {member for owner, member in told if owner == name}, name)

    def test_help_texts(self):
        library = read_library((ROOT / "src/com/QVRlib21.idl").read_text(encoding="utf-8"))
        for each in library.classes.values():
            self.assertEqual(getattr(self.module, each.name).__doc__, f"{each.help}.")
        for name, interface, member in members_of_classes():
            accessors = library.interfaces[interface.name].members[member.name].accessors
            wanted = next(each.help for each in accessors if each.kind == (member.kind or "method"))
            found = by_member(vars(getattr(self.module, name))[shown_name(member)], member.name, member.kind)
            self.assertEqual(found.__doc__, f"{wanted}.", f"{name}.{member.name}")

    def test_identifiers(self):
        self.assertEqual(self.module.LIBRARY_ID, guid(of_kind("library")[0]))
        for each in of_kind("coclass"):
            if "creatable" in each.rest:
                self.calls.clear()
                getattr(self.module, each.name)()
                self.assertEqual(self.calls, [("create", guid(each))])

    def test_enumerations(self):
        for each in of_kind("enum"):
            found = {constant.name: str(constant.value) for constant in getattr(self.module, each.name)}
            self.assertEqual(found, each.values)
        self.assertEqual(self.module.ParameterDirectionEnum.adParamInputOutput, 3)

    def test_events(self):
        events = of_kind("dispinterface")[0]
        script = self.module.QVRScr()
        (source, sink, interface), = self.connections
        self.assertIs(source, script)
        self.assertEqual(interface, guid(events))
        self.assertEqual(sink._dispid_to_func_, {each.id: each.name for each in events.members})
        self.assertEqual(sink._query_interface_(guid(events)), ("wrapped", sink))
        self.assertIsNone(sink._query_interface_("{00000000-0000-0000-C000-000000000046}"))
        self.assertFalse([each for each in vars(sink).values() if each is script])
        heard = []
        for event, sent in zip(events.members, ("step 1", True)):
            self.assertIsNone(getattr(sink, event.name)(sent))
            setattr(script, f"on_{event.name.lower()}", lambda told: heard.append(told) or ("answer", "changed"))
            self.assertIsNone(getattr(sink, event.name)(sent))
        self.assertEqual(heard, ["step 1", True])

    def test_values(self):
        aware = datetime.datetime(2024, 3, 1, 8, tzinfo=datetime.timezone.utc)
        properties = self.object_of("QVRprp")
        properties._oleobj_.answers = {**ANSWERS, 12: aware, 8: None}
        self.assertEqual(properties.Item(0), datetime.datetime(2024, 3, 1, 8))
        self.assertEqual(properties.NombrePropiedad(0), "")
        properties._oleobj_.answers = {12: (aware, None)}
        self.assertEqual(properties.Item(0), (datetime.datetime(2024, 3, 1, 8), None))

    def test_stub_has_what_the_module_has(self):
        stubs, found = dict(functions(STUB)), dict(functions(MODULE))
        self.assertEqual(set(stubs), set(found))
        for key, function in stubs.items():
            for one, other in zip(function.args.args, found[key].args.args, strict=True):
                self.assertEqual(ast.unparse(one), ast.unparse(other), key)
            self.assertEqual(ast.unparse(function.returns), ast.unparse(found[key].returns), key)
            self.assertEqual([ast.unparse(each) for each in function.decorator_list],
                             [ast.unparse(each) for each in found[key].decorator_list], key)
            self.assertEqual(len(function.args.defaults), len(found[key].args.defaults), key)

    def test_stub_states_the_defaults_of_the_type_library(self):
        stubs = dict(functions(STUB))
        plain = {"BSTR": "''", "VARIANT": "...", "VARIANT_BOOL": "False"}
        for name, _, member in members_of_classes():
            if member.kind == "put":
                continue
            wanted = [(each.name, None if "optional" not in each.flags
                       else "ParameterDirectionEnum.adParamInput" if each.type == "ParameterDirectionEnum"
                       else plain.get(each.type) or each.default) for each in given_to(member)]
            self.assertEqual(stub_defaults(stubs[name, member.name, False]), wanted, f"{name}.{member.name}")

    def test_stub_has_the_enumerations(self):
        text = STUB.read_text(encoding="utf-8")
        for each in [*self.module.MotoresBD, *self.module.ParameterDirectionEnum]:
            self.assertIn(f"\n    {each.name} = {each.value}\n", text)


if __name__ == "__main__":
    unittest.main()
