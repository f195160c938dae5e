#!/usr/bin/env python3
"""Writes the manifest with which an application uses the library without registering it, from the library's IDL.
Usage: make_manifest.py IDL x86|amd64 MANIFEST"""
import re
import sys
from xml.sax.saxutils import quoteattr

# The system's own marshallers: for interfaces described by a type library, and for pure dispatch interfaces.
DUAL = "{00020424-0000-0000-C000-000000000046}"
DISPATCH = "{00020420-0000-0000-C000-000000000046}"

HEAD = """<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<!-- Made from {idl}; an application's manifest names this assembly as a dependency. -->
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="{name}.SxS" version="{version}.0.0" processorArchitecture="{architecture}"/>
  <file name="{name}.dll">
"""


def attributes(text):
    """uuid, words and texts of an attribute list."""
    found = dict(re.findall(r'(\w+)\(("[^"]*"|[^)]*)\)', text))
    return {name: value.strip('"') for name, value in found.items()} | {"all": re.sub(r'"[^"]*"', '""', text)}


def declarations(idl):
    """Each "[attributes] kind name" of the IDL, in order, without comments."""
    code = re.sub(r"//[^\n]*|/\*.*?\*/", "", idl, flags=re.S)
    pattern = r'\[((?:"[^"]*"|[^\[\]"])*)\]\s*(library|interface|dispinterface|coclass)\s+(\w+)\s*[:{]'
    return [(kind, name, attributes(listed)) for listed, kind, name in re.findall(pattern, code)]


def element(indent, tag, **values):
    return "  " * indent + f"<{tag} " + " ".join(f"{key}={quoteattr(value)}" for key, value in values.items()) + "/>\n"


def manifest(idl_name, idl, architecture):
    found = declarations(idl)
    _, library, of_library = next(each for each in found if each[0] == "library")
    types = "{" + of_library["uuid"].upper() + "}"
    text = HEAD.format(idl=idl_name, name=library, version=of_library["version"], architecture=architecture)
    for kind, name, of_class in found:
        if kind == "coclass" and "noncreatable" not in of_class["all"]:
            text += element(2, "comClass", clsid="{" + of_class["uuid"].upper() + "}", progid=f"{library}.{name}",
                            threadingModel="Apartment", tlbid=types, description=of_class["helpstring"])
    text += element(2, "typelib", tlbid=types, version=of_library["version"], helpdir="", resourceid="1")
    text += "  </file>\n"
    for kind, name, of_interface in found:
        if kind in ("interface", "dispinterface"):
            text += element(1, "comInterfaceExternalProxyStub", name=name,
                            iid="{" + of_interface["uuid"].upper() + "}", tlbid=types,
                            proxyStubClsid32=DUAL if kind == "interface" else DISPATCH)
    return text + "</assembly>\n"


def main():
    idl, architecture, out = sys.argv[1:]
    with open(idl, encoding="utf-8") as source:
        text = manifest(re.split(r"[\\/]", idl)[-1], source.read(), architecture)
    # Lines as Windows' own editors have them.
    with open(out, "w", encoding="utf-8", newline="\r\n") as target:
        target.write(text)


if __name__ == "__main__":
    main()
