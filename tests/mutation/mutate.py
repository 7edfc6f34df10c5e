"""Finds the places of a C++ source where one small change can be made, and builds them all in at once.

Each change sleeps behind a switch that the environment throws at run time, so that one build serves all of them.
Nothing here knows C++: a change that does not compile is left out by its line.
"""

import bisect
import re
from dataclasses import dataclass, field

SWITCH_HEADER = r"""#pragma once
#include <cstdlib>
#include <utility>
namespace mutation {
inline bool isOn(int id) {
    static const int chosen = [] {
        const char* text = std::getenv("TESSARINE_MUTANT");
        return text ? std::atoi(text) : -1;
    }();
    return id == chosen;
}
#define MUTATION_COMPARISON(NAME, OP, CHANGED)                                                         \
    template <typename L, typename R> bool NAME(int id, const L& left, const R& right) {               \
        return isOn(id) ? bool(left CHANGED right) : bool(left OP right);                              \
    }
MUTATION_COMPARISON(equal, ==, !=)
MUTATION_COMPARISON(different, !=, ==)
MUTATION_COMPARISON(less, <, <=)
MUTATION_COMPARISON(lessOrEqual, <=, <)
MUTATION_COMPARISON(greater, >, >=)
MUTATION_COMPARISON(greaterOrEqual, >=, >)
template <typename R> bool both(int id, bool left, const R& right) {
    return isOn(id) ? left || right() : left && right();
}
template <typename R> bool either(int id, bool left, const R& right) {
    return isOn(id) ? left && right() : left || right();
}
} // namespace mutation
"""

LOG_WORDS = r"(?:qDebug|qInfo|qWarning|qCritical|qFatal)\b"
COMPARISONS = {"==": ("equal", "!="), "!=": ("different", "=="), "<": ("less", "<="), "<=": ("lessOrEqual", "<"),
               ">": ("greater", ">="), ">=": ("greaterOrEqual", ">")}


@dataclass
class Change:
    path: str
    line: int
    kind: str
    before: str
    after: str
    # (position, is closing, length of the changed span, text that replaces `cut` characters, cut)
    edits: list = field(default_factory=list)
    id: int = -1
    last_line: int = 0
    is_constexpr: bool = False
    is_dead: bool = False

    def __str__(self):
        return f"{self.path}:{self.line}: {self.kind}: {self.before} -> {self.after}"


def blanked(text):
    """The text without what is not changed: comments, literals, preprocessor lines, assertions, log statements."""
    pattern = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|(?<![0-9a-fA-F])\'(?:\\.|[^\'\\\n])+\''
                         r'|^[ \t]*#(?:\\\n|[^\n])*', re.S | re.M)

    def blank(match):
        # A literal stays an operand.
        filler = "x" if match.group()[0] in "\"'R" else " "
        return re.sub(r"[^\n]", filler, match.group())

    text = pattern.sub(blank, text)
    log = rf"(?:if \([^;{{}}]*\)\s*|else\s+)?{LOG_WORDS}[^;]*;|(?:Q_ASSERT|static_assert)\([^;]*;|\blog\w* <<[^;]*;"
    return re.sub(log, blank, text)


def dead_lines(text):
    """Lines of the halves of preprocessor choices that are not compiled here: another system, a fallback."""
    dead, stack = set(), []
    for number, line in enumerate(text.split("\n"), 1):
        word = re.match(r"\s*#\s*(if\w*|else|elif|endif)", line)
        if word and word[1].startswith("if"):
            stack.append(bool(re.search(r"WIN", line)))
        elif word and stack and word[1] in ("else", "elif"):
            stack[-1] = not stack[-1]
        elif word and stack:
            stack.pop()
        if any(stack):
            dead.add(number)
    return dead


def operand_start(code, place, stops):
    depth = 0
    while place > 0:
        c = code[place - 1]
        if c in ")]}":
            depth += 1
        elif c in "([{":
            if depth == 0:
                break
            depth -= 1
        elif depth == 0:
            if c in ";,":
                break
            before = code[max(0, place - 12):place]
            if re.search(r"(\breturn|[^=!<>]=|\?|[^:]:)\s$", before) or any(before.endswith(s) for s in stops):
                break
        place -= 1
    while code[place] in " \n":
        place += 1
    return place


def operand_end(code, place, stops):
    depth = 0
    while place < len(code):
        c = code[place]
        if c in "([{":
            depth += 1
        elif c in ")]}":
            if depth == 0:
                break
            depth -= 1
        elif depth == 0 and (c in ";," or re.match(r"\s[?:]\s", code[place:place + 3])
                             or any(code.startswith(s, place) for s in stops)):
            break
        place += 1
    while code[place - 1] in " \n":
        place -= 1
    return place


def closing(code, place):
    depth = 0
    for i in range(place, len(code)):
        depth += {"(": 1, ")": -1}.get(code[i], 0)
        if depth == 0:
            return i
    return -1


def changes_of(path, text):
    code = blanked(text).replace("\n", " ")
    ends = [m.start() for m in re.finditer("\n", text)]
    dead = dead_lines(text)
    changes = []

    def add(kind, begin, end, before, after, edits):
        line_of = lambda place: bisect.bisect_left(ends, place) + 1
        first, last = min(e[0] for e in edits), max(e[0] for e in edits)
        changes.append(Change(path, line_of(first), kind, " ".join(before.split()), after, edits,
                              last_line=max(line_of(last), line_of(end)),
                              is_constexpr="constexpr" in code_line(text, first),
                              is_dead=line_of(first) in dead))

    def wrap(begin, end, opening, tail):
        return [(begin, False, end - begin, opening, 0), (end, True, end - begin, tail, 0)]

    for m in re.finditer(r"(?<=\s)(==|!=|<=|>=|<|>)(?=\s)", code):
        stops = [" && ", " || ", "&& ", "|| "]
        begin = operand_start(code, m.start(), stops)
        end = operand_end(code, m.end(), [" &&", " ||"])
        if "template" in code[begin:m.start()] or not code[begin:m.start()].strip():
            continue
        name, changed = COMPARISONS[m.group()]
        add("comparison", m.start(), end, text[begin:end], changed,
            wrap(begin, end, f"mutation::{name}(@, ", ")")
            + [(m.start(), False, 0, ",", len(m.group()))])
    for m in re.finditer(r"(?<=\s)(&&|\|\|)(?=\s)", code):
        stops = [] if m.group() == "||" else [" || ", "|| "]
        begin = operand_start(code, m.start(), stops)
        end = operand_end(code, m.end(), [" ||"] + ([" &&"] if m.group() == "&&" else []))
        name, changed = ("both", "||") if m.group() == "&&" else ("either", "&&")
        add("condition", m.start(), end, text[begin:end], changed,
            wrap(begin, end, f"mutation::{name}(@, bool(", "); })")
            + [(m.start(), False, 0, "), [&] { return bool(", 2)])
    for m in re.finditer(r"\b(?:if|while) \(", code):
        begin, end = m.end(), closing(code, m.end() - 1)
        condition = code[begin:end]
        begin += condition.rfind(";") + 1
        condition = code[begin:end]
        if re.match(r"\s*(?:const )?[\w:<>]+[ *&]+\w+ = ", condition) or not condition.strip():
            continue
        if flipped_elsewhere(condition):
            continue
        add("condition", m.start(), end, text[begin:end], "negated",
            wrap(begin, end, "mutation::isOn(@) != bool(", ")"))
    for m in re.finditer(r"(?<=return )(?=[^;{}]* \? )|(?<=[^=!<>]= )(?=[^;{}]* \? )", code):
        mark = re.compile(r"\s\?\s").search(code, m.start())
        condition = code[m.start():mark.start()]
        if condition.count("(") == condition.count(")") and not flipped_elsewhere(condition):
            add("condition", m.start(), mark.start(), text[m.start():mark.start()], "negated",
                wrap(m.start(), mark.start(), "(mutation::isOn(@) != bool(", "))"))
    for m in re.finditer(r"(?<![\w.'])(?:0x[0-9a-fA-F']+|\d+(?:\.\d*)?f?)(?:[uU]?[lL]{0,2})(?![\w.'])", code):
        before = code[max(0, m.start() - 6):m.start()]
        if before.endswith("case ") or before.endswith("<"):
            continue
        number = m.group()
        typed = f"decltype({number})({number} + 1)"
        add("constant", m.start(), m.end(), code_line(text, m.start()), f"{number} + 1",
            [(m.start(), False, 0, f"(mutation::isOn(@) ? {typed} : {number})", len(number))])
    for m in re.finditer(r"\b(true|false)\b", code):
        changed = "false" if m.group() == "true" else "true"
        add("constant", m.start(), m.end(), code_line(text, m.start()), changed,
            [(m.start(), False, 0, f"(mutation::isOn(@) != {m.group()})", len(m.group()))])
    return changes


def flipped_elsewhere(condition):
    """Whether another change of the condition has the same effect as its negation."""
    return re.search(r" (==|!=) ", condition) and not re.search(r" (&&|\|\|) ", condition)


def code_line(text, place):
    begin = text.rfind("\n", 0, place) + 1
    return text[begin:text.find("\n", place)]


def instrumented(text, changes, header):
    """The text with all given changes behind their switches; line numbers stay."""
    code = blanked(text)
    edits = []
    for change in changes:
        for place, closes, span, new, cut in change.edits:
            # At one place: what closes, the inner ones first; then what opens, the outer ones first.
            edits.append((place, 0 if closes else 1, span if closes else -span, new.replace("@", str(change.id)), cut))
    edits.sort(key=lambda e: (e[0], e[1], e[2]))
    # What is computed at run time is no constant expression any more.
    spans = []
    for change in changes:
        place = change.edits[0][0]
        begin = max(code.rfind(c, 0, place) for c in ";}") + 1
        found = re.compile(r"\bconstexpr\b").search(code, begin, place)
        if found and not re.search(r"\bif\s*$", code[begin:found.start()]):
            spans.append((found.start(), found.end()))
    edits += [(begin, 1, 0, "const", end - begin) for begin, end in set(spans)]
    edits.sort(key=lambda e: (e[0], e[1], e[2]))
    # The warnings of the changed text are nobody's business.
    parts, done = [f'#pragma GCC system_header\n#include "{header}"\n#line 1\n'], 0
    for place, _, _, new, cut in edits:
        parts += [text[done:place], new]
        done = max(done, place + cut)
    parts.append(text[done:])
    return "".join(parts)
