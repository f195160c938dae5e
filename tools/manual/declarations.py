"""Members as a programmer of the Visual Basic family declares them."""

TYPES = {
    "BSTR": "String",
    "long": "Long",
    "short": "Integer",
    "VARIANT_BOOL": "Boolean",
    "VARIANT": "Variant",
    "MotoresBD": "MotoresBD",
    "Connection": "ADODB.Connection",
    "Command": "ADODB.Command",
    "ParameterDirectionEnum": "ADODB.ParameterDirectionEnum",
}
WIDTH = 84


def type_name(idl_type):
    return TYPES[idl_type]


def default_text(parameter):
    """The value of an argument that is left out; None where the IDL names none."""
    if parameter.default is None:
        return None
    if parameter.type == "VARIANT_BOOL":
        return "False" if parameter.default == "0" else "True"
    return parameter.default


def declared(parameter):
    known = default_text(parameter)
    return (("Optional " if parameter.optional else "") + f"{parameter.name} As {type_name(parameter.type)}" +
            (f" = {known}" if known is not None else ""))


def wrapped(head, parameters, tail):
    """On one line if that is short enough, else continued as the language wants it."""
    line = head + "(" + ", ".join(parameters) + ")" + tail
    if len(line) <= WIDTH:
        return [line]
    lines, current = [], head + "("
    for i, each in enumerate(parameters):
        piece = each + (", " if i + 1 < len(parameters) else ")" + tail)
        if len(current) + len(piece) > WIDTH:
            lines.append(current + "_")
            current = "    "
        current += piece
    return lines + [current]


def declarations(member, event):
    """One for each accessor."""
    for each in sorted(member.accessors, key=lambda accessor: accessor.kind):
        word = {"get": "Property Get", "put": "Property Let"}.get(each.kind)
        if word is None:
            word = "Event" if event else "Function" if each.result else "Sub"
        tail = f" As {type_name(each.result)}" if each.result else ""
        yield from wrapped(f"{word} {member.name}", [declared(parameter) for parameter in each.parameters], tail)
