"""The elements of a layout file, for the scripts that draw them."""

from xml.sax.saxutils import escape, quoteattr

FONT = "Liberation Sans, Arial, sans-serif"
PAPER_WIDTH, PAPER_HEIGHT = 210, 297


def number(value):
    return f"{value:.3f}".rstrip("0").rstrip(".")


def element(name, content=None, **attributes):
    """<name attribute="…">content</name>; "_" in an attribute's name stands for "-"."""
    text = f"<{name}"
    for key, value in attributes.items():
        shown = value if isinstance(value, str) else number(value)
        text += f" {key.replace('_', '-')}={quoteattr(shown)}"
    return text + ("/>" if content is None else f">{escape(content)}</{name}>")


def group(lines, **attributes):
    opening = element("g", **attributes).removesuffix("/>") + ">"
    return [opening, *("  " + line for line in lines), "</g>"]


def rule(x1, y1, x2, y2, **attributes):
    return element("line", x1=x1, y1=y1, x2=x2, y2=y2, **attributes)


def caption(x, y, text, **attributes):
    return element("text", text, x=x, y=y, **attributes)


def sheet(title, description, body, **attributes):
    """A layout file of an A4 sheet, whose unit is the millimetre."""
    root = element("svg", xmlns="http://www.w3.org/2000/svg", width=f"{PAPER_WIDTH}mm",
                   height=f"{PAPER_HEIGHT}mm", viewBox=f"0 0 {PAPER_WIDTH} {PAPER_HEIGHT}",
                   **attributes)
    return "\n".join(line.rstrip() for line in [
        '<?xml version="1.0" encoding="UTF-8"?>',
        root.removesuffix("/>") + ">",
        f"  <title>{escape(title)}</title>",
        f"  <desc>{escape(description)}</desc>",
        *("  " + line for line in body),
        "</svg>", ""])
