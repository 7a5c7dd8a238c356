// SPDX-License-Identifier: MIT
#include "lunar/calendar_lunar_converter.h"

#include <optional>

#include "date/calendar_platform_api.h"
#include "date/decimal_text.h"
#include "lunar/ecliptic_longitude.h"
#include "lunar/longitude_search.h"
#include "lunar/lunar_date.h"

namespace {

double Zone() { return CalendarPlatformApi::PlatformGetTimeZoneValue(); }

std::string DateOf2017(int month, int day) {
  char text[3 * almara::kMaxDecimalLength + 2];
  return {text, almara::AppendDate(text, 2017, month, day)};
}

template <typename Out>
int Write(const std::optional<almara::SunCrossing>& found, Out* out) {
  if (out == nullptr || !found.has_value()) {
    return 0;
  }
  *out = {found->time, found->longitude};
  return 1;
}

}  // namespace

CCalendarLunarConverter::CCalendarLunarConverter() {
  for (const int month : {2, 3}) {
    // MUTATE_EXCL: no other day is fixed.
    for (int day = 1; day <= 31; ++day) {
      if (const int lunarDay = almara::FixedLunarDay({2017, month, day, 0}); lunarDay != 0) {
        m_mapLunarDateCorrection[DateOf2017(month, day)] = DateOf2017(2, lunarDay);
      }
    }
  }
}

CCalendarLunarDate CCalendarLunarConverter::Converter(CCalendarSolarDate date) const {
  almara::LunarMemo nothingKept;
  return almara::LunarDateOf(date, Zone(), nothingKept);
}

double CCalendarLunarConverter::_YMDT2JD(double year, double month, double day, double hour,
                                         double minute, double second) {
  return almara::DayCount(year, month, day, hour, minute, second);
}

int CCalendarLunarConverter::_JD2YMDT(double jd, tagSolarKyurekiYMDT* out) {
  if (out == nullptr) {
    return 0;
  }
  *out = almara::DateOfDayCount(jd);
  return 1;
}

double CCalendarLunarConverter::_NORMALIZATION_ANGLE(double angle) {
  return almara::NormalizedAngle(angle);
}

double CCalendarLunarConverter::_LONGITUDE_SUN(double t) { return almara::SunLongitude(t); }

double CCalendarLunarConverter::_LONGITUDE_MOON(double t) { return almara::MoonLongitude(t); }

int CCalendarLunarConverter::_before_nibun(double jd, tagSolarKyurekiNibun* out) {
  return Write(almara::SolsticeOrEquinoxBefore(jd, Zone()), out);
}

int CCalendarLunarConverter::_calc_chu(double jd, tagSolarKyurekiChu* out) {
  return Write(almara::PrincipalTermBefore(jd, Zone()), out);
}

double CCalendarLunarConverter::_calc_saku(double jd) { return almara::NewMoonBefore(jd, Zone()); }
