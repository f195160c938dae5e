"""Writes the unit for Delphi and Free Pascal: interfaces, dispinterfaces, and classes that take constants."""
import pathlib
import textwrap

from habits import is_changed

TEMPLATE = pathlib.Path(__file__).resolve().with_name("QVRlib21_TLB.pas.in")
TYPES = {"BSTR": "WideString", "VARIANT": "OleVariant", "VARIANT_BOOL": "WordBool", "long": "Integer",
         "short": "SmallInt", "MotoresBD": "MotoresBD", "Connection": "IDispatch", "Command": "IDispatch",
         "ParameterDirectionEnum": "TOleEnum"}
# Dispinterfaces have enumerations as the numbers that they are: Free Pascal converts no variant to a TOleEnum.
DISPATCHED = {**TYPES, "MotoresBD": "Integer", "ParameterDirectionEnum": "Integer"}
# What the classes show instead.
SHOWN = {**TYPES, "VARIANT_BOOL": "Boolean"}
DEFAULTS = {"WideString": "''", "Boolean": "False"}
# Reserved words of the language among the contract's names.
RESERVED = {"type", "property", "file"}
WIDTH = 118


def name_of(text):
    return f"&{text}" if text.lower() in RESERVED else text


def wrapped(line, indent):
    return textwrap.fill(line, WIDTH, initial_indent=indent, subsequent_indent=indent + "  ", break_long_words=False,
                         break_on_hyphens=False)


def signature(name, parameters, result, tail=""):
    """A heading without its end: function or procedure, parameters, result."""
    kind = "function" if result else "procedure"
    given = f"({'; '.join(parameters)})" if parameters else ""
    return f"{kind} {name}{given}{f': {result}' if result else ''};{tail}"


def raw_parameters(accessor, types=TYPES):
    return [f"{'var ' if each.by_reference else ''}{name_of(each.name)}: {types[each.type]}"
            for each in accessor.parameters]


def accessor_name(member, accessor):
    return ("Get_" if accessor.kind == "get" else "Set_" if accessor.kind == "put" else "") + member.name


def index_of(member):
    """The parameters in front of a property's value."""
    return member.first.parameters if member.first.kind == "get" else []


def property_type(member, types=TYPES):
    accessor = member.first
    return types[accessor.result if accessor.kind == "get" else accessor.parameters[-1].type]


def raw_property(member):
    kinds = {accessor.kind: accessor_name(member, accessor) for accessor in member.accessors}
    read = f" read {kinds['get']}" if "get" in kinds else ""
    write = f" write {kinds['put']}" if "put" in kinds else ""
    return f"property {name_of(member.name)}: {property_type(member)}{read}{write};"


def interface_lines(interface):
    yield f"  {{ {interface.help} }}"
    yield f"  {interface.name} = interface(IDispatch)\n    ['{{{interface.uuid}}}']"
    for member, accessor in interface.slots:
        result = TYPES.get(accessor.result)
        yield f"    {{ {accessor.help} }}"
        yield wrapped(signature(accessor_name(member, accessor), raw_parameters(accessor), result, " safecall;"), "    ")
    # A property whose index goes by reference is read and written by its accessors.
    yield from (f"    {raw_property(each)}" for each in interface.members.values()
                if each.is_property and not index_of(each))
    yield "  end;\n"


def dispatched(member):
    """The members of a dispinterface: a property without an index is one, its accessors have the same number."""
    if member.is_property and not index_of(member):
        kinds = {accessor.kind for accessor in member.accessors}
        only = {frozenset({"get"}): " readonly", frozenset({"put"}): " writeonly"}.get(frozenset(kinds), "")
        yield f"property {name_of(member.name)}: {property_type(member, DISPATCHED)}{only} dispid {member.first.id};"
        return
    for accessor in member.accessors:
        if accessor.kind != "put":
            yield signature(name_of(member.name), raw_parameters(accessor, DISPATCHED),
                            DISPATCHED.get(accessor.result), f" dispid {accessor.id};")


def dispinterface_lines(interface, name):
    yield f"  {{ {interface.help} }}"
    yield f"  {name} = dispinterface\n    ['{{{interface.uuid}}}']"
    for member in interface.members.values():
        yield from (wrapped(each, "    ") for each in dispatched(member))
    yield "  end;\n"


def default_of(parameter):
    kind = SHOWN[parameter.type]
    if not parameter.optional or kind == "OleVariant":
        return ""
    return f" = {DEFAULTS.get(kind) or parameter.default or '0'}"


def shown_parameters(member, accessor):
    """With the defaults of those behind which none has to be given; EmptyParam stands for a value that is left out."""
    changed = [is_changed(member, each) for each in accessor.parameters]
    shown = []
    for at, each in enumerate(accessor.parameters):
        later = [default_of(other) and not changed[at + more + 1]
                 for more, other in enumerate(accessor.parameters[at + 1:])]
        default = default_of(each) if all(later) and not changed[at] else ""
        how = "var" if changed[at] else "const"
        shown.append(f"{how} {name_of(each.name)}: {SHOWN[each.type]}{default}")
    return shown


def class_accessor(member, accessor):
    return ("Get" if accessor.kind == "get" else "Set" if accessor.kind == "put" else "") + member.name


def class_property(member):
    names = {accessor.kind: class_accessor(member, accessor) for accessor in member.accessors}
    index = "; ".join(f"const {name_of(each.name)}: {SHOWN[each.type]}" for each in index_of(member))
    kind = {"WordBool": "Boolean"}.get(property_type(member), property_type(member))
    read = f" read {names['get']}" if "get" in names else ""
    write = f" write {names['put']}" if "put" in names else ""
    default = " default;" if index and member.first.id == 0 else ""
    return (f"    {{ {member.first.help} }}\n    property {name_of(member.name)}{f'[{index}]' if index else ''}: {kind}"
            f"{read}{write};{default}")


def own_members(coclass, interface):
    prefix = "iSQL20_" if coclass.others else "\0"
    return [member for member in interface.members.values() if not member.name.startswith(prefix)]


def heading(member, accessor, owner=""):
    result = SHOWN.get(accessor.result)
    parameters = shown_parameters(member, accessor)
    if owner:
        parameters = [each.split(" = ")[0] for each in parameters]
    name = class_accessor(member, accessor)
    return signature(f"{owner}{name_of(name) if accessor.kind == 'method' else name}", parameters, result)


def class_lines(coclass, interface):
    base = "TiSQL20" if coclass.others else "TObject"
    members = own_members(coclass, interface)
    holder = "FOwn" if coclass.others else "FObject"
    yield f"  {{ {coclass.help} }}"
    yield f"  T{coclass.name} = class({base})"
    yield f"  {'protected' if not coclass.creatable else 'private'}\n    {holder}: {interface.name};"
    if coclass.source:
        yield "    FSink: IUnknown;\n    FCookie: {$ifdef FPC}LongWord{$else}LongInt{$endif};"
        yield "    FOnProgreso: TQVRScrProgreso;\n    FOnTerminado: TQVRScrTerminado;"
    for member in members:
        if member.is_property:
            yield from (wrapped(heading(member, each), "    ") for each in member.accessors)
    yield "  public"
    if coclass.creatable:
        yield "    constructor Create;"
    if coclass.source:
        yield "    destructor Destroy; override;"
    for member in members:
        if not member.is_property:
            yield f"    {{ {member.first.help} }}"
            yield wrapped(heading(member, member.first), "    ")
    yield from (class_property(member) for member in members if member.is_property)
    if coclass.source:
        yield "    property OnProgreso: TQVRScrProgreso read FOnProgreso write FOnProgreso;"
        yield "    property OnTerminado: TQVRScrTerminado read FOnTerminado write FOnTerminado;"
    yield f"    {{ The object itself }}\n    property {'Own' if coclass.others else 'Intf'}: {interface.name} read {holder};"
    yield "  end;\n"


def body(coclass, holder, member, accessor):
    """Each argument that goes by reference gets a variable of its own."""
    variables, before, after, arguments = [], [], [], []
    for each in accessor.parameters:
        name, kind = name_of(each.name), TYPES[each.type]
        if is_changed(member, each) or not each.by_reference:
            arguments.append(name)
            continue
        own = f"{each.name}_"
        variables.append(f"  {own}: {kind};")
        before.append(f"  {own} := {name};")
        arguments.append(own)
    call = f"{holder}.{accessor_name(member, accessor)}{f'({chr(44).join(arguments)})' if arguments else ''}"
    call = call.replace(",", ", ")
    lines = [wrapped(heading(member, accessor, f"T{coclass.name}."), "")]
    lines += ["var", *variables] if variables else []
    lines += ["begin", *before, wrapped(f"{'Result := ' if accessor.result else ''}{call};", "  "), *after, "end;", ""]
    return "\n".join(lines)


def class_bodies(coclass, interface):
    holder = "FOwn" if coclass.others else "FObject"
    if coclass.creatable and not coclass.source:
        lines = [f"constructor T{coclass.name}.Create;", "begin", "  inherited Create;",
                 f"  {holder} := Co{coclass.name}.Create;"]
        lines += ["  FObject := FOwn as _iSQL20;"] if coclass.others else []
        yield "\n".join(lines + ["end;", ""])
    for member in own_members(coclass, interface):
        yield from (body(coclass, holder, member, each) for each in member.accessors)


def identifiers(library):
    yield f"  LIBID_{library.name}: TGUID = '{{{library.uuid}}}';"
    for each in library.interfaces.values():
        yield f"  {'IID' if each.dual else 'DIID'}_{each.name}: TGUID = '{{{each.uuid}}}';"
    for each in library.classes.values():
        yield f"  CLASS_{each.name}: TGUID = '{{{each.uuid}}}';"


def constants(library):
    for enum, values in library.enums.values():
        yield f"{{ {enum.help} }}\ntype\n  {enum.name} = TOleEnum;\nconst"
        yield from (f"  {name} = {value};" for name, value in values.items())


def creator(coclass):
    return (f"  Co{coclass.name} = class\n    class function Create: {coclass.default};\n"
            f"    class function CreateRemote(const MachineName: WideString): {coclass.default};\n  end;\n")


def creator_body(coclass):
    lines = []
    for heading_of, made in (("Create", f"CreateComObject(CLASS_{coclass.name})"),
                             ("CreateRemote(const MachineName: WideString)",
                              f"CreateRemoteComObject(MachineName, CLASS_{coclass.name})")):
        lines += [f"class function Co{coclass.name}.{heading_of}: {coclass.default};", "begin",
                  f"  Result := {made} as {coclass.default};", "end;", ""]
    return "\n".join(lines)


def source(library):
    dual = [each for each in library.interfaces.values() if each.dual]
    events = next(each for each in library.interfaces.values() if not each.dual)
    creatable = [each for each in library.classes.values() if each.creatable]
    # The contract first: the queries' classes derive from its own.
    classes = sorted(library.classes.values(), key=lambda each: each.creatable)
    major, minor = library.version.split(".")
    runner = next(each for each in creatable if each.source)
    places = {
        "MAJOR": major, "MINOR": minor, "RUNNER": runner.name, "EVENTS": f"DIID_{events.name}",
        "IDENTIFIERS": "\n".join(identifiers(library)), "CONSTANTS": "\n".join(constants(library)),
        "FORWARDS": "\n".join([*(f"  {each.name} = interface;" for each in dual), "",
                               *(f"  {each.name} = {each.default};" for each in library.classes.values())]),
        "INTERFACES": "\n".join(line for each in dual for line in interface_lines(each)),
        "DISPINTERFACES": "\n".join(line for each in library.interfaces.values()
                                    for line in dispinterface_lines(each, f"{each.name}{'Disp' if each.dual else ''}")),
        "CREATORS": "\n".join(creator(each) for each in creatable),
        "CREATOR_BODIES": "\n".join(creator_body(each) for each in creatable),
        "CLASSES": "\n".join(line for each in classes
                             for line in class_lines(each, library.interfaces[each.default])),
        "CLASS_BODIES": "\n".join(line for each in classes
                                  for line in class_bodies(each, library.interfaces[each.default])),
        **{name.upper(): str(member.first.id) for name, member in events.members.items()},
    }
    text = TEMPLATE.read_text(encoding="utf-8")
    for name, value in places.items():
        text = text.replace(f"@{name}@", value)
    return text
