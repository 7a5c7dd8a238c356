/* SPDX-License-Identifier: MIT */
int empty_library_symbol;
