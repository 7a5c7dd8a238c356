# SPDX-License-Identifier: MIT
"""What the tests of built libraries read from headers and from the files themselves."""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts" / "lib"))
import interface  # noqa: E402

# What the plugin may ask of the embedding.
EMBEDDING_FUNCTIONS = {
    "fl_method_call_get_name", "fl_method_call_respond", "fl_method_channel_new",
    "fl_method_channel_set_method_call_handler", "fl_method_not_implemented_response_new",
    "fl_method_success_response_new", "fl_plugin_registrar_get_messenger",
    "fl_standard_method_codec_new", "fl_value_new_string", "fl_value_unref"}


# What a library with the plugin object exports.
FUNCTIONS = set(interface.read(*interface.ENGINE_HEADERS, *interface.PLUGIN_HEADERS).functions)


def _output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def _symbols(library, *options):
    lines = _output("nm", "-D", "--format=posix", *options, str(library)).splitlines()
    return {line.split()[0].split("@")[0] for line in lines}


def exported_symbols(library):
    return _symbols(library, "--defined-only")


def imported_symbols(library):
    return _symbols(library, "--undefined-only")


def dynamic_entries(library, tag):
    """The texts of a kind of entry (SONAME, NEEDED, RUNPATH) in the dynamic section."""
    return re.findall(rf"\({tag}\)[^\[]*\[(.*?)\]", _output("readelf", "-d", "-W", str(library)))


def kernel_version():
    return _output("uname", "-v").strip()
