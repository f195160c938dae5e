"""Reads the approved text of the type library, which the library's own file gives: what every import has to say."""
import pathlib
import re
from dataclasses import dataclass, field

PATH = pathlib.Path(__file__).resolve().parents[1] / "automation/QVRlib21.approved.txt"
HEAD = re.compile(r"(library|enum|dual interface|dispinterface|coclass) (\w+) \{([\w-]+)\}(.*)")
MEMBER = re.compile(r"  (0x\w+) slot (\d+) (?:(get|put) )?(\w+)\((.*)\) (\w+)")
PARAMETER = re.compile(r"\[([\w,]*)\] (\w+)(\**)(?: (\w+))?(?: = (-?\d+))?")


@dataclass
class Parameter:
    flags: set
    type: str
    stars: str
    name: str
    default: str


@dataclass
class Member:
    id: int
    slot: int
    kind: str  # "", "get", "put"
    name: str
    parameters: list


@dataclass
class Part:
    """An interface, a class, the enumeration or the library itself."""

    kind: str
    name: str
    guid: str
    rest: str
    members: list = field(default_factory=list)
    values: dict = field(default_factory=dict)


def read_member(match):
    identifier, slot, kind, name, parameters, _ = match.groups()
    given = [Parameter(set(flags.split(",")), kind_of, stars, called, default)
             for flags, kind_of, stars, called, default in PARAMETER.findall(parameters)]
    return Member(int(identifier, 16), int(slot), kind or "", name, given)


def read_approved():
    parts = []
    for line in PATH.read_text(encoding="utf-8").splitlines():
        head, member = HEAD.match(line), MEMBER.match(line)
        value = re.match(r"  (\w+) = (\d+)", line)
        if head:
            parts.append(Part(*head.groups()))
        elif member:
            parts[-1].members.append(read_member(member))
        elif value:
            parts[-1].values[value[1]] = value[2]
    return parts


def of_kind(kind):
    found = [part for part in read_approved() if part.kind == kind]
    if not found:
        raise ValueError(f"{PATH} has no {kind}")
    return found
