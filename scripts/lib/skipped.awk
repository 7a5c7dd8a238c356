# SPDX-License-Identifier: MIT
#
# From CTest's log, "skipped: <test> (<reason>)" for each test, or part of one, that did not run.

/^[0-9]+\/[0-9]+ Testing: / { name = $0; sub(/^[0-9]+\/[0-9]+ Testing: /, "", name) }

# GoogleTest puts the reason on the line after; the Python tests and CMake write it themselves.
reason_follows { print "skipped: " name " (" $0 ")"; reason_follows = 0 }
/: Skipped$/   { reason_follows = 1 }
/^skipped: /   {
  what = substr($0, 10)
  print "skipped: " (index(what, name) == 1 ? what : name ": " what)
}
