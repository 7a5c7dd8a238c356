// SPDX-License-Identifier: MIT
// Completion of the command line by the shells.
#ifndef ALMARA_VIEWER_COMPLETION_H_
#define ALMARA_VIEWER_COMPLETION_H_

#include <string>
#include <vector>

namespace almara::viewer {

// An option as a shell needs to know it.
struct OptionEntry {
  std::vector<std::string> names;  // "-w", "--week-numbers"
  std::string help;
  std::string placeholder;         // of the value; empty for a flag
  std::vector<std::string> words;  // the values to offer, if they are known
};

enum class Shell { kBash, kZsh, kFish };

// The script that the shell reads. `arguments` are the words that may stand without an option.
std::string CompletionScript(Shell shell, const std::vector<OptionEntry>& options,
                             const std::vector<std::string>& arguments);

}  // namespace almara::viewer

#endif  // ALMARA_VIEWER_COMPLETION_H_
