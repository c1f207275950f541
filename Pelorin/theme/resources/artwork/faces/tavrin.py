"""Tavrin, the maker's lettering: wide, of even weight, with full squarish rounds,
open arms and slightly softened ends."""

from strokes import LEFT, MIDDLE, RIGHT, Pen, line, notch, rectangle, ring

FAMILY = "Tavrin"
CAP, XH, ASCENDER, DESCENDER = 700, 510, 740, -190
LINE_ASCENDER, LINE_DESCENDER, LINE_GAP = 930, -270, 0

V, H = 94, 86                  # the pen's width in stems and in bars
PEN = Pen(V, H, "round", edge=12, fullness=1.1)
FINE = Pen(76, 70, "round", edge=10, fullness=1.1)    # for crowded marks
v, h = V / 2, H / 2

# Side bearings by the kind of a glyph's side: straight, round, open, slanting, narrow.
SIDES = {"s": 84, "r": 60, "o": 44, "d": 18, "n": 60}
SPACE = 300
FIGURE = 660                   # all figures have this advance

T, B, M = CAP - h, h, 350      # middle of the top bar, of the bottom bar, of the waist
t, m = XH - h, XH / 2          # likewise for small letters
R, r = 215, 150                # corner radii of capitals and of small letters
RB = 140                       # of the half-height bowls of capitals

GLYPHS = {}


def glyph(char, sides, *parts, cuts=(), advance=None, pen=PEN):
    GLYPHS[char] = dict(sides=sides, parts=parts, cuts=cuts, advance=advance, pen=pen)


slant = PEN.slant


def stem(x, bottom=0, top=CAP):
    return line((x, bottom), (x, top))


def bar(y, left, right):
    return line((left, y), (right, y))


def dot(x, y):
    """A dot whose lower edge is at y and whose middle is at x."""
    return rectangle(x - 58, y, x + 58, y + 112, 26)


def tail():
    """The stroke of a comma."""
    return slant(RIGHT, 116, 112, LEFT, 0, -130)


def waist(side, upper, lower, y):
    return notch(side, upper, lower, y, 46, 60)


# Capitals

glyph("A", "dd", slant(LEFT, 0, 0, MIDDLE, 385, CAP), slant(RIGHT, 770, 0, MIDDLE, 385, CAP), bar(205, 130, 640))
glyph("B", "sr", stem(v), line((v, T), (610 - v, T, RB), (610 - v, 362, RB), (v, 362)),
      line((v, 362), (640 - v, 362, RB), (640 - v, B, RB), (v, B)), cuts=[waist(1, 610, 640, 362)])
glyph("C", "ro", line((650, T), (v, T, R), (v, B, R), (650, B)))
glyph("D", "sr", line((v, 0), (v, CAP)), line((v, T), (720 - v, T, R), (720 - v, B, R), (v, B)))
glyph("E", "so", stem(v), bar(T, v, 580), bar(M + 10, v, 540), bar(B, v, 580))
glyph("F", "so", stem(v), bar(T, v, 570), bar(M - 10, v, 520))
glyph("G", "rs", line((680, T), (v, T, R), (v, B, R), (710 - v, B, 60), (710 - v, M - 10), (400, M - 10)))
glyph("H", "ss", stem(v), stem(720 - v), bar(M + 10, v, 720 - v))
glyph("I", "ss", stem(v))
glyph("J", "os", line((0, B), (510 - v, B, 190), (510 - v, CAP)))
glyph("K", "sd", stem(v), slant(MIDDLE, 60, 230, RIGHT, 650, CAP), slant(MIDDLE, 300, 420, RIGHT, 680, 0))
glyph("L", "so", stem(v), bar(B, v, 550))
glyph("M", "ss", stem(v), stem(880 - v), slant(LEFT, 0, CAP, MIDDLE, 440, 120), slant(RIGHT, 880, CAP, MIDDLE, 440, 120))
glyph("N", "ss", stem(v), stem(750 - v), slant(LEFT, 0, CAP, RIGHT, 750, 0))
glyph("O", "rr", ring((v, B, R), (800 - v, B, R), (800 - v, T, R), (v, T, R)))
glyph("P", "sr", stem(v), line((v, T), (630 - v, T, 170), (630 - v, 270, 170), (v, 270)))
glyph("Q", "rr", ring((v, B, R), (800 - v, B, R), (800 - v, T, R), (v, T, R)),
      slant(MIDDLE, 430, 180, MIDDLE, 500, -110))
glyph("R", "sd", stem(v), line((v, T), (640 - v, T, 160), (640 - v, 290, 160), (v, 290)),
      slant(MIDDLE, 400, 290, RIGHT, 670, 0))
glyph("S", "oo", line((610, T), (v, T, RB), (v, M + 6, RB), (640 - v, M + 6, RB), (640 - v, B, RB), (20, B)))
glyph("T", "dd", bar(T, 0, 680), stem(340))
glyph("U", "ss", line((v, CAP), (v, B, R), (720 - v, B, R), (720 - v, CAP)))
glyph("V", "dd", slant(LEFT, 0, CAP, MIDDLE, 385, 0), slant(RIGHT, 770, CAP, MIDDLE, 385, 0))
glyph("W", "dd", slant(LEFT, 0, CAP, MIDDLE, 290, 0), slant(MIDDLE, 545, CAP, MIDDLE, 290, 0),
      slant(MIDDLE, 545, CAP, MIDDLE, 800, 0), slant(RIGHT, 1090, CAP, MIDDLE, 800, 0))
glyph("X", "dd", slant(LEFT, 0, 0, RIGHT, 700, CAP), slant(LEFT, 10, CAP, RIGHT, 710, 0))
glyph("Y", "dd", slant(LEFT, 0, CAP, MIDDLE, 360, 290), slant(RIGHT, 720, CAP, MIDDLE, 360, 290), stem(360, 0, 340))
glyph("Z", "oo", bar(T, 20, 650), bar(B, 0, 660), slant(LEFT, 0, 0, RIGHT, 650, CAP))

# Small letters

glyph("a", "rs", stem(540 - v, 0, XH), line((540 - v, t), (v, t, r), (v, B, r), (540 - v, B)))
glyph("b", "sr", stem(v, 0, ASCENDER), line((v, t), (540 - v, t, r), (540 - v, B, r), (v, B)))
glyph("c", "ro", line((480, t), (v, t, r), (v, B, r), (480, B)))
glyph("d", "rs", stem(540 - v, 0, ASCENDER), line((540 - v, t), (v, t, r), (v, B, r), (540 - v, B)))
glyph("e", "ro", line((v, m - 6), (550 - v, m - 6), (550 - v, t, r), (v, t, r), (v, B, r), (520, B)))
glyph("f", "oo", line((86 + v, 0), (86 + v, ASCENDER - h, 120), (360, ASCENDER - h)), bar(t, 0, 330))
glyph("g", "rs", line((540 - v, t), (v, t, r), (v, B, r), (540 - v, B)),
      line((540 - v, XH), (540 - v, DESCENDER + h, 140), (50, DESCENDER + h)))
glyph("h", "ss", stem(v, 0, ASCENDER), line((v, t), (520 - v, t, r), (520 - v, 0)))
glyph("i", "ss", stem(58, 0, XH), dot(58, 600))
glyph("j", "os", line((-100, DESCENDER + h), (58, DESCENDER + h, 90), (58, XH)), dot(58, 600))
glyph("k", "sd", stem(v, 0, ASCENDER), slant(MIDDLE, 70, 160, RIGHT, 490, XH), slant(MIDDLE, 250, 310, RIGHT, 515, 0))
glyph("l", "ss", stem(v, 0, ASCENDER))
glyph("m", "ss", stem(v, 0, XH), line((v, t), (840 - v, t, r), (840 - v, 0)), stem(420, 0, t))
glyph("n", "ss", stem(v, 0, XH), line((v, t), (520 - v, t, r), (520 - v, 0)))
glyph("o", "rr", ring((v, B, r), (560 - v, B, r), (560 - v, t, r), (v, t, r)))
glyph("p", "sr", stem(v, DESCENDER, XH), line((v, t), (540 - v, t, r), (540 - v, B, r), (v, B)))
glyph("q", "rs", stem(540 - v, DESCENDER, XH), line((540 - v, t), (v, t, r), (v, B, r), (540 - v, B)))
glyph("r", "so", line((v, 0), (v, XH)), line((v, t), (350, t)))
glyph("s", "oo", line((455, t), (v, t, 104), (v, m, 104), (480 - v, m, 104), (480 - v, B, 104), (16, B)))
glyph("t", "oo", line((86 + v, 670), (86 + v, B, 120), (350, B)), bar(t, 0, 335))
glyph("u", "ss", line((v, XH), (v, B, r), (520 - v, B)), stem(520 - v, 0, XH))
glyph("v", "dd", slant(LEFT, 0, XH, MIDDLE, 275, 0), slant(RIGHT, 550, XH, MIDDLE, 275, 0))
glyph("w", "dd", slant(LEFT, 0, XH, MIDDLE, 220, 0), slant(MIDDLE, 405, XH, MIDDLE, 220, 0),
      slant(MIDDLE, 405, XH, MIDDLE, 590, 0), slant(RIGHT, 810, XH, MIDDLE, 590, 0))
glyph("x", "dd", slant(LEFT, 0, 0, RIGHT, 520, XH), slant(LEFT, 0, XH, RIGHT, 520, 0))
glyph("y", "dd", slant(LEFT, 0, XH, MIDDLE, 262, 60), slant(RIGHT, 550, XH, LEFT, 80, DESCENDER))
glyph("z", "oo", bar(t, 10, 470), bar(B, 0, 480), slant(LEFT, 0, 0, RIGHT, 470, XH))

# Figures

def figure(char, *parts, cuts=()):
    glyph(char, "", *parts, cuts=cuts, advance=FIGURE)


RF = 190
figure("0", ring((v, B, RF), (560 - v, B, RF), (560 - v, T, RF), (v, T, RF)))
figure("1", stem(250), slant(LEFT, 20, 520, RIGHT, 250 + v, CAP))
figure("2", line((20, T), (550 - v, T, RB), (550 - v, M + 10, RB), (v, M + 10, RB), (v, B), (560, B)))
figure("3", line((10, T), (530 - v, T, RB), (530 - v, M + 6, RB), (150, M + 6)),
       line((150, M + 6), (550 - v, M + 6, RB), (550 - v, B, RB), (0, B)), cuts=[waist(1, 530, 550, M + 6)])
figure("4", slant(LEFT, 0, 170 - h, RIGHT, 440 + v, CAP), bar(170, 60, 590), stem(440))
figure("5", line((530, T), (v + 10, T), (v + 10, M + 50), (550 - v, M + 50, 165), (550 - v, B, 165), (0, B)))
figure("6", line((510, T), (v, T, RF), (v, B, RB + 20), (560 - v, B, RB + 20),
                 (560 - v, M + 50, RB + 20), (v, M + 50)))
figure("7", line((0, T), (540, T)), slant(RIGHT, 540, CAP, LEFT, 120, 0))
figure("8", ring((v + 12, M + 6, RB), (548 - v, M + 6, RB), (548 - v, T, RB), (v + 12, T, RB)),
       ring((v, B, RB), (560 - v, B, RB), (560 - v, M + 6, RB), (v, M + 6, RB)),
       cuts=[waist(1, 548, 560, M + 6), waist(-1, 12, 0, M + 6)])
figure("9", line((50, B), (560 - v, B, RF), (560 - v, T, RB + 20), (v, T, RB + 20),
                 (v, M - 50, RB + 20), (560 - v, M - 50)))

# Marks

glyph(".", "nn", dot(58, 0))
glyph(",", "nn", tail())
glyph(":", "nn", dot(58, 0), dot(58, 360))
glyph(";", "nn", tail(), dot(58, 360))
glyph("!", "ss", dot(58, 0), stem(58, 210))
glyph("?", "oo", dot(262, 0), line((0, T), (510 - v, T, RB), (510 - v, M + 20, RB), (262, M + 20), (262, 210)))
glyph("-", "oo", bar(290, 0, 300))
glyph("–", "oo", bar(290, 0, 480))
glyph("—", "oo", bar(290, 0, 860))
glyph("_", "", bar(-90, 0, 560), advance=560)
glyph("(", "so", line((240, 790), (v, 790, 200), (v, -90, 200), (240, -90)))
glyph(")", "os", line((0, 790), (240 - v, 790, 200), (240 - v, -90, 200), (0, -90)))
glyph("[", "so", line((220, 790), (v, 790), (v, -90), (220, -90)))
glyph("]", "os", line((0, 790), (220 - v, 790), (220 - v, -90), (0, -90)))
glyph("/", "dd", slant(LEFT, 0, -90, RIGHT, 420, 790))
glyph("\\", "dd", slant(LEFT, 0, 790, RIGHT, 420, -90))
glyph("'", "nn", stem(v, 470))
glyph('"', "nn", stem(v, 470), stem(v + 180, 470))
glyph("+", "oo", bar(300, 0, 480), stem(240, 60, 540))
glyph("=", "oo", bar(395, 0, 480), bar(205, 0, 480))
glyph("<", "oo", line((470, 530), (60, 300, 20), (470, 70), square=True))
glyph(">", "oo", line((0, 530), (410, 300, 20), (0, 70), square=True))
glyph("*", "nn", line((200, 350), (200, 740)), line((31, 448), (369, 642), square=True),
      line((31, 642), (369, 448), square=True), pen=FINE)
glyph("#", "oo", slant(LEFT, 110, 0, MIDDLE, 250, CAP), slant(LEFT, 390, 0, MIDDLE, 530, CAP),
      bar(470, 30, 680), bar(230, 0, 650), pen=FINE)
glyph("%", "rr", ring((38, 410, 125), (312, 410, 125), (312, 665, 125), (38, 665, 125)),
      ring((568, 35, 125), (842, 35, 125), (842, 290, 125), (568, 290, 125)),
      slant(LEFT, 140, 0, RIGHT, 740, CAP), pen=FINE)
glyph("&", "ro", line((530, T), (v + 40, T, RB), (v + 40, M + 6, RB), (690, M + 6)),
      line((690, M + 6), (v, M + 6, RB), (v, B, RB), (580 - v, B, RB), (580 - v, M + 130)),
      cuts=[waist(-1, 40, 0, M + 6)])
glyph("@", "rr", line((700, -60), (38, -60, 250), (38, 665, 250), (862, 665, 250), (862, 140, 100), (620, 140)),
      line((620, 490), (620, 140)), line((620, 455), (290, 455, 110), (290, 140, 110), (620, 140)), pen=FINE)
glyph("°", "rr", ring((38, 440, 112), (282, 440, 112), (282, 665, 112), (38, 665, 112)), pen=FINE)
glyph("µ", "ss", stem(v, DESCENDER, XH), line((v, B), (520 - v, B)), stem(520 - v, 0, XH))

# Pairs that stand too far apart by their sides alone

KERNING = [
    ("A", "T V Y v w y", -70), ("A", "C G O Q U", -20), ("T V Y", "A", -70),
    ("T", "a c d e g m n o p q r s u v w x y z", -90), ("V W Y", "a c d e g o q", -45),
    ("L", "T V Y", -90), ("L", "v w y", -50), ("F P", "A", -80), ("F P T V W Y r v w y", ". ,", -80),
    ("R", "T V Y", -25), ("K X", "C G O Q c e o", -35), ("r", "a c d e g o q", -20),
]
