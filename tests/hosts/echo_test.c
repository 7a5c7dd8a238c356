/* SPDX-License-Identifier: MIT
 *
 * Every record by value between a C or C++ host and a library: compiled as both.
 */
#include "echo.h"

#include <stdio.h>
#include <string.h>

static int failures = 0;

static const int32_t kExtremes[] = {INT32_MIN, INT32_MAX, -1, 0, 1, 0x12345678};

/* Distinct values in all fields, an extreme one in the field `position`. */
static void Fill(int32_t* fields, int count, int position, int32_t extreme) {
  for (int index = 0; index < count; index++) {
    fields[index] = index == position ? extreme : (index + 1) * 0x01010101;
  }
}

static void Expect(int passed, const char* record, const char* what, int position) {
  if (!passed) {
    fprintf(stderr, "%s: %s, field %d\n", record, what, position);
    failures++;
  }
}

#define MAKE_3(record, f) make_##record(f[0], f[1], f[2])
#define MAKE_4(record, f) make_##record(f[0], f[1], f[2], f[3])
#define MAKE_5(record, f) make_##record(f[0], f[1], f[2], f[3], f[4])
#define MAKE_8(record, f) make_##record(f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7])

#define TEST_RECORD(record, count)                                                                \
  static void Test_##record(void) {                                                               \
    int32_t fields[count];                                                                        \
    for (int position = 0; position < count; position++) {                                        \
      for (size_t extreme = 0; extreme < sizeof kExtremes / sizeof *kExtremes; extreme++) {       \
        Fill(fields, count, position, kExtremes[extreme]);                                        \
        record made = MAKE_##count(record, fields);                                               \
        Expect(sizeof made == sizeof fields, #record, "size", position);                          \
        Expect(memcmp(&made, fields, sizeof fields) == 0, #record, "made", position);             \
        record echoed = echo_##record(INT32_MIN, made, INT32_MAX);                                \
        Expect(memcmp(&echoed, fields, sizeof fields) == 0, #record, "echoed", position);         \
        Expect(field_##record(made, position) == kExtremes[extreme], #record, "field", position); \
      }                                                                                           \
    }                                                                                             \
  }
ECHO_RECORDS(TEST_RECORD)

/* The library's own function that gives back what it was given. */
static void TestCreateSolarDate(void) {
  for (size_t extreme = 0; extreme < sizeof kExtremes / sizeof *kExtremes; extreme++) {
    int32_t fields[4];
    Fill(fields, 4, (int)extreme % 4, kExtremes[extreme]);
    CCalendarSolarDate date = CreateSolarDate(fields[0], fields[1], fields[2], fields[3]);
    Expect(memcmp(&date, fields, sizeof fields) == 0, "CCalendarSolarDate", "created",
           (int)extreme % 4);
  }
}

int main(void) {
#define RUN_TEST(record, count) Test_##record();
  ECHO_RECORDS(RUN_TEST)
  TestCreateSolarDate();
  return failures == 0 ? 0 : 1;
}
