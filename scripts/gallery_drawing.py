"""SVG as the gallery writes it: short numbers, nothing that changes from run to run."""

INK = "#1b1f24"
PAPER = "#ffffff"
BAR = "#e3e6ea"
TRAVEL = "#9aa3ad"


def number(value):
    text = f"{value:.3f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def element(name, content=None, **attributes):
    written = "".join(f' {key.replace("_", "-")}="{value if isinstance(value, str) else number(value)}"'
                      for key, value in attributes.items())
    return f"<{name}{written}/>" if content is None else f"<{name}{written}>{content}</{name}>"


class Drawing:
    """An SVG in pixels, with a place for the host's coordinates: scale pixels a unit, y upwards from the base line."""

    def __init__(self, width, height, title, scale=1.0, left=0.0, base=0.0):
        self.width, self.height, self.scale, self.left, self.base = width, height, scale, left, base
        self.parts = [element("title", title), element("rect", width=width, height=height, fill=PAPER)]

    def x(self, value):
        return self.left + value * self.scale

    def y(self, value):
        return self.base - value * self.scale

    def add(self, name, content=None, **attributes):
        self.parts.append(element(name, content, **attributes))

    def text(self, x, y, words, size=13, anchor="start", fill=INK, weight="normal"):
        self.add("text", words, x=x, y=y, font_size=size, text_anchor=anchor, fill=fill, font_weight=weight)

    def bar(self, left, right, height, fill=BAR):
        self.add("rect", x=self.x(left), y=self.y(height), width=(right - left) * self.scale, height=height * self.scale,
                 fill=fill)

    def lines(self, strokes, width, colour=INK, cap="butt"):
        path = "".join(f"M{number(self.x(xa))} {number(self.y(ya))}L{number(self.x(xb))} {number(self.y(yb))}"
                       for xa, ya, xb, yb in strokes)
        self.add("path", d=path, stroke=colour, stroke_width=width, stroke_linecap=cap)

    def svg(self):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(self.width)}" height="{number(self.height)}" '
                f'viewBox="0 0 {number(self.width)} {number(self.height)}" '
                'font-family="DejaVu Sans, Verdana, sans-serif">')
        return "\n".join([head, *self.parts, "</svg>", ""])


def order_colour(index, count):
    """From blue, the first stroke, to red, the last."""
    share = index / (count - 1) if count > 1 else 0
    first, last = (0x1F, 0x5F, 0xBF), (0xC6, 0x2F, 0x2F)
    return "#" + "".join(f"{round(a + (b - a) * share):02x}" for a, b in zip(first, last))


def add_stroke(drawing, stroke, colour, width=2.5, head=9):
    """A stroke with the head of an arrow at its end."""
    xa, ya, xb, yb = drawing.x(stroke[0]), drawing.y(stroke[1]), drawing.x(stroke[2]), drawing.y(stroke[3])
    length = max(abs(xb - xa), abs(yb - ya))
    dx, dy = (xb - xa) / length, (yb - ya) / length
    bx, by = xb - head * dx, yb - head * dy
    drawing.add("path", d=f"M{number(xa)} {number(ya)}L{number(bx)} {number(by)}", stroke=colour, stroke_width=width)
    drawing.add("path", fill=colour, d=f"M{number(xb)} {number(yb)}L{number(bx - head / 2 * dy)} {number(by + head / 2 * dx)}"
                                       f"L{number(bx + head / 2 * dy)} {number(by - head / 2 * dx)}Z")


def add_disc(drawing, x, y, words, colour):
    drawing.add("circle", cx=drawing.x(x), cy=drawing.y(y), r=8.5, fill=colour)
    drawing.text(drawing.x(x), drawing.y(y) + 3.5, words, size=10, anchor="middle", fill=PAPER, weight="bold")
