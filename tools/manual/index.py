"""The reference's first page in one language, and the tables of help contexts."""
from entries import documented, text
from render import sentence
from words import WORDS


def member_rows(library, entries, language):
    """Each name once, with every class that has it."""
    where, what = {}, {}
    for class_name, _, members in documented(library):
        for member in members:
            where.setdefault(member, []).append(f"[`{class_name}`]({class_name}.md#{member.lower()})")
            what.setdefault(member, text(entries.member(class_name, member), "help", language))
    for member in sorted(where, key=str.lower):
        yield f"| `{member}` | {', '.join(where[member])} | {what[member]} |"


def index_page(library, entries, language):
    words = WORDS[language]
    parts = [f"# {words['reference']}", words["intro"], words["by reference"], f"## {words['classes']}"]
    rows = []
    for name, _, members in documented(library):
        listed = ", ".join(f"[`{member}`]({name}.md#{member.lower()})" for member in members)
        rows.append(f"- [`{name}`]({name}.md): {sentence(text(entries.of_class(name), 'help', language))} {listed}")
    for name in library.enums:
        rows.append(f"- [`{name}`]({name}.md): {sentence(text(entries.of_class(name), 'help', language))}")
    parts += ["\n".join(rows), f"## {words['all']}",
              f"| {words['member']} | {words['class']} | {words['help']} |\n|---|---|---|\n" +
              "\n".join(member_rows(library, entries, language)), words["by number"]]
    return "\n\n".join(parts) + "\n"


def contexts(library):
    """Number, page, name of the member or None, in the order of the numbers."""
    rows = []
    for name, coclass, members in documented(library):
        rows.append((coclass.context, name, None))
        if coclass.source:
            rows.append((library.interfaces[coclass.source].context, name, None))
        rows += [(each.context, name, each.name) for each in members.values()]
    rows += [(enum.context, name, None) for name, (enum, _) in library.enums.items()]
    return sorted(rows)


def contexts_page(library, language):
    words = WORDS[language]
    rows = [f"| 0 | [{words['library']}](README.md) |"]
    for number, page, member in contexts(library):
        target = f"{page}.md#{member.lower()}" if member else f"{page}.md"
        rows.append(f"| {number} | [`{page + '.' + member if member else page}`]({target}) |")
    return "\n\n".join([f"# {words['contexts']}", words["contexts intro"],
                        f"| {words['number']} | {words['page']} |\n|---|---|\n" + "\n".join(rows)]) + "\n"


def contexts_ini(library):
    """For hosts: the page of each number, to be put behind the folder of a language."""
    lines = ["[contexts]", "0=reference/index.html"]
    lines += [f"{number}=reference/{page}.html#help-{number}" for number, page, _ in contexts(library)]
    return "\n".join(lines) + "\n"
