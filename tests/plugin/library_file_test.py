#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks what the built library exports and needs.

usage: library_file_test.py LIBRARY WITH_PLUGIN
WITH_PLUGIN is 1 if the library was built with the plugin object.
"""
import sys
import unittest

import library_file

LIBRARY, WITH_PLUGIN = sys.argv[1], sys.argv[2] == "1"


class LibraryFile(unittest.TestCase):

    def test_exports_are_the_functions_of_the_headers(self):
        functions = library_file.declared_functions("almara.h")
        self.assertIn("GetContentItem", functions)
        plugin = library_file.declared_functions("almara_plugin.h")
        self.assertEqual(plugin, {"almara_plugin_get_type",
                                  "almara_plugin_register_with_registrar"})
        if WITH_PLUGIN:
            functions |= plugin
        self.assertEqual(library_file.exported_symbols(LIBRARY), functions)

    @unittest.skipIf(WITH_PLUGIN, "the plugin object is in the library")
    def test_engine_alone_needs_neither_glib_nor_the_embedding(self):
        needed = library_file.dynamic_entries(LIBRARY, "NEEDED")
        self.assertIn("libc.so.6", needed)
        self.assertFalse([name for name in needed if "glib" in name or "gobject" in name or
                          "flutter" in name])
        self.assertFalse({name for name in library_file.imported_symbols(LIBRARY)
                          if name.startswith(("g_", "fl_"))})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
