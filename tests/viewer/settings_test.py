# SPDX-License-Identifier: MIT
"""What decides where the command line does not: the configuration file and the locale; and what
the shells know about the command line."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest

import cases
from harness import output, read_json, run


class Configuration(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = os.path.join(self.folder.name, "almara", "almara-board.toml")
        os.mkdir(os.path.dirname(self.path))

    def configure(self, text):
        with open(self.path, "w", encoding="utf-8") as file:
            file.write(text)

    def output(self, *arguments):
        return output(*arguments, XDG_CONFIG_HOME=self.folder.name)

    def test_any_option_under_its_long_name(self):
        self.configure('# mine\nrows = 3\nfirst-day = "sun"\nlanguage = "chs"\n'
                       "no-week-numbers = true\nhide-break-days = false\nwidth = 60\n")
        self.assertEqual(self.output(), output(
            "--rows", "3", "-S", "--language", "chs", "--no-week-numbers", "--width", "60"))

    def test_arguments_win(self):
        self.configure('first-day = "sun"\nmode = "month"\nno-week-numbers = true\nrows = 2\n')
        self.assertEqual(self.output("-M", "-w", "--mode", "tail", "--rows", "4"),
                         output("--mode", "tail", "-w", "--rows", "4"))
        self.assertEqual(self.output("--no-config"), output())

    def test_what_is_chosen_there_gives_way_to_what_the_arguments_need(self):
        self.configure("tui = true\n")
        self.assertEqual(self.output("--json"), output("--json"))
        self.assertEqual(self.output("--list"), output("--list"))
        self.configure("json = true\nrows = 3\n")
        self.assertEqual(self.output("--rows", "2"), output("--json", "--rows", "2"))
        self.assertEqual(self.output("2024"), output("2024"))
        self.assertEqual(self.output("--mode", "month"),
                         output("--json", "--mode", "month").replace('"maxRow": 5', '"maxRow": 3')
                         .replace("3-5-7-1", "3-3-7-1"))

    def test_birthdays_are_a_list_and_add_up(self):
        for text in ('birthday = ["8-15=A, a", "1-1=B"]\n', 'birthday = "8-15=A, a"\n'):
            self.configure(text)
            names = re.findall(r"SUMMARY:([ABC](?:\\, a)?)\n", self.output("--ics", "--birthday", "2-2=C"))
            self.assertEqual(sorted(names),
                             ["A\\, a", *(["B"] if "B" in text else []), "C"])
            self.assertEqual(self.output(), output())

    def test_in_the_home(self):
        os.makedirs(os.path.join(self.folder.name, ".config"))
        os.rename(os.path.dirname(self.path), os.path.join(self.folder.name, ".config/almara"))
        self.path = os.path.join(self.folder.name, ".config/almara/almara-board.toml")
        self.configure("rows = 2\n")
        for other in (None, "", "not/absolute"):
            self.assertEqual(output(HOME=self.folder.name, XDG_CONFIG_HOME=other),
                             output("--rows", "2"))

    def test_mistakes_are_told_with_the_file(self):
        for text, problem in [
                ("rows = 77\n", "--rows: expected a number from 1 to 50, not '77'"),
                ("nope = 1\n", "unknown option 'nope'"),
                ("rows 5\n", "unknown option 'rows 5'"),
                ("[weeks]\nrows = 5\n", "unknown section 'weeks'"),
                ('print-completion = "bash"\n', None)]:
            self.configure(text)
            result = run(XDG_CONFIG_HOME=self.folder.name)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            if problem:
                self.assertEqual(result.stderr, f"almara-board: {self.path}: {problem}\n")
            self.assertIn("Usage:", self.output("--help"))


@unittest.skipIf(shutil.which("localedef") is None or not os.path.exists("/usr/share/i18n/locales"),
                 "the sources of the locales are not installed")
class FirstDay(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        # Locales of which LC_TIME is real; the whole ones take seconds to compile.
        rest = "".join(f'{category}\ncopy "POSIX"\nEND {category}\n' for category in (
            "LC_CTYPE", "LC_COLLATE", "LC_MONETARY", "LC_NUMERIC", "LC_MESSAGES"))
        for name in ("en_US", "de_DE", "ar_EG"):
            source = os.path.join(cls.folder.name, name)
            with open(source, "w", encoding="ascii") as file:
                file.write(f'{rest}LC_TIME\ncopy "{name}"\nEND LC_TIME\n')
            subprocess.run(["localedef", "-c", "-i", source, "-f", "UTF-8", f"{source}.UTF-8"],
                           stderr=subprocess.DEVNULL)

    def first_day(self, *arguments, **variables):
        options = read_json(*arguments, LC_ALL=None, LOCPATH=self.folder.name, **variables)["options"]
        return options["startDayOfWeek"]

    def test_follows_the_locale(self):
        for name, day in (("en_US", 0), ("de_DE", 1), ("ar_EG", 6)):
            self.assertEqual(self.first_day(LANG=f"{name}.UTF-8"), day)
        self.assertEqual(self.first_day(LANG="en_US.UTF-8", LC_TIME="de_DE.UTF-8"), 1)

    def test_the_option_wins(self):
        self.assertEqual(self.first_day("--first-day", "wed", LANG="en_US.UTF-8"), 3)
        self.assertEqual(self.first_day("-M", LANG="en_US.UTF-8"), 1)

    def test_monday_without_a_wish(self):
        for name in ("C", "C.UTF-8", "POSIX", "xx_XX.UTF-8"):
            self.assertEqual(self.first_day(LANG=name), 1)


class Completion(unittest.TestCase):
    def bash(self, *words):
        """What bash offers for the last of the words."""
        count = len(words)
        script = (output("--print-completion", "bash") +
                  f'COMP_WORDS=("$@"); COMP_CWORD={count}; _almara_board\n'
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        result = subprocess.run(["bash", "-c", script, "almara-board", "almara-board", *words],
                                stdout=subprocess.PIPE, check=True, encoding="utf-8")
        return result.stdout.split()

    def test_bash(self):
        self.assertEqual(self.bash("--mo"), ["--mode"])
        self.assertEqual(self.bash("--mode", ""), ["rolling", "tail", "month", "strip"])
        self.assertEqual(self.bash("--first-day", "s"), ["sun", "sat"])
        self.assertEqual(self.bash("--mode", "=", "s"), ["strip"])
        self.assertEqual(self.bash("--lunar", "="), ["almanac", "engine"])
        self.assertEqual(self.bash("--rows", ""), [])
        self.assertEqual(self.bash("ju"), ["june", "july"])

    def test_every_option_of_the_help_is_known_to_every_shell(self):
        names = {name for line in re.findall(r"^  (-\S+)", output("--help"), re.MULTILINE)
                 for name in line.split(",")}
        self.assertGreater(len(names), 30)
        bash, zsh, fish = (output("--print-completion", shell) for shell in ("bash", "zsh", "fish"))
        for name in names:
            self.assertIn(name, self.bash(name))
            self.assertIn(f"\n  '{name}[", zsh)
            self.assertRegex(fish, f" -l {name[2:]} " if name[1] == "-" else f" -s {name[1:]} ")
        self.assertNotIn("print-completion", bash + zsh + fish)

    def test_the_scripts_are_what_the_shells_can_read(self):
        for shell in ("bash", "zsh", "fish"):
            if shutil.which(shell):
                subprocess.run([shell, "-n"], input=output("--print-completion", shell), check=True,
                               encoding="utf-8")
        self.assertEqual(run("--print-completion", "tcsh").stderr,
                         "almara-board: --print-completion: expected one of bash, zsh, fish, "
                         "not 'tcsh'\n")


if __name__ == "__main__":
    cases.main()
