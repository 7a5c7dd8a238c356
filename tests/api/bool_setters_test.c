/* SPDX-License-Identifier: MIT
 *
 * A foreign caller that hands over other bytes than 0 and 1 for a bool: only the lowest bit counts.
 * The functions are found by name and called as taking a byte or an int. */
#include <dlfcn.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef void (*ByteSetter)(uint8_t);
typedef void (*IntSetter)(int);
typedef void (*DayByteSetter)(int32_t, uint8_t);
typedef void (*DayIntSetter)(int32_t, int);
typedef char* (*TextGetter)(void);
typedef _Bool (*FlagGetter)(void);

static void* library;
static TextGetter getKey;
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

static void ExpectKey(const char* name, long value, const char* expected) {
  char* key = getKey();
  if (strcmp(key, expected) != 0) {
    fprintf(stderr, "%s(%ld): %s instead of %s\n", name, value, key, expected);
    ++failures;
  }
  free(key);
}

/* Calls a setter with every byte, and with ints of which the lowest byte is handed over. */
static void CheckSetter(const char* name, const char* keyOfFalse, const char* keyOfTrue) {
  static const int kInts[] = {0, 1, 2, 3, 255, 256, 257, 258, 259, -1, -2, INT32_MAX, INT32_MIN};
  ByteSetter setByte;
  IntSetter setInt;
  Find(name, &setByte);
  Find(name, &setInt);
  for (int value = 0; value <= 255; ++value) {
    setByte((uint8_t)value);
    ExpectKey(name, value, (value & 1) != 0 ? keyOfTrue : keyOfFalse);
  }
  for (size_t i = 0; i < sizeof kInts / sizeof kInts[0]; ++i) {
    setInt(kInts[i]);
    ExpectKey(name, kInts[i], (kInts[i] & 1) != 0 ? keyOfTrue : keyOfFalse);
  }
}

static void CheckBreakDays(void) {
  const char* const name = "SetBreakDayOfWeek";
  const char* const without = "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1";
  const char* const with = "1-5-7-1-1-1-0-1-1-(0-0-1-0-0-1-1)-1";
  DayByteSetter setByte;
  DayIntSetter setInt;
  Find(name, &setByte);
  Find(name, &setInt);
  for (int value = 0; value <= 255; ++value) {
    setByte(3, (uint8_t)value);
    ExpectKey(name, value, (value & 1) != 0 ? with : without);
    setInt(3, value + 512);
    ExpectKey(name, value + 512, (value & 1) != 0 ? with : without);
  }
  setByte(3, 2);
}

/* A flag that is no part of the key. */
static void CheckFlag(const char* setter, const char* getter) {
  ByteSetter setByte;
  IntSetter setInt;
  FlagGetter get;
  Find(setter, &setByte);
  Find(setter, &setInt);
  Find(getter, &get);
  for (int value = 0; value <= 511; ++value) {
    if (value <= 255) {
      setByte((uint8_t)value);
    } else {
      setInt(value);
    }
    if (get() != ((value & 1) != 0)) {
      fprintf(stderr, "%s(%d): %s is %d\n", setter, value, getter, get());
      ++failures;
    }
  }
}

int main(int argc, char** argv) {
  library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
  if (library == NULL) {
    fprintf(stderr, "usage: bool_setters_test LIBRARY\n");
    return EXIT_FAILURE;
  }
  Find("GetConfigKey", &getKey);
  CheckSetter("SetHideBreakDay", "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1",
              "1-5-7-1-1-1-1-1-1-(0-0-0-0-0-1-1)-1");
  CheckBreakDays();
  CheckSetter("SetShowMonthInterval", "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-1",
              "1-5-7-1-1-1-0-1-1-(0-0-0-0-0-1-1)-1");
  CheckSetter("SetShowBreakDayOfWeek", "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-0",
              "1-5-7-1-1-1-0-1-0-(0-0-0-0-0-1-1)-1");
  CheckFlag("SetCivilDays", "GetCivilDays");
  return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
