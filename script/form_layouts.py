"""Draws the layouts of the printed forms from their text. What the signs that begin a line mean is
told in docs/layout-files.md. Lengths are millimetres."""

import re

from layout_svg import FONT, PAPER_HEIGHT, PAPER_WIDTH, caption, element, group, rule, sheet

LEFT, WIDTH = 20, 170
RIGHT = LEFT + WIDTH
BOTTOM = PAPER_HEIGHT - 12

INK, QUIET, WASH = "#000000", "#4a5960", "#e8eded"
BODY = 3.6  # size of the letters of a text
LINE = 1.42  # distance of its lines, in letters
BLANK = "_" * 14  # written where the register has nothing
BOX, LABEL, VALUE = 9, 2.35, 3.4
SIGN_GAP = 15  # kept free above the line of a signature
CHOICE = "(\u00a0\u00a0\u00a0)"  # to be marked with a cross
DATE_BLANK = "____ de ____________________ de ________"

# Widths of Liberation Sans, in thousandths of the letter's size.
NARROW = {**dict.fromkeys(" .,:;/I!ftº", 278), **dict.fromkeys("ijl'|", 222),
          **dict.fromkeys("r-()ª", 333), **dict.fromkeys("cksvxyzJç", 500),
          **dict.fromkeys("FTZz", 611), **dict.fromkeys("CDHNRUwÇ", 722),
          **dict.fromkeys("GOQÓÔÕ", 778), **dict.fromkeys("MmW%", 870),
          **dict.fromkeys("ABEKPSVXYÁÂÃÀÉÊ", 667)}
OTHER = 556
BOLD = 1.07  # wider by so much

# As long as the register lets a value be, in capital letters.
LONGEST = {"razao": 46, "nome": 26, "sede": 72, "residencia": 72, "funcao": 18, "cnpj": 18, "cpf": 14,
           "ctps": 14, "rg": 13, "pis": 11, "admissao": 10, "nascimento": 10, "salario": 8,
           "banco": 30, "local": 18, "hoje": 24, "mes": 13, "periodo": 23, "descanso": 13,
           "cbo": 6, "telefone_empresa": 14, "proprietario": 26}

EMPLOYEE = [("Empregado(a)={nome} 82", "Função={funcao} 58", "Registro nº={registro} 30"),
            ("CPF={cpf} 42", "CTPS={ctps} 46", "PIS={pis} 42", "Admissão={admissao} 40")]


def width_of(text, size, bold=False):
    return sum(NARROW.get(c, OTHER) for c in text) / 1000 * size * (BOLD if bold else 1)


def longest(text):
    return re.sub(r"\{(\w+)\}", lambda word: "N" * LONGEST[word[1]], text)


def lines_of(text, width, size):
    """How many lines the text fills, its paragraphs half a line apart."""
    total = -0.5
    for paragraph in longest(text).split("\n"):
        total += 1.5
        used = 0
        for word in paragraph.split():
            needed = width_of(word, size)
            if used and used + width_of(" ", size) + needed > width:
                total += 1
                used = needed
            else:
                used += needed + (width_of(" ", size) if used else 0)
    return total


class Form:
    """A form while it is drawn, from the top down."""

    def __init__(self, key, title):
        self.key, self.title = key, title
        self.law = ""
        self.size, self.line, self.gap = BODY, LINE, SIGN_GAP
        self.width = WIDTH
        self.y = 0
        self.body = []
        self.paragraphs = []

    def add(self, *lines):
        self.body += lines

    def write(self, x, y, text, width, **attributes):
        """A line with words of the register in it."""
        words = {"data_template": text} if "{" in text else {}
        return element("text", text, x=x, y=y, data_width=width, **attributes, **words)

    def head(self):
        fitted = min(5.2, 5.2 * (WIDTH - 2) / width_of(self.title, 5.2, bold=True))
        self.add(
            self.write(LEFT, 18.5, "{razao}", 150, font_size=4.2, font_weight="bold"),
            self.write(LEFT, 23, "CNPJ/CPF {cnpj}", 150, font_size=2.7, fill=QUIET),
            self.write(LEFT, 26.7, "{sede}", WIDTH, font_size=2.7, fill=QUIET),
            caption(RIGHT, 18.5, self.key[:5], font_size=2.7, fill=QUIET, text_anchor="end"),
            element("rect", x=LEFT, y=29, width=WIDTH, height=0.8, fill=QUIET),
            caption(PAPER_WIDTH / 2, 39, self.title, font_size=fitted, font_weight="bold",
                    text_anchor="middle"))
        self.y = 43.5
        if self.law:
            self.add(self.write(PAPER_WIDTH / 2, 44, self.law, WIDTH, font_size=2.7, fill=QUIET,
                                text_anchor="middle"))
            self.y = 48

    def flush(self):
        """The paragraphs met so far, as one text."""
        if not self.paragraphs:
            return
        text = "\n".join(self.paragraphs).replace("(   )", CHOICE)
        self.paragraphs = []
        pitch = self.size * self.line
        lines = int(lines_of(text, WIDTH, self.size) + 0.99)
        self.y += 2
        self.add(element("text", text, x=LEFT, y=self.y + self.size, font_size=self.size,
                         inline_size=WIDTH, line_height=self.line, text_align="justify",
                         data_lines=lines, data_blank=BLANK, data_template=text))
        self.y += lines * pitch + 1.5

    def heading(self, text):
        self.y += 2
        self.add(element("rect", x=LEFT, y=self.y, width=WIDTH, height=5, fill=WASH),
                 caption(LEFT + 1.5, self.y + 3.6, text, font_size=2.9, font_weight="bold"))
        self.y += 6.2

    def cells(self, items):
        """(label, template, left edge, width) of boxes whose widths are shares of the row."""
        found = [re.fullmatch(r"(.*?)(?:=(.*))? (\d+)", item.strip()).groups() for item in items]
        scale = self.width / sum(int(width) for _, _, width in found)
        x = LEFT
        for label, template, width in found:
            yield label, template, x, int(width) * scale
            x += int(width) * scale

    def boxes(self, items):
        for label, template, x, width in self.cells(items):
            self.add(element("rect", x=x, y=self.y, width=width, height=BOX, fill="none",
                             stroke=QUIET, stroke_width="0.2"),
                     element("text", label, x=x + 1.2, y=self.y + 2.9, font_size=LABEL, fill=QUIET,
                             data_width=width - 2.4))
            if template:
                self.add(self.write(x + 1.2, self.y + 7.3, template, width - 2.4, font_size=VALUE))
        self.y += BOX

    def employee(self):
        for row in EMPLOYEE:
            self.boxes(row)
        self.y += 2

    def ticks(self, items):
        step = WIDTH / max(2, len(items))
        room = WIDTH if len(items) == 1 else step
        for place, item in enumerate(items):
            x = LEFT + place * step
            self.add(element("rect", x=x, y=self.y + 0.7, width=3, height=3, fill="none",
                             stroke=INK, stroke_width="0.25"),
                     self.write(x + 4.5, self.y + 3.4, item.strip(), room - 6, font_size=3.2))
        self.y += 5.6

    def rules(self, count):
        for _ in range(count):
            self.y += 7.4
            self.add(rule(LEFT, self.y, RIGHT, self.y, stroke=QUIET, stroke_width="0.2"))
        self.y += 3

    def table(self, rows, pitch, items):
        cells = list(self.cells(items))
        head = 6
        self.add(element("rect", x=LEFT, y=self.y, width=WIDTH, height=head, fill=WASH))
        for label, _, x, width in cells:
            self.add(element("text", label, x=x + width / 2, y=self.y + 4, font_size=2.6,
                             font_weight="bold", text_anchor="middle", data_width=width - 1.4))
        top = self.y + head
        values = [self.write(x + 1.5, top + pitch / 2 + 1.1, template, width - 3, font_size=3.1)
                  for _, template, x, width in cells if template]
        bottom = top + rows * pitch
        if values:
            self.add(*group(values, data_rows=rows, data_pitch=pitch))
        lines = [rule(LEFT, top + row * pitch, RIGHT, top + row * pitch) for row in range(rows)]
        lines += [rule(x, self.y, x, bottom) for _, _, x, _ in cells[1:]]
        lines.append(element("rect", x=LEFT, y=self.y, width=WIDTH, height=bottom - self.y,
                             fill="none"))
        self.add(*group(lines, stroke=QUIET, stroke_width="0.2"))
        self.y = bottom + 1.5

    def date(self, is_blank):
        self.y += 6
        place = "{local}, " + (DATE_BLANK if is_blank else "{hoje}") + "."
        self.add(self.write(RIGHT, self.y, place, WIDTH, font_size=3.5, text_anchor="end",
                            data_blank=BLANK))
        self.y += 1

    def signatures(self, items):
        self.y += self.gap
        places = max(2, len(items))
        space = 12
        width = (WIDTH - (places - 1) * space) / places
        left = LEFT if len(items) > 1 else (PAPER_WIDTH - width) / 2
        for place, item in enumerate(items):
            role, _, name = item.strip().partition("=")
            x = left + place * (width + space)
            middle = x + width / 2
            self.add(rule(x, self.y, x + width, self.y, stroke=INK, stroke_width="0.25"))
            y = self.y + 3.6
            if name:
                self.add(self.write(middle, y, name, width, font_size=3, text_anchor="middle"))
                y += 3.5
            self.add(self.write(middle, y, role, width, font_size=2.6, fill=QUIET,
                                text_anchor="middle"))
        self.y += 8

    def note(self, text):
        size = 2.7
        lines = int(lines_of(text, WIDTH, size) + 0.99)
        self.y += 2
        self.add(element("text", text, x=LEFT, y=self.y + size, font_size=size, fill=QUIET,
                         inline_size=WIDTH, line_height=1.35, data_lines=lines))
        self.y += lines * size * 1.35 + 1

    def photo(self):
        """The place of a photograph at the right of the boxes that follow."""
        self.width = WIDTH - 34
        self.add(element("rect", x=RIGHT - 30, y=self.y, width=30, height=4 * BOX, fill="none",
                         stroke=QUIET, stroke_width="0.2"),
                 caption(RIGHT - 15, self.y + 2 * BOX, "Foto 3 x 4", font_size=LABEL, fill=QUIET,
                         text_anchor="middle"))

    def take(self, line):
        """A line of the form's text."""
        sign, _, rest = line.partition(" ")
        if sign in ("law", "size", "line", "gap"):
            setattr(self, sign, rest if sign == "law" else float(rest))
            return
        if self.y == 0:
            self.head()
        signs = {
            "@empregado": self.employee,
            "###": lambda: self.heading(rest),
            "|": lambda: self.boxes(rest.split(" | ")),
            "[]": lambda: self.ticks(rest.split(" | ")),
            "___": lambda: self.rules(int(rest)),
            "~": lambda: self.date(False),
            "~blank": lambda: self.date(True),
            "^": lambda: self.signatures(rest.split(" | ")),
            ".": lambda: self.note(rest),
            "photo": self.photo,
            "endphoto": lambda: setattr(self, "width", WIDTH),
        }
        if sign == "%":
            shape, columns = rest.split(" : ")
            rows, pitch = shape.split()
            self.flush()
            self.table(int(rows), float(pitch), columns.split(" | "))
        elif sign in signs:
            self.flush()
            signs[sign]()
        else:
            self.paragraphs.append(line)

    def text(self):
        self.flush()
        if self.y > BOTTOM:
            raise SystemExit(f"{self.key}: {self.y - BOTTOM:.1f} mm too long")
        body = group(self.body, font_family=FONT, font_size=BODY, fill=INK)
        return sheet(self.title, "Formulário em folha A4.", body, data_pitch=5)


def form_layouts(source):
    """The layout files of the forms in `source`, by name."""
    forms = []
    for line in source.read_text(encoding="utf-8").splitlines():
        if line.startswith("## "):
            forms.append(Form(*line[3:].split(" ", 1)))
        elif line and forms:
            forms[-1].take(line)
    return {f"{form.key}.RPT": form.text() for form in forms}
