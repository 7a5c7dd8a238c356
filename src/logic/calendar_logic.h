// SPDX-License-Identifier: MIT
#ifndef ALMARA_LOGIC_CALENDAR_LOGIC_H_
#define ALMARA_LOGIC_CALENDAR_LOGIC_H_

#include <almara/almara_types.h>

#include "board/calendar_logic_build.h"
#include "date/date_memo.h"
#include "date/kept_code.h"
#include "festival/calendar_festival.h"
#include "lunar/calendar_lunar_solar_terms.h"
#include "lunar/lunar_memo.h"

// The engine as the host sees it: options and board by inheritance, and on top of them navigation,
// queries of the built board and the annotation of dates.
//
// Each navigation rebuilds the whole board; each query reads the last build. A date that no board
// can be built for (outside 1900 to 2099) leaves its rows as they were. To be driven from one
// thread.
class CCalendarLogic : public CCalendarLogicBuild {
 public:
  CCalendarLogic();

  // Counts days by the calendar alone, or in local time, as by default. A change forgets the kept
  // answers that may depend on it: week numbers and festivals.
  bool IsCivilDays() const { return GetDayCounting() == almara::DayCounting::kCivil; }
  void SetCivilDays(bool on);

  // Fixes the time zone of lunar dates and solar terms to 8 (language 1 or 4) or 9 hours (2 or 7),
  // or, for any other, leaves it as it is, and builds today's board, which takes the machine's zone
  // where none is known. The language itself is not kept.
  void InitCalendarLogic(ELanguage language);

  // Builds today's board. Where the focus date already is today, the page direction stays.
  void Build();

  // Builds today's board as a plain build.
  void GotoToday();

  // Page by calendar month in the month arrangements, keeping the page direction; in all others by
  // the days shown, setting it.
  void GotoPreviousPage();
  void GotoNextPage();

  // The month step of the two above, on its own.
  void _GotoPreviousMonth();
  void _GotoNextMonth();

  // Builds the board of a date. Outside the whole-month arrangement a date before the first day
  // shown ends the new board, a date after the last one opens it, and one between them clears the
  // page direction. Dates are compared as they are given.
  void GotoSpecifiedDate(int year, int month, int day);

  // Whole-month arrangement: offset months from this month. All others: offset pages of as many
  // weeks as the board has rows, from today. Writes the date to the standard output if
  // IsPrintBoard().
  void GotoTodayOffsetMonth(int offset);

  int GetContentRows() const { return m_board.visible.rowCount; }
  int GetContentColumns() const { return m_board.visible.columnCount; }

  // The cell at a visible row and column, a default cell outside them.
  CCalendarItem GetContentItem(int row, int column) const;

  // The day of the week over a visible column; 0 for a column outside 0 to 6.
  int GetCalendarWeekByColumns(int column) const;

  int GetWeekNumberCount() const { return static_cast<int>(m_board.spans.size()); }

  // A span from the top, all zeroes for an index outside 0 to GetWeekNumberCount() - 1.
  tagCalendarWeekSpan GetWeekNumberItem(int index) const;

  // The focus date as it was passed, its day of week 0. All zeroes before the first build.
  CCalendarSolarDate GetContentDate() const { return m_board.content.focus; }

  CCalendarSolarDate GetToday() const;

  bool IsTodayInBoard() const { return m_board.content.todayColumn != -1; }

  // The annotation of a date (annotation_lookups.cpp). Every int is accepted and nothing is
  // checked; the day of the week does not matter. The first answer for a date, or for a language
  // and date, is kept until ForgetAnnotations(), whatever the zone becomes.
  CCalendarLunarDate ConverterLunar(CCalendarSolarDate date);
  ESolarKyureki24 Check24Sekki(CCalendarSolarDate date);
  EFestivalSolar CheckFestivalSolar(ELanguage language, CCalendarSolarDate date);
  EFestivalLunar CheckFestivalLunar(ELanguage language, CCalendarSolarDate date);

  // Forgets every kept answer, week numbers included, what the Easter rules remember, and the zone,
  // as if the library had just been loaded. Options and board stay.
  void ForgetAnnotations();

 protected:
  // State of the navigation alone; stays in force until it is set again.
  almara::PageDirection m_pageDirection = almara::PageDirection::kNone;

  // Answers by date, those of the festivals by language and date.
  almara::DateMemo<CCalendarLunarDate> m_mapLunarDateCache;
  almara::DateMemo<almara::KeptCode> m_map24SekkiCache;
  almara::DateMemo<almara::KeptCode> m_mapFestivalSolarCache;
  almara::DateMemo<almara::KeptCode> m_mapFestivalLunarCache;

  CCalendarFestival m_festival;                // asks this object for lunar dates
  CCalendarLunarSolarTerms m_lunarSolarTerms;  // Kept for code that compiles against this class.
  almara::LunarMemo m_lunarMemo;               // work that the look-ups of days share

 private:
  void _Show(const CCalendarSolarDate& date);
  void _WriteTrace(const char* prefix, const CCalendarSolarDate& date) const;
  almara::PageDirection _DirectionTo(const CCalendarSolarDate& date) const;
  bool _PagesByMonth() const;
  void _GotoMonthOffset(const CCalendarSolarDate& today, int offset);
  void _GotoPageOffset(const CCalendarSolarDate& today, int offset);
};

#endif  // ALMARA_LOGIC_CALENDAR_LOGIC_H_
