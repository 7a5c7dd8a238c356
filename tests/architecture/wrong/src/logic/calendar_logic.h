// SPDX-License-Identifier: MIT
#include "board/board.h"
