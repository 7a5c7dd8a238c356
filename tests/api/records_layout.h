/* SPDX-License-Identifier: MIT
 *
 * The layout of the records that cross the interface, checked by the compiler of whoever includes
 * this, in C and in C++. */
#ifndef ALMARA_TESTS_API_RECORDS_LAYOUT_H_
#define ALMARA_TESTS_API_RECORDS_LAYOUT_H_

#include <almara/almara_types.h>
#include <stddef.h>

#ifdef __cplusplus
#include <type_traits>
#define LAYOUT_CHECK(name, condition) static_assert(condition, #name)
#define LAYOUT_ALIGNMENT(type) alignof(type)
#else
#define LAYOUT_CHECK(name, condition) \
  typedef char layout_check_##name[(condition) ? 1 : -1] __attribute__((unused))
#define LAYOUT_ALIGNMENT(type) \
  offsetof(                    \
      struct {                 \
        char first;            \
        type aligned;          \
      },                       \
      aligned)
#endif

#define LAYOUT_FIELD(type, field, offset)                                 \
  LAYOUT_CHECK(type##_##field##_offset, offsetof(type, field) == offset); \
  LAYOUT_CHECK(type##_##field##_size, sizeof(((type*)0)->field) == 4)

#define LAYOUT_RECORD(type, size)                  \
  LAYOUT_CHECK(type##_size, sizeof(type) == size); \
  LAYOUT_CHECK(type##_alignment, LAYOUT_ALIGNMENT(type) == 4)

LAYOUT_RECORD(CCalendarSolarDate, 16);
LAYOUT_FIELD(CCalendarSolarDate, year, 0);
LAYOUT_FIELD(CCalendarSolarDate, month, 4);
LAYOUT_FIELD(CCalendarSolarDate, day, 8);
LAYOUT_FIELD(CCalendarSolarDate, dayOfWeek, 12);

LAYOUT_RECORD(CCalendarLunarDate, 20);
LAYOUT_FIELD(CCalendarLunarDate, year, 0);
LAYOUT_FIELD(CCalendarLunarDate, month, 4);
LAYOUT_FIELD(CCalendarLunarDate, day, 8);
LAYOUT_FIELD(CCalendarLunarDate, reserved, 12);
LAYOUT_FIELD(CCalendarLunarDate, leap, 16);

LAYOUT_RECORD(tagCalendarCell, 32);
LAYOUT_FIELD(tagCalendarCell, year, 0);
LAYOUT_FIELD(tagCalendarCell, month, 4);
LAYOUT_FIELD(tagCalendarCell, day, 8);
LAYOUT_FIELD(tagCalendarCell, dayOfWeek, 12);
LAYOUT_FIELD(tagCalendarCell, weekNumber, 16);
LAYOUT_FIELD(tagCalendarCell, row, 20);
LAYOUT_FIELD(tagCalendarCell, column, 24);
LAYOUT_FIELD(tagCalendarCell, type, 28);

LAYOUT_RECORD(tagWeekNumberSpan, 12);
LAYOUT_FIELD(tagWeekNumberSpan, weekNumber, 0);
LAYOUT_FIELD(tagWeekNumberSpan, secondWeekNumber, 4);
LAYOUT_FIELD(tagWeekNumberSpan, rows, 8);

/* The choices are plain ints of 32 bits, so that any value can be passed. */
LAYOUT_CHECK(ECalendarWeek_size, sizeof(ECalendarWeek) == 4);
LAYOUT_CHECK(ECalendarItem_size, sizeof(ECalendarItem) == 4);
LAYOUT_CHECK(EDispMonth_size, sizeof(EDispMonth) == 4);
LAYOUT_CHECK(EWeekNumberCalc_size, sizeof(EWeekNumberCalc) == 4);
LAYOUT_CHECK(ELanguage_size, sizeof(ELanguage) == 4);

#ifdef __cplusplus
template <typename Record>
constexpr bool kIsPlainRecord = std::is_standard_layout<Record>::value&&
    std::is_trivially_copyable<Record>::value&& std::is_trivial<Record>::value;
static_assert(kIsPlainRecord<CCalendarSolarDate>, "CCalendarSolarDate");
static_assert(kIsPlainRecord<CCalendarLunarDate>, "CCalendarLunarDate");
static_assert(kIsPlainRecord<tagCalendarCell>, "tagCalendarCell");
static_assert(kIsPlainRecord<tagWeekNumberSpan>, "tagWeekNumberSpan");
#endif

#endif /* ALMARA_TESTS_API_RECORDS_LAYOUT_H_ */
