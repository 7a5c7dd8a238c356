// SPDX-License-Identifier: MIT
#ifndef ALMARA_BENCHMARKS_ICU_CHINESE_CALENDAR_H_
#define ALMARA_BENCHMARKS_ICU_CHINESE_CALENDAR_H_

#include <almara/almara_types.h>
#include <unicode/calendar.h>

#include <memory>

namespace almara::test {

// ICU's Chinese calendar, asked for the same fields as the engine's lunar date.
class IcuChineseCalendar {
 public:
  IcuChineseCalendar()
      : m_calendar(icu::Calendar::createInstance(icu::TimeZone::createTimeZone("Asia/Shanghai"),
                                                 icu::Locale("en@calendar=chinese"), m_status)),
        m_gregorian(icu::Calendar::createInstance(icu::TimeZone::createTimeZone("Asia/Shanghai"),
                                                  icu::Locale("en@calendar=gregorian"), m_status)) {
  }

  // Noon of a Gregorian date, which is looked up outside the measured work.
  UDate NoonOf(const CCalendarSolarDate& date) {
    m_gregorian->clear();
    m_gregorian->set(date.year, date.month - 1, date.day, 12, 0);
    return m_gregorian->getTime(m_status);
  }

  CCalendarLunarDate LunarDate(UDate noon) {
    m_calendar->setTime(noon, m_status);
    return {m_calendar->get(UCAL_EXTENDED_YEAR, m_status),
            m_calendar->get(UCAL_MONTH, m_status) + 1, m_calendar->get(UCAL_DATE, m_status), 0,
            m_calendar->get(UCAL_IS_LEAP_MONTH, m_status)};
  }

  // The instant at which a lunar date begins.
  UDate SolarDate(const CCalendarLunarDate& date) {
    m_calendar->clear();
    m_calendar->set(UCAL_EXTENDED_YEAR, date.year);
    m_calendar->set(UCAL_MONTH, date.month - 1);
    m_calendar->set(UCAL_IS_LEAP_MONTH, date.leap);
    m_calendar->set(UCAL_DATE, date.day);
    return m_calendar->getTime(m_status);
  }

 private:
  UErrorCode m_status = U_ZERO_ERROR;
  std::unique_ptr<icu::Calendar> m_calendar;
  std::unique_ptr<icu::Calendar> m_gregorian;
};

}  // namespace almara::test

#endif  // ALMARA_BENCHMARKS_ICU_CHINESE_CALENDAR_H_
