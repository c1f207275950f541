"""Dravik, the product lettering: narrow and upright, with cut-off corners instead of
rounds, and with the breaks of a stencil where a counter would be closed."""

from strokes import LEFT, MIDDLE, RIGHT, Pen, line, notch, rectangle, ring

FAMILY = "Dravik"
CAP, XH, ASCENDER, DESCENDER = 720, 530, 760, -180
LINE_ASCENDER, LINE_DESCENDER, LINE_GAP = 920, -240, 0

V, H = 88, 80                  # the pen's width in stems and in bars
PEN = Pen(V, H, "chamfer")
FINE = Pen(68, 62, "chamfer")  # for crowded marks
v, h = V / 2, H / 2

# Side bearings by the kind of a glyph's side: straight, octagonal, open, slanting, narrow.
SIDES = {"s": 58, "r": 48, "o": 32, "d": 16, "n": 46}
SPACE = 220
FIGURE = 500                   # all figures have this advance
GAP = 34                       # the breaks of the stencil

T, B, M = CAP - h, h, 360      # middle of the top bar, of the bottom bar, of the waist
t, m = XH - h, XH / 2          # likewise for small letters
C, c = 84, 70                  # cuts of the corners of capitals and of small letters
W, w = 410, 366                # widths of a plain capital and of a plain small letter

GLYPHS = {}


def glyph(char, sides, *parts, cuts=(), advance=None, pen=PEN):
    GLYPHS[char] = dict(sides=sides, parts=parts, cuts=cuts, advance=advance, pen=pen)


slant = PEN.slant


def stem(x, bottom=0, top=CAP):
    return line((x, bottom), (x, top))


def bar(y, left, right):
    return line((left, y), (right, y))


def dot(x, y):
    return rectangle(x - 52, y, x + 52, y + 104, 24)


def octagon(left, right, bottom, top, cut):
    """A ring whose pen runs along these lines."""
    return ring((left, bottom, cut), (right, bottom, cut), (right, top, cut), (left, top, cut))


def gap(x, y):
    """A break in the bar at y, beginning at x."""
    return rectangle(x, y - H, x + GAP, y + H)


def tail():
    """The stroke of a comma."""
    return slant(RIGHT, 104, 104, LEFT, 0, -120)


def waist(side, upper, lower, y):
    return notch(side, upper, lower, y, 44, 0)


# Capitals

glyph("A", "ss", line((v, 0), (v, T, 110), (W - v, T, 110), (W - v, 0)), bar(250, v, W - v),
      cuts=[gap(V, 250)])
glyph("B", "sr", stem(v), line((v, T), (W - 8 - v, T, C), (W - 8 - v, M + 10, 62), (v, M + 10)),
      line((v, M + 10), (W + 4 - v, M + 10, 62), (W + 4 - v, B, C), (v, B)),
      cuts=[gap(V, B), waist(1, W - 8, W + 4, M + 10)])
glyph("C", "ro", line((W - 20, T), (v, T, C), (v, B, C), (W - 20, B)))
glyph("D", "sr", stem(v), line((v, T), (W - v, T, 110), (W - v, B, 110), (v, B)),
      cuts=[gap(V, B)])
glyph("E", "so", stem(v), bar(T, v, 360), bar(M + 10, v, 330), bar(B, v, 360))
glyph("F", "so", stem(v), bar(T, v, 355), bar(M - 10, v, 320))
glyph("G", "rs", line((W - 10, T), (v, T, C), (v, B, C), (W - v, B, C), (W - v, M), (220, M)))
glyph("H", "ss", stem(v), stem(W - v), bar(M + 10, v, W - v))
glyph("I", "ss", stem(v))
glyph("J", "os", line((0, B), (330 - v, B, C), (330 - v, CAP)))
glyph("K", "sd", stem(v), slant(MIDDLE, 70, 330, RIGHT, 410, CAP), slant(MIDDLE, 70, 400, RIGHT, 424, 0))
glyph("L", "so", stem(v), bar(B, v, 345))
glyph("M", "ss", line((v, 0), (v, T, C), (560 - v, T, C), (560 - v, 0)), stem(280, 250, T))
glyph("N", "ss", stem(v), stem(430 - v), slant(LEFT, 0, CAP, RIGHT, 430, 0))
glyph("O", "rr", octagon(v, W - v, B, T, C), cuts=[gap(W / 2 - GAP / 2, B)])
glyph("P", "sr", stem(v), line((v, T), (W - v, T, C), (W - v, 290, C), (v, 290)),
      cuts=[gap(V, 290)])
glyph("Q", "rr", octagon(v, W - v, B, T, C), stem(W / 2 + 40, -100, 170))
glyph("R", "ss", stem(v), line((v, T), (W - v, T, C), (W - v, 320, 62), (v, 320)),
      line((v, 320), (W - v, 320, 62), (W - v, 0)), cuts=[gap(V, 320), waist(1, W, W, 320)])
glyph("S", "oo", line((W - 26, T), (v, T, C), (v, M + 6, C), (W - v, M + 6, C), (W - v, B, C), (16, B)))
glyph("T", "oo", bar(T, 0, 400), stem(200))
glyph("U", "ss", line((v, CAP), (v, B, C), (W - v, B, C), (W - v, CAP)))
glyph("V", "rr", line((v, CAP), (v, 300), (210, 0)), line((420 - v, CAP), (420 - v, 300), (210, 0)))
glyph("W", "ss", line((v, CAP), (v, B, C), (580 - v, B, C), (580 - v, CAP)), stem(290, B, 470))
glyph("X", "dd", slant(LEFT, 0, 0, RIGHT, 424, CAP), slant(LEFT, 0, CAP, RIGHT, 424, 0))
glyph("Y", "ss", line((v, CAP), (v, 330, 110), (W - v, 330, 110), (W - v, CAP)), stem(W / 2, 0, 330))
glyph("Z", "oo", bar(T, 10, 380), bar(B, 0, 390), slant(LEFT, 0, 0, RIGHT, 380, CAP))

# Small letters

glyph("a", "os", line((20, t), (w - v, t, c), (w - v, 0)), line((w - v, 300), (v, 300, 60), (v, B, 60), (w - v, B)),
      cuts=[gap(w - V - GAP, B)])
glyph("b", "sr", stem(v, 0, ASCENDER), line((v, t), (w - v, t, c), (w - v, B, c), (v, B)),
      cuts=[gap(V, B)])
glyph("c", "ro", line((w - 30, t), (v, t, c), (v, B, c), (w - 30, B)))
glyph("d", "rs", stem(w - v, 0, ASCENDER), line((w - v, t), (v, t, c), (v, B, c), (w - v, B)),
      cuts=[gap(w - V - GAP, B)])
glyph("e", "ro", line((v, m - 4), (w - v, m - 4), (w - v, t, c), (v, t, c), (v, B, c), (w - 14, B)),
      cuts=[gap(V, m - 4)])
glyph("f", "oo", line((70 + v, 0), (70 + v, ASCENDER - h, c), (280, ASCENDER - h)), bar(t, 0, 260))
glyph("g", "rs", line((w - v, t), (v, t, c), (v, B, c), (w - v, B)),
      line((w - v, XH), (w - v, DESCENDER + h, c), (30, DESCENDER + h)),
      cuts=[gap(w - V - GAP, B)])
glyph("h", "ss", stem(v, 0, ASCENDER), line((v, t), (w - v, t, c), (w - v, 0)))
glyph("i", "ss", stem(52, 0, XH), dot(52, 626))
glyph("j", "os", line((-70, DESCENDER + h), (52, DESCENDER + h, 56), (52, XH)), dot(52, 626))
glyph("k", "sd", stem(v, 0, ASCENDER), slant(MIDDLE, 66, 220, RIGHT, 350, XH), slant(MIDDLE, 66, 310, RIGHT, 366, 0))
glyph("l", "so", line((v, ASCENDER), (v, B, 56), (172, B)))
glyph("m", "ss", stem(v, 0, XH), line((v, t), (570 - v, t, c), (570 - v, 0)), stem(285, 0, t))
glyph("n", "ss", stem(v, 0, XH), line((v, t), (w - v, t, c), (w - v, 0)))
glyph("o", "rr", octagon(v, w - v, B, t, c), cuts=[gap(w / 2 - GAP / 2, B)])
glyph("p", "sr", stem(v, DESCENDER, XH), line((v, t), (w - v, t, c), (w - v, B, c), (v, B)),
      cuts=[gap(V, B)])
glyph("q", "rs", stem(w - v, DESCENDER, XH), line((w - v, t), (v, t, c), (v, B, c), (w - v, B)),
      cuts=[gap(w - V - GAP, B)])
glyph("r", "so", stem(v, 0, XH), bar(t, v, 262))
glyph("s", "oo", line((w - 34, t), (v, t, 60), (v, m, 60), (w - 10 - v, m, 60), (w - 10 - v, B, 60), (14, B)))
glyph("t", "oo", line((70 + v, 680), (70 + v, B, c), (276, B)), bar(t, 0, 262))
glyph("u", "ss", line((v, XH), (v, B, c), (w - v, B)), stem(w - v, 0, XH))
glyph("v", "rr", line((v, XH), (v, 230), (w / 2, 0)), line((w - v, XH), (w - v, 230), (w / 2, 0)))
glyph("w", "ss", line((v, XH), (v, B, c), (540 - v, B, c), (540 - v, XH)), stem(270, B, 400))
glyph("x", "dd", slant(LEFT, 0, 0, RIGHT, 370, XH), slant(LEFT, 0, XH, RIGHT, 370, 0))
glyph("y", "ss", line((v, XH), (v, B, c), (w - v, B)), line((w - v, XH), (w - v, DESCENDER + h, c), (40, DESCENDER + h)))
glyph("z", "oo", bar(t, 8, 332), bar(B, 0, 340), slant(LEFT, 0, 0, RIGHT, 332, XH))

# Figures

def figure(char, *parts, cuts=()):
    glyph(char, "", *parts, cuts=cuts, advance=FIGURE)


F = 400                        # width of a figure
figure("0", octagon(v, F - v, B, T, C), slant(MIDDLE, 140, 230, MIDDLE, 260, 490))
figure("1", stem(210), slant(LEFT, 20, 540, RIGHT, 210 + v, CAP))
figure("2", line((14, T), (F - v, T, C), (F - v, M + 10, C), (v, M + 10, C), (v, B), (F, B)))
figure("3", line((10, T), (F - v, T, C), (F - v, M + 6, 62), (110, M + 6)),
       line((110, M + 6), (F - v, M + 6, 62), (F - v, B, C), (0, B)), cuts=[waist(1, F, F, M + 6)])
figure("4", line((v, CAP), (v, 200), (F + 20, 200)), stem(F - 60 - v, 0, 470))
figure("5", line((F - 20, T), (v, T), (v, M + 50), (F - v, M + 50, C), (F - v, B, C), (0, B)))
figure("6", line((F - 36, T), (v, T, C), (v, B, C), (F - v, B, C), (F - v, M + 50, C), (v, M + 50)),
      cuts=[gap(V, M + 50)])
figure("7", line((0, T), (F - v, T), (F - v, 520), (170, 250), (170, 0)))
figure("8", octagon(v, F - v, M + 6, T, C), octagon(v, F - v, B, M + 6, C),
       cuts=[waist(1, F, F, M + 6), waist(-1, 0, 0, M + 6)])
figure("9", line((36, B), (F - v, B, C), (F - v, T, C), (v, T, C), (v, M - 50, C), (F - v, M - 50)),
       cuts=[gap(F - V - GAP, M - 50)])

# Marks

glyph(".", "nn", dot(52, 0))
glyph(",", "nn", tail())
glyph(":", "nn", dot(52, 0), dot(52, 370))
glyph(";", "nn", tail(), dot(52, 370))
glyph("!", "ss", dot(52, 0), stem(52, 200))
glyph("?", "oo", dot(180, 0), line((0, T), (350 - v, T, C), (350 - v, M + 20, C), (180, M + 20), (180, 200)))
glyph("-", "oo", bar(300, 0, 220))
glyph("–", "oo", bar(300, 0, 360))
glyph("—", "oo", bar(300, 0, 680))
glyph("_", "", bar(-90, 0, 440), advance=440)
glyph("(", "so", line((190, 800), (v, 800, C), (v, -80, C), (190, -80)))
glyph(")", "os", line((0, 800), (190 - v, 800, C), (190 - v, -80, C), (0, -80)))
glyph("[", "so", line((180, 800), (v, 800), (v, -80), (180, -80)))
glyph("]", "os", line((0, 800), (180 - v, 800), (180 - v, -80), (0, -80)))
glyph("/", "dd", slant(LEFT, 0, -80, RIGHT, 330, 800))
glyph("\\", "dd", slant(LEFT, 0, 800, RIGHT, 330, -80))
glyph("'", "nn", stem(v, 490))
glyph('"', "nn", stem(v, 490), stem(v + 160, 490))
glyph("+", "oo", bar(310, 0, 380), stem(190, 120, 500))
glyph("=", "oo", bar(400, 0, 380), bar(220, 0, 380))
glyph("<", "oo", line((350, 530), (60, 310), (350, 90), square=True))
glyph(">", "oo", line((0, 530), (290, 310), (0, 90), square=True))
glyph("*", "nn", line((170, 390), (170, 740)), line((18, 478), (322, 652), square=True),
      line((18, 652), (322, 478), square=True), pen=FINE)
glyph("#", "oo", slant(LEFT, 70, 0, MIDDLE, 180, CAP), slant(LEFT, 250, 0, MIDDLE, 360, CAP),
      bar(480, 20, 480), bar(240, 0, 460), pen=FINE)
glyph("%", "rr", octagon(34, 216, 410, CAP - 31, 60), octagon(404, 586, 31, 310, 60),
      slant(LEFT, 100, 0, RIGHT, 520, CAP), pen=FINE)
glyph("&", "ro", line((360, T), (v + 12, T, C), (v + 12, M + 6, C), (460, M + 6)),
      line((460, M + 6), (v, M + 6, C), (v, B, C), (400 - v, B, C), (400 - v, M + 120)),
      cuts=[waist(-1, 12, 0, M + 6)])
glyph("@", "rr", line((560, -60), (34, -60, 130), (34, 689, 130), (646, 689, 130), (646, 140, 60), (466, 140)),
      line((466, 520), (466, 140)), line((466, 489), (204, 489, 70), (204, 140, 70), (466, 140)), pen=FINE)
glyph("°", "rr", octagon(34, 226, 480, CAP - 31, 70), pen=FINE)
glyph("µ", "ss", stem(v, DESCENDER, XH), line((v, B), (w - v, B)), stem(w - v, 0, XH))

# Pairs that stand too far apart by their sides alone

KERNING = [
    ("L", "T V Y", -50), ("F P T", ". ,", -60), ("F P", "A", -24), ("V Y v", ". ,", -40), ("r", ". ,", -40),
    ("T", "a c d e g m n o p q r s u v w x y z", -40), ("K X", "C G O Q c d e o q", -20), ("A", "T", -24),
    ("V", "A", -20), ("A", "V", -20),
]
