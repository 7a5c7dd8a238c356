# SPDX-License-Identifier: MIT
"""Reference model of the almara calendar engine.

The model is written independently of the library, in plain Python, and answers the same exported
calls with the same values and the same text on standard output.  ``engine.Engine`` is the entry
point; every other module holds one concept of the engine.
"""

from .engine import Engine

__all__ = ["Engine"]
