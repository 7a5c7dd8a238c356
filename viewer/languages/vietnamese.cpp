// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsVietnamese() {
  Texts texts;
  texts.language = TextLanguage::kVietnamese;
  texts.weekdays = {"CN", "T2", "T3", "T4", "T5", "T6", "T7"};
  texts.narrowWeekdays = {"CN", "T2", "T3", "T4", "T5", "T6", "T7"};
  texts.longWeekdays = {"Chủ Nhật", "Thứ Hai", "Thứ Ba", "Thứ Tư", "Thứ Năm", "Thứ Sáu", "Thứ Bảy"};
  texts.months = {"Tháng 1", "Tháng 2", "Tháng 3", "Tháng 4",  "Tháng 5",  "Tháng 6",
                  "Tháng 7", "Tháng 8", "Tháng 9", "Tháng 10", "Tháng 11", "Tháng 12"};
  texts.shortMonths = {"Th1", "Th2", "Th3", "Th4",  "Th5",  "Th6",
                       "Th7", "Th8", "Th9", "Th10", "Th11", "Th12"};

  texts.fullDate = "{w}, {d} tháng {m} năm {y}";
  texts.dayOfMonth = "{d} {S}";
  texts.title = "{M} năm {y}";
  texts.titleMonths = "{M} - {N} năm {y}";
  texts.titleYears = "{M} năm {y} - {N} năm {z}";
  texts.titleMonthsBrief = "{S} - {T} {y}";
  texts.titleYearsBrief = "{m}/{y} - {n}/{z}";

  texts.lunarMonth = "Tháng {m}";
  texts.lunarLeapMonth = "Nhuận {m}";
  texts.lunarDay = "ÂL {d}";
  texts.lunarMonthBrief = "1/{m}";
  texts.lunarLeapMonthBrief = "1/{m}N";
  texts.lunarDayBrief = "{d}";
  texts.lunarDate = "ngày {d} tháng {m} năm {y}";
  texts.lunarLeapDate = "ngày {d} tháng {m} nhuận năm {y}";

  texts.weekHeading = "Tuần";
  texts.week = "Tuần";
  texts.dayOfYear = "Ngày trong năm";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "Âm lịch";
  texts.solarTerm = "Tiết khí";
  texts.festivals = "Ngày lễ";
  texts.fromToday = "So với hôm nay";
  texts.today = "hôm nay";
  texts.tomorrow = "ngày mai";
  texts.yesterday = "hôm qua";
  texts.inDays = "{c} ngày nữa";
  texts.daysAgo = "{c} ngày trước";
  return texts;
}

}  // namespace almara::viewer
