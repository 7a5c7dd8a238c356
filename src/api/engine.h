// SPDX-License-Identifier: MIT
#ifndef ALMARA_API_ENGINE_H_
#define ALMARA_API_ENGINE_H_

#include "logic/calendar_logic.h"

// The one engine of the process. Created when the library is loaded and never destroyed, so that a
// host may call at any time, static destructors included.
extern CCalendarLogic* g_pCalendarLogic;

#endif  // ALMARA_API_ENGINE_H_
