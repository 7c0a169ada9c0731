"""The breaks that a C++ text can be given: small changes that a test should notice.

They are found among the tokens of the text, not in a syntax tree, so some of them do not compile;
whoever tries one finds out. The text is trusted to be formatted: a statement starts a line, a sign
with blanks on both sides is an operator between two operands, and a "<" right behind a name is a
bracket.
"""
import re
import textwrap
from dataclasses import dataclass

TOKEN = re.compile(r"""
    (?P<passed_over> //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:\\\n|[^\n])* )
  | (?P<string>      (?:u8|[uUL])?R"(?P<delimiter>[^(\s]*)\(.*?\)(?P=delimiter)"(?:_\w+)?
                   | (?:u8|[uUL])?"(?:[^"\\\n]|\\.)*"(?:_\w+)? )
  | (?P<character>   (?:u8|[uUL])?'(?:[^'\\\n]|\\.)+' )
  | (?P<number>      \d(?:[\w.']|(?<=[eEpP])[+-])* )
  | (?P<name>        [A-Za-z_]\w* )
  | (?P<sign>        <=> | <<= | >>= | << | -> | \+\+ | -- | && | \|\| | :: | [-+*/%&|^!=<>]=
                   | [^\s\w] )
""", re.VERBOSE | re.MULTILINE | re.DOTALL)


def both_ways(pairs):
    return pairs | {after: before for before, after in pairs.items()}


OPERATORS = both_ways({"==": "!=", "<": "<=", ">": ">=", "&&": "||", "+": "-", "&": "|"}) | {
    "+=": "=", "-=": "+=", "|=": "="}
# What may give way to the other wherever it stands.
WORDS = both_ways({"true": "false", "startsWith": "endsWith", "starts_with": "ends_with",
                   "first": "last", "indexOf": "lastIndexOf", "prepend": "append", "min": "max",
                   "break": "continue", "++": "--"}) | {"!": ""}

CLOSING = {"(": ")", "[": "]", "{": "}", "<": ">"}
CONDITIONAL = {"if", "while"}
DECLARING = {"class", "struct", "union", "enum", "namespace"}
BEFORE_BODY = {")", "]", "const", "override", "else", "do", "try", ";", "}", ":"}
CONTROL = CONDITIONAL | {"for", "switch", "return", "case", "throw"}
# What stands in front of a statement that is no declaration, and what follows its first name.
BEFORE_STATEMENT = {";", "{", "}", ")", ":", "else", "do"}
AFTER_NAME = {"(", "[", ".", "->", "++", "--", "<<", "=", "+=", "-=", "*=", "/=", "%=", "|=", "&=",
              "^="}
# Nothing is broken in the parentheses behind them: what only checks, what is settled when
# compiling, and the texts in the tables of the forms, which a test could only hold a second time.
LEFT_ALONE = {"Q_ASSERT", "Q_ASSERT_X", "Q_UNUSED", "static_assert", "constexpr", "decltype",
              "sizeof", "QT_TRANSLATE_NOOP", "QT_TRANSLATE_NOOP3"}
# Their arguments may come in any order.
SYMMETRIC = {"min", "max", "swap", "qMin", "qMax"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


@dataclass(frozen=True)
class Break:
    """The characters from start up to end give way to others."""
    kind: str
    start: int
    end: int
    replacement: str

    def describe(self, text):
        """The break in words, on one line."""
        old, new = (f"“{textwrap.shorten(words, 60, placeholder=' ...')}”"
                    for words in (text[self.start:self.end], self.replacement))
        return f"{old} becomes {new}" if self.replacement.strip(";") else f"{old} is dropped"

    def apply(self, text):
        """The text with the break in it. All other lines stay where they are."""
        lost_lines = text.count("\n", self.start, self.end) - self.replacement.count("\n")
        return text[:self.start] + self.replacement + "\n" * lost_lines + text[self.end:]


class Breaks(list):
    """All breaks of a text."""

    def __init__(self, text):
        super().__init__()
        self.text = text
        self.tokens = [Token(match.lastgroup, match[match.lastgroup], *match.span(match.lastgroup))
                       for match in TOKEN.finditer(text) if match.lastgroup != "passed_over"]
        self.words = [token.text for token in self.tokens] + [""]  # so that -1 is one, too
        self.partner = {}
        self.find_partners()
        self.left_alone = {i for name, word in enumerate(self.words) if word in LEFT_ALONE
                           for i in range(name, self.partner.get(name + 1, name) + 1)}
        for i in range(len(self.tokens)):
            self.replace_token(i)
            self.negate_condition(i)
            self.swap_choices(i)
            self.empty_result(i)
            self.drop_statement(i)
            self.drop_values(i)
            self.swap_arguments(i)

    def find_partners(self):
        """Fills the table that leads from each opening bracket to the closing one."""
        unclosed = []
        for i, token in enumerate(self.tokens):
            is_behind_name = (i > 0 and self.tokens[i - 1].kind == "name"
                              and self.words[i - 1] != "operator"
                              and self.tokens[i - 1].end == token.start)
            if token.text in CLOSING and (token.text != "<" or is_behind_name):
                unclosed.append(i)
            elif token.text in (")", "]", "}", ">"):
                while unclosed and self.words[unclosed[-1]] == "<" and token.text != ">":
                    unclosed.pop()  # it was none
                if unclosed and CLOSING[self.words[unclosed[-1]]] == token.text:
                    self.partner[unclosed.pop()] = i

    def source(self, first, last):
        return self.text[self.tokens[first].start:self.tokens[last].end]

    def between(self, last, first):
        return self.text[self.tokens[last].end:self.tokens[first].start]

    def end_of(self, i, *ends):
        """The first token from i on that is one of ends or closes what i stands in."""
        while self.words[i] not in (*ends, ")", "]", "}", ""):
            i = self.partner.get(i, i) + 1
        return i

    def statement_start(self, i):
        while self.words[i - 1] not in ("", ";", "{", "}"):
            i -= 1
        return i

    def items(self, bracket):
        """The first and the last token of each item in a bracket; commas part them."""
        first = bracket + 1
        while first < self.partner[bracket]:
            end = self.end_of(first, ",")
            yield first, end - 1
            first = end + 1

    def add(self, kind, first, last, replacement):
        """Adds the break that replaces what goes from the token first to the token last."""
        if first in self.left_alone:
            return
        self.append(Break(kind, self.tokens[first].start, self.tokens[last].end, replacement))

    def replace_token(self, i):
        token = self.tokens[i]
        around = self.text[token.start - 1:token.start] + self.text[token.end:token.end + 1]
        joins_texts = token.text == "+" and {"string", "character"} & {
            neighbour.kind for neighbour in self.tokens[i - 1:i + 2]}
        if token.text in WORDS:
            self.add("word", i, i, WORDS[token.text])
        elif token.text in OPERATORS and around.isspace() and not joins_texts:
            self.add("operator", i, i, OPERATORS[token.text])
        elif token.kind == "string":
            prefix, content, suffix = re.fullmatch(r'(\w*)"(.*)"(\w*)', token.text,
                                                   re.DOTALL).groups()
            self.add("string", i, i, f'{prefix.rstrip("R")}"{"" if content else "x"}"{suffix}')
        elif token.kind == "character":
            other = "y" if "'x'" in token.text else "x"
            self.add("character", i, i, re.sub(r"'.*'", f"'{other}'", token.text))
        elif token.kind == "number":
            digits = re.match(r"0[xX][\da-fA-F']+|[\d']+", token.text)[0]
            value = int(digits.replace("'", ""), 16 if digits[1:2] in ("x", "X") else 10)
            for other in (value - 1, value + 1):
                if other >= 0:
                    self.add("constant", i, i, str(other) + token.text[len(digits):])

    def negate_condition(self, i):
        if self.words[i] in CONDITIONAL and self.words[i + 1] == "(":
            first, last = i + 2, self.partner[i + 1] - 1
            initialiser_end = self.end_of(first, ";")
            if self.words[initialiser_end] == ";":
                first = initialiser_end + 1
            self.add("condition", first, last, f"!({self.source(first, last)})")

    def swap_choices(self, i):
        if self.words[i] != "?":
            return
        colon = self.end_of(i + 1, ":", "?")
        if self.words[colon] == ":":
            last = self.end_of(colon + 1, ",", ";", ":", "?") - 1
            self.add("choice", i + 1, last, self.source(colon + 1, last)
                     + self.between(colon - 1, colon + 1) + self.source(i + 1, colon - 1))

    def empty_result(self, i):
        if self.words[i] == "return" and self.words[i + 1] not in (";", "{", "true", "false"):
            self.add("result", i + 1, self.end_of(i + 1, ";") - 1, "{}")

    def drop_statement(self, i):
        """Drops a call, an assignment or a jump."""
        before = self.words[i - 1]
        if before not in BEFORE_STATEMENT or (before != "{" and "\n" not in self.between(i - 1, i)):
            return
        behind_name = i + 1
        while self.words[behind_name] == "::":
            behind_name += 2
        # Braces behind parentheses make it a definition.
        end = self.end_of(i, ";", "{" if self.words[behind_name] == "(" else ";")
        is_jump = end == i + 1 and self.words[i] in ("break", "continue", "return")
        is_call = (self.tokens[i].kind == "name" and self.words[i] not in CONTROL
                   and self.words[behind_name] in AFTER_NAME)
        has_other_start = self.words[i] in ("*", "++", "--", "(", "::", "delete", "emit")
        if self.words[end] == ";" and (is_jump or is_call or has_other_start):
            self.add("statement", i, end, ";")

    def drop_values(self, i):
        """Drops each item of a list in braces."""
        if self.words[i] != "{" or self.words[self.end_of(i + 1, ";")] == ";":
            return
        head = self.words[self.statement_start(i):i]
        if DECLARING & set(head) or self.words[i - 1] in BEFORE_BODY:
            return
        for first, last in self.items(i):
            self.add("value", first, last + 1 if self.words[last + 1] == "," else last, "")

    def swap_arguments(self, i):
        """Swaps neighbouring arguments that look as if they were of the same type."""
        function = self.tokens[i - 1]
        if self.words[i] != "(" or function.kind != "name" or function.text in SYMMETRIC:
            return
        items = list(self.items(i))
        for (first, end), (start, last) in zip(items, items[1:]):
            one, other = self.source(first, end), self.source(start, last)
            if one != other and self.looks(first, end) == self.looks(start, last) != []:
                self.add("arguments", first, last, other + self.between(end, start) + one)

    def looks(self, first, last):
        """The kinds of tokens in an argument; none if they are too many to tell its type, or those
        of a declaration."""
        looks = [token.text if token.kind == "sign" else token.kind
                 for token in self.tokens[first:last + 1]]
        is_plain = all(look in ("-", ".", "->", "::") or look.isalpha() for look in looks)
        is_declaration = any(one == other for one, other in zip(looks, looks[1:]))
        return looks if is_plain and not is_declaration else []
