# SPDX-License-Identifier: MIT
"""What the public headers declare. Every list of functions, records and constants outside the
headers is written or checked from what read() returns.

    import interface
    almara = interface.read("almara/almara_types.h", "almara/almara.h")
    almara.functions["native_add"].parameters[0].type

The headers are plain C99 in a narrow form: a documentation comment stands before what it describes,
or after it on the same line as /**< */; "/* ---- Title ---- */" begins a section. A declaration in
a form that is not known raises ValueError instead of going unnoticed.
"""
import re
from dataclasses import dataclass, field
from pathlib import Path

INCLUDE = Path(__file__).resolve().parents[2] / "include"
ENGINE_HEADERS = ("almara/almara_types.h", "almara/almara.h", "almara/almanac.h",
                  "almara/almara_names.h")
PLUGIN_HEADERS = ("almara/almara_plugin.h",)


@dataclass(frozen=True)
class Variable:
    """A parameter of a function or a field of a record. `length` is that of an array, else ""."""
    type: str
    name: str
    length: str = ""
    comment: str = ""


@dataclass(frozen=True)
class Function:
    name: str
    result: str
    parameters: tuple
    comment: str
    section: str
    header: str

    @property
    def prototype(self):
        """On one line, without the mark of an export and without the semicolon."""
        parameters = ", ".join(f"{each.type} {each.name}{each.length}" for each in self.parameters)
        return f"{self.result} {self.name}({parameters or 'void'})"


@dataclass(frozen=True)
class Record:
    """Without fields where the header keeps them to itself."""
    name: str
    fields: tuple
    comment: str


@dataclass(frozen=True)
class Constant:
    """An enumerator. `type` is the typedef that it is a value of, as named by "Values of ::T" in
    the comment before the enumeration; else ""."""
    name: str
    value: int
    comment: str
    type: str


@dataclass(frozen=True)
class Typedef:
    """Another name of a type. That of a pointer to a function has `parameters`, and `type` is the
    result."""
    name: str
    type: str
    comment: str
    parameters: tuple = None


@dataclass
class Interface:
    """Each dictionary has names as keys and is in the order of the headers. `macros` are those with
    a value, as text."""
    functions: dict = field(default_factory=dict)
    records: dict = field(default_factory=dict)
    constants: dict = field(default_factory=dict)
    typedefs: dict = field(default_factory=dict)
    macros: dict = field(default_factory=dict)

    @property
    def version(self):
        return self.macros["ALMARA_VERSION_STRING"].strip('"')

    def constants_of(self, typedef):
        return [each for each in self.constants.values() if each.type == typedef]


def read(*headers, include=INCLUDE):
    """The interface that the headers, named as in #include, declare together."""
    found = Interface()
    for header in headers:
        _Reader(found, header).read((Path(include) / header).read_text(encoding="utf-8"))
    return found


def clean(comment):
    """The text of a comment without its marks and without the stars before its lines."""
    inside = re.sub(r"^/\*[*<]*|\*/$", "", comment)
    mark = r"^ *\* ?" if re.search(r"^ *\*", inside, re.MULTILINE) else r"^ +"
    return re.sub(mark, "", inside, flags=re.MULTILINE).strip()


def _words(text):
    return re.sub(r"\s*\*", "*", " ".join(text.split()))


def _variable(text, comment=""):
    match = re.fullmatch(r"(.*[\s*])(\w+)\s*((?:\[[^\]]*\])*)", text.strip(), re.DOTALL)
    if not match:
        raise ValueError(f"not a parameter or field: {text.strip()}")
    return Variable(_words(match[1]), match[2], match[3], comment)


def _parameters(text):
    text = text.strip()
    return () if text == "void" else tuple(_variable(each) for each in text.split(","))


_COMMENT = r"/\*(?:[^*]|\*(?!/))*\*/"
_TRAILING = r"(?:[ ]*(?P<after>/\*\*<(?:[^*]|\*(?!/))*\*/))?"
_BODY = rf"(?:[^{{}}/]|{_COMMENT}|/(?!\*))*"
# Alternatives in the order in which they are tried; the group's name is that of a method below.
_DECLARATION = re.compile(rf"""\s*(?:
      (?P<section>/\*\ ----\ (?P<title>[^-\n]+?)\ -+(?:[ ]*\*/|\n(?:[^*]|\*(?!/))*\*/))
    | (?P<doc>/\*\*(?!<)(?:[^*]|\*(?!/))*\*/)
    | (?P<skip>{_COMMENT}|extern\ "C"\ \{{|\}}|G_(?:BEGIN|END)_DECLS)
    | (?P<directive>\#(?:[^\\\n/]|\\\n|\\|/(?!\*)|{_COMMENT})*(?=\n|$))
    | (?P<record>typedef\s+struct\s+(?P<tag>\w+)\s*\{{(?P<fields>{_BODY})\}}\s*(?P=tag)\s*;)
    | (?P<opaque>typedef\s+struct\s+(?P<hidden>\w+)\s+(?P=hidden)\s*;)
    | (?P<callback>typedef\s+(?P<returns>[\w\s*]+?)\(\s*\*\s*(?P<callee>\w+)\s*\)
        \s*\((?P<takes>[^()]*)\)\s*;)
    | (?P<typedef>typedef\s+(?P<old>[\w\s*]+[\s*])(?P<new>\w+)\s*;)
    | (?P<enumeration>enum\s*\{{(?P<items>{_BODY})\}}\s*;)
    | (?P<function>\w+_EXPORT\s+(?P<result>[\w\s*]+[\s*])(?P<name>\w+)
        \s*\((?P<arguments>[^()]*)\)\s*;)
    )""", re.VERBOSE)
_FIELD = re.compile(rf"\s*(?P<before>(?:{_COMMENT}\s*)*)(?P<text>[^;/]+);{_TRAILING}")
_ENUMERATOR = re.compile(rf"\s*(?P<before>(?:{_COMMENT}\s*)*)(?P<name>\w+)\s*"
                         rf"(?:=(?P<value>[^,/]+))?\s*(?:,|(?={_COMMENT})|$){_TRAILING}")
_MACRO = re.compile(rf"#\s*define\s+(\w+)[ ]+(.*?)\s*(?:{_COMMENT})?$", re.DOTALL)


class _Reader:
    def __init__(self, found, header):
        self.found = found
        self.header = header
        self.section = ""
        self.comment = ""

    def read(self, text):
        place = 0
        while text[place:].strip():
            match = _DECLARATION.match(text, place)
            if not match:
                line = text.count("\n", 0, place) + 1
                raise ValueError(f"{self.header}:{line}: unknown form of a declaration: "
                                 f"{text[place:place + 80].strip()!r}")
            place = match.end()
            kind = next(kind for kind in _KINDS if match[kind] is not None)
            getattr(self, f"_{kind}")(match)
            if kind not in ("doc", "skip"):
                self.comment = ""

    def _section(self, match):
        self.section = match["title"]

    def _doc(self, match):
        self.comment = clean(match["doc"])

    def _skip(self, match):
        pass

    def _directive(self, match):
        macro = _MACRO.match(match["directive"])
        if macro and macro[2]:
            self.found.macros[macro[1]] = macro[2]

    def _record(self, match):
        fields = tuple(_variable(each["text"], _comment_of(each))
                       for each in _all(_FIELD, match["fields"], match["tag"]))
        self.found.records[match["tag"]] = Record(match["tag"], fields, self.comment)

    def _opaque(self, match):
        self.found.records[match["hidden"]] = Record(match["hidden"], (), self.comment)

    def _callback(self, match):
        self.found.typedefs[match["callee"]] = Typedef(
            match["callee"], _words(match["returns"]), self.comment, _parameters(match["takes"]))

    def _typedef(self, match):
        self.found.typedefs[match["new"]] = Typedef(match["new"], _words(match["old"]),
                                                    self.comment)

    def _enumeration(self, match):
        owner = re.match(r"Values of ::(\w+)", self.comment)
        value = -1
        for item in _all(_ENUMERATOR, match["items"], "enum"):
            value = _number(item["value"]) if item["value"] else value + 1
            self.found.constants[item["name"]] = Constant(
                item["name"], value, _comment_of(item), owner[1] if owner else "")

    def _function(self, match):
        self.found.functions[match["name"]] = Function(
            match["name"], _words(match["result"]), _parameters(match["arguments"]), self.comment,
            self.section, self.header)


_KINDS = [name[1:] for name in vars(_Reader)
          if name.startswith("_") and name[1:] in _DECLARATION.groupindex]


def _all(pattern, text, owner):
    """Every match of the pattern, which must leave nothing of the text over."""
    place = 0
    while text[place:].strip():
        match = pattern.match(text, place)
        if not match or match.end() == place:
            raise ValueError(f"{owner}: not understood: {text[place:].strip()[:80]!r}")
        yield match
        place = match.end()


def _comment_of(match):
    if match["after"]:
        return clean(match["after"])
    documented = [each for each in re.findall(_COMMENT, match["before"]) if each.startswith("/**")]
    return clean(documented[-1]) if documented else ""


def _number(text):
    """A decimal or hexadecimal number, or one shifted by another."""
    left, _, right = text.replace("u", "").replace("U", "").partition("<<")
    return int(left.strip().strip("()"), 0) << int(right.strip().strip("()") or "0", 0)
