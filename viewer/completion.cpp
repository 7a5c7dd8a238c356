// SPDX-License-Identifier: MIT
#include "completion.h"

namespace almara::viewer {
namespace {

std::string Joined(const std::vector<std::string>& texts, const std::string& separator) {
  std::string joined;
  for (const std::string& text : texts) {
    joined += (joined.empty() ? "" : separator) + text;
  }
  return joined;
}

// The text with a backslash before each of the characters.
std::string Escaped(const std::string& text, const std::string& characters) {
  std::string escaped;
  for (const char c : text) {
    if (characters.find(c) != std::string::npos) {
      escaped += '\\';
    }
    escaped += c;
  }
  return escaped;
}

// A word of the shell: within apostrophes, an apostrophe itself as '\''.
std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) {
    quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  }
  return quoted + "'";
}

std::string BashScript(const std::vector<OptionEntry>& options,
                       const std::vector<std::string>& arguments) {
  std::string cases;
  std::vector<std::string> names;
  for (const OptionEntry& option : options) {
    names.insert(names.end(), option.names.begin(), option.names.end());
    if (!option.placeholder.empty()) {
      cases += "    " + Joined(option.names, " | ") +
               ") words=" + Quoted(Joined(option.words, " ")) + " ;;\n";
    }
  }
  return "# Completion of almara-board for bash.\n"
         "_almara_board() {\n"
         "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words\n"
         "  if [[ $current == '=' ]]; then\n"
         "    current=''\n"
         "  elif [[ $previous == '=' ]]; then\n"
         "    previous=${COMP_WORDS[COMP_CWORD - 2]}\n"
         "  fi\n"
         "  case $previous in\n" +
         cases + "    *) words=" + Quoted(Joined(names, " ") + " " + Joined(arguments, " ")) +
         " ;;\n"
         "  esac\n"
         "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
         "}\n"
         "complete -F _almara_board almara-board\n";
}

std::string ZshOption(const OptionEntry& option) {
  std::string rest = "[" + Escaped(option.help, "[]\\") + "]";
  if (!option.placeholder.empty()) {
    rest += ":" + Escaped(option.placeholder, ":") + ":(" + Joined(option.words, " ") + ")";
  }
  std::string lines;
  for (const std::string& name : option.names) {
    lines.append("  ").append(Quoted(name + rest)).append(" \\\n");
  }
  return lines;
}

std::string ZshScript(const std::vector<OptionEntry>& options,
                      const std::vector<std::string>& arguments) {
  std::string script = "#compdef almara-board\n_arguments -s \\\n";
  for (const OptionEntry& option : options) {
    script += ZshOption(option);
  }
  return script + "  " + Quoted("*:month or year:(" + Joined(arguments, " ") + ")") + "\n";
}

std::string FishScript(const std::vector<OptionEntry>& options,
                       const std::vector<std::string>& arguments) {
  const std::string complete = "complete -c almara-board";
  std::string script = "# Completion of almara-board for fish.\n" + complete + " -f -a " +
                       Quoted(Joined(arguments, " ")) + "\n";
  for (const OptionEntry& option : options) {
    script += complete;
    for (const std::string& name : option.names) {
      script += name[1] == '-' ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    if (!option.placeholder.empty()) {
      script += " -x -a " + Quoted(Joined(option.words, " "));
    }
    script += " -d '" + Escaped(option.help, "'\\") + "'\n";
  }
  return script;
}

}  // namespace

std::string CompletionScript(Shell shell, const std::vector<OptionEntry>& options,
                             const std::vector<std::string>& arguments) {
  switch (shell) {
    case Shell::kBash:
      return BashScript(options, arguments);
    case Shell::kZsh:
      return ZshScript(options, arguments);
    case Shell::kFish:
      break;
  }
  return FishScript(options, arguments);
}

}  // namespace almara::viewer
