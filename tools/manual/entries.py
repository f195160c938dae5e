"""What the reference says beyond the IDL: one TOML file for each class, every text in both languages."""
import pathlib
import tomllib

LANGUAGES = ("en", "es")
OF_CLASS = ("help", "about", "guide", "arguments")
OF_MEMBER = ("help", "put", "arguments", "result", "failure", "remarks", "guide", "example")
CONTRACT, PREFIX = "iSQL20", "iSQL20_"


def one_line(text):
    return " ".join(text.split())


class Entries:
    """The files of a folder, by class."""

    def __init__(self, folder):
        self.classes = {}
        for path in sorted(pathlib.Path(folder).glob("*.toml")):
            with open(path, "rb") as file:
                self.classes[path.stem] = tomllib.load(file)

    def of_class(self, name):
        return {key: value for key, value in self.classes.get(name, {}).items() if key in OF_CLASS}

    def members(self, name):
        return {key: value for key, value in self.classes.get(name, {}).items() if key not in OF_CLASS}

    def member(self, class_name, member):
        """A member's entry with the class's arguments and guide; one of the contract has the rest from there."""
        own = self.members(class_name).get(member, {})
        if class_name != CONTRACT and member.startswith(PREFIX):
            own = self.member(CONTRACT, member.removeprefix(PREFIX)) | own
        elif not own:
            return {}
        shared = self.of_class(class_name)
        merged = {"guide": shared.get("guide", "")} | own
        merged["arguments"] = shared.get("arguments", {}) | own.get("arguments", {})
        return merged


def text(entry, key, language):
    return one_line(entry.get(key, {}).get(language, ""))


def documented(library):
    """Each class with its members, events at the end; the enumerations' constants are none."""
    for name, coclass in library.classes.items():
        members = dict(library.interfaces[coclass.default].members)
        if coclass.source:
            members |= library.interfaces[coclass.source].members
        yield name, coclass, members


def is_event(library, coclass, member):
    return bool(coclass.source) and member in library.interfaces[coclass.source].members
