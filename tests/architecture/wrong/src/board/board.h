// SPDX-License-Identifier: MIT
#include "logic/calendar_logic.h"
