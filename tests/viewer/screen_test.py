# SPDX-License-Identifier: MIT
"""The full screen, driven through a terminal of its own."""

import os
import pty
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

import cases
from harness import BOARD, environment, needs_terminal

TMUX = shutil.which("tmux")


@needs_terminal
@unittest.skipIf(TMUX is None, "tmux is not installed")
class FullScreen(unittest.TestCase):
    """tmux keeps the screen that a user would see, so the tests look at that."""

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.socket = os.path.join(self.folder.name, "tmux")

    def tearDown(self):
        subprocess.run([TMUX, "-S", self.socket, "kill-server"], stderr=subprocess.DEVNULL)
        self.folder.cleanup()

    def tmux(self, *arguments):
        result = subprocess.run([TMUX, "-S", self.socket, "-f", "/dev/null", *arguments],
                                env=self.shell_environment(), stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, encoding="utf-8")
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout

    @staticmethod
    def shell_environment():
        return {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "SHELL": "/bin/sh"}

    def start(self, *arguments, width=80, height=24, variables=None, shows="? help"):
        """Runs the board in a shell that shows what it finds afterwards."""
        # The leak checker hangs in a process whose terminal is taken away while it looks for leaks.
        settings = environment(TERM="screen-256color",
                               ASAN_OPTIONS="verify_asan_link_order=0:detect_leaks=0",
                               **(variables or {}))
        assignments = [f"{name}={value}" for name, value in settings.items()]
        script = ('trap : INT QUIT; "$@"; echo "left with $?"; '
                  'echo $(stty -a | tr -s " ;" "\\n" | grep -xE "icanon|isig|icrnl|onlcr|echo"); '
                  'echo done; exec cat')
        self.tmux("-u", "new-session", "-d", "-x", str(width), "-y", str(height),
                  "sh", "-c", script, "sh", "env", *assignments, BOARD, "--tui", *arguments)
        self.wait_for(shows)

    def screen(self):
        return self.tmux("capture-pane", "-p").rstrip("\n")

    def keys(self, *names):
        self.tmux("send-keys", *names)

    def wait_for(self, *texts, gone=False):
        """Waits for the screen to show all of the texts at once, or none, and returns it."""
        deadline = time.monotonic() + 30
        while time.monotonic() < deadline:
            screen = self.screen()
            if all((text in screen) != gone for text in texts):
                return screen
            time.sleep(0.02)
        self.fail(f"{'still' if gone else 'no'} {texts} on the screen:\n{screen}")

    def press(self, *names, shows):
        self.keys(*names)
        return self.wait_for(*([shows] if isinstance(shows, str) else shows))

    def leaves_clean(self, status):
        screen = self.wait_for("done")
        # The shell's line is all there is: the screen from before and its modes are back.
        lines = [line for line in screen.splitlines() if line != "Terminated"]  # says the shell
        self.assertEqual(lines, [f"left with {status}", "icrnl onlcr isig icanon echo", "done"])
        self.assertEqual(self.tmux("display-message", "-p", "#{cursor_flag}#{alternate_on}"), "10\n")

    def test_moving_over_the_days(self):
        self.start("--language", "eng")
        self.wait_for("[12]", "Tuesday, 12 March 2024")
        self.press("Right", shows="Wednesday, 13 March 2024")
        self.press("l", shows="Thursday, 14 March 2024")
        self.press("Down", shows="Thursday, 21 March 2024")
        self.press("j", shows="Thursday, 28 March 2024")
        self.press("k", "h", shows="Wednesday, 20 March 2024")
        self.press("Up", "Left", shows="Tuesday, 12 March 2024")

    def test_moving_off_the_board_pages(self):
        self.start("--language", "eng", "--mode", "month")
        self.press("k", "k", shows=("     February 2024\n", "Tuesday, 27 February 2024"))
        self.press("Right", "Right", "Right", shows="Friday, 1 March 2024")
        self.press("NPage", shows="Monday, 1 April 2024")
        self.press("PPage", "PPage", shows="Thursday, 1 February 2024")
        self.press("t", shows="Tuesday, 12 March 2024")
        self.press("n", shows="Friday, 12 April 2024")
        self.press("p", "p", shows="Monday, 12 February 2024")
        self.press("Space", shows="Tuesday, 12 March 2024")

    def test_first_and_last_of_the_month_and_years(self):
        self.start("--language", "eng")
        self.press("Home", shows="Friday, 1 March 2024")
        self.press("End", shows="Sunday, 31 March 2024")
        self.press(">", shows="Monday, 31 March 2025")
        self.press("<", "<", shows="Friday, 31 March 2023")

    def test_rows_and_first_day(self):
        self.start("--language", "eng")
        self.press("+", "+", shows=("Rows: 7", " 21 ", "[12]"))
        self.press("-", "-", "-", "-", "-", "-", shows=("Rows: 1", "[12]"))
        self.press("f", shows=("First day: Tue", "Wk   Tue "))
        self.press("m", "m", shows="Arrangement: month")
        self.press("+", shows="Rows are for the arrangements rolling and tail")

    def mouse(self, row, column, button=0):
        """The terminal's reports of a button that goes down and up at a place counted from 1."""
        wheel = button >= 64
        for state in [button] if wheel else [button, 3]:
            report = "".join(chr(32 + number) for number in (state, column, row))
            self.tmux("send-keys", "-l", "\033[M" + report)

    def test_mouse(self):
        self.start("--language", "eng", "--mode", "month")
        row = next(number for number, line in enumerate(self.screen().splitlines(), 1)
                   if " 21 " in line)
        column = self.screen().splitlines()[row - 1].index(" 21 ") + 2
        for event, shows in [((row, column), "Thursday, 21 March 2024"),
                             ((row - 2, column), "Thursday, 14 March 2024"),
                             ((row + 1, column), "Thursday, 21 March 2024"),  # the line below
                             ((1, 1), "Thursday, 21 March 2024"),
                             ((row, column, 65), "Sunday, 21 April 2024"),  # wheel down, up
                             ((row, column, 64), "Thursday, 21 March 2024")]:
            self.mouse(*event)
            self.wait_for(shows)

    def test_every_language_has_its_footer_and_its_help(self):
        for language, footer, last in [
                ("chs", "? 帮助  q 退出", "退出"), ("cht", "? 說明  q 離開", "離開"),
                ("kor", "? 도움말  q 종료", "종료"), ("jpn", "? ヘルプ  q 終了", "終了"),
                ("vit", "? trợ giúp  q thoát", "thoát"), ("deu", "? Hilfe  q Ende", "Ende"),
                ("rus", "? справка  q выход", "выход"), ("tha", "? วิธีใช้  q ออก", "ออก")]:
            self.start("--language", language, shows=footer)
            self.press("?", shows=("PageUp p, PageDown n", f"\nq{' ' * 21}{last}\n"))
            self.tearDown()
            self.setUp()

    def test_going_to_a_date(self):
        self.start("--language", "eng")
        self.press("g", shows="Go to (YYYY-MM-DD):")
        # A text that is no date stays and can be corrected.
        self.press("2025-02-30", "Enter",
                   shows="2025-02-30_  not a day from 1900-01-01 to 2099-12-31")
        self.press("BSpace", "BSpace", "20", shows="2025-02-20_")
        self.press("BSpace", "1", "Enter", shows="Friday, 21 February 2025")
        self.press("g", "19", "C-u", shows="Go to (YYYY-MM-DD): _")
        self.press("Enter", shows="? help")
        self.press("g", "19", "Escape", shows="? help")
        self.press("g", "1900-01-01", "Enter", shows="Monday, 1 January 1900")
        self.press("h", "PPage", shows="The calendar begins with 1900")
        self.press("g", "2099-12-31", "Enter", shows="Thursday, 31 December 2099")
        self.press("l", "j", "NPage", shows="The calendar ends with 2099")

    def test_options(self):
        self.start("--language", "eng")
        for mode in ("tail", "month", "strip", "rolling"):
            self.press("m", shows=(f"Arrangement: {mode}", "[12]"))
        self.keys("w")
        self.wait_for("Wk", gone=True)
        self.keys("b")
        self.wait_for("Sat", gone=True)
        self.keys("i")
        self.wait_for("April ─", gone=True)
        for key in ("x", "q"):  # any key leaves the help
            self.press("?", shows="go to a date")
            self.press(key, shows="Tuesday, 12 March 2024")

    def test_annotations(self):
        self.start("--language", "usa")
        self.press("g", "2024-03-20", "Enter", shows=(
            "Wednesday, 20 March 2024\nLunar date  day 11 of month 2, 2024\nSpring Equinox",
            "Mar 29  Good Friday",  # the legend
            " L10       Equinox   L12 "))

    def test_easter_after_another_year(self):
        self.start("--language", "usa", "--mode", "month")
        for date, shows in [("2024-01-10", "Wednesday, 10 January 2024"),
                            ("2023-04-01", "Apr  9  Easter Sunday"),
                            ("2024-03-01", "Mar 31  Easter Sunday"),
                            ("2023-04-09", "9 April 2023\nLunar date  day 19 of leap month 2, 2023\nEaster"),
                            ("2024-03-31", "31 March 2024\nLunar date  day 22 of month 2, 2024\nEaster")]:
            self.press("g", date, "Enter", shows=shows)

    def test_a_day_that_an_interval_pushes_off_a_small_board(self):
        self.start("--language", "eng", "--rows", "1")
        self.press("g", "2024-10-01", "Enter", shows="Tuesday, 1 October 2024")

    def test_following_the_window(self):
        self.start("--language", "eng")
        for width, height in ((40, 8), (12, 3), (1, 1), (100, 40)):
            self.tmux("resize-window", "-x", str(width), "-y", str(height))
            if height > 1:  # one cell shows nothing
                # The help and back, drawn at that size.
                help_line, status = ((line[:width].rstrip() for line in
                                      ("arrows, h j k l       move over the days", "? help  q quit")))
                self.press("?", shows=(help_line, status))
                self.press("x", shows=status)
        self.wait_for("Tuesday, 12 March 2024")
        self.keys("q")
        self.leaves_clean(0)

    def test_a_narrow_window_shows_texts_in_full(self):
        self.start("--language", "deu", width=20, height=40, shows="? Hilfe")
        self.wait_for("Mo Di Mi Do Fr Sa So\n", "11[12]13 14 15 16·17\n",
                      "Dienstag, 12. März\n    2024\n", "Frauentag\n")
        self.press("?", shows="\nt\n    heute\n")

    def test_a_small_window_keeps_the_selected_row(self):
        self.start("--language", "eng", height=6)
        self.press("j", shows=" 19 ")
        self.press("j", shows=" 26 ")

    def test_ctrl_c(self):
        self.start()
        self.keys("C-c")
        self.leaves_clean(128 + signal.SIGINT)

    def test_termination(self):
        self.start()
        shell = int(self.tmux("display-message", "-p", "#{pane_pid}"))
        with open(f"/proc/{shell}/task/{shell}/children") as children:
            os.kill(int(children.read().split()[0]), signal.SIGTERM)
        self.leaves_clean(128 + signal.SIGTERM)

    def test_quit_signal(self):
        self.start()
        self.keys("C-\\")
        screen = self.wait_for("done")
        self.assertIn(f"left with {128 + signal.SIGQUIT}\n", screen)
        self.assertNotIn("March", screen)

    def test_sizes_of_the_environment_do_not_count(self):
        self.start("--language", "eng", variables={"LINES": "30000", "COLUMNS": "30000"})
        self.wait_for("Tuesday, 12 March 2024", "Wk   Mon       Tue")

    def test_keys_the_calendar_does_not_know(self):
        self.start("--language", "eng")
        self.press("F5", "z", "é", "l", shows="Wednesday, 13 March 2024")


@needs_terminal
class Terminals(unittest.TestCase):
    def full_screen(self, **settings):
        """The program, on any day, on a pseudo-terminal that is not its controlling one."""
        main, end = pty.openpty()
        variables = environment(LD_PRELOAD=None, **settings)
        process = subprocess.Popen([BOARD, "--tui"], env=variables, stdin=end, stdout=end,
                                   stderr=subprocess.PIPE, encoding="utf-8")
        os.close(end)
        return process, main

    def test_ends_when_the_terminal_goes_away(self):
        process, main = self.full_screen()
        while b"quit" not in os.read(main, 65536):
            pass
        os.close(main)
        _, errors = process.communicate(timeout=30)
        self.assertEqual((process.returncode, errors),
                         (1, "almara-board: the terminal went away\n"))

    def test_a_terminal_that_cannot_move_the_cursor(self):
        for terminal in ("dumb", "nosuchterm"):
            process, main = self.full_screen(TERM=terminal)
            _, errors = process.communicate(timeout=30)
            os.close(main)
            self.assertEqual(process.returncode, 2, errors)
            self.assertIn("this terminal cannot show a full screen (is TERM right?)", errors)


if __name__ == "__main__":
    cases.main()
