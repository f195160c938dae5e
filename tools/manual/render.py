"""One class's page of the reference in one language, as Markdown."""
from declarations import declarations, default_text, type_name
from entries import CONTRACT, PREFIX, is_event, text
from words import WORDS


def sentence(words):
    """With a capital and a full stop, as help strings and short texts have none."""
    ends = words if words.endswith((".", ":")) else words + "."
    return ends[0].upper() + ends[1:]


def cell(words):
    return words.replace("|", "\\|")


def argument_rows(member, entry, language):
    words = WORDS[language]
    for each in member.first.parameters:
        notes = ""
        if each.optional:
            known = default_text(each)
            notes = " (" + (words["default"].format(f"`{known}`") if known else words["optional"]) + ")"
        meaning = text(entry["arguments"], each.name, language)
        yield f"| `{each.name}` | `{type_name(each.type)}` | {cell(meaning)}{notes} |"


def arguments(member, entry, language):
    words, rows = WORDS[language], list(argument_rows(member, entry, language))
    if rows:
        yield f"| {words['argument']} | {words['type']} | {words['meaning']} |\n|---|---|---|\n" + "\n".join(rows)


def engine_table(rows, language):
    words = WORDS[language]
    if rows:
        yield words["engines"]
        table = "\n".join(rows).replace("| (empty) ", f"| {words['empty']} ")
        yield f"| {words['call']} | Jet | SQL Server | Oracle |\n|---|---|---|---|\n{table}"


class ClassPage:
    def __init__(self, library, entries, examples, guides, language):
        self.library, self.entries, self.examples, self.guides = library, entries, examples, guides
        self.language, self.words = language, WORDS[language]

    def labelled(self, key, entry, name):
        if name in entry:
            yield f"**{self.words[key]}:** {sentence(text(entry, name, self.language))}"

    def member(self, class_name, coclass, member):
        entry, event = self.entries.member(class_name, member.name), is_event(self.library, coclass, member.name)
        yield f"## {member.name}"
        yield sentence(text(entry, "help", self.language))
        if event:
            yield self.words["event"].format(class_name)
        yield "```vb\n" + "\n".join(declarations(member, event)) + "\n```"
        yield from arguments(member, entry, self.language)
        yield from self.labelled("result", entry, "result")
        yield from self.labelled("writing", entry, "put")
        yield from self.labelled("failure", entry, "failure")
        if "remarks" in entry:
            yield sentence(text(entry, "remarks", self.language))
        own_name = member.name
        if class_name != CONTRACT and member.name.startswith(PREFIX):
            own_name = member.name.removeprefix(PREFIX)
            yield self.words["late"].format(own_name, f"{CONTRACT}.md#{own_name.lower()}")
        else:
            if "example" in entry:
                yield "```vb\n" + entry["example"].strip() + "\n```"
            yield from engine_table(self.examples.get(own_name, []) if self.own_examples(class_name) else [],
                                    self.language)
        yield f"{self.words['guide']}: {self.guides.link(entry['guide'])}."
        yield self.words["id"].format(f"0x{member.first.id:08X}" if member.first.id > 9 else member.first.id)

    @staticmethod
    def own_examples(class_name):
        """The manual's tables call members of these two; `MotorBD` or `Crear` of another class is another member."""
        return class_name in ("QVRcfp", CONTRACT)

    def page(self, class_name, coclass, members):
        head = self.entries.of_class(class_name)
        parts = [f"# {class_name}", sentence(text(head, "help", self.language)), text(head, "about", self.language),
                 f"{self.words['guide']}: {self.guides.link(head['guide'])}."]
        for member in members.values():
            parts += self.member(class_name, coclass, member)
        return "\n\n".join(parts) + "\n"

    def enum_page(self, name, enum, values):
        head, words = self.entries.of_class(name), self.words
        rows = "\n".join(
            f"| `{constant}` | {value} | {text(self.entries.members(name)[constant], 'result', self.language)} |"
            for constant, value in values.items())
        parts = [f"# {name}", sentence(text(head, "help", self.language)), text(head, "about", self.language),
                 f"| {words['constant']} | {words['value']} | {words['meaning']} |\n|---|---|---|\n{rows}"]
        return "\n\n".join(parts) + "\n"
