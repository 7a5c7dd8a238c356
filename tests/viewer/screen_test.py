# SPDX-License-Identifier: MIT
"""The full screen, driven through a terminal of its own."""

import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

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

    def start(self, *arguments, width=80, height=24):
        """Runs the board in a shell that shows what it finds afterwards."""
        variables = [f"{name}={value}" for name, value in
                     environment(TERM="screen-256color").items()]
        script = ('trap : INT; "$@"; echo "left with $?"; '
                  'echo $(stty -a | tr -s " ;" "\\n" | grep -xE "icanon|isig|icrnl|onlcr|echo"); '
                  'echo done; exec cat')
        self.tmux("-u", "new-session", "-d", "-x", str(width), "-y", str(height),
                  "sh", "-c", script, "sh", "env", *variables, BOARD, "--tui", *arguments)
        self.wait_for("? help")

    def screen(self):
        return self.tmux("capture-pane", "-p").rstrip("\n")

    def keys(self, *names):
        self.tmux("send-keys", *names)

    def wait_for(self, text, gone=False):
        """Waits for the screen to show the text, and returns the screen."""
        deadline = time.monotonic() + 10
        while time.monotonic() < deadline:
            screen = self.screen()
            if (text in screen) != gone:
                return screen
            time.sleep(0.02)
        self.fail(f"{'still' if gone else 'no'} {text!r} on the screen:\n{screen}")

    def press(self, *names, shows):
        self.keys(*names)
        return self.wait_for(shows)

    def leaves_clean(self, status):
        screen = self.wait_for("done")
        # The shell's line is all there is: the screen from before and its modes are back.
        lines = [line for line in screen.splitlines() if line != "Terminated"]  # says the shell
        self.assertEqual(lines, [f"left with {status}", "icrnl onlcr isig icanon echo", "done"])
        self.assertEqual(self.tmux("display-message", "-p", "#{cursor_flag}#{alternate_on}"), "10\n")

    def test_moving_over_the_days(self):
        screen = self.start("--language", "eng") or self.screen()
        self.assertIn("[12]", screen)
        self.assertIn("Tuesday, 12 March 2024", screen)
        self.press("Right", shows="Wednesday, 13 March 2024")
        self.press("l", shows="Thursday, 14 March 2024")
        self.press("Down", shows="Thursday, 21 March 2024")
        self.press("j", shows="Thursday, 28 March 2024")
        self.press("k", "h", shows="Wednesday, 20 March 2024")
        self.press("Up", "Left", shows="Tuesday, 12 March 2024")

    def test_moving_off_the_board_pages(self):
        self.start("--language", "eng", "--mode", "month")
        self.press("k", "k", shows="Tuesday, 27 February 2024")
        self.assertIn("February 2024", self.screen().splitlines()[0])
        self.press("Right", "Right", "Right", shows="Friday, 1 March 2024")
        self.press("NPage", shows="Monday, 1 April 2024")
        self.press("PPage", "PPage", shows="Thursday, 1 February 2024")
        self.press("t", shows="Tuesday, 12 March 2024")

    def test_going_to_a_date(self):
        self.start("--language", "eng")
        self.press("g", shows="Go to (YYYY-MM-DD):")
        self.press("2025-02-30", "Enter", shows="Go to: 2025-02-30 is not a day of the calendar")
        self.press("g", "2025-02-20", "BSpace", "1", "Enter", shows="Friday, 21 February 2025")
        self.press("g", "19", "Escape", shows="? help")
        self.press("g", "1900-01-01", "Enter", shows="Monday, 1 January 1900")
        self.press("h", "PPage", shows="The calendar begins with 1900")
        self.press("g", "2099-12-31", "Enter", shows="Thursday, 31 December 2099")
        self.press("l", "j", "NPage", shows="The calendar ends with 2099")

    def test_options(self):
        self.start("--language", "eng")
        for mode in ("tail", "month", "strip", "rolling"):
            screen = self.press("m", shows=f"Arrangement: {mode}")
            self.assertIn("[12]", screen)
        self.keys("w")
        self.wait_for("Wk", gone=True)
        self.keys("b")
        self.wait_for("Sat", gone=True)
        self.keys("i")
        self.wait_for("April ─", gone=True)
        self.press("?", shows="go to a date")
        self.press("x", shows="Tuesday, 12 March 2024")

    def test_annotations(self):
        self.start("--language", "usa")
        screen = self.press("g", "2024-03-20", "Enter", shows="Wednesday, 20 March 2024")
        self.assertIn("Lunar date  day 11 of month 2, 2024\nSpring Equinox", screen)
        self.assertIn("Mar 29  Good Friday", screen)  # the legend
        self.assertIn(" L10       Equinox   L12 ", screen)

    def test_easter_after_another_year(self):
        self.start("--language", "usa", "--mode", "month")
        for date, shows in [("2024-01-10", "Wednesday, 10 January 2024"),
                            ("2023-04-01", "Apr  9  Easter Sunday"),
                            ("2024-03-01", "Mar 31  Easter Sunday"),
                            ("2023-04-09", "9 April 2023\nLunar date  day 20 of leap month 2, 2023\nEaster"),
                            ("2024-03-31", "31 March 2024\nLunar date  day 22 of month 2, 2024\nEaster")]:
            self.press("g", date, "Enter", shows=shows)

    def test_a_day_that_an_interval_pushes_off_a_small_board(self):
        self.start("--language", "eng", "--rows", "1")
        self.press("g", "2024-10-01", "Enter", shows="Tuesday, 1 October 2024")

    def test_following_the_window(self):
        self.start("--language", "eng")
        for width, height in ((40, 8), (12, 3), (1, 1), (100, 40)):
            self.tmux("resize-window", "-x", str(width), "-y", str(height))
            time.sleep(0.1)
            self.keys("j", "k")
        self.wait_for("Tuesday, 12 March 2024")
        self.keys("q")
        self.leaves_clean(0)

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

    def test_keys_the_calendar_does_not_know(self):
        self.start("--language", "eng")
        self.press("F5", "z", "Home", "é", "l", shows="Wednesday, 13 March 2024")


if __name__ == "__main__":
    unittest.main()
