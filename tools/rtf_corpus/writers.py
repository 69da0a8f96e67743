"""Writes a document of the corpus in the forms that the makers' programs read."""

import base64
from xml.sax.saxutils import escape, quoteattr

from sources import Picture, Table

PICTURE_POINTS = 24  # the side that pictures are shown at


def mime(name):
    return "image/png" if name.endswith(".png") else "image/jpeg"


# --- flat OpenDocument


def odf_text(text):
    parts = escape(text).replace("\t", "<text:tab/>").replace("\n", "<text:line-break/>")
    return parts


ODF_SPAN = {
    "bold": lambda v: 'fo:font-weight="bold" style:font-weight-complex="bold"',
    "italic": lambda v: 'fo:font-style="italic"',
    "underline": lambda v: 'style:text-underline-style="solid" style:text-underline-width="auto" '
    'style:text-underline-color="font-color"',
    "strike": lambda v: 'style:text-line-through-style="solid"',
    "super": lambda v: 'style:text-position="super 58%"',
    "sub": lambda v: 'style:text-position="sub 58%"',
    "size": lambda v: f'fo:font-size="{v}pt"',
    "colour": lambda v: f'fo:color="#{v}"',
    "ground": lambda v: f'fo:background-color="#{v}"',
    "font": lambda v: f'fo:font-family="{v}"',
}
ODF_PARAGRAPH = {
    "align": lambda v: f'fo:text-align="{ {"right": "end"}.get(v, v) }"',
    "left": lambda v: f'fo:margin-left="{v}pt"',
    "right": lambda v: f'fo:margin-right="{v}pt"',
    "first": lambda v: f'fo:text-indent="{v}pt"',
    "before": lambda v: f'fo:margin-top="{v}pt"',
    "after": lambda v: f'fo:margin-bottom="{v}pt"',
    "line": lambda v: f'fo:line-height="{v}%"',
    "page": lambda v: 'fo:break-before="page"',
}
ODF_HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
 xmlns:xlink="http://www.w3.org/1999/xlink"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.text">
"""
ODF_LISTS = """<text:list-style style:name="bullet"><text:list-level-style-bullet text:level="1"
 text:bullet-char="&#8226;"><style:list-level-properties text:space-before="18pt"
 text:min-label-width="18pt"/></text:list-level-style-bullet></text:list-style>
<text:list-style style:name="number"><text:list-level-style-number text:level="1"
 style:num-format="1" style:num-suffix="."><style:list-level-properties text:space-before="18pt"
 text:min-label-width="18pt"/></text:list-level-style-number></text:list-style>"""


class Odf:
    def __init__(self, folder):
        self.folder = folder
        self.styles = []

    def style(self, family, properties):
        name = f"{family[0]}{len(self.styles)}"
        self.styles.append(f'<style:style style:name="{name}" style:family="{family}">{properties}</style:style>')
        return name

    def piece(self, piece):
        if isinstance(piece, Picture):
            data = base64.b64encode((self.folder / piece.name).read_bytes()).decode()
            return (
                f'<draw:frame text:anchor-type="as-char" svg:width="{PICTURE_POINTS}pt" '
                f'svg:height="{PICTURE_POINTS}pt"><draw:image><office:binary-data>{data}'
                "</office:binary-data></draw:image></draw:frame>"
            )
        text = odf_text(piece.text)
        words = [ODF_SPAN[k](v) for k, v in piece.format.items() if k in ODF_SPAN]
        if words:
            name = self.style("text", f'<style:text-properties {" ".join(words)}/>')
            text = f'<text:span text:style-name="{name}">{text}</text:span>'
        if "link" in piece.format:
            text = f'<text:a xlink:type="simple" xlink:href={quoteattr(piece.format["link"])}>{text}</text:a>'
        return text

    def paragraph(self, p):
        words = [ODF_PARAGRAPH[k](v) for k, v in p.format.items() if k in ODF_PARAGRAPH]
        tabs = "".join(f'<style:tab-stop style:position="{at}pt"/>' for at in p.format.get("tabs", []))
        inner = f"<style:tab-stops>{tabs}</style:tab-stops>" if tabs else ""
        name = self.style(
            "paragraph", f'<style:paragraph-properties {" ".join(words)}>{inner}</style:paragraph-properties>'
        )
        body = "".join(self.piece(piece) for piece in p.spans)
        level = p.format.get("heading")
        if level:
            name_of = self.style("text", f'<style:text-properties fo:font-weight="bold" fo:font-size="{20 - level * 2}pt"/>')
            body = f'<text:span text:style-name="{name_of}">{body}</text:span>'
        tag, extra = ("text:h", f' text:outline-level="{level}"') if level else ("text:p", "")
        text = f'<{tag} text:style-name="{name}"{extra}>{body}</{tag}>'
        if "list" not in p.format:
            return text
        kind, item = p.format["list"], p.format["item"]
        go_on = ' text:continue-numbering="true"' if item > 1 else ""
        return f'<text:list text:style-name="{kind}"{go_on}><text:list-item>{text}</text:list-item></text:list>'

    def table(self, table):
        rows = "".join(
            "<table:table-row>"
            + "".join(f"<table:table-cell><text:p>{odf_text(c)}</text:p></table:table-cell>" for c in row)
            + "</table:table-row>"
            for row in table.rows
        )
        columns = f'<table:table-column table:number-columns-repeated="{len(table.rows[0])}"/>'
        return f"<table:table>{columns}{rows}</table:table>"

    def write(self, blocks):
        body = "".join(self.table(b) if isinstance(b, Table) else self.paragraph(b) for b in blocks)
        return (
            f"{ODF_HEAD}<office:automatic-styles>{ODF_LISTS}{''.join(self.styles)}</office:automatic-styles>"
            f"<office:body><office:text>{body}</office:text></office:body></office:document>"
        )


# --- AbiWord's own form

ABI_SPAN = {
    "bold": lambda v: "font-weight:bold",
    "italic": lambda v: "font-style:italic",
    "super": lambda v: "text-position:superscript",
    "sub": lambda v: "text-position:subscript",
    "size": lambda v: f"font-size:{v}pt",
    "colour": lambda v: f"color:{v.lower()}",
    "ground": lambda v: f"bgcolor:{v.lower()}",
    "font": lambda v: f"font-family:{v}",
}
ABI_PARAGRAPH = {
    "align": lambda v: f"text-align:{v}",
    "left": lambda v: f"margin-left:{v}pt",
    "right": lambda v: f"margin-right:{v}pt",
    "first": lambda v: f"text-indent:{v}pt",
    "before": lambda v: f"margin-top:{v}pt",
    "after": lambda v: f"margin-bottom:{v}pt",
    "line": lambda v: f"line-height:{v / 100}",
    "tabs": lambda v: "tabstops:" + ",".join(f"{at / 72:.4f}in/L0" for at in v),
}
ABI_LIST = {
    "bullet": ("1001", "list-style:Bullet List; margin-left:0.5in; text-indent:-0.25in; field-font:Symbol"),
    "number": ("1002", "list-style:Numbered List; margin-left:0.5in; text-indent:-0.25in"),
}


class Abi:
    def __init__(self, folder):
        self.folder = folder
        self.pictures = {}

    def piece(self, piece):
        if isinstance(piece, Picture):
            self.pictures[piece.name] = base64.b64encode((self.folder / piece.name).read_bytes()).decode()
            side = f"{PICTURE_POINTS / 72:.4f}in"
            return f'<image dataid="{piece.name}" props="width:{side}; height:{side}"/>'
        text = escape(piece.text).replace("\n", "<br/>")
        words = [ABI_SPAN[k](v) for k, v in piece.format.items() if k in ABI_SPAN]
        lines = [w for k, w in (("underline", "underline"), ("strike", "line-through")) if k in piece.format]
        if lines:
            words.append("text-decoration:" + " ".join(lines))
        if words:
            text = f'<c props="{"; ".join(words)}">{text}</c>'
        if "link" in piece.format:
            text = f'<a xlink:href={quoteattr(piece.format["link"])}>{text}</a>'
        return text

    def paragraph(self, p):
        words = [ABI_PARAGRAPH[k](v) for k, v in p.format.items() if k in ABI_PARAGRAPH]
        body = "".join(self.piece(piece) for piece in p.spans)
        if p.format.get("page"):
            body = "<pbr/>" + body
        extra = ""
        if "list" in p.format:
            number, props = ABI_LIST[p.format["list"]]
            extra = f' level="1" listid="{number}" parentid="0"'
            words.append(props)
            body = '<field type="list_label"></field><c>\t</c>' + body
        level = p.format.get("heading")
        style = f"Heading {level}" if level else "Normal"
        return f'<p style="{style}"{extra} props="{"; ".join(words)}">{body}</p>'

    def table(self, table):
        cells = ""
        for y, row in enumerate(table.rows):
            for x, text in enumerate(row):
                props = f"left-attach:{x}; right-attach:{x + 1}; top-attach:{y}; bot-attach:{y + 1}"
                cells += f'<cell props="{props}"><p style="Normal">{escape(text)}</p></cell>'
        return f"<table>{cells}</table>"

    def write(self, blocks):
        body = "".join(self.table(b) if isinstance(b, Table) else self.paragraph(b) for b in blocks)
        data = "".join(
            f'<d name="{name}" mime-type="{mime(name)}" base64="yes">{text}</d>' for name, text in self.pictures.items()
        )
        return (
            '<?xml version="1.0" encoding="UTF-8"?>\n<abiword xmlns="http://www.abisource.com/awml.dtd" xmlns:xlink="http://www.w3.org/1999/xlink" '
            'template="false" fileformat="1.1"><lists>'
            '<l id="1001" parentid="0" type="5" start-value="0" list-delim="%L" list-decimal="NULL"/>'
            '<l id="1002" parentid="0" type="0" start-value="1" list-delim="%L." list-decimal="."/></lists>'
            f"<section>{body}</section><data>{data}</data></abiword>"
        )


# --- HTML, which pandoc and LibreOffice read

HTML_SPAN = {"bold": "b", "italic": "i", "underline": "u", "strike": "s", "super": "sup", "sub": "sub"}
HTML_STYLE = {
    "size": lambda v: f"font-size:{v}pt",
    "colour": lambda v: f"color:#{v}",
    "ground": lambda v: f"background:#{v}",
    "font": lambda v: f"font-family:{v}",
    "align": lambda v: f"text-align:{v}",
    "left": lambda v: f"margin-left:{v}pt",
    "right": lambda v: f"margin-right:{v}pt",
    "first": lambda v: f"text-indent:{v}pt",
    "before": lambda v: f"margin-top:{v}pt",
    "after": lambda v: f"margin-bottom:{v}pt",
    "line": lambda v: f"line-height:{v}%",
    "page": lambda v: "page-break-before:always",
}


def html_style(formats):
    words = [HTML_STYLE[k](v) for k, v in formats.items() if k in HTML_STYLE]
    return f' style="{"; ".join(words)}"' if words else ""


def html_piece(piece):
    if isinstance(piece, Picture):
        return f'<img src="{piece.name}" width="32" height="32">'
    text = escape(piece.text).replace("\n", "<br>")
    style = html_style(piece.format)
    if style:
        text = f"<span{style}>{text}</span>"
    for key, tag in HTML_SPAN.items():
        if key in piece.format:
            text = f"<{tag}>{text}</{tag}>"
    if "link" in piece.format:
        text = f'<a href={quoteattr(piece.format["link"])}>{text}</a>'
    return text


def html(blocks):
    body = ""
    inside = None
    for block in blocks:
        kind = None if isinstance(block, Table) else block.format.get("list")
        if kind != inside:
            body += {None: "", "bullet": "</ul>", "number": "</ol>"}[inside]
            body += {None: "", "bullet": "<ul>", "number": "<ol>"}[kind]
            inside = kind
        if isinstance(block, Table):
            rows = ("".join(f"<td>{escape(c)}</td>" for c in row) for row in block.rows)
            body += f'<table>{"".join(f"<tr>{row}</tr>" for row in rows)}</table>'
            continue
        level = block.format.get("heading")
        tag = "li" if kind else f"h{level}" if level else "p"
        body += f"<{tag}{html_style(block.format)}>{''.join(map(html_piece, block.spans))}</{tag}>\n"
    return f'<!DOCTYPE html><html><head><meta charset="utf-8"></head><body>{body}</body></html>'
