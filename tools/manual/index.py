"""The reference's first page in one language."""
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
              "\n".join(member_rows(library, entries, language))]
    return "\n\n".join(parts) + "\n"
