// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_
#define ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_

#include <almara/almara_types.h>

#include <cstddef>

#include "festival/solar_festival_rules.h"

// The festival of a Gregorian date in a region. Every int is accepted as a date's field and as a
// language; the day of the week is not read. The rules stand in solar_festival_rules.cpp and
// lunar_festival_rules.cpp, the movable feasts in CCalendarFestivalFunction, whose one-entry memory
// the answers share.
class CCalendarFestival {
 public:
  // Without an owner there are no lunar festivals.
  explicit CCalendarFestival(std::nullptr_t) {}

  // The owner gives the lunar dates, by a member ConverterLunar(date), and outlives this object. It
  // may be null.
  template <typename Owner>
  explicit CCalendarFestival(Owner* owner)
      : m_owner(owner), m_lunarDateOf([](void* context, CCalendarSolarDate date) {
          return static_cast<Owner*>(context)->ConverterLunar(date);
        }) {}

  // The region's own festival, or else the one that holds in every region.
  EFestivalSolar GetFestivalBySolar(ELanguage language, CCalendarSolarDate date) const;

  // The festival of the lunar date. The owner is asked for the lunar date of the day, and for that
  // of the next day only where it decides.
  EFestivalLunar GetFestivalByLunar(ELanguage language, CCalendarSolarDate date) const;

  // Interface that nothing in the library calls, kept for code written against this class: the
  // lunar date of a day (all zeroes without an owner), the festivals of every region, and those of
  // one region alone.
  CCalendarLunarDate _GetLunarDate(CCalendarSolarDate date) const;

  EFestivalSolar _GetCommonFestivalBySolar(CCalendarSolarDate date) const {
    return almara::CommonSolarFestival(date);
  }
  EFestivalSolar _GetFestivalBySolarChs(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageChs, date);
  }
  EFestivalSolar _GetFestivalBySolarKor(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageKor, date);
  }
  EFestivalSolar _GetFestivalBySolarUsa(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageUsa, date);
  }
  EFestivalSolar _GetFestivalBySolarCht(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageCht, date);
  }
  EFestivalSolar _GetFestivalBySolarRus(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageRus, date);
  }
  EFestivalSolar _GetFestivalBySolarDeu(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageDeu, date);
  }
  EFestivalSolar _GetFestivalBySolarJpn(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageJpn, date);
  }
  EFestivalSolar _GetFestivalBySolarEng(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageEng, date);
  }
  EFestivalSolar _GetFestivalBySolarVit(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageVit, date);
  }
  EFestivalSolar _GetFestivalBySolarTha(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageTha, date);
  }
  EFestivalLunar _GetFestivalByLunarChs(CCalendarSolarDate date) const {
    return GetFestivalByLunar(eLanguageChs, date);
  }
  EFestivalLunar _GetFestivalByLunarCht(CCalendarSolarDate date) const {
    return GetFestivalByLunar(eLanguageCht, date);
  }
  EFestivalLunar _GetFestivalByLunarKor(CCalendarSolarDate date) const {
    return GetFestivalByLunar(eLanguageKor, date);
  }
  EFestivalLunar _GetFestivalByLunarVit(CCalendarSolarDate date) const {
    return GetFestivalByLunar(eLanguageVit, date);
  }

 private:
  void* m_owner = nullptr;  // not owned
  CCalendarLunarDate (*m_lunarDateOf)(void* owner, CCalendarSolarDate date) = nullptr;
};

#endif  // ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_
