"""What each file of the corpus has to be read as: expected.txt.

A line "file NAME" begins a file. "text TEXT" is one paragraph that is not empty, all of them in
order; "\\t" in it is a tab, "\\v" a line break, "\\f" a page break. The other lines name a format
or a length and the text that has it, to the letter; what stands beside that text in its paragraph has
it not, but for lengths and what begins a paragraph. "picture NAME" is a file whose bytes are in it.
"""

from sources import CODE, SOURCES, Picture, Table

FORMATS = ("bold", "italic", "underline", "strike", "super", "sub", "size", "colour", "ground", "font")
LENGTHS = ("align", "left", "first", "right", "before", "after", "line", "tabs", "page", "list")

# What a maker's program writes no RTF for, or writes as something else: whole formats, or one value.
LACKS = {
    "libreoffice": (),
    "abiword": ("list", "page"),
    "pandoc": ("size", "colour", "ground", "font", *LENGTHS),
    "wordpad": ("ground", "line", "align justify"),
}


def escaped(text):
    return text.replace("\\", "\\\\").replace("\t", "\\t").replace("\n", "\\v")


def label(block, maker):
    """What stands before the text of a list's item."""
    kind = block.format.get("list")
    if kind is None:
        return ""
    if maker == "pandoc":
        return "\u2022\t" if kind == "bullet" else f"{block.format['item']}.\t"
    return "\t" if maker == "abiword" else ""


def rows(table, maker):
    for row in table.rows:
        if maker == "pandoc":  # a paragraph in each cell
            yield row[0]
            yield from ("\t" + cell for cell in row[1:])
        else:
            yield "\t".join(row)


def paragraph(block, maker):
    text = "".join("\ufffc" if isinstance(s, Picture) else s.text for s in block.spans)
    if maker == "pandoc":
        text = text.replace("\t", " ")
    lead = "\\f" if maker == "abiword" and block.format.get("page") else ""
    yield "text " + lead + escaped(label(block, maker) + text)
    lacks = LACKS[maker]
    for piece in block.spans:
        if isinstance(piece, Picture):
            yield f"picture {piece.name}"
            continue
        for name in FORMATS:
            if name in piece.format and name not in lacks:
                value = piece.format[name]
                if name == "size":
                    value = round(value * 2)
                if name == "font":
                    value = value.replace(" ", "_")
                yield f"{name} {'1' if value is True else value} {escaped(piece.text)}"
    if "heading" in block.format:
        yield f"bold 1 {escaped(text)}"
    for name in LENGTHS:
        if name in block.format and name not in lacks:
            value = block.format[name]
            if f"{name} {value}" in lacks:
                continue
            if name in ("left", "first", "right", "before", "after"):
                value *= 20
            if name == "tabs":
                value = ",".join(str(at * 20) for at in value)
            yield f"{name} {'1' if value is True else value} {escaped(text)}"


def lines(name, maker):
    if maker == "pygments":
        yield from ("text " + escaped(line) for line in CODE.splitlines())
        yield from ("bold 1 def", "bold 1 for", "bold 1 return")
        return
    for block in SOURCES[name]:
        if isinstance(block, Table):
            yield from ("text " + escaped(row) for row in rows(block, maker))
        else:
            yield from paragraph(block, maker)


def write(corpus):
    out = []
    for file in sorted(corpus.glob("*.rtf")):
        name, maker = file.name.split(".")[:2]
        out.append(f"file {file.name}")
        out.extend(lines(name, maker))
    (corpus / "expected.txt").write_text("\n".join(out) + "\n")


def read(corpus):
    """The paragraphs of each file, escapes undone."""
    texts = {}
    for line in (corpus / "expected.txt").read_text().splitlines():
        kind, _, rest = line.partition(" ")
        if kind == "file":
            file = texts.setdefault(rest, [])
        elif kind == "text":
            for escape, unit in (("\\t", "\t"), ("\\v", " "), ("\\f", " ")):
                rest = rest.replace(escape, unit)
            file.append(rest.replace("\\\\", "\\"))
    return texts
