// SPDX-License-Identifier: MIT
// An entry of a language's table. A table is UTF-8 and has every code once, in any order.
#ifndef ALMARA_NAMES_NAME_H_
#define ALMARA_NAMES_NAME_H_

#include <almara/almara_types.h>

#include <cstdint>
#include <string_view>

namespace almara {

struct Name {
  std::int32_t code;
  std::string_view full;
  // At most nine cells of a terminal. Left out where the full name has no more.
  std::string_view brief = {};
};

}  // namespace almara

#endif  // ALMARA_NAMES_NAME_H_
