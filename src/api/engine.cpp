// SPDX-License-Identifier: MIT
#include "api/engine.h"

CCalendarLogic* g_pCalendarLogic = new CCalendarLogic;
