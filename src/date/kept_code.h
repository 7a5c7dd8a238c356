// SPDX-License-Identifier: MIT
#ifndef ALMARA_DATE_KEPT_CODE_H_
#define ALMARA_DATE_KEPT_CODE_H_

#include <cstdint>

namespace almara {

// The code of a solar term or festival as the engine keeps it: 16 bits, so that more of them stay
// in cache.
using KeptCode = std::int16_t;

// Whether the codes of all rules from first on to last can be kept.
template <typename Rule>
constexpr bool CanKeepCodes(const Rule* first, const Rule* last) {
  for (const Rule* rule = first; rule != last; ++rule) {
    if (rule->code != static_cast<KeptCode>(rule->code)) {
      return false;
    }
  }
  return true;
}

}  // namespace almara

#endif  // ALMARA_DATE_KEPT_CODE_H_
