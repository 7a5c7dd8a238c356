#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Every code of the headers has a name in every language, and no other int has one."""
import ctypes
import sys
import unittest
import unicodedata
from pathlib import Path

import almara

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts/lib"))
import interface  # noqa: E402

HEADERS = interface.read(*interface.ENGINE_HEADERS)
INT32_MIN, INT32_MAX = -2**31, 2**31 - 1


def codes_of(*typedefs):
    return {each.value: each.name for typedef in typedefs for each in HEADERS.constants_of(typedef)
            if not each.name.endswith("None")}


LANGUAGES = codes_of("ELanguage")
ENGLISH = (almara.eLanguageEng, almara.eLanguageUsa)
ENGINE = almara.load()
# What is named, and by which functions, the one with brief names last.
NAMED = (
    (codes_of("ESolarKyureki24"), ENGINE.AlmaraSolarTermName, ENGINE.AlmaraSolarTermBriefName),
    (codes_of("EFestivalSolar", "EFestivalLunar"), ENGINE.AlmaraFestivalName,
     ENGINE.AlmaraFestivalBriefName),
    (LANGUAGES, ENGINE.AlmaraRegionName))


def cells(text):
    """What a terminal takes for it."""
    wide = {"W": 2, "F": 2}
    return sum(0 if unicodedata.category(character) == "Mn"
               else wide.get(unicodedata.east_asian_width(character), 1) for character in text)


class Names(unittest.TestCase):
    def test_every_code_has_a_name_in_every_language(self):
        for codes, *functions in NAMED:
            for code, constant in codes.items():
                for language in LANGUAGES:
                    for function in functions:
                        with self.subTest(constant, language=LANGUAGES[language]):
                            name = function(code, language)
                            self.assertTrue(name)
                            self.assertTrue(name.isprintable() and name == name.strip())
                            self.assertEqual(name, unicodedata.normalize("NFC", name))
                            self.assertTrue(language not in ENGLISH or name.isascii())

    def test_a_brief_name_has_two_to_nine_cells(self):
        for codes, _, *briefly in NAMED:
            for code, constant in codes.items():
                for language in LANGUAGES:
                    for function in briefly:
                        with self.subTest(constant, language=LANGUAGES[language]):
                            self.assertIn(cells(function(code, language)), range(2, 10))

    def test_a_language_has_its_own_alphabet(self):
        """An entry that a translator left in English shows by its letters."""
        alphabets = {"Chs": "CJK", "Cht": "CJK", "Kor": "HANGUL", "Jpn": ("CJK", "KATAKANA"),
                     "Rus": "CYRILLIC", "Tha": "THAI"}
        for codes, function, *_ in NAMED:
            for code, constant in codes.items():
                for region, alphabet in alphabets.items():
                    name = function(code, getattr(almara, f"eLanguage{region}"))
                    with self.subTest(constant, region=region):
                        self.assertTrue(any(unicodedata.name(letter).startswith(alphabet)
                                            for letter in name), name)

    def test_latin_languages_are_translated(self):
        """The others have letters that are not English ones; see above."""
        borrowed = {"Deu": {"Halloween", "Thanksgiving", "Labor Day", "Hinamatsuri"},
                    "Vit": {"Halloween", "Hinamatsuri"}}
        for region, words in borrowed.items():
            language = getattr(almara, f"eLanguage{region}")
            same = {function(code, language) for codes, function, *_ in NAMED for code in codes
                    if function(code, language) == function(code, almara.eLanguageEng)}
            self.assertEqual(same, words, region)

    def test_other_ints_have_none(self):
        for codes, *functions in NAMED:
            for function in functions:
                named = {code for code in range(-2, 2**15) if function(code, almara.eLanguageChs)}
                self.assertEqual(named, set(codes))
                for code in (INT32_MIN, -1000, 65536, 2**16 + 1, INT32_MAX):
                    self.assertIsNone(function(code, almara.eLanguageEng))

    def test_other_languages_are_english(self):
        for codes, *functions in NAMED:
            for function in functions:
                for code in codes:
                    english = function(code, almara.eLanguageEng)
                    for language in (INT32_MIN, -1, 0, almara.eLanguageUsa, 11, INT32_MAX):
                        self.assertEqual(function(code, language), english)

    def test_a_name_stays_where_it_is(self):
        function = ctypes.CDLL("libalmara.so.1").AlmaraFestivalName
        function.restype = ctypes.c_void_p
        pair = (almara.eFestivalLunarMidAutumn, almara.eLanguageKor)
        self.assertEqual(function(*pair), function(*pair))
        self.assertEqual(ENGINE.AlmaraFestivalName(*pair), "추석")


if __name__ == "__main__":
    unittest.main()
