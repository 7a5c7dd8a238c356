// SPDX-License-Identifier: MIT
#ifndef ALMARA_API_ENGINE_H_
#define ALMARA_API_ENGINE_H_

#include <functional>
#include <type_traits>

#include "logic/calendar_logic.h"

// The one engine of the process. Created when the library is loaded and never destroyed, so that a
// host may call at any time, static destructors included.
extern CCalendarLogic* g_pCalendarLogic;

namespace almara {

// Calls a member of the engine, or does nothing while there is none.
template <typename Member, typename... Arguments>
void Tell(Member member, Arguments... arguments) {
  if (g_pCalendarLogic != nullptr) {
    std::invoke(member, *g_pCalendarLogic, arguments...);
  }
}

// The same for a member with a result, which is fallback while there is no engine.
template <typename Member, typename Fallback, typename... Arguments>
auto Ask(Member member, Fallback fallback, Arguments... arguments) {
  using Result = std::invoke_result_t<Member, CCalendarLogic&, Arguments...>;
  return g_pCalendarLogic != nullptr ? std::invoke(member, *g_pCalendarLogic, arguments...)
                                     : Result{fallback};
}

}  // namespace almara

#endif  // ALMARA_API_ENGINE_H_
