"""Writes the C# import: the raw interfaces, and the classes over them, which take arguments by value; and the
manifests of programs that use the library without registration."""
import pathlib
import textwrap
from xml.sax.saxutils import escape

from habits import DIRECTIONS, direction, is_changed, slot_name

TEMPLATE = pathlib.Path(__file__).resolve().with_name("QVRlib21.cs.in")
TYPES = {"BSTR": "string", "VARIANT": "object", "VARIANT_BOOL": "bool", "long": "int", "short": "short",
         "MotoresBD": "MotoresBD", "Connection": "object", "Command": "object",
         "ParameterDirectionEnum": "ParameterDirectionEnum"}
# How the runtime passes what C# has no type of its own for.
MARSHALLED = {"BSTR": "BStr", "VARIANT": "Struct", "VARIANT_BOOL": "VariantBool", "Connection": "IDispatch",
              "Command": "IDispatch"}
WIDTH = 120
# Stands for a space at which no line is broken.
TIED = "\N{NO-BREAK SPACE}"


def wrapped(line, indent):
    return textwrap.fill(line, WIDTH, initial_indent=indent, subsequent_indent=indent + "    ", break_long_words=False,
                         break_on_hyphens=False).replace(TIED, " ")


def listed(parameters):
    """Broken between parameters only."""
    return ", ".join(each.replace(" ", TIED) for each in parameters)


def summary(help_text, indent):
    """One line, that editors show as it is."""
    return f"{indent}/// <summary>{escape(help_text)}.</summary>"


def constant_of(parameter):
    """The default as C# writes it; None where nothing stands for what is left out."""
    if not parameter.optional or parameter.type == "VARIANT":
        return None
    if parameter.type == "ParameterDirectionEnum":
        return f"ParameterDirectionEnum.{direction(parameter)}"
    return {"BSTR": '""', "VARIANT_BOOL": "false"}.get(parameter.type, parameter.default)


def raw_parameter(parameter):
    marks = ["In", "Out"] if parameter.by_reference else ["In"]
    if parameter.optional:
        marks.append("Optional")
    if parameter.type in MARSHALLED:
        marks.append(f"MarshalAs(UnmanagedType.{MARSHALLED[parameter.type]})")
    constant = constant_of(parameter)
    if constant:
        marks.append(f"DefaultParameterValue({'(short)' if parameter.type == 'short' else ''}{constant})")
    return f"[{', '.join(marks)}] {'ref ' if parameter.by_reference else ''}{TYPES[parameter.type]} {parameter.name}"


def raw_member(member, accessor):
    yield summary(accessor.help, " " * 8)
    yield f"        [DispId({accessor.id if accessor.id < 0x10000 else f'0x{accessor.id:08X}'})]"
    if accessor.result in MARSHALLED:
        yield f"        [return: MarshalAs(UnmanagedType.{MARSHALLED[accessor.result]})]"
    given = listed(raw_parameter(each) for each in accessor.parameters)
    yield wrapped(f"{TYPES.get(accessor.result, 'void')}{TIED}{slot_name(member, accessor)}({given});", " " * 8)


def interface_lines(interface):
    yield summary(interface.help, "    ")
    kind = "InterfaceIsDual" if interface.dual else "InterfaceIsIDispatch"
    yield f'    [ComImport, Guid("{interface.uuid}"), InterfaceType(ComInterfaceType.{kind})]'
    yield f"    public interface {interface.name}\n    {{"
    for member, accessor in interface.slots:
        yield from raw_member(member, accessor)
    yield "    }\n"


def enum_lines(name, help_text, values):
    yield f"{summary(help_text, '    ')}\n    public enum {name}\n    {{"
    for constant, value in values.items():
        yield f"        /// <summary>{constant}.</summary>\n        {constant} = {value},"
    yield "    }\n"


def is_engine(parameter):
    """A number that is one of the enumeration, which callers have."""
    return parameter.name == "MotorBD" and parameter.type == "long"


def shown_type(parameter, changed):
    if changed and parameter.type == "VARIANT":
        return "object[]"
    return "MotoresBD" if is_engine(parameter) else TYPES[parameter.type]


def shown_parameter(member, parameter, answering):
    """Left out, an optional value is Type.Missing, which compilers give for an object that has no default."""
    changed = is_changed(member, parameter)
    kind = f"{shown_type(parameter, changed)} {parameter.name}"
    if changed and answering:
        return f"ref {kind}"
    if parameter.optional and parameter.type == "VARIANT":
        return f"[Optional] {kind}"
    constant = constant_of(parameter)
    return f"{kind} = {constant}" if constant else kind


def call(holder, member, accessor, answering):
    """The statements of a call, with variables for those arguments that are of another type than the interface's."""
    before, after, arguments = [], [], []
    for each in accessor.parameters:
        name = each.name
        if is_engine(each):
            name = f"{each.name}_"
            before.append(f"int {name} = (int){each.name};")
        elif is_changed(member, each) and each.type == "VARIANT":
            name = f"{each.name}_"
            before.append(f"object {name} = {each.name};")
            after += [f"{each.name} = (object[]){name};"] if answering else []
        arguments.append(f"{'ref ' if each.by_reference else ''}{name}")
    made = f"{holder}.{slot_name(member, accessor)}({listed(arguments)});"
    if not accessor.result:
        return [*before, made, *after]
    if not after:
        return [*before, f"return {made}"]
    return [*before, f"{TYPES[accessor.result]} answer = {made}", *after, "return answer;"]


def method(holder, member, accessor, answering=False):
    given = listed(shown_parameter(member, each, answering) for each in accessor.parameters)
    yield summary(accessor.help, " " * 8)
    yield wrapped(f"public {TYPES.get(accessor.result, 'void')} {member.name}({given})", " " * 8)
    yield "        {"
    yield from (wrapped(each, " " * 12) for each in call(holder, member, accessor, answering))
    yield "        }\n"


def methods(holder, member):
    """A member that answers by an argument is there twice: with the answer, and without."""
    yield from method(holder, member, member.first)
    if any(is_changed(member, each) for each in member.first.parameters):
        yield from method(holder, member, member.first, answering=True)


def property_lines(holder, member):
    """An index makes the default property the indexer, and any other one a method."""
    reader = member.first
    index = reader.parameters if reader.kind == "get" else []
    if index and reader.id != 0:
        yield from method(holder, member, reader)
        return
    given = ", ".join(f"{TYPES[each.type]} {each.name}" for each in index)
    references = "".join(f"ref {each.name}, " for each in index)
    yield summary(reader.help, " " * 8)
    yield f"        public {TYPES[reader.result]} {f'this[{given}]' if index else member.name}\n        {{"
    for accessor in sorted(member.accessors, key=lambda each: each.kind):
        name = slot_name(member, accessor)
        if accessor.kind == "get":
            yield f"            get {{ return {holder}.{name}({references[:-2]}); }}"
        else:
            yield f"            set {{ {holder}.{name}({references}value); }}"
    yield "        }\n"


def constructors(coclass, interface, base):
    """Of a class, of an object that is there; and that object."""
    if coclass.creatable:
        yield from ("        /// <summary>Makes an object.</summary>",
                    f'        public {coclass.name}() : this(Activation.Of<Raw.{interface.name}>("{coclass.uuid}"))',
                    "        {\n        }\n")
    holder, shown = ("own", "Own") if coclass.creatable else ("contract", "Contract")
    inherits = f" : base((Raw.{base.name}){holder})" if base else ""
    refused = [] if base else [f'            if ({holder} == null) throw new ArgumentNullException("{holder}");']
    yield from ("        /// <summary>Takes an object that is there.</summary>",
                f"        public {coclass.name}(Raw.{interface.name} {holder}){inherits}", "        {",
                *refused, f"            this.{holder} = {holder};", "        }\n",
                "        /// <summary>The object itself.</summary>",
                f"        public Raw.{interface.name} {shown}", "        {",
                f"            get {{ return {holder}; }}", "        }\n")


def class_lines(coclass, library):
    """A class over its own interface; a query adds what the contract has not."""
    interface = library.interfaces[coclass.default]
    base = library.interfaces[coclass.others[0]] if coclass.others else None
    prefix = f"{base.name.lstrip('_')}_" if base else "\0"
    holder = "own" if coclass.creatable else "contract"
    yield summary(coclass.help, "    ")
    yield (f"    public {'partial ' if coclass.source else ''}class {coclass.name}"
           f"{f' : {base.name.lstrip(chr(95))}' if base else ''}\n    {{")
    yield f"        readonly Raw.{interface.name} {holder};\n"
    yield from constructors(coclass, interface, base)
    for member in interface.members.values():
        if not member.name.startswith(prefix):
            yield from (property_lines if member.is_property else methods)(holder, member)
    yield "    }\n"


def source(library):
    events = next(each for each in library.interfaces.values() if not each.dual)
    # The contract first: the queries' classes derive from its own.
    classes = sorted(library.classes.values(), key=lambda each: each.creatable)
    enums = [*((name, each.help, values) for name, (each, values) in library.enums.items()),
             ("ParameterDirectionEnum", "ADO's directions of a parameter", DIRECTIONS)]
    places = {
        "ENUMS": "\n".join(line for each in enums for line in enum_lines(*each)),
        "CLASSES": "\n".join(line for each in classes for line in class_lines(each, library)),
        "INTERFACES": "\n".join(line for each in library.interfaces.values() for line in interface_lines(each)),
        "RUNNER": next(each.name for each in classes if each.source), "EVENTS": events.name,
        **{name.upper(): escape(member.first.help) for name, member in events.members.items()},
    }
    text = TEMPLATE.read_text(encoding="utf-8")
    for name, value in places.items():
        text = text.replace(f"@{name}@", value)
    # No empty line in front of a brace that closes.
    return text.replace("\n\n    }", "\n    }").replace("\n\n}", "\n}")


def manifest(library, architecture):
    """What a C# compiler embeds where a project has no manifest, and the library's own as a dependency."""
    return f"""<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<!-- Made by tools/imports/write.py: for programs without a manifest of their own. -->
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="MyApplication.app" version="1.0.0.0"/>
  <dependency>
    <dependentAssembly>
      <assemblyIdentity type="win32" name="{library.name}.SxS" version="{library.version}.0.0" \
processorArchitecture="{architecture}"/>
    </dependentAssembly>
  </dependency>
  <trustInfo xmlns="urn:schemas-microsoft-com:asm.v2">
    <security>
      <requestedPrivileges xmlns="urn:schemas-microsoft-com:asm.v3">
        <requestedExecutionLevel level="asInvoker" uiAccess="false"/>
      </requestedPrivileges>
    </security>
  </trustInfo>
</assembly>
"""
