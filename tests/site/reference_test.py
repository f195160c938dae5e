"""What the check of the reference finds; each row spoils a small library or its entries in one way."""
import copy
import pathlib
import sys
import unittest

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"
sys.path[:0] = [str(TOOLS / "manual"), str(TOOLS / "contract")]

from check import problems  # noqa: E402
from declarations import declarations  # noqa: E402
from entries import Entries  # noqa: E402
from idl import read_library  # noqa: E402

IDL = """
[
  uuid(0), version(1.0), helpstring("A library")
]
library L
{
  importlib("x.tlb");
  [uuid(1), helpstring("Kinds")] typedef enum Kinds { One = 1, Two = 2 } Kinds;
  [object, uuid(4), helpstring("An interface")]
  interface _C : IDispatch
  {
    // a comment; [with brackets]
    [id(0x60030000), helpstring("Adds, (really) [so]; yes")]
    HRESULT Add([in, out] BSTR* Text, [in, out, optional, defaultvalue(0)] VARIANT_BOOL* Twice, [out, retval] long* R);
    [propget, id(0x68030001), helpstring("Mark")] HRESULT Mark([out, retval] BSTR* R);
    [propput, id(0x68030001), helpstring("Sets it")] HRESULT Mark([in] BSTR V);
  }
  [uuid(2), helpstring("Events")] dispinterface __C
  {
    properties:
    methods:
      [id(1), helpstring("Told")] void Told([in, out] BSTR* Text);
  }
  [uuid(3), helpstring("A class")] coclass C
  {
    [default] interface _C;
    [default, source] dispinterface __C;
  }
}
"""


def both(text):
    return {"en": text, "es": text + " (es)"}


ENTRIES = {
    "C": {
        "help": both("A class"),
        "about": both("About"),
        "arguments": {"Text": both("a text")},
        "Add": {"help": both("Adds, (really) [so]; yes"), "arguments": {"Twice": both("twice")},
                "result": both("how many"), "failure": both("0")},
        "Mark": {"help": both("Mark"), "put": both("Sets it"), "result": both("it"), "failure": both("empty")},
        "Told": {"help": both("Told"), "failure": both("none")},
    },
    "Kinds": {"help": both("Kinds"), "One": {"result": both("first")}, "Two": {"result": both("second")}},
}


def spoiled(path, value):
    """The entries with the value at the path; None takes away what is there."""
    classes = copy.deepcopy(ENTRIES)
    *way, last = path.split("/")
    place = classes
    for each in way:
        place = place[each]
    if value is None:
        del place[last]
    else:
        place[last] = value
    return classes


def found(classes, idl=IDL):
    entries = Entries("/nonexistent")
    entries.classes = classes
    return list(problems(read_library(idl), entries))


ENTRY_ROWS = {
    "a member without an entry": ("C/Add", None, "C.Add: no entry in C.toml"),
    "an entry without a member": ("C/Gone", {}, "C.Gone: an entry, but the IDL has no such member"),
    "a parameter that is not described": ("C/Add/arguments", {}, "C.Add: the parameter Twice is not described"),
    "an argument without a parameter": ("C/Mark/arguments", {"X": both("x")}, "C.Mark: there is no parameter X"),
    "a shared argument without a parameter": ("C/arguments/Y", both("y"), "C: no parameter Y"),
    "a changed help string": ("C/Told/help/en", "Said", "C.Told: the help string has changed to \"Told\"; renew the "
                              "translation help.es and then help.en"),
    "a changed help string for writing": ("C/Mark/put/en", "Puts it", "C.Mark: the help string has changed to "
                                          "\"Sets it\"; renew the translation put.es and then put.en"),
    "a help string that is not translated": ("C/Add/help/es", None, "C.Add: help.es is missing"),
    "a result that is not translated": ("C/Add/result/es", " ", "C.Add: result.es is missing"),
    "a result that is not told": ("C/Add/result", None, "C.Add: result is missing"),
    "a result where there is none": ("C/Told/result", both("x"), "C.Told: result is described, but there is none"),
    "a failure that is not told": ("C/Mark/failure", None, "C.Mark: failure is missing; say what it answers then"),
    "a misspelt key": ("C/Add/failur", both("x"), "C.Add: unknown key failur"),
    "a file without a class": ("D", {}, "D.toml: the IDL has no such class"),
    "a constant without an entry": ("Kinds/Two", None, "Kinds.Two: no entry in Kinds.toml"),
    "an entry without a constant": ("Kinds/Three", {}, "Kinds.Three: an entry, but the IDL has no such constant"),
}

IDL_ROWS = {
    "a member without a help string": (', helpstring("Told")', "", "C.Told: the IDL has no help string"),
}


class ReferenceCheck(unittest.TestCase):
    def test_finds_nothing_where_all_is_well(self):
        self.assertEqual(found(ENTRIES), [])

    def test_writes_declarations_of_every_kind(self):
        library = read_library(IDL)
        members = library.interfaces["_C"].members
        self.assertEqual(list(declarations(members["Add"], False)),
                         ["Function Add(Text As String, Optional Twice As Boolean = False) As Long"])
        self.assertEqual(list(declarations(members["Mark"], False)),
                         ["Property Get Mark() As String", "Property Let Mark(V As String)"])
        self.assertEqual(list(declarations(library.interfaces["__C"].members["Told"], True)),
                         ["Event Told(Text As String)"])


def add_rows():
    for name, (path, value, expected) in ENTRY_ROWS.items():
        def test(self, path=path, value=value, expected=expected):
            self.assertEqual(found(spoiled(path, value)), [expected])
        setattr(ReferenceCheck, "test_finds_" + name.replace(" ", "_"), test)
    for name, (old, new, expected) in IDL_ROWS.items():
        def test(self, old=old, new=new, expected=expected):
            self.assertIn(old, IDL)
            self.assertIn(expected, found(ENTRIES, IDL.replace(old, new)))
        setattr(ReferenceCheck, "test_finds_" + name.replace(" ", "_"), test)


add_rows()

if __name__ == "__main__":
    unittest.main()
