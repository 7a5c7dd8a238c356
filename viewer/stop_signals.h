// SPDX-License-Identifier: MIT
// The signals that ask the program to stop, put off until the screen is as it was found.
#ifndef ALMARA_VIEWER_STOP_SIGNALS_H_
#define ALMARA_VIEWER_STOP_SIGNALS_H_

namespace almara::viewer {

class StopSignals {
 public:
  // From now on such a signal ends the wait for a key and does nothing else.
  StopSignals();

  static bool Arrived();

  // Lets the signal that arrived, if any, do its usual work.
  static void Deliver();
};

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_STOP_SIGNALS_H_
