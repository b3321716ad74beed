"""Finds where faults can be made in a source, using libclang."""
import concurrent.futures
import dataclasses
import hashlib
import json
import pathlib
import re

from workshop import COPY, WORK, Problem

try:
    from clang import cindex
except ImportError:
    cindex = None

OTHER_COMPARISON = {"==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="],
                    ">=": [">", "<"]}
OTHER_CONNECTIVE = {"&&": ["||"], "||": ["&&"]}
OTHER_ARITHMETIC = {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"], "+=": ["-="], "-=": ["+="],
                    "*=": ["/="], "/=": ["*="], "|": ["&"], "&": ["|"], "|=": ["&="], "&=": ["|="], "++": ["--"],
                    "--": ["++"], "<<": [">>"], ">>": ["<<"]}
OPERATORS = [("comparison", OTHER_COMPARISON), ("connective", OTHER_CONNECTIVE), ("arithmetic", OTHER_ARITHMETIC)]
KINDS = ["argument", "arithmetic", "comparison", "condition", "connective", "constant", "early return", "not",
         "returned value", "statement"]

# Their result does not change if two neighbouring arguments are exchanged.
SYMMETRIC = {"min", "max", "hypot", "operator+", "operator==", "operator!="}

LEXEME = re.compile(r"""
    (?P<skip>//[^\n]*|/\*.*?\*/|\#[^\n]*|'(?:\\.|[^'\\])+')
    |(?P<text>(?:u8|[uUL])?"(?:\\.|[^"\\\n])*")
    |(?P<word>[A-Za-z_]\w*)
    |(?P<number>(?:0[xX][0-9a-fA-F]+|\d[\d']*\.?\d*(?:[eE][+-]?\d+)?|\.\d+(?:[eE][+-]?\d+)?)[uUlLfFzZ]*)
    |(?P<unequal>!=)
    |(?P<not>!)
    """, re.VERBOSE | re.DOTALL)
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)


@dataclasses.dataclass
class Body:
    """Where faults can be: the body of a function, or code that only a separate build can change."""
    function: str
    start: int
    end: int
    switchable: bool
    returns: bool


@dataclasses.dataclass
class Place:
    """One fault: the text between start and end is replaced."""
    body: int
    start: int
    end: int
    put: str
    kind: str


class Source:
    """A source, its functions, and the faults that can be made in it."""

    def __init__(self, name, text, bodies, places):
        self.name = name
        self.text = text
        self.bodies = bodies
        self.places = places

    def body_of(self, start, end):
        """The number of the function that contains all of this text, or None."""
        for number, body in enumerate(self.bodies):
            if body.switchable and body.start < start and end < body.end:
                return number
        return None

    def line_of(self, offset):
        return self.text.count("\n", 0, offset) + 1

    def lines_around(self, place):
        """The complete lines that a fault touches, before and after, with white space collapsed."""
        first = self.text.rfind("\n", 0, place.start) + 1
        last = self.text.find("\n", place.end)
        before = self.text[first:last]
        after = self.text[first:place.start] + place.put + self.text[place.end:last]
        return " ".join(before.split()), " ".join(after.split())


class Scan:
    """Walks the syntax tree that libclang builds for one source."""

    def __init__(self, path, command):
        self.path = path
        raw = path.read_bytes()
        self.text = raw.decode("utf-8")
        # libclang counts in bytes.
        self.offset = [0] * (len(raw) + 1)
        position = 0
        for index, character in enumerate(self.text):
            for _ in character.encode("utf-8"):
                self.offset[position] = index
                position += 1
        self.offset[position] = len(self.text)
        self.bodies, self.places, self.seen = [], [], set()
        unit = cindex.Index.create().parse(str(path), [*command[1:], "-x", "c++", "-w"])
        errors = [entry for entry in unit.diagnostics if entry.severity >= cindex.Diagnostic.Error]
        if errors:
            raise Problem(f"{path.relative_to(COPY)}: libclang cannot parse it: {errors[0].spelling}")
        self.find_bodies(unit.cursor)

    def extent(self, cursor):
        return self.offset[cursor.extent.start.offset], self.offset[cursor.extent.end.offset]

    def spelled(self, cursor):
        start, end = self.extent(cursor)
        return self.text[start:end]

    def find_bodies(self, cursor):
        kinds = cindex.CursorKind
        functions = {kinds.FUNCTION_DECL, kinds.CXX_METHOD, kinds.CONSTRUCTOR, kinds.DESTRUCTOR,
                     kinds.CONVERSION_FUNCTION, kinds.FUNCTION_TEMPLATE}
        for child in cursor.get_children():
            if child.location.file is None or child.location.file.name != str(self.path):
                continue
            if child.kind in functions:
                if child.is_definition():
                    self.add_function(child)
            elif child.kind in (kinds.VAR_DECL, kinds.FIELD_DECL):
                self.add_value(child)
            else:
                self.find_bodies(child)

    def add_function(self, cursor):
        children = list(cursor.get_children())
        if not children or children[-1].kind != cindex.CursorKind.COMPOUND_STMT:
            return
        start, end = self.extent(children[-1])
        if self.text[start:start + 1] != "{" or self.text[end - 1:end] != "}":
            return
        head = COMMENT.sub("", self.text[self.extent(cursor)[0]:start])
        returns = cursor.type.get_result().get_canonical().kind != cindex.TypeKind.VOID
        switchable = not re.search(r"\bconst(expr|eval)\b", head)
        self.add_initialisers(cursor, children[:-1], start)
        self.bodies.append(Body(qualified(cursor), start, end, switchable, returns))
        self.find_places(children[-1])
        self.find_early_returns(cursor, children[-1])

    def add_initialisers(self, cursor, children, end):
        if cursor.kind != cindex.CursorKind.CONSTRUCTOR:
            return
        parameters = [self.extent(child)[1] for child in children if child.kind == cindex.CursorKind.PARM_DECL]
        begin = max(parameters, default=self.offset[cursor.location.offset])
        found = [child for child in children if self.extent(child)[0] >= begin and child.kind.is_expression()]
        if not found:
            return
        start = min(self.extent(child)[0] for child in found)
        self.bodies.append(Body(qualified(cursor), start, end, False, False))
        for child in found:
            self.find_places(child, is_root=True)
        self.find_lexemes(start, end)

    def add_value(self, cursor):
        children = [child for child in cursor.get_children() if child.kind.is_expression()]
        start, end = self.extent(cursor)
        assigned = re.search(r"[={]", COMMENT.sub(lambda found: " " * len(found[0]), self.text[start:end]))
        if not children or assigned is None:
            return
        self.bodies.append(Body(qualified(cursor), start + assigned.start(), end, False, False))
        self.find_lexemes(start + assigned.start(), end)
        for child in children:
            self.find_places(child, is_root=True)

    def add(self, start, end, put, kind):
        body = len(self.bodies) - 1
        outer = self.bodies[body]
        fault = (start, end, put)
        if fault in self.seen or not outer.start <= start <= end <= outer.end or self.text[start:end] == put:
            return
        self.seen.add(fault)
        self.places.append(Place(body, start, end, put, kind))

    def find_places(self, cursor, is_root=False):
        if not is_root:
            self.find_lexemes(*self.extent(cursor))
        self.visit(cursor)

    def find_lexemes(self, start, end):
        for found in LEXEME.finditer(self.text, start, end):
            first, last, word = found.start(), found.end(), found[0]
            if found.lastgroup == "number":
                for put in other_numbers(word):
                    self.add(first, last, put, "constant")
            elif found.lastgroup == "text":
                opening = word[:word.index('"') + 1]
                self.add(first, last, opening + ('"' if len(word) > len(opening) + 1 else 'x"'), "constant")
            elif word in ("true", "false"):
                self.add(first, last, "false" if word == "true" else "true", "constant")
            elif found.lastgroup == "not":
                self.add(first, last, "", "not")

    def visit(self, cursor):
        children = list(cursor.get_children())
        visitor = VISITORS.get(cursor.kind.name)
        if visitor is not None:
            visitor(self, cursor, children)
        if cursor.spelling.startswith("operator") and self.has_left_operand(cursor):
            self.add_operator(*self.extent(cursor))
        for child in children:
            self.visit(child)

    def add_operator(self, start, end):
        gap = COMMENT.sub(lambda found: " " * len(found[0]), self.text[start:end])
        symbol = gap.strip()
        for kind, others in OPERATORS:
            for other in others.get(symbol, []):
                first = start + gap.index(symbol)
                self.add(first, first + len(symbol), other, kind)

    def has_left_operand(self, cursor):
        start, _ = self.extent(cursor)
        return re.search(r"[\w)\]]\s*$", self.text[max(start - 80, 0):start]) is not None

    def visit_binary(self, _cursor, children):
        if len(children) == 2:
            self.add_operator(self.extent(children[0])[1], self.extent(children[1])[0])

    def visit_unary(self, cursor, children):
        if not children:
            return
        start, end = self.extent(cursor)
        first, last = self.extent(children[0])
        for begin, finish in ((start, first), (last, end)):
            if self.text[begin:finish].strip() in ("++", "--"):
                self.add_operator(begin, finish)
        if self.text[start:first].strip() == "-":
            self.add(start, first, "", "arithmetic")

    def visit_if(self, cursor, children):
        if not children or not children[0].kind.is_expression():
            return
        if re.match(r"(if|while)\s*\(", self.spelled(cursor)):
            self.negate(children[0], "condition")
        for child in children[1:]:
            self.remove(child)

    def visit_loop(self, _cursor, children):
        if children:
            self.remove(children[-1])

    def visit_conditional(self, _cursor, children):
        if len(children) == 3:
            self.negate(children[0], "condition")

    def negate(self, cursor, kind):
        """Negates, unless another kind has the same effect: an inverted comparison, or a dropped negation."""
        start, end = self.extent(cursor)
        text = self.text[start:end]
        if text and text not in ("true", "false") and not self.is_turned_round_otherwise(cursor):
            self.add(start, end, f"!({text})", kind)

    def is_turned_round_otherwise(self, cursor):
        children = list(cursor.get_children())
        while cursor.kind.name == "UNEXPOSED_EXPR" and len(children) == 1:
            if self.extent(children[0]) != self.extent(cursor):
                break
            cursor = children[0]
            children = list(cursor.get_children())
        if cursor.kind.name == "UNARY_OPERATOR":
            return self.spelled(cursor).startswith("!")
        if cursor.kind.name == "BINARY_OPERATOR" and len(children) == 2:
            return self.text[self.extent(children[0])[1]:self.extent(children[1])[0]].strip() in ("==", "!=")
        return any(child.spelling in ("operator==", "operator!=") for child in children)

    def visit_compound(self, _cursor, children):
        for child in children:
            self.remove(child)

    def visit_case(self, _cursor, children):
        if children:
            self.remove(children[-1])

    def remove(self, cursor):
        kind = cursor.kind.name
        if kind in ("RETURN_STMT", "NULL_STMT", "COMPOUND_STMT", "CASE_STMT", "DEFAULT_STMT"):
            if kind != "RETURN_STMT" or list(cursor.get_children()):
                return
        if kind == "DECL_STMT" and not self.is_unnamed_elsewhere(cursor):
            return
        start, end = self.extent(cursor)
        body = self.bodies[-1]
        last = self.text[end:body.end].lstrip("; \n\t")
        if kind == "RETURN_STMT" and last == "}":
            return
        if end > start:
            self.add(start, end, ";" if self.text[end - 1] in ";}" else "", "statement")

    def is_unnamed_elsewhere(self, cursor):
        """A variable that exists only for the effects of its construction and destruction."""
        body = self.bodies[-1]
        names = [child.spelling for child in cursor.get_children() if child.kind.name == "VAR_DECL"]
        return bool(names) and all(
            name and len(re.findall(rf"\b{re.escape(name)}\b", self.text[body.start:body.end])) == 1
            for name in names)

    def visit_call(self, cursor, _children):
        arguments = [argument for argument in cursor.get_arguments() if argument is not None]
        if cursor.spelling not in SYMMETRIC or "string" in plain(cursor.type):
            for first, second in zip(arguments, arguments[1:]):
                self.exchange(first, second)
        for argument in arguments:
            if argument.type.get_canonical().kind == cindex.TypeKind.BOOL:
                self.negate(argument, "argument")
            elif is_number(argument.type) and not re.match(r"[\d.+-]", self.spelled(argument) or "0"):
                start, end = self.extent(argument)
                self.add(start, end, f"({self.text[start:end]}) + 1", "argument")

    def exchange(self, first, second):
        alike = plain(first.type) == plain(second.type) or (is_number(first.type) and is_number(second.type))
        (start, middle), (begin, end) = self.extent(first), self.extent(second)
        texts = self.text[start:middle], self.text[begin:end]
        if alike and start < middle < begin < end and texts[0] != texts[1]:
            self.add(start, end, texts[1] + self.text[middle:begin] + texts[0], "argument")

    def visit_return(self, _cursor, children):
        if not children:
            return
        start, end = self.extent(children[0])
        value, kind = self.text[start:end], children[0].type.get_canonical().kind
        if start == end or re.fullmatch(r"true|false|nullptr|std::nullopt|[\d.]+|\{\}", value):
            return
        if kind == cindex.TypeKind.BOOL:
            self.negate(children[0], "returned value")
        elif is_number(children[0].type):
            self.add(start, end, f"({value}) + 1", "returned value")
        elif kind == cindex.TypeKind.POINTER:
            self.add(start, end, "nullptr", "returned value")
        elif kind == cindex.TypeKind.RECORD:
            self.add(start, end, "{}", "returned value")

    def visit_name(self, cursor, _children):
        """Replaces an enumerator by its neighbour in the enumeration."""
        target = cursor.referenced
        if target is None or target.kind != cindex.CursorKind.ENUM_CONSTANT_DECL:
            return
        start, end = self.extent(cursor)
        found = re.search(r"\w+$", self.text[start:end])
        if found is None or found[0] != target.spelling:
            return
        values = {}
        for child in target.semantic_parent.get_children():
            if child.kind == cindex.CursorKind.ENUM_CONSTANT_DECL:
                values.setdefault(child.enum_value, child.spelling)
        known = sorted(values)
        other = values[known[(known.index(target.enum_value) + 1) % len(known)]]
        self.add(start + found.start(), end, other, "constant")

    def find_early_returns(self, cursor, body):
        returns = self.bodies[-1].returns
        result = cursor.type.get_result().get_canonical()
        if result.kind in (cindex.TypeKind.LVALUEREFERENCE, cindex.TypeKind.RVALUEREFERENCE):
            return
        is_bool = result.kind == cindex.TypeKind.BOOL
        for child in body.get_children():
            start, end = self.extent(child)
            if start == end or returns and re.fullmatch(r"return (\{\}|nullptr|std::nullopt|false|true|0)", self.text[start:end]):
                continue
            for put in [" {}"] if returns and not is_bool else [" false", " true"] if returns else [""]:
                self.add(start, start, f"return{put}; ", "early return")


VISITORS = {"BINARY_OPERATOR": Scan.visit_binary, "COMPOUND_ASSIGNMENT_OPERATOR": Scan.visit_binary,
            "UNARY_OPERATOR": Scan.visit_unary, "IF_STMT": Scan.visit_if, "WHILE_STMT": Scan.visit_if,
            "FOR_STMT": Scan.visit_loop, "CXX_FOR_RANGE_STMT": Scan.visit_loop,
            "CONDITIONAL_OPERATOR": Scan.visit_conditional, "COMPOUND_STMT": Scan.visit_compound,
            "CASE_STMT": Scan.visit_case, "DEFAULT_STMT": Scan.visit_case, "CALL_EXPR": Scan.visit_call,
            "RETURN_STMT": Scan.visit_return, "DECL_REF_EXPR": Scan.visit_name}


def qualified(cursor):
    names, scope = [cursor.spelling], cursor.semantic_parent
    while scope is not None and scope.kind.name != "TRANSLATION_UNIT":
        if scope.spelling and scope.kind.name != "NAMESPACE":
            names.insert(0, scope.spelling)
        scope = scope.semantic_parent
    return "::".join(re.sub(r"<.*>$", "", name) for name in names)


def plain(kind):
    kind = kind.get_canonical()
    if kind.kind in (cindex.TypeKind.LVALUEREFERENCE, cindex.TypeKind.RVALUEREFERENCE):
        kind = kind.get_pointee()
    return re.sub(r"\bconst\b|\s|&", "", kind.spelling)


def is_number(kind):
    kind = kind.get_canonical().kind
    return cindex.TypeKind.CHAR_U.value <= kind.value <= cindex.TypeKind.LONGDOUBLE.value


def other_numbers(word):
    is_real = re.search(r"[.]|[eE]", word) and not word.startswith(("0x", "0X"))
    if not is_real:
        return [f"({word} + 1)", f"({word} - 1)"]
    return [f"({word} * 2)" if re.search(r"[1-9]", word) else f"({word} + 1)"]


def scan_one(name, command):
    """Returns what it found, or what went wrong: libclang's own errors say little."""
    try:
        scan = Scan(COPY / name, command)
    except Problem as problem:
        return str(problem)
    except cindex.TranslationUnitLoadError as error:
        return f"{name}: libclang cannot read it: {error}"
    return [[dataclasses.astuple(body) for body in scan.bodies],
            [dataclasses.astuple(place) for place in scan.places]]


def scan(commands, jobs):
    """Scans the sources given with their compile commands; results of an earlier run are reused."""
    if cindex is None:
        raise Problem("needs libclang's bindings for Python: run scripts/setup mutation")
    store = WORK / "places"
    store.mkdir(parents=True, exist_ok=True)
    rules = pathlib.Path(__file__).read_bytes()
    known = {name: store / hashlib.sha256(rules + name.encode() + (COPY / name).read_bytes()).hexdigest()
             for name in commands}
    missing = [name for name in commands if not known[name].exists()]
    with concurrent.futures.ProcessPoolExecutor(jobs) as pool:
        for name, found in zip(missing, pool.map(scan_one, missing, [commands[name] for name in missing])):
            if isinstance(found, str):
                raise Problem(found)
            known[name].write_text(json.dumps(found), encoding="utf-8")
    return {name: read(name, known[name]) for name in commands}


def read(name, path):
    bodies, places = json.loads(path.read_text(encoding="utf-8"))
    return Source(name, (COPY / name).read_text(encoding="utf-8"), [Body(*body) for body in bodies],
                  [Place(*place) for place in places])
