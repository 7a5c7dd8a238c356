/* SPDX-License-Identifier: MIT
 *
 * A foreign caller that hands over other bytes than 0 and 1 for a bool: only the lowest bit counts.
 * The functions are found by name and called as taking a byte or an int. */
#include <dlfcn.h>
#include <stdbool.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef void (*byte_setter)(uint8_t);
typedef void (*int_setter)(int);
typedef void (*day_byte_setter)(int32_t, uint8_t);
typedef void (*day_int_setter)(int32_t, int);
typedef char* (*text_getter)(void);

static void* library;
static text_getter get_key;
static int failures = 0;

/* A function by its name. ISO C has no cast from a data pointer to a function pointer. */
static void find(const char* name, void* function) {
  void* address = dlsym(library, name);
  if (address == NULL) {
    fprintf(stderr, "%s\n", dlerror());
    exit(EXIT_FAILURE);
  }
  memcpy(function, &address, sizeof address);
}

static void expect_key(const char* name, long value, const char* expected) {
  char* key = get_key();
  if (strcmp(key, expected) != 0) {
    fprintf(stderr, "%s(%ld): %s instead of %s\n", name, value, key, expected);
    ++failures;
  }
  free(key);
}

/* Calls a setter with every byte, and with ints of which the lowest byte is handed over. */
static void check_setter(const char* name, const char* key_of_false, const char* key_of_true) {
  static const int ints[] = {0, 1, 2, 3, 255, 256, 257, 258, 259, -1, -2, INT32_MAX, INT32_MIN};
  byte_setter set_byte;
  int_setter set_int;
  size_t i;
  int value;
  find(name, &set_byte);
  find(name, &set_int);
  for (value = 0; value <= 255; ++value) {
    set_byte((uint8_t)value);
    expect_key(name, value, (value & 1) != 0 ? key_of_true : key_of_false);
  }
  for (i = 0; i < sizeof ints / sizeof ints[0]; ++i) {
    set_int(ints[i]);
    expect_key(name, ints[i], (ints[i] & 1) != 0 ? key_of_true : key_of_false);
  }
}

static void check_break_days(void) {
  const char* const name = "SetBreakDayOfWeek";
  const char* const without = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1";
  const char* const with = "1-5-7-1-1-1-0-1-1-(0-0-1-0-0-1-1)-1";
  day_byte_setter set_byte;
  day_int_setter set_int;
  int value;
  find(name, &set_byte);
  find(name, &set_int);
  for (value = 0; value <= 255; ++value) {
    set_byte(3, (uint8_t)value);
    expect_key(name, value, (value & 1) != 0 ? with : without);
    set_int(3, value + 512);
    expect_key(name, value + 512, (value & 1) != 0 ? with : without);
  }
  set_byte(3, 2);
}

int main(int argc, char** argv) {
  library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
  if (library == NULL) {
    fprintf(stderr, "usage: bool_setters_test LIBRARY\n");
    return EXIT_FAILURE;
  }
  find("GetConfigKey", &get_key);
  check_setter("SetHideBreakDay", "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1",
               "1-5-7-1-1-1-1-1-1-(0-0-0-0-0-1-1)-1");
  expect_key("SetHideBreakDay", INT32_MIN, "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
  check_break_days();
  check_setter("SetShowMonthInterval", "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-1",
               "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
  check_setter("SetShowBreakDayOfWeek", "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-0",
               "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-1");
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
