// SPDX-License-Identifier: MIT
#include "yardstick/solar_festivals.h"

#include "date/calendar_platform_api.h"

namespace yardstick {
namespace {

bool IsWeekday(CCalendarSolarDate date, int n, int weekday) {
  const int day = DayByWeekNumberOfMonth(date.year, date.month, n, weekday);
  return day != -1 && day == date.day;
}

int CodeOf(CCalendarSolarDate date) {  // month and day, 0 for a day that no rule names
  const bool named = date.month >= 1 && date.month <= 12 && date.day >= 1 && date.day <= 31;
  return named ? date.month * 100 + date.day : 0;
}

EFestivalSolar Chs(CCalendarSolarDate date) {
  switch (CodeOf(date)) {
    case 214:
      return eFestivalSolarValentinesDay;
    case 312:
      return eFestivalSolarArborDay;
    case 315:
      return eFestivalSolarConsumerRightsDay;
    case 504:
      return eFestivalSolarYouthDay;
    case 601:
      return eFestivalSolarChildrensDay;
    case 701:
      return eFestivalSolarPartyFoundationDay;
    case 801:
      return eFestivalSolarArmyDay;
    case 910:
      return eFestivalSolarTeachersDay;
    case 1001:
      return eFestivalSolarNationalDayChs;
    default:
      break;
  }
  if (date.month == 5 && IsWeekday(date, 2, eCalendarWeekSunday)) {
    return eFestivalSolarMothersDay;
  }
  if (date.month == 6 && IsWeekday(date, 3, eCalendarWeekSunday)) {
    return eFestivalSolarFathersDay;
  }
  return eFestivalSolarNone;
}

EFestivalSolar Cht(CCalendarSolarDate date) {
  switch (CodeOf(date)) {
    case 214:
      return eFestivalSolarValentinesDay;
    case 228:
      return eFestivalSolarPeaceMemorialDay;
    case 312:
      return eFestivalSolarArborDay;
    case 404:
      return eFestivalSolarChildrensDay;
    case 808:
      return eFestivalSolarFathersDay;
    case 928:
      return eFestivalSolarTeachersDay;
    case 1010:
      return eFestivalSolarNationalDayCht;
    default:
      break;
  }
  return date.month == 5 && IsWeekday(date, 2, eCalendarWeekSunday) ? eFestivalSolarMothersDay
                                                                    : eFestivalSolarNone;
}

EFestivalSolar Kor(CCalendarSolarDate date) {
  switch (CodeOf(date)) {
    case 301:
      return eFestivalSolarIndependenceMovementDay;
    case 405:
      return eFestivalSolarArborDay;
    case 505:
      return eFestivalSolarChildrensDayKor;
    case 606:
      return eFestivalSolarMemorialDayKor;
    case 815:
      return eFestivalSolarLiberationDayKor;
    case 1003:
      return eFestivalSolarNationalFoundationDayKor;
    case 1009:
      return eFestivalSolarHangulDay;
    case 1225:
      return eFestivalSolarChristmasKor;
    default:
      return eFestivalSolarNone;
  }
}

struct MonthDay {
  int month;
  int day;
};

MonthDay Easter(int year) {
  const int a = year % 19;
  const int b = year / 100;
  const int cy = year % 100;
  const int d = b / 4;
  const int e = b % 4;
  const int f = (b + 8) / 25;
  const int g = (b - f + 1) / 3;
  const int h = (19 * a + b - d - g + 15) % 30;
  const int l = (32 + 2 * e + 2 * (cy / 4) - h - cy % 4) % 7;
  const int m = (a + 11 * h + 22 * l) / 451;
  const int p = h + l - 7 * m + 114;
  return {p / 31, p % 31 + 1};
}

// The Friday at or before a date; {0, 0} if the system cannot convert it.
MonthDay FridayBefore(int year, MonthDay date) {
  for (int offset = 0; offset > -7; --offset) {
    const CCalendarSolarDate earlier =
        CalendarPlatformApi::GetNewDateByOffsetDays({year, date.month, date.day, 0}, offset);
    if (earlier.dayOfWeek == eCalendarWeekFriday) {
      return {earlier.month, earlier.day};
    }
  }
  return {0, 0};
}

EFestivalSolar Usa(CCalendarSolarDate date) {
  static int easterYear = -1;
  static MonthDay easter{-1, -1};
  static MonthDay goodFriday{-1, -1};

  const bool known = easterYear == date.year && easter.month != -1 && easter.day != -1;
  const MonthDay shownEaster = known ? easter : MonthDay{0, 0};
  if (!known) {
    easterYear = date.year;
    easter = Easter(date.year);
  }
  MonthDay shownGoodFriday{goodFriday.month, date.year};
  if (goodFriday.day != date.year || goodFriday.month == -1 || goodFriday.day == -1) {
    goodFriday = FridayBefore(date.year, easter);
    shownGoodFriday = goodFriday;
  }

  if (date.month == 7 && date.day == 4) {
    return eFestivalSolarIndependenceDay;
  }
  switch (date.month) {
    case 1:
      return IsWeekday(date, 3, eCalendarWeekMonday) ? eFestivalSolarMartinLutherKingDay
                                                     : eFestivalSolarNone;
    case 6:
      return IsWeekday(date, 1, eCalendarWeekSunday) ? eFestivalSolarChildrensDay
                                                     : eFestivalSolarNone;
    case 9:
      return IsWeekday(date, 1, eCalendarWeekMonday) ? eFestivalSolarLaborDayUsa
                                                     : eFestivalSolarNone;
    default:
      break;
  }
  if (date.month == shownEaster.month && date.day == shownEaster.day) {
    return eFestivalSolarEaster;
  }
  if (date.month == shownGoodFriday.month && date.day == shownGoodFriday.day) {
    return eFestivalSolarGoodFriday;
  }
  return eFestivalSolarNone;
}

EFestivalSolar Jpn(CCalendarSolarDate date) {
  switch (date.month) {
    case 1:
      if (date.day == 1) {
        return eFestivalSolarGanjitsu;
      }
      return IsWeekday(date, 2, eCalendarWeekMonday) ? eFestivalSolarComingOfAgeDay
                                                     : eFestivalSolarNone;
    case 7:
      return IsWeekday(date, 3, eCalendarWeekMonday) ? eFestivalSolarMarineDay : eFestivalSolarNone;
    case 9:
      return IsWeekday(date, 3, eCalendarWeekMonday) ? eFestivalSolarRespectForTheAgedDay
                                                     : eFestivalSolarNone;
    case 10:
      return IsWeekday(date, 2, eCalendarWeekMonday) ? eFestivalSolarSportsDay : eFestivalSolarNone;
    default:
      break;
  }
  switch (CodeOf(date)) {
    case 211:
      return eFestivalSolarFoundationDayJpn;
    case 303:
      return eFestivalSolarHinamatsuri;
    case 429:
      return eFestivalSolarShowaDay;
    case 503:
      return eFestivalSolarConstitutionDayJpn;
    case 504:
      return eFestivalSolarGreeneryDay;
    case 505:
      return eFestivalSolarChildrensDayJpn;
    case 1103:
      return eFestivalSolarCultureDay;
    case 1123:
      return eFestivalSolarLabourThanksgivingDay;
    case 1223:
      return eFestivalSolarEmperorsBirthday;
    default:
      return eFestivalSolarNone;
  }
}

EFestivalSolar Vit(CCalendarSolarDate date) {
  switch (CodeOf(date)) {
    case 101:
      return eFestivalSolarNewYearsDay;
    case 430:
      return eFestivalSolarReunificationDay;
    case 519:
      return eFestivalSolarHoChiMinhsBirthday;
    case 601:
      return eFestivalSolarChildrensDay;
    case 902:
      return eFestivalSolarNationalDayVit;
    default:
      return eFestivalSolarNone;
  }
}

EFestivalSolar ChildrensDayOn(bool isTheDay) {
  return isTheDay ? eFestivalSolarChildrensDay : eFestivalSolarNone;
}

EFestivalSolar OfRegion(ELanguage language, CCalendarSolarDate date) {
  switch (language) {
    case eLanguageChs:
      return Chs(date);
    case eLanguageKor:
      return Kor(date);
    case eLanguageUsa:
      return Usa(date);
    case eLanguageCht:
      return Cht(date);
    case eLanguageRus:
      return ChildrensDayOn(CodeOf(date) == 601);
    case eLanguageDeu:
      return ChildrensDayOn(CodeOf(date) == 601 || CodeOf(date) == 920);
    case eLanguageJpn:
      return Jpn(date);
    case eLanguageEng:
      return ChildrensDayOn(CodeOf(date) == 714);
    case eLanguageVit:
      return Vit(date);
    case eLanguageTha:
      return ChildrensDayOn(date.month == 1 && IsWeekday(date, 2, eCalendarWeekSaturday));
    default:
      return eFestivalSolarNone;
  }
}

EFestivalSolar Common(CCalendarSolarDate date) {
  if (date.month == 11 && IsWeekday(date, 4, eCalendarWeekThursday)) {
    return eFestivalSolarThanksgiving;
  }
  switch (CodeOf(date)) {
    case 101:
      return eFestivalSolarNewYearsDay;
    case 308:
      return eFestivalSolarWomensDay;
    case 401:
      return eFestivalSolarAprilFoolsDay;
    case 407:
      return eFestivalSolarHealthDay;
    case 422:
      return eFestivalSolarEarthDay;
    case 501:
      return eFestivalSolarLabourDay;
    case 531:
      return eFestivalSolarNoTobaccoDay;
    case 1031:
      return eFestivalSolarHalloween;
    case 1224:
      return eFestivalSolarChristmasEve;
    case 1225:
      return eFestivalSolarChristmasDay;
    case 1231:
      return eFestivalSolarNewYearsEve;
    default:
      return eFestivalSolarNone;
  }
}

}  // namespace

int DayByWeekNumberOfMonth(int year, int month, int n, int weekday) {
  if (year < 1900 || year > 2099 || month < 1 || month > 12) {
    return -1;
  }
  const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  const int length = month == 2 && leap ? 29 : lengths[month - 1];
  int count = 0;
  for (int offset = 0; offset <= length; ++offset) {
    const CCalendarSolarDate date =
        CalendarPlatformApi::GetNewDateByOffsetDays({year, month, 1, 0}, offset);
    const bool converted = date.year != 0 || date.month != 0 || date.day != 0;
    if (converted && date.dayOfWeek == weekday && ++count == n) {
      return date.day;
    }
  }
  return -1;
}

EFestivalSolar SolarFestival(ELanguage language, CCalendarSolarDate date) {
  const EFestivalSolar own = OfRegion(language, date);
  return own != eFestivalSolarNone ? own : Common(date);
}

}  // namespace yardstick
