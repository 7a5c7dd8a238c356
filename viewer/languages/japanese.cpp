// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsJapanese() {
  Texts texts;
  texts.language = TextLanguage::kJapanese;
  texts.weekdays = {"日", "月", "火", "水", "木", "金", "土"};
  texts.narrowWeekdays = {"日", "月", "火", "水", "木", "金", "土"};
  texts.longWeekdays = {"日曜日", "月曜日", "火曜日", "水曜日", "木曜日", "金曜日", "土曜日"};
  texts.months = {"1月", "2月", "3月", "4月",  "5月",  "6月",
                  "7月", "8月", "9月", "10月", "11月", "12月"};
  texts.shortMonths = {"1月", "2月", "3月", "4月",  "5月",  "6月",
                       "7月", "8月", "9月", "10月", "11月", "12月"};

  texts.fullDate = "{y}年{m}月{d}日 {w}";
  texts.dayOfMonth = "{S}{d}日";
  texts.title = "{y}年{m}月";
  texts.titleMonths = "{y}年{m}月 - {n}月";
  texts.titleYears = "{y}年{m}月 - {z}年{n}月";
  texts.titleMonthsBrief = "{y}年{m}月 - {n}月";
  texts.titleYearsBrief = "{y}/{m} - {z}/{n}";

  texts.lunarMonth = "旧{m}月";
  texts.lunarLeapMonth = "閏{m}月";
  texts.lunarDay = "旧{d}日";
  texts.lunarMonthBrief = "{m}月";
  texts.lunarLeapMonthBrief = "閏{m}";
  texts.lunarDayBrief = "旧{d}";
  texts.lunarDate = "{y}年{m}月{d}日";
  texts.lunarLeapDate = "{y}年閏{m}月{d}日";

  texts.weekHeading = "週";
  texts.week = "週";
  texts.dayOfYear = "年間通算日";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "旧暦";
  texts.solarTerm = "二十四節気";
  texts.festivals = "祝祭日";
  texts.fromToday = "今日から";
  texts.today = "今日";
  texts.tomorrow = "明日";
  texts.yesterday = "昨日";
  texts.inDays = "{c}日後";
  texts.daysAgo = "{c}日前";
  return texts;
}

}  // namespace almara::viewer
