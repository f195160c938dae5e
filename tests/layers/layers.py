"""Which includes of the sources point up or sideways, or to the system where it must not be seen."""
import pathlib
import re

# Each folder of src/ with the folders that its files may include, besides its own.
PLATFORM = {"base"}
SERVICES = PLATFORM | {"platform"}
SESSION = SERVICES | {"services"}
DIALECT = SESSION | {"session"}
SUBJECT = DIALECT | {"dialect"}
ABOVE = SUBJECT | {"query", "connection", "script", "properties"}
MAY_SEE = {
    "src/base": set(),
    "src/platform": PLATFORM,
    "src/services": SERVICES,
    "src/session": SESSION,
    "src/dialect": DIALECT,
    "src/query": SUBJECT,
    "src/connection": SUBJECT,
    "src/script": DIALECT,
    "src/properties": DIALECT,
    "src/com": ABOVE,
    "programs/odbc": SESSION,
    "programs/qvrscript": ABOVE | {"com", "odbc"},
}
# Headers of one system. In the core only the folder of that system's platform may include them.
SYSTEM = re.compile(r"(windows|windowsx|winsock2|ole2|objbase|oleauto|oaidl|ocidl|olectl|unknwn|winnls|winreg|wincrypt|"
                    r"bcrypt|shlobj|shellapi|initguid|unistd|dlfcn|dirent|fcntl|langinfo|locale|pthread|"
                    r"sys/.*|openssl/.*)\.h$", re.I)
ONE_SYSTEM = ("src/platform/windows/", "src/platform/posix/", "src/com/", "programs/")
# The generated headers of the library's own IDL.
GENERATED = {"QVRlib21.h", "adodb25.h"}


def includes(path):
    """Line number, opening mark and name of each include."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        found = re.match(r'\s*#\s*include(?:_next)?\s*([<"])([^>"]*)[>"]', line)
        if found:
            yield number, *found.groups()


def folder_of(name):
    """The folder of a source that has a row in the table, such as src/base."""
    return "/".join(name.split("/")[:2])


def target_of(root, name, included):
    """The folder, without src/ or programs/, that a quoted include leads to; None where there is no such file."""
    places = (root / "src" / included, root / "programs" / included, (root / name).parent / included)
    for place in places:
        if place.is_file():
            return folder_of(place.resolve().relative_to(root).as_posix()).partition("/")[2]
    return None


def problem(root, name, mark, included):
    """Why this include must not be; None when it may."""
    if SYSTEM.match(included) and not name.startswith(ONE_SYSTEM):
        return "the core sees no header of one system outside of its platform folder"
    if mark == "<":
        return None
    if included in GENERATED:
        return None if name.startswith(("src/com/", "programs/qvrscript/windows/")) else "only automation sees this"
    if included == "session/version.h":
        target = "session"
    else:
        target = target_of(root, name, included)
    if target is None:
        return "there is no such file"
    folder = folder_of(name)
    seen = MAY_SEE[folder] | {folder.partition("/")[2]}
    return None if target in seen else f"{folder} may see {', '.join(sorted(seen))}"


def problems(root):
    """A line for each include that must not be, and for each folder that has no place in the order; then the number of
    includes that were read."""
    root = pathlib.Path(root).resolve()
    told, read = [], 0
    for path in sorted(path for top in ("src", "programs") for path in (root / top).rglob("*")
                       if path.suffix in (".cpp", ".h", ".in", ".rc") and path.is_file()):
        name = path.relative_to(root).as_posix()
        if folder_of(name) not in MAY_SEE:
            told.append(f"{name}: {folder_of(name)} has no place in the order of folders")
            continue
        for number, mark, included in includes(path):
            read += 1
            why = problem(root, name, mark, included)
            if why:
                told.append(f"{name}:{number}: includes {included}; {why}")
    return told, read
