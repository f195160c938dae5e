"""Writes the Python import: a module of classes over pywin32's typed calls, and the stub that tells its types."""
import pathlib
import textwrap

from habits import DIRECTIONS, direction, is_changed

FOLDER = pathlib.Path(__file__).resolve().parent
WIDTH = 118
NUMBERS = {"long": "VT_I4", "short": "VT_I2", "MotoresBD": "VT_I4", "ParameterDirectionEnum": "VT_I4"}
VARIANTS = {"BSTR": "VT_BSTR", "VARIANT": "VT_VARIANT", "VARIANT_BOOL": "VT_BOOL", "Connection": "VT_DISPATCH",
            "Command": "VT_DISPATCH", None: "VT_VOID", **NUMBERS}
# How a parameter is declared.
GIVEN = {"BSTR": "str", "VARIANT": "Value", "VARIANT_BOOL": "bool", "long": "int", "short": "int",
         "MotoresBD": "MotoresBD | int", "Connection": "Any", "Command": "Any",
         "ParameterDirectionEnum": "ParameterDirectionEnum | int"}
# The type of a result, and what makes it of pywin32's; an engine is a plain number, since 0 is none of them.
RESULT = {"BSTR": ("str", "_text({})"), "VARIANT": ("Any", "_value({})"), "VARIANT_BOOL": ("bool", "bool({})"),
          None: ("None", "{}"), **{each: ("int", "int({})") for each in NUMBERS}}
KINDS = {"method": "_METHOD", "get": "_GET", "put": "_PUT"}
DEFAULTS = {"BSTR": '""', "VARIANT_BOOL": "False"}


def kept(text):
    """Text that is not to be broken."""
    return text.replace(" ", "\0")


def wrapped(line, indent, further="    "):
    return textwrap.fill(line, WIDTH, initial_indent=indent, subsequent_indent=indent + further, break_long_words=False,
                         break_on_hyphens=False).replace("\0", " ")


def enum(name, help_text, values):
    lines = [f"    {constant} = {value}" for constant, value in values.items()]
    return "\n".join([f"class {name}(IntEnum):", *([f'    """{help_text}."""\n'] if help_text else []), *lines])


def enums(library, stub):
    told = [(name, each.help, values) for name, (each, values) in library.enums.items()]
    told.append(("ParameterDirectionEnum", "ADO's directions of a parameter", DIRECTIONS))
    return ("\n\n" if stub else "\n\n\n").join(enum(name, "" if stub else text, values) for name, text, values in told)


def stated_default(parameter):
    """What the contract states, for the stub's readers; the call leaves the argument out."""
    if parameter.type == "VARIANT":
        return "..."
    if parameter.type == "ParameterDirectionEnum":
        return f"ParameterDirectionEnum.{direction(parameter)}"
    return DEFAULTS.get(parameter.type) or parameter.default


def declared(member, parameter, stub):
    text = f"{parameter.name}: {GIVEN[parameter.type]}"
    if not parameter.optional:
        return text
    return f"{text} = {stated_default(parameter) if stub or is_changed(member, parameter) else '_LEFT_OUT'}"


def changed_of(member, accessor):
    return [each for each in accessor.parameters if is_changed(member, each)]


def result_type(member, accessor):
    kinds = [RESULT[each][0] for each in [accessor.result, *(other.type for other in changed_of(member, accessor))]]
    return f"tuple[{', '.join(kinds)}]" if len(kinds) > 1 else kinds[0]


def shown_name(member, accessor):
    """A property with an index is a method, and so is writing it."""
    return f"Set{member.name}" if accessor.kind == "put" and len(accessor.parameters) > 1 else member.name


def heading(member, accessor, stub):
    """The lines in front of a body, of which the last is the signature."""
    plain = member.is_property and len(accessor.parameters) == (1 if accessor.kind == "put" else 0)
    mark = {"get": "@property", "put": f"@{member.name}.setter"}[accessor.kind] if plain else None
    given = ", ".join(["self", *(kept(declared(member, each, stub)) for each in accessor.parameters)])
    result = kept(f" -> {result_type(member, accessor)}:{' ...' if stub else ''}")
    return ([f"    {mark}"] if mark else []) + [wrapped(f"def {shown_name(member, accessor)}({given}){result}", "    ",
                                                        "        ")]


def described(member, parameter):
    return VARIANTS[parameter.type] + (kept(" | VT_BYREF") if is_changed(member, parameter) else "")


def call(member, accessor, holder):
    types = ", ".join(described(member, each) for each in accessor.parameters)
    types = f"({types}{',' if len(accessor.parameters) == 1 else ''})"
    arguments = [f"self.{holder}", f"0x{accessor.id:08X}", KINDS[accessor.kind], VARIANTS[accessor.result], types,
                 *(each.name for each in accessor.parameters)]
    return f"_invoke({', '.join(arguments)})"


def body(member, accessor, holder):
    yield f'        """{accessor.help}."""'
    changed = changed_of(member, accessor)
    if changed:
        yield wrapped(f"answer, changed = {call(member, accessor, holder)}", "        ")
        answers = [RESULT[accessor.result][1].format("answer"), RESULT[changed[0].type][1].format("changed")]
        yield f"        return {', '.join(answers)}"
        return
    answer = RESULT[accessor.result][1].format(call(member, accessor, holder))
    yield wrapped(f"return {answer}" if accessor.result else answer, "        ")


def reading_first(members):
    """A property's setter stands behind what reads it."""
    return [(each, accessor) for each in members
            for accessor in sorted(each.accessors, key=lambda accessor: accessor.kind == "put")]


def own_members(coclass, interface, base):
    return reading_first(each for each in interface.members.values()
                         if not (coclass.others and each.name.startswith(f"{base}_")))


def constructor(coclass, interface, base):
    """A query's own members and the contract's are called on different interfaces of the object."""
    if coclass.creatable:
        yield f'    _class_id_ = "{{{coclass.uuid}}}"'
    yield f'    _interface_id_ = "{{{interface.uuid}}}"'
    if coclass.name == base:
        yield from ("", "    def __init__(self, existing: Any) -> None:", "        super().__init__(existing)",
                    f'        self._contract_ = _as_interface(self, "{{{interface.uuid}}}")')
    elif coclass.others:
        yield from ("", "    def __init__(self, existing: Any = None) -> None:", "        super().__init__(existing)")
    elif coclass.source:
        yield from ("", "    def __init__(self, existing: Any = None) -> None:", "        super().__init__(existing)",
                    "        self._events = _Events()",
                    "        self._connection = SimpleConnection(self, self._events, _EVENTS_ID)")


def event_members(coclass, library, stub):
    """A handler is a property over what hears the events."""
    for member in library.interfaces[coclass.source].members.values() if coclass.source else ():
        name, kind = f"on_{member.name.lower()}", GIVEN[member.first.parameters[0].type]
        handler = f"Callable[[{kind}], object] | None"
        lines = [("    @property", f"    def {name}(self) -> {handler}:", f"return self._events.{name}"),
                 (f"    @{name}.setter", f"    def {name}(self, handler: {handler}) -> None:",
                  f"self._events.{name} = handler")]
        for at, (mark, line, does) in enumerate(lines):
            if stub:
                yield f"{mark}\n{line} ..."
            else:
                help_text = "" if at else f'        """{member.first.help}; it is called with that, or None."""\n'
                yield f"{mark}\n{line}\n{help_text}        {does}"


def class_text(coclass, library, base, stub):
    interface = library.interfaces[coclass.default]
    members = own_members(coclass, interface, base)
    holder = "_contract_" if coclass.name == base else "_oleobj_"
    events = event_members(coclass, library, stub)
    lines = [f"class {coclass.name}({base if coclass.others else '_Object'}):"]
    if stub:
        lines += ["    def __init__(self, existing: Any) -> None: ..."] if coclass.name == base else []
        lines += ["    def __init__(self, existing: Any = ...) -> None: ..."] if coclass.others or coclass.source else []
        lines += [line for each, accessor in members for line in heading(each, accessor, stub)]
        return "\n".join([*lines, *events])
    lines += [f'    """{coclass.help}."""', "", *constructor(coclass, interface, base)]
    for each, accessor in members:
        lines += ["", *heading(each, accessor, stub), *body(each, accessor, holder)]
    return "\n".join([*lines, *(f"\n{each}" for each in events)])


def filled(template, library, stub):
    base = next(each.name for each in library.classes.values() if not each.creatable)
    events = next(each for each in library.interfaces.values() if not each.dual)
    # The contract first: the queries' classes derive from its own.
    order = sorted(library.classes.values(), key=lambda each: each.creatable)
    places = {"LIBRARY_ID": library.uuid, "EVENTS_ID": events.uuid, "ENUMS": enums(library, stub),
              "CLASSES": ("\n\n" if stub else "\n\n\n").join(class_text(each, library, base, stub) for each in order),
              **{name.upper(): str(member.first.id) for name, member in events.members.items()}}
    text = (FOLDER / template).read_text(encoding="utf-8")
    for name, value in places.items():
        text = text.replace(f"@{name}@", value)
    return text


def module(library):
    return filled("QVRlib21.py.in", library, stub=False)


def stub(library):
    return filled("QVRlib21.pyi.in", library, stub=True)
