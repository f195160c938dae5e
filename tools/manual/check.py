"""Finds what is missing, left over or out of date between the IDL and the entries."""
from entries import CONTRACT, LANGUAGES, OF_MEMBER, PREFIX, documented, one_line, text


def languages_of(where, entry, key):
    for language in LANGUAGES:
        if key in entry and not text(entry, key, language):
            yield f"{where}: {key}.{language} is missing"


def help_of(where, entry, key, original):
    """The English text is the IDL's own; when that was changed, the translation beside it has to be renewed."""
    if not original:
        yield f"{where}: the IDL has no help string"
    elif key not in entry:
        yield f"{where}: {key}.en and {key}.es are missing; the IDL says \"{original}\""
    elif text(entry, key, "en") != one_line(original):
        yield (f"{where}: the help string has changed to \"{original}\"; renew the translation {key}.es and then "
               f"{key}.en")
    yield from languages_of(where, entry, key)


def arguments_of(where, member, entry, own, used):
    parameters = {each.name for accessor in member.accessors if accessor.kind != "put" or len(member.accessors) == 1
                  for each in accessor.parameters}
    for name in sorted(parameters):
        if name not in entry.get("arguments", {}):
            yield f"{where}: the parameter {name} is not described"
        else:
            used.add(name)
            yield from languages_of(f"{where}, parameter {name}", entry["arguments"], name)
    for name in own.get("arguments", {}):
        if name not in parameters:
            yield f"{where}: there is no parameter {name}"


def member_problems(where, member, entry, own, used):
    yield from help_of(where, entry, "help", member.first.help)
    puts = [each.help for each in member.accessors if each.kind == "put" and each.help != member.first.help]
    if puts:
        yield from help_of(where, entry, "put", puts[0])
    elif "put" in entry:
        yield f"{where}: put stands for a help string that the IDL has not"
    yield from arguments_of(where, member, entry, own, used)
    answers = member.first.result is not None
    if answers != ("result" in entry):
        yield f"{where}: result is {'missing' if answers else 'described, but there is none'}"
    if "failure" not in entry:
        yield f"{where}: failure is missing; say what it answers then"
    for key in ("result", "failure", "remarks"):
        yield from languages_of(where, entry, key)
    for key in own:
        if key not in OF_MEMBER:
            yield f"{where}: unknown key {key}"


def class_problems(name, members, entries):
    used = set()
    for member in members.values():
        entry, where = entries.member(name, member.name), f"{name}.{member.name}"
        if not entry:
            yield f"{where}: no entry in {name}.toml"
        else:
            own = entries.members(name).get(member.name, {})
            yield from member_problems(where, member, entry, own, used)
    for member in entries.members(name):
        if member not in members:
            yield f"{name}.{member}: an entry, but the IDL has no such member"
    for argument in entries.of_class(name).get("arguments", {}):
        if argument not in used:
            yield f"{name}: no parameter {argument}"


def enum_problems(name, enum, values, entries):
    yield from help_of(name, entries.of_class(name), "help", enum.help)
    for constant in values:
        entry = entries.members(name).get(constant, {})
        if "result" not in entry:
            yield f"{name}.{constant}: no entry in {name}.toml"
        yield from languages_of(f"{name}.{constant}", entry, "result")
    for constant in entries.members(name):
        if constant not in values:
            yield f"{name}.{constant}: an entry, but the IDL has no such constant"


def problems(library, entries):
    """Each as one sentence; none when all is well."""
    known = set(library.classes) | set(library.enums)
    for name in sorted(set(entries.classes) - known):
        yield f"{name}.toml: the IDL has no such class"
    for name, coclass, members in documented(library):
        yield from help_of(name, entries.of_class(name), "help", coclass.help)
        yield from languages_of(name, entries.of_class(name), "about")
        yield from class_problems(name, members, entries)
    for name, (enum, values) in library.enums.items():
        yield from enum_problems(name, enum, values, entries)
    for name, members in ((name, members) for name, _, members in documented(library) if name != CONTRACT):
        for member in members:
            if member.startswith(PREFIX) and not entries.members(CONTRACT).get(member.removeprefix(PREFIX)):
                yield f"{name}.{member}: {CONTRACT} has no entry {member.removeprefix(PREFIX)}"
