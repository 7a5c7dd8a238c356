// SPDX-License-Identifier: MIT
#ifndef ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_
#define ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_

#include <almara/almara_types.h>

#include <cstddef>

#include "date/day_counting.h"
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

  // Days from one to another are counted as the caller says.

  // The region's own festival, or else the one that holds in every region.
  EFestivalSolar GetFestivalBySolar(ELanguage language, CCalendarSolarDate date,
                                    almara::DayCounting counting = kLocalTime) const;

  // The festival of the lunar date. The owner is asked for the lunar date of the day, and for that
  // of the next day only where it decides.
  EFestivalLunar GetFestivalByLunar(ELanguage language, CCalendarSolarDate date,
                                    almara::DayCounting counting = kLocalTime) const;

  // Kept for code that compiles against this class.

  // The lunar date of a day; all zeroes without an owner.
  CCalendarLunarDate _GetLunarDate(CCalendarSolarDate date) const;

  // The festivals of every region, and those of one region alone.
  EFestivalSolar _GetCommonFestivalBySolar(CCalendarSolarDate date) const {
    return almara::CommonSolarFestival(date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarChs(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageChs, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarKor(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageKor, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarUsa(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageUsa, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarCht(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageCht, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarRus(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageRus, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarDeu(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageDeu, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarJpn(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageJpn, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarEng(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageEng, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarVit(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageVit, date, kLocalTime);
  }
  EFestivalSolar _GetFestivalBySolarTha(CCalendarSolarDate date) const {
    return almara::RegionSolarFestival(eLanguageTha, date, kLocalTime);
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
  static constexpr almara::DayCounting kLocalTime = almara::DayCounting::kLocalTime;

  void* m_owner = nullptr;  // not owned
  CCalendarLunarDate (*m_lunarDateOf)(void* owner, CCalendarSolarDate date) = nullptr;
};

#endif  // ALMARA_FESTIVAL_CALENDAR_FESTIVAL_H_
