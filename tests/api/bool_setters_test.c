/* SPDX-License-Identifier: MIT
 *
 * A foreign caller that hands over other bytes than 0 and 1 for a bool: only the lowest bit counts.
 * The functions are found by name and called as taking an int, of which the lowest byte arrives. */
#include <dlfcn.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void* library;
static int failures = 0;

/* A function by its name. ISO C has no cast from a data pointer to a function pointer. */
static void Find(const char* name, void* function) {
  void* address = dlsym(library, name);
  if (address == NULL) {
    fprintf(stderr, "%s\n", dlerror());
    exit(EXIT_FAILURE);
  }
  memcpy(function, &address, sizeof address);
}

/* Calls a setter. The answer is in the key, at its place, or, for a place below 0, is given by
 * GetCivilDays(). */
static void CheckSetter(const char* name, int place) {
  void (*set)(int);
  void (*setOfDay)(int32_t, int);
  char* (*getKey)(void);
  _Bool (*getCivilDays)(void);
  Find(name, &set);
  Find(name, &setOfDay);
  Find("GetConfigKey", &getKey);
  Find("GetCivilDays", &getCivilDays);
  for (int value = -258; value <= 515; ++value) {
    if (strcmp(name, "SetBreakDayOfWeek") == 0) {
      setOfDay(3, value);
    } else {
      set(value);
    }
    char* key = getKey();
    const int answer = place < 0 ? getCivilDays() : key[place] == '1';
    if (answer != (value & 1)) {
      fprintf(stderr, "%s(%d): %s\n", name, value, key);
      ++failures;
    }
    free(key);
  }
}

int main(int argc, char** argv) {
  library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
  if (library == NULL) {
    fprintf(stderr, "usage: bool_setters_test LIBRARY\n");
    return EXIT_FAILURE;
  }
  /* "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1" */
  CheckSetter("SetHideBreakDay", 12);
  CheckSetter("SetShowMonthInterval", 16);
  CheckSetter("SetBreakDayOfWeek", 23);
  CheckSetter("SetShowBreakDayOfWeek", 34);
  CheckSetter("SetCivilDays", -1);
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
