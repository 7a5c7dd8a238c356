// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsKorean() {
  Texts texts;
  texts.language = TextLanguage::kKorean;
  texts.weekdays = {"일", "월", "화", "수", "목", "금", "토"};
  texts.narrowWeekdays = {"일", "월", "화", "수", "목", "금", "토"};
  texts.longWeekdays = {"일요일", "월요일", "화요일", "수요일", "목요일", "금요일", "토요일"};
  texts.months = {"1월", "2월", "3월", "4월",  "5월",  "6월",
                  "7월", "8월", "9월", "10월", "11월", "12월"};
  texts.shortMonths = {"1월", "2월", "3월", "4월",  "5월",  "6월",
                       "7월", "8월", "9월", "10월", "11월", "12월"};

  texts.fullDate = "{y}년 {m}월 {d}일 {w}";
  texts.dayOfMonth = "{S} {d}일";
  texts.title = "{y}년 {m}월";
  texts.titleMonths = "{y}년 {m}월 - {n}월";
  texts.titleYears = "{y}년 {m}월 - {z}년 {n}월";
  texts.titleMonthsBrief = "{y}년 {m}월 - {n}월";
  texts.titleYearsBrief = "{y}.{m} - {z}.{n}";

  texts.lunarMonth = "음 {m}월";
  texts.lunarLeapMonth = "윤 {m}월";
  texts.lunarDay = "음 {d}";
  texts.lunarMonthBrief = "{m}월";
  texts.lunarLeapMonthBrief = "윤{m}";
  texts.lunarDayBrief = "음{d}";
  texts.lunarDate = "{y}년 {m}월 {d}일";
  texts.lunarLeapDate = "{y}년 윤{m}월 {d}일";

  texts.weekHeading = "주";
  texts.week = "주";
  texts.dayOfYear = "연중 일수";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "음력";
  texts.solarTerm = "절기";
  texts.festivals = "기념일";
  texts.fromToday = "오늘부터";
  texts.today = "오늘";
  texts.tomorrow = "내일";
  texts.yesterday = "어제";
  texts.inDays = "{c}일 후";
  texts.daysAgo = "{c}일 전";
  return texts;
}

}  // namespace almara::viewer
