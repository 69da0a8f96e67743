"""The documents of the corpus: small ones, written for it, each about one thing that RTF can say."""

from dataclasses import dataclass, field
from typing import Union


@dataclass
class Span:
    """Text in one format. "\\t" is a tab, "\\n" a line break within the paragraph."""

    text: str
    format: dict = field(default_factory=dict)  # bold italic underline strike super sub: True;
    # size: points; colour, ground: RRGGBB; font: a name; link: an address


@dataclass
class Picture:
    name: str  # of the file


@dataclass
class Paragraph:
    spans: list[Union[Span, Picture]]
    # align; left, first, right, before, after: points; line: percent; tabs: points;
    # heading: 1 to 3; list: bullet or number; item: its number; page: True for one before it
    format: dict = field(default_factory=dict)


@dataclass
class Table:
    rows: list[list[str]]


def span(text, **formats):
    return Span(text, formats)


def par(*spans, **formats):
    return Paragraph([Span(s) if isinstance(s, str) else s for s in spans], formats)


def bullets(*texts):
    return [par(text, list="bullet", item=i + 1) for i, text in enumerate(texts)]


def numbers(*texts):
    return [par(text, list="number", item=i + 1) for i, text in enumerate(texts)]


SOURCES = {
    "letters": [
        par("Some words are ", span("bold", bold=True), ", some ", span("slanted", italic=True), "."),
        par("Others are ", span("underlined", underline=True), " or ", span("struck", strike=True)),
        par(span("Both at once", bold=True, italic=True), " and then ", span("none", underline=True)),
    ],
    "sizes": [
        par("Usual, ", span("small", size=8), ", ", span("large", size=20), " and ", span("huge", size=48)),
        par(span("Half a point more", size=10.5), " than ten"),
    ],
    "colours": [
        par("A ", span("red", colour="FF0000"), " boat on a ", span("blue", colour="0000FF"), " lake"),
        par("Marked in ", span("yellow", ground="FFFF00"), ", ", span("white on green", colour="FFFFFF", ground="008000")),
    ],
    "fonts": [
        par("Plain, then ", span("a typewriter", font="Courier New"), " and ", span("a book", font="Times New Roman")),
        par(span("Another face", font="Verdana"), " at the start"),
    ],
    "scripts": [
        par("Water is H", span("2", sub=True), "O, and a square is x", span("squared", super=True), "."),
        par("Foot", span("note", super=True), " and ", span("below", sub=True), " the line"),
    ],
    "align": [
        par("This stands left."),
        par("This stands in the middle.", align="center"),
        par("This stands right.", align="right"),
        par("This is stretched from edge to edge as soon as it is long enough to need a second line at all, which takes some more words than one would believe.", align="justify"),
    ],
    "indents": [
        par("Half an inch in.", left=36),
        par("First line in.", first=18),
        par("Hanging line, all but the first one in.", left=36, first=-18),
        par("In from both sides.", left=36, right=72),
    ],
    "spacing": [
        par("Twelve points before me.", before=12),
        par("Eighteen points after me.", after=18),
        par("One and a half lines high, this one.", line=150),
        par("Two lines high, this one.", line=200),
    ],
    "headings": [
        par("The first heading", heading=1),
        par("Text below it."),
        par("A smaller heading", heading=2),
        par("More text."),
        par("The smallest", heading=3),
        par("The end."),
    ],
    "bullets": [par("To buy:"), *bullets("bread", "milk and honey", "three eggs"), par("That is all.")],
    "numbers": [par("How to:"), *numbers("Open the box", "Take all out", "Close it"), par("Done.")],
    "tables": [
        par("Before the table."),
        Table([["Name", "Size"], ["Pond", "small"], ["Lake", "large"]]),
        par("After the table."),
    ],
    "links": [
        par("See ", span("the pages", link="http://www.example.com/a?b=1&c=2"), " for more."),
        par("Or write to ", span("us", link="mailto:someone@example.com"), "."),
    ],
    "tabs": [
        par("One\ttwo\tthree"),
        par("Left\tcentre", tabs=[144, 288]),
        par("A first line\nand a second one in the same paragraph"),
    ],
    "pages": [par("The first page."), par("The second page.", page=True), par("Still the second.")],
    "signs": [
        par("Braces {so}, backslash \\ and \\'e4, percent 100 %, a tilde ~ and an ampersand &."),
        par("\u201cQuoted\u201d and \u2018half\u2019 \u2013 with dashes \u2014 and dots\u2026 \u00a9 \u20ac 5"),
        par("A no-break\u00a0space and a <tag> & \"more\"."),
    ],
    "western": [
        par("Caf\u00e9 cr\u00e8me, \u00e0 c\u00f4t\u00e9 d\u2019une \u00eele; \u00dcber \u00f6de Stra\u00dfen; ma\u00f1ana; \u00e6\u00f8\u00e5."),
        par(span("\u00c9t\u00e9", bold=True), " et ", span("No\u00ebl", italic=True)),
    ],
    "polish": [
        par("Za\u017c\u00f3\u0142\u0107 g\u0119\u015bl\u0105 ja\u017a\u0144."),
        par(span("\u0141\u00f3d\u017a", bold=True), " i ", span("\u015awi\u0119ta", italic=True), " \u2014 \u0105\u0107\u0119\u0142\u0144\u00f3\u015b\u017a\u017c"),
    ],
    "turkish": [par("I\u015f\u0131k, \u011fa\u011f, \u0130stanbul\u2019da \u015feker \u00e7ok g\u00fczel."), par(span("\u0130\u0131\u015e\u015f\u011e\u011f", underline=True))],
    "greek": [par("\u039a\u03b1\u03bb\u03b7\u03bc\u03ad\u03c1\u03b1 \u03ba\u03cc\u03c3\u03bc\u03b5!"), par(span("\u03a9\u03c1\u03b1\u03af\u03b1", bold=True), " \u03bc\u03ad\u03c1\u03b1")],
    "cyrillic": [par("\u041f\u0440\u0438\u0432\u0435\u0442, \u043c\u0438\u0440! \u0401\u043b\u043a\u0430."), par(span("\u0416\u0438\u0432\u043e", italic=True), " \u0457\u0436\u0430\u043a")],
    "arabic": [par("\u0645\u0631\u062d\u0628\u0627 \u0628\u0627\u0644\u0639\u0627\u0644\u0645"), par("\u05e9\u05dc\u05d5\u05dd with Latin beside it")],
    "eastern": [par("\u4f60\u597d\uff0c\u4e16\u754c\u3002"), par("\u3053\u3093\u306b\u3061\u306f \u4e16\u754c"), par("\uc548\ub155\ud558\uc138\uc694")],
    "emoji": [par("A smile \U0001f600, a boat \u26f5 and a key \U0001f511."), par(span("bold \U0001f680 rocket", bold=True))],
    "png": [par("A dot: ", Picture("dot.png"), " there.")],
    "jpeg": [par("A view:"), par(Picture("view.jpg")), par("and a dot ", Picture("dot.png"))],
    "mixed": [
        par("A whole page", heading=1, align="center"),
        par("It has ", span("bold", bold=True), ", ", span("colour", colour="C00000", size=16), " and a ", span("link", link="http://www.example.com/"), "."),
        *bullets("one point", "and another"),
        *numbers("first step", "second step"),
        Table([["a", "b"], ["c", "d"]]),
        par("A dot ", Picture("dot.png"), " and \u017c\u00f3\u0142w \u03bb \u0436.", align="right"),
    ],
}

CODE = '''# Counts what it is given.
def count(words):
    """How often each word comes, caf\u00e9 and \u017c\u00f3\u0142w too."""
    seen = {}
    for word in words:
        seen[word] = seen.get(word, 0) + 1
    return seen
'''
