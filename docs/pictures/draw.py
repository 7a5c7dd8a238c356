#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the pictures of this folder. draw.py LIBRARY [FOLDER]

Boards, months and terms come from the library, so a picture shows what the engine answers; only the
state diagram of the page direction is drawn by hand. Needs TZ=UTC, so that every zone gives the same
pictures.
"""
import datetime
import os
import pathlib
import re
import sys
from html import escape

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parents[1] / "hosts/python"))
import almara  # noqa: E402 (found beside the checkout, not installed)

CHS = 1
ROLLING, TAIL, MONTH, STRIP = 1, 2, 3, 4
BLANK, DAY, TODAY, BREAK, TODAY_BREAK, TITLE = range(2, 8)
NO_TERM, FIRST_PRINCIPAL = -1, 1  # the principal terms are 1, 3, ... 23
DAYS = "Sun Mon Tue Wed Thu Fri Sat".split()
MONTHS = "January February March April May June July August September October November December".split()
INK, SOFT, LINE, FOCUS, BAND, LEAP = "#1f2328", "#6e7781", "#d0d7de", "#0969da", "#ddf4ff", "#ffebc8"


class Picture:
    """Collects shapes and writes them on white, which is legible on light and dark pages."""

    def __init__(self, width, height, title):
        self.shapes = []
        self.head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
                     f'viewBox="0 0 {width} {height}" role="img" font-size="12" '
                     f'font-family="DejaVu Sans, Helvetica, Arial, sans-serif">\n'
                     f"<title>{escape(title)}</title>\n"
                     f'<rect width="100%" height="100%" fill="#ffffff"/>\n')

    def box(self, x, y, width, height, fill="none", stroke=LINE, radius=0):
        self.shapes.append(f'<rect x="{x:g}" y="{y:g}" width="{width:g}" height="{height:g}" '
                           f'rx="{radius}" fill="{fill}" stroke="{stroke}"/>')

    def text(self, x, y, text, colour=INK, anchor="start", weight="normal", size=12):
        self.shapes.append(f'<text x="{x:g}" y="{y:g}" fill="{colour}" text-anchor="{anchor}" '
                           f'font-weight="{weight}" font-size="{size}">{escape(str(text))}</text>')

    def path(self, points, colour=SOFT, arrow=False):
        end = ' marker-end="url(#arrow)"' if arrow else ""
        self.shapes.append(f'<path d="{points}" fill="none" stroke="{colour}"{end}/>')

    def save(self, file):
        arrow = ('<defs><marker id="arrow" viewBox="0 0 8 8" refX="8" refY="4" markerWidth="8" '
                 f'markerHeight="8" orient="auto"><path d="M0 0 8 4 0 8z" fill="{SOFT}"/></marker></defs>\n')
        file.write_text(self.head + arrow + "\n".join(self.shapes) + "\n</svg>\n", encoding="utf-8")


def visible_cells(engine):
    return [[engine.GetContentItem(row, column) for column in range(engine.GetContentColumns())]
            for row in range(engine.GetContentRows())]


def spans(engine):
    return [engine.GetWeekNumberItemWithIndex(i) for i in range(engine.GetWeekNumberCount())]


def draw_cell(picture, cell, x, y, width, height, focus):
    is_focus = cell.type >= DAY and (cell.year, cell.month, cell.day) == focus
    fill = BAND if cell.type == TITLE or (cell.type == BLANK and cell.year == 0) else "#ffffff"
    picture.box(x, y, width, height, fill=fill)
    if is_focus:
        picture.box(x + 2, y + 2, width - 4, height - 4, stroke=FOCUS, radius=4)
    if cell.type == TITLE:
        picture.text(x + 4, y + height - 6, MONTHS[cell.month - 1][:3], FOCUS, weight="bold", size=11)
    elif cell.type in (DAY, TODAY):
        picture.text(x + width - 5, y + height - 6, cell.day, FOCUS if is_focus else INK, "end")
    elif cell.type in (BREAK, TODAY_BREAK):
        picture.text(x + width - 5, y + height - 6, f"{cell.day}·", SOFT, "end")


def draw_board(picture, engine, x, y, focus, cell=(30, 22)):
    """The board now shown with headings and spans; its left edge at x. Returns its lower edge."""
    width, height = cell
    for column in range(engine.GetContentColumns()):
        picture.text(x + 44 + width * (column + 0.5), y, DAYS[engine.GetCalendarWeekByColumns(column)][:2],
                     SOFT, "middle", size=11)
    top = y + 6
    rows = visible_cells(engine)
    for row, cells in enumerate(rows):
        for column, item in enumerate(cells):
            draw_cell(picture, item, x + 44 + width * column, top + height * row, width, height, focus)
    first = top
    for span in spans(engine):
        picture.box(x, first, 40, height * span.rows, fill="#f6f8fa")
        numbers = [str(n) for n in (span.weekNumber, span.secondWeekNumber) if n > 0]
        picture.text(x + 20, first + height * span.rows / 2 + 4, "/".join(numbers), SOFT, "middle", size=10)
        first += height * span.rows
    return top + height * len(rows)


def show(engine, arrangement, date):
    """The plain board of a date. The whole month comes first: it leaves the page direction alone and
    holds the date, which then is a date on the board and clears the direction."""
    engine.SetDispMonth(MONTH)
    engine.GotoSpecifiedDate(*date)
    engine.SetDispMonth(arrangement)
    engine.GotoSpecifiedDate(*date)


def arrangements(engine, folder):
    """The four arrangements of one date side by side."""
    focus = (2024, 2, 14)
    cases = [(ROLLING, "1 rolling weeks", "6 rows, 1 passed week before", "the week of the focus date"),
             (TAIL, "2 month with rolling tail", "the month from its first week,", "6 rows at least"),
             (MONTH, "3 whole month", "exactly the weeks that", "hold a day of the month"),
             (STRIP, "4 day strip", "one row of 7 days, the", "focus date in the middle")]
    picture = Picture(1120, 225, "The four arrangements of 14 February 2024")
    for i, (mode, name, *notes) in enumerate(cases):
        show(engine, mode, focus)
        x = 15 + i * 278
        picture.text(x, 20, name, weight="bold", size=13)
        for line, note in enumerate(notes):
            picture.text(x, 38 + 14 * line, note, SOFT, size=11)
        draw_board(picture, engine, x, 76, focus)
    picture.save(folder / "arrangements.svg")


def anatomy(engine, folder):
    """One board with the words for its parts."""
    focus = (2024, 2, 14)
    show(engine, TAIL, focus)
    picture = Picture(860, 320, "The parts of a board")
    left, top, width, height = 210, 40, 46, 30
    bottom = draw_board(picture, engine, left, top, focus, (width, height))
    grid = left + 44
    right = grid + 7 * width

    def note(text, x, y, to_x, to_y, anchor):
        picture.text(x, y + 4, text, anchor=anchor)
        picture.path(f"M{x + (6 if anchor == 'end' else -6):g} {y:g} L{to_x:g} {to_y:g}", arrow=True)

    note("heading", right + 40, top - 4, right - 12, top - 4, "start")
    note("kept-back days (blank)", 195, top + 12, grid + width, top + 12, "end")
    note("break day", right + 40, top + 21, right - 4, top + 21, "start")
    note("focus date", right + 40, top + 72, grid + 3 * width - 2, top + 72, "start")
    note("span with its week number", 195, top + 81, left, top + 81, "end")
    note("month interval: title and fillers", right + 40, top + 141, right - 2, top + 141, "start")
    note("span of two rows", 195, top + 156, left, top + 156, "end")
    picture.text(left, bottom + 24, "Hidden break days take their columns away; a row without any day", SOFT)
    picture.text(left, bottom + 40, "left is hidden with them. Cells keep their place on the whole board.", SOFT)
    picture.save(folder / "anatomy.svg")


def days(first, last):
    return [first + datetime.timedelta(n) for n in range((last - first).days + 1)]


def draw_quarter(picture, engine, x, y, first, last, title):
    """Months as bars, new moons as dots, principal terms as marks, on one line of days."""
    picture.text(x, y, title, weight="bold", size=13)
    scale = 1080 / ((last - first).days + 1)
    bar = y + 44
    months, terms = [], []
    for day in days(first, last):
        date = engine.CreateSolarDate(day.year, day.month, day.day, 0)
        lunar = engine.ConverterLunarWithDate(date)
        if lunar.day == 1 or not months:
            months.append([day, lunar, day])
        months[-1][2] = day
        term = engine.Check24SekkiWithDate(date)
        if term != NO_TERM and term % 2 == FIRST_PRINCIPAL:
            terms.append((day, (285 + 15 * term) % 360))
    for begin, lunar, end in months:
        left = x + (begin - first).days * scale
        width = ((end - begin).days + 1) * scale
        picture.box(left, bar, width, 30, fill=LEAP if lunar.leap else "#f6f8fa")
        name = f"leap {lunar.month}" if lunar.leap else f"month {lunar.month}"
        picture.text(left + width / 2, bar + 20, name if width > 50 else "", anchor="middle")
        if lunar.day == 1:
            picture.shapes.append(f'<circle cx="{left:g}" cy="{bar:g}" r="5" fill="{INK}"/>')
            at_end = left + 40 > x + 1080
            picture.text(left + (-7 if at_end else 7), bar - 6, f"{begin.day} {MONTHS[begin.month - 1][:3]}", SOFT,
                         "end" if at_end else "start", size=10)
    for day, longitude in terms:
        at = x + ((day - first).days + 0.5) * scale
        season = longitude % 90 == 0
        picture.path(f"M{at:g} {bar + 30:g} V{bar + (54 if season else 46):g}", FOCUS if season else SOFT)
        picture.text(at, bar + (68 if season else 60), f"{longitude}°, {day.day} {MONTHS[day.month - 1][:3]}",
                     FOCUS if season else INK, "middle", size=11)


def quarter(engine, folder):
    """How months get their numbers: one ordinary quarter, and the two of 2033 that do not join."""
    date = datetime.date
    picture = Picture(1120, 400, "Lunar months of a quarter of the solar year, in UTC+8")
    draw_quarter(picture, engine, 20, 22, date(2023, 2, 20), date(2023, 7, 19),
                 "2023: a fifth month begins before the solstice, so the month without a principal term is leap")
    draw_quarter(picture, engine, 20, 152, date(2033, 5, 28), date(2034, 1, 19),
                 "2033: the count starts anew at each blue mark; at the winter solstice the engine's months do not join")
    lines = ["Dots: new moons. Marks: principal terms by the Sun's longitude; the blue ones bound the quarters.",
             "The month that holds a blue mark is number 11 at 270°, 2 at 0°, 5 at 90° and 8 at 180°; the months after "
             "it count on.",
             "If the fifth month from there begins by the next blue mark, one is leap: the first that holds no mark "
             "repeats the number before it.",
             "In 2033 the new moon and the equinox share 23 September, so the rule finds a leap month 7 that printed "
             "calendars do not have:",
             "up to the solstice the months carry a number one too low, and leap month 11 follows month 10."]
    for i, line in enumerate(lines):
        picture.text(20, 282 + 22 * i, line, SOFT)
    picture.save(folder / "quarter.svg")


def page_direction(folder):
    """Who sets, keeps and clears the page direction."""
    picture = Picture(900, 345, "The page direction as a state diagram")
    places = {"backward": (60, 130), "none": (385, 130), "forward": (710, 130)}
    notes = {"backward": "focus date ends the board", "none": "a plain build", "forward": "focus date opens the board"}
    for name, (x, y) in places.items():
        picture.box(x, y, 134, 56, fill="#f6f8fa", stroke=FOCUS, radius=10)
        picture.text(x + 65, y + 24, name, anchor="middle", weight="bold", size=14)
        picture.text(x + 65, y + 43, notes[name], SOFT, "middle", size=9)
    picture.path("M385 142 H194", arrow=True)
    picture.path("M519 142 H706", arrow=True)
    picture.path("M194 174 H381", arrow=True)
    picture.path("M710 174 H519", arrow=True)
    for x, page, date in ((290, "GotoPreviousPage()", "before the board"), (612, "GotoNextPage()", "after the board")):
        picture.text(x, 110, page, anchor="middle", size=11)
        picture.text(x, 125, f"GotoSpecifiedDate() {date}", anchor="middle", size=11)
        picture.text(x, 194, "GotoToday(), InitCalendarLogicDt()", anchor="middle", size=11)
        picture.text(x, 210, "GotoTodayOffset()", anchor="middle", size=11)
        picture.text(x, 226, "GotoSpecifiedDate() on the board", anchor="middle", size=11)
        picture.text(x, 242, "Build() when the focus is not today", anchor="middle", size=11)
    picture.path("M125 130 C125 60 775 60 775 126", arrow=True)
    picture.path("M775 186 C775 318 125 318 125 190", arrow=True)
    picture.text(450, 70, "GotoNextPage(), a date after the board", anchor="middle", size=11)
    picture.text(450, 301, "GotoPreviousPage(), a date before the board", anchor="middle", size=11)
    picture.text(20, 24, "Page direction", weight="bold", size=14)
    picture.text(20, 42, "Kept by everything else: Build() on today's board, every setter, also of the arrangement.",
                 SOFT, size=11)
    picture.text(20, 320, "Paging in arrangements 2 and 3 goes by month and keeps the direction; in arrangement 3 so "
                 "do GotoSpecifiedDate() and GotoTodayOffset().", SOFT, size=11)
    picture.text(20, 336, "Under a direction arrangement 2 has no rows.", SOFT, size=11)
    picture.save(folder / "page-direction.svg")


def note_of(engine, cell):
    """What the example writes under a day: its festival, or its term, or its lunar day."""
    date = engine.CreateSolarDate(cell.year, cell.month, cell.day, 0)
    lunar = engine.ConverterLunarWithDate(date)
    term = engine.Check24SekkiWithDate(date)
    solar_festival = engine.CheckFestivalSolarWithLang(CHS, date)
    lunar_festival = engine.CheckFestivalLunarWithLang(CHS, date)
    return (engine.AlmaraFestivalName(lunar_festival, CHS) or
            engine.AlmaraFestivalName(solar_festival, CHS) or engine.AlmaraSolarTermName(term, CHS) or
            (f"Moon {lunar.month}" if lunar.day == 1 else str(lunar.day)))


def application(engine, folder):
    """The month view of the example application, from the calls that it makes."""
    engine.ForgetAnnotations()
    engine.SetDispMonth(MONTH)
    engine.SetShowMonthInterval(False)
    engine.InitCalendarLogicDt(CHS)
    engine.GotoSpecifiedDate(2024, 2, 14)
    picture = Picture(900, 440, "February 2024 as the example application lays it out")
    picture.text(24, 38, "February 2024", size=20)
    picture.text(876, 36, f"<    Today    >      {engine.AlmaraRegionName(CHS, CHS)}", FOCUS, "end", size=13)
    width, height, left, top = 118, 70, 56, 80
    for column in range(engine.GetContentColumns()):
        picture.text(left + width * (column + 0.5), top - 10, DAYS[engine.GetCalendarWeekByColumns(column)],
                     anchor="middle", size=13)
    first = 0
    for span in spans(engine):
        picture.text(28, top + height * (first + span.rows / 2) + 4, span.weekNumber, SOFT, "middle")
        first += span.rows
    for row, cells in enumerate(visible_cells(engine)):
        for column, cell in enumerate(cells):
            x, y = left + width * column, top + height * row
            chosen = (cell.year, cell.month, cell.day) == (2024, 2, 14)
            picture.box(x + 3, y + 3, width - 6, height - 6, stroke=FOCUS if chosen else LINE, radius=10)
            rest = cell.type in (BREAK, TODAY_BREAK)
            colour = LINE if cell.month != 2 else "#b3261e" if rest else INK
            picture.text(x + 12, y + 26, cell.day, colour, size=15)
            picture.text(x + 12, y + 48, note_of(engine, cell), LINE if cell.month != 2 else SOFT, size=11)
    picture.save(folder / "application.svg")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[2]) if len(sys.argv) == 3 else HERE
    engine = almara.load(sys.argv[1])
    keep = os.dup(1)
    os.dup2(os.open(os.devnull, os.O_WRONLY), 1)  # the engine writes every board to stdout
    engine.InitCalendarLogicDt(CHS)
    engine.SetMaxRow(6)
    for draw in (arrangements, anatomy, quarter, application):
        draw(engine, folder)
    page_direction(folder)
    os.dup2(keep, 1)


if __name__ == "__main__":
    main()
