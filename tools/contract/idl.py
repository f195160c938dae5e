"""Reads the library's IDL: its identifiers, interfaces with their members, classes, the enumeration, the events."""
import re
from dataclasses import dataclass, field

TOKEN = re.compile(r'//[^\n]*|"(?:[^"\\]|\\.)*"|0[xX][0-9A-Fa-f]+|\w[\w.\-]*|[^\s\w]')


@dataclass
class Parameter:
    name: str
    type: str  # as in the IDL, without its pointer
    by_reference: bool
    optional: bool
    default: str | None


@dataclass
class Accessor:
    kind: str  # "method", "get", "put"
    id: int
    help: str
    parameters: list[Parameter]
    result: str | None


@dataclass
class Member:
    """A method, an event, or a property with its accessors in the order of their slots."""

    name: str
    accessors: list[Accessor] = field(default_factory=list)

    @property
    def first(self):
        return next((each for each in self.accessors if each.kind != "put"), self.accessors[0])

    @property
    def is_property(self):
        return self.first.kind != "method"


@dataclass
class Interface:
    """A dual interface behind IDispatch, the events, or what an enumeration is called."""

    name: str
    help: str
    uuid: str
    dual: bool = False
    members: dict[str, Member] = field(default_factory=dict)

    @property
    def slots(self):
        """Each member with one of its accessors, in the order of the slots behind IDispatch."""
        return [(member, accessor) for member in self.members.values() for accessor in member.accessors]


@dataclass
class Coclass:
    name: str
    help: str
    uuid: str
    creatable: bool
    default: str
    source: str | None
    others: list[str]


@dataclass
class Library:
    name: str
    help: str
    uuid: str
    version: str
    interfaces: dict[str, Interface] = field(default_factory=dict)
    classes: dict[str, Coclass] = field(default_factory=dict)
    enums: dict[str, tuple[Interface, dict[str, str]]] = field(default_factory=dict)


class Reader:
    """A walk over the tokens; each method reads what its name says and stands behind it."""

    def __init__(self, text):
        self.tokens = [token for token in TOKEN.findall(text) if not token.startswith("//")]
        self.at = 0

    def peek(self):
        return self.tokens[self.at] if self.at < len(self.tokens) else None

    def take(self, expected=None):
        token = self.peek()
        if token is None or (expected and token != expected):
            raise ValueError(f"IDL: {token!r} in the place of {expected!r}, behind {self.tokens[self.at - 5:self.at]}")
        self.at += 1
        return token

    def attributes(self):
        """[a, b(c)] as a dictionary; nothing where there is no bracket."""
        found = {}
        while self.peek() == "[":
            self.take("[")
            while self.peek() != "]":
                name, value = self.take(), True
                if self.peek() == "(":
                    self.take("(")
                    value = ""
                    while self.peek() != ")":
                        value += self.take()
                    self.take(")")
                found[name] = value
                if self.peek() == ",":
                    self.take(",")
            self.take("]")
        return found

    def skip_to(self, wanted):
        while self.take() != wanted:
            pass


def text_of(attributes):
    return attributes.get("helpstring", '""')[1:-1].replace('\\"', '"')


def read_parameter(reader):
    attributes = reader.attributes()
    kind = reader.take()
    by_reference = reader.peek() == "*"
    while reader.peek() == "*":
        reader.take("*")
    name = reader.take()
    parameter = Parameter(name, kind, by_reference, "optional" in attributes, attributes.get("defaultvalue"))
    return parameter, "retval" in attributes


def read_member(reader, attributes, interface):
    reader.take()  # HRESULT or void
    name = reader.take()
    parameters, result = [], None
    reader.take("(")
    while reader.peek() != ")":
        parameter, answers = read_parameter(reader)
        if answers:
            result = parameter.type
        else:
            parameters.append(parameter)
        if reader.peek() == ",":
            reader.take(",")
    reader.take(")")
    reader.take(";")
    kind = "get" if "propget" in attributes else "put" if "propput" in attributes else "method"
    accessor = Accessor(kind, int(attributes["id"], 0), text_of(attributes), parameters, result)
    interface.members.setdefault(name, Member(name)).accessors.append(accessor)


def read_interface(reader, attributes):
    interface = Interface(reader.take(), text_of(attributes), attributes["uuid"], "dual" in attributes)
    reader.skip_to("{")
    while reader.peek() != "}":
        if reader.peek() in ("properties", "methods"):
            reader.take()
            reader.take(":")
            continue
        read_member(reader, reader.attributes(), interface)
    reader.take("}")
    return interface


def read_class(reader, attributes):
    name, default, source, others = reader.take(), None, None, []
    reader.take("{")
    while reader.peek() != "}":
        marks = reader.attributes()
        reader.take()  # interface or dispinterface
        implemented = reader.take()
        reader.take(";")
        if "source" in marks:
            source = implemented
        elif "default" in marks:
            default = implemented
        else:
            others.append(implemented)
    reader.take("}")
    return Coclass(name, text_of(attributes), attributes["uuid"], "noncreatable" not in attributes, default, source, others)


def read_enum(reader, attributes):
    reader.take("enum")
    name, values = reader.take(), {}
    reader.take("{")
    while reader.peek() != "}":
        constant = reader.take()
        reader.take("=")
        values[constant] = reader.take()
        if reader.peek() == ",":
            reader.take(",")
    reader.skip_to(";")
    return Interface(name, text_of(attributes), attributes["uuid"]), values


def read_library(text):
    """Everything inside the IDL's library block."""
    reader = Reader(text[text.index("\n[\n"):])
    attributes = reader.attributes()
    reader.take("library")
    library = Library(reader.take(), text_of(attributes), attributes["uuid"], attributes["version"])
    reader.skip_to("{")
    while reader.peek() != "}":
        attributes, word = reader.attributes(), reader.take()
        if word in ("interface", "dispinterface"):
            interface = read_interface(reader, attributes)
            library.interfaces[interface.name] = interface
        elif word == "coclass":
            coclass = read_class(reader, attributes)
            library.classes[coclass.name] = coclass
        elif word == "typedef":
            enum = read_enum(reader, attributes)
            library.enums[enum[0].name] = enum
        else:
            reader.skip_to(";")
    return library
