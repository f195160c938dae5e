"""What the imports of all languages share of the library's habits, which the IDL does not tell."""

# ADO's constants of the one enumeration in the library's signatures.
DIRECTIONS = {"adParamUnknown": 0, "adParamInput": 1, "adParamOutput": 2, "adParamInputOutput": 3,
              "adParamReturnValue": 4}
# The only arguments by which the library answers: the values of a procedure's outputs, and the text that was shown.
CHANGED = {("EjecutarProcSQL7", "Parametros"), ("EjecutarComandos", "TextoMostrar")}


def is_changed(member, parameter):
    return (member.name, parameter.name) in CHANGED


def direction(parameter):
    """The constant that is the parameter's default."""
    return next(name for name, value in DIRECTIONS.items() if value == int(parameter.default))


def slot_name(member, accessor):
    return ("get_" if accessor.kind == "get" else "put_" if accessor.kind == "put" else "") + member.name
