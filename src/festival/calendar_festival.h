// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_
#define ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_

#include <almara/almara_types.h>

#include "festival/solar_festival_rules.h"

class CCalendarLogic;

// The owner's lunar date of a Gregorian one. The owner's room defines it, so that this one depends
// on none but the date services.
CCalendarLunarDate LunarDateFromOwner(CCalendarLogic& owner, CCalendarSolarDate date);

// The festival of a Gregorian date in a region. Every int is accepted as a date's field and as a
// language; the day of the week is not read. The rules stand in solar_festival_rules.cpp and
// lunar_festival_rules.cpp, the movable feasts in CCalendarFestivalFunction, whose one-entry memory
// the answers share.
class CCalendarFestival {
 public:
  // The owner supplies the lunar dates and outlives this object; without one (null) there are no
  // lunar festivals.
  explicit CCalendarFestival(CCalendarLogic* logic) : m_pCalendarLogic(logic) {}

  // The region's own festival, or else the one that holds in every region.
  EFestivalSolar GetFestivalBySolar(ELanguage language, CCalendarSolarDate date) const;
  EFestivalSolar _GetCommonFestivalBySolar(CCalendarSolarDate date) const;

  // The festival of the lunar date. The rules see the lunar date alone, never a leap month's.
  EFestivalLunar GetFestivalByLunar(ELanguage language, CCalendarSolarDate date) const;

  // The lunar date of a day, all zeroes without an owner.
  CCalendarLunarDate _GetLunarDate(CCalendarSolarDate date) const;

  // The festivals of one region alone.
  EFestivalSolar _GetFestivalBySolarChs(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageChs, date);
  }
  EFestivalSolar _GetFestivalBySolarKor(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageKor, date);
  }
  EFestivalSolar _GetFestivalBySolarUsa(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageUsa, date);
  }
  EFestivalSolar _GetFestivalBySolarCht(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageCht, date);
  }
  EFestivalSolar _GetFestivalBySolarRus(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageRus, date);
  }
  EFestivalSolar _GetFestivalBySolarDeu(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageDeu, date);
  }
  EFestivalSolar _GetFestivalBySolarJpn(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageJpn, date);
  }
  EFestivalSolar _GetFestivalBySolarEng(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageEng, date);
  }
  EFestivalSolar _GetFestivalBySolarVit(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageVit, date);
  }
  EFestivalSolar _GetFestivalBySolarTha(CCalendarSolarDate date) const {
    return RegionSolarFestival(eLanguageTha, date);
  }
  EFestivalLunar _GetFestivalByLunarChs(CCalendarSolarDate date) const {
    return LunarFestivalOfRegion(eLanguageChs, date);
  }
  EFestivalLunar _GetFestivalByLunarCht(CCalendarSolarDate date) const {
    return LunarFestivalOfRegion(eLanguageCht, date);
  }
  EFestivalLunar _GetFestivalByLunarKor(CCalendarSolarDate date) const {
    return LunarFestivalOfRegion(eLanguageKor, date);
  }
  EFestivalLunar _GetFestivalByLunarVit(CCalendarSolarDate date) const {
    return LunarFestivalOfRegion(eLanguageVit, date);
  }

 private:
  EFestivalLunar LunarFestivalOfRegion(ELanguage language, CCalendarSolarDate date) const;

  CCalendarLogic* m_pCalendarLogic;  // not owned
};

#endif  // ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_
