#!/usr/bin/env python3
"""Writes C# declarations of an IDL file's contract as Windows' tlbimp gives them to a compiler: good for compiling an
early-bound program where no tlbimp is, not for running it. Usage: interop_source.py IDL"""
import re
import sys

TYPES = {"BSTR": "string", "VARIANT": "object", "VARIANT_BOOL": "bool", "long": "int", "short": "short",
         "MotoresBD": "MotoresBD", "Connection": "object", "Command": "object", "ParameterDirectionEnum": "int"}
MEMBER = re.compile(r"\[([^]]*?)helpstring\(\"[^\"]*\"\)\]\s*(?:HRESULT|void)\s+(\w+)\(([^;]*)\);")
PARAMETER = re.compile(r"\[([^]]*)\]\s*(\w+)\s*(\**)\s*(\w+)")
COCLASS = re.compile(r"\[(uuid\(([\w-]+)\)(?:\"[^\"]*\"|[^]\"])*)\]\s*coclass (\w+)\s*{(.*?)\n  }", re.S)


def without_comments(text):
    return re.sub(r"//.*", "", text)


def parameters_of(text):
    """The parameters as C# has them, and the type of the result."""
    given, result = [], "void"
    for attributes, kind, stars, name in PARAMETER.findall(text):
        if "retval" in attributes:
            result = TYPES[kind]
        else:
            optional = "[Optional] " if "optional" in attributes else ""
            given.append(f"{optional}{'ref ' if stars else ''}{TYPES[kind]} {name}")
    return given, result


def member_lines(body):
    """One line for each member; the accessors of a property without arguments are one line."""
    properties = {}
    for attributes, name, text in MEMBER.findall(body):
        given, result = parameters_of(text)
        accessor = "get" if "propget" in attributes else "set" if "propput" in attributes else None
        if accessor == "get" and not given or accessor == "set" and len(given) == 1:
            kind = result if accessor == "get" else given[0].rsplit(" ", 1)[0]
            properties.setdefault((name, kind), []).append(accessor)
        else:
            yield f"        {result} {accessor + '_' if accessor else ''}{name}({', '.join(given)});"
    for (name, kind), accessors in properties.items():
        yield f"        {kind} {name} {{ {' '.join(each + ';' for each in accessors)} }}"


def interface_lines(idl):
    for uuid, name, body in re.findall(r"uuid\(([\w-]+)\), dual[^{]*?interface (\w+) : IDispatch\s*{(.*?)\n  }", idl, re.S):
        yield f'    [ComImport, Guid("{uuid}"), InterfaceType(ComInterfaceType.InterfaceIsDual)]'
        yield f"    public interface {name}\n    {{"
        yield from member_lines(body)
        yield "    }"


def event_lines(idl):
    for name, body in re.findall(r"dispinterface (\w+)\s*{(.*?)\n  }", idl, re.S):
        members = [(member, ", ".join(parameters_of(text)[0])) for _, member, text in MEMBER.findall(body)]
        for member, given in members:
            yield f"    public delegate void {name}_{member}EventHandler({given});"
        yield f"    public interface {name}_Event\n    {{"
        for member, _ in members:
            yield f"        event {name}_{member}EventHandler {member};"
        yield "    }"


def coclass_lines(idl):
    for head, uuid, name, body in COCLASS.findall(idl):
        default = re.search(r"\[default\] interface (\w+)", body)[1]
        source = re.search(r"source\] dispinterface (\w+)", body)
        bases = default + (f", {source[1]}_Event" if source else "")
        if "noncreatable" in head:
            continue
        yield f'    [ComImport, Guid("{uuid}")] public class {name}Class {{ }}'
        of_interface = re.search(r"uuid\(([\w-]+)\), dual[^{]*?interface " + default + " :", idl)[1]
        yield f'    [ComImport, Guid("{of_interface}"), CoClass(typeof({name}Class))] public interface {name} : {bases} {{ }}'


def main(path):
    with open(path, encoding="utf-8") as file:
        idl = without_comments(file.read())
    print("using System.Runtime.InteropServices;\n\nnamespace QVRlib21\n{")
    values = re.search(r"typedef enum MotoresBD {(.*?)}", idl, re.S)[1]
    print(f"    public enum MotoresBD {{{' '.join(values.split())}}}")
    for lines in (interface_lines(idl), event_lines(idl), coclass_lines(idl)):
        print("\n".join(lines))
    print("}")


main(sys.argv[1])
