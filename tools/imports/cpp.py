"""Writes the C++ import: the raw interfaces, and the bodies of the classes over them; clang-format breaks the lines."""
import pathlib
import subprocess

from habits import DIRECTIONS, direction, is_changed, slot_name

TEMPLATE = pathlib.Path(__file__).resolve().with_name("QVRlib21.hpp.in")

RAW = {"BSTR": "BSTR", "VARIANT": "VARIANT", "VARIANT_BOOL": "VARIANT_BOOL", "long": "long", "short": "short",
       "MotoresBD": "MotoresBD", "Connection": "IDispatch*", "Command": "IDispatch*",
       "ParameterDirectionEnum": "ParameterDirectionEnum"}
# A parameter's type, and how its address is had: of the parameter itself, or of a local made from it.
GIVEN = {"BSTR": "std::wstring_view", "VARIANT": "const Value&", "VARIANT_BOOL": "bool", "long": "long",
         "short": "short", "MotoresBD": "MotoresBD", "Connection": "IDispatch*", "Command": "IDispatch*",
         "ParameterDirectionEnum": "ParameterDirectionEnum"}
LOCAL = {"BSTR": "detail::Text {0}_({0});", "VARIANT": "Value {0}_({0});",
         "VARIANT_BOOL": "VARIANT_BOOL {0}_ = detail::truth({0});"}
ADDRESS = {"BSTR": "{0}_.address()", "VARIANT": "{0}_.address()", "VARIANT_BOOL": "&{0}_"}
# The type of a result, how it is declared, its address, and what is returned.
RESULT = {"BSTR": ("std::wstring", "detail::Text answer;", "answer.address()", "answer.copy()"),
          "VARIANT": ("Value", "Value answer;", "answer.address()", "answer"),
          "VARIANT_BOOL": ("bool", "VARIANT_BOOL answer = VARIANT_FALSE;", "&answer", "answer != VARIANT_FALSE"),
          "long": ("long", "long answer = 0;", "&answer", "answer"),
          "short": ("short", "short answer = 0;", "&answer", "answer"),
          "MotoresBD": ("MotoresBD", "MotoresBD answer{};", "&answer", "answer")}


def guid(text):
    first, second, third, fourth, last = text.split("-")
    rest = ", ".join("0x" + (fourth + last)[at:at + 2] for at in range(0, 16, 2))
    return f"{{0x{first}, 0x{second}, 0x{third}, {{{rest}}}}}"


def enum(name, help_text, values):
    lines = [f"  {constant} = {value}," for constant, value in values.items()]
    return "\n".join([f"// {help_text}.", f"enum {name} : std::int32_t {{", *lines, "};", ""])


def raw_interface(interface):
    lines = [f"// {interface.help}.", f"struct {interface.name} : IDispatch {{"]
    for member, accessor in interface.slots:
        parts = [f"{RAW[each.type]}{'*' if each.by_reference else ''} {each.name}" for each in accessor.parameters]
        if accessor.result:
            parts.append(f"{RAW[accessor.result]}* Resultado")
        lines.append(f"virtual HRESULT STDMETHODCALLTYPE {slot_name(member, accessor)}({', '.join(parts)}) = 0;")
    return "\n".join(lines + ["", " protected:", f"  ~{interface.name}() = default;", "};", ""])


def default_of(parameter):
    if not parameter.optional:
        return ""
    if parameter.type == "VARIANT":
        return " = Value::missing()"
    if parameter.type == "ParameterDirectionEnum":
        return f" = {direction(parameter)}"
    if parameter.type == "VARIANT_BOOL":
        return " = false"
    return f" = {parameter.default}" if parameter.default else " = {}"


def given(member, parameter):
    if is_changed(member, parameter):
        return f"Value& {parameter.name}" if parameter.type == "VARIANT" else f"std::wstring* {parameter.name} = nullptr"
    return f"{GIVEN[parameter.type]} {parameter.name}{default_of(parameter)}"


def argument(member, parameter):
    if is_changed(member, parameter) and parameter.type == "VARIANT":
        return f"{parameter.name}.address()"
    if not parameter.by_reference:
        return {"BSTR": "{0}_.get()", "VARIANT": "{0}.get()"}.get(parameter.type, "{0}").format(parameter.name)
    return ADDRESS.get(parameter.type, "&{0}").format(parameter.name)


def local(member, parameter):
    if is_changed(member, parameter):
        name = parameter.name
        return None if parameter.type == "VARIANT" else f"detail::Text {name}_({name} != nullptr ? *{name} : L\"\");"
    if parameter.type == "VARIANT" and not parameter.by_reference:
        return None
    return LOCAL.get(parameter.type, "").format(parameter.name) or None


def taken_back(member, parameter):
    if is_changed(member, parameter) and parameter.type == "BSTR":
        return f"if ({parameter.name} != nullptr) *{parameter.name} = {parameter.name}_.copy();"
    return None


def method(member, accessor, pointer, name):
    kind, declared, address, answer = RESULT.get(accessor.result, ("void", None, None, None))
    lines = [f"// {accessor.help}.",
             f"{kind} {name}({', '.join(given(member, each) for each in accessor.parameters)}) const {{"]
    lines += [each for each in [*(local(member, each) for each in accessor.parameters), declared] if each]
    arguments = [argument(member, each) for each in accessor.parameters] + ([address] if address else [])
    lines.append(f"detail::check({pointer}, {pointer}->{slot_name(member, accessor)}({', '.join(arguments)}));")
    lines += [each for each in (taken_back(member, each) for each in accessor.parameters) if each]
    return lines + ([f"return {answer};"] if answer else []) + ["}"]


def class_lines(coclass, interface, base=None):
    """A class over its own interface; a query adds what the contract has not."""
    members = [slot for slot in interface.slots if not (base and slot[0].name.startswith(f"{base}_"))]
    holder = "own_" if base else "object_"
    lines = [f"// {coclass.help}.", f"class {coclass.name}{f' : public {base}' if base else ''} {{", " public:",
             f"  using Interface = raw::{interface.name};"]
    if coclass.creatable:
        lines.append(f"  static constexpr GUID kClassId = kClassId_{coclass.name};")
    head = f"  explicit {coclass.name}(detail::Reference<Interface> object)"
    if base:
        lines.append(f"{head}\n      : {base}(object.as<{base}::Interface>(kInterfaceId<{base}::Interface>)), "
                     f"own_(std::move(object)) {{}}")
    else:
        lines.append(f"{head} : object_(std::move(object)) {{}}")
    lines += ["", f"  const detail::Reference<Interface>& reference() const {{ return {holder}; }}", ""]
    for member, accessor in members:
        lines += method(member, accessor, holder, member.name)
    return "\n".join(lines + ["", " private:", f"  detail::Reference<Interface> {holder};", "};", ""])


def classes(library):
    contract = "iSQL20"
    order = sorted(library.classes.values(), key=lambda each: each.name != contract)
    return "\n".join(class_lines(each, library.interfaces[each.default], contract if each.others else None)
                     for each in order)


def source(library):
    dual = [each for each in library.interfaces.values() if each.dual]
    events = next(each for each in library.interfaces.values() if not each.dual)
    major, minor = library.version.split(".")
    places = {
        "ENUMS": "\n".join([*(enum(name, each.help, values) for name, (each, values) in library.enums.items()),
                            enum("ParameterDirectionEnum", "ADO's directions of a parameter", DIRECTIONS)]),
        "INTERFACES": "\n".join(raw_interface(each) for each in dual),
        "LIBRARY_ID": guid(library.uuid), "MAJOR": major, "MINOR": minor, "EVENTS_ID": guid(events.uuid),
        "INTERFACE_IDS": "\n".join(f"template <>\ninline constexpr GUID kInterfaceId<raw::{each.name}> = {{\n    "
                                   f"{guid(each.uuid)[1:]};" for each in dual),
        "CLASS_IDS": "\n".join(f"inline constexpr GUID kClassId_{each.name} = {{\n    {guid(each.uuid)[1:]};"
                               for each in library.classes.values() if each.creatable),
        "CLASSES": classes(library),
        **{name.upper(): str(member.first.id) for name, member in events.members.items()},
    }
    text = TEMPLATE.read_text(encoding="utf-8")
    for name, value in places.items():
        text = text.replace(f"@{name}@", value)
    return subprocess.run(["clang-format", f"--assume-filename={TEMPLATE.with_suffix('')}"], input=text, text=True,
                          check=True, capture_output=True).stdout
