// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsChineseTraditional() {
  Texts texts;
  texts.language = eLanguageCht;
  texts.weekdays = {"週日", "週一", "週二", "週三", "週四", "週五", "週六"};
  texts.narrowWeekdays = {"日", "一", "二", "三", "四", "五", "六"};
  texts.longWeekdays = {"星期日", "星期一", "星期二", "星期三", "星期四", "星期五", "星期六"};
  // In digits, since 二月 on a board is the lunar month.
  texts.months = {"1月", "2月", "3月", "4月",  "5月",  "6月",
                  "7月", "8月", "9月", "10月", "11月", "12月"};
  texts.monthsInDates = {"一月", "二月", "三月", "四月", "五月",   "六月",
                         "七月", "八月", "九月", "十月", "十一月", "十二月"};
  texts.shortMonths = texts.months;

  texts.fullDate = "{y}年{m}月{d}日 {w}";
  texts.dayOfMonth = "{S}{d}日";
  texts.title = "{y}年{m}月";
  texts.titleMonths = "{y}年{m}月 - {n}月";
  texts.titleYears = "{y}年{m}月 - {z}年{n}月";
  texts.titleMonthsBrief = "{y}年{m}月 - {n}月";
  texts.titleYearsBrief = "{y}/{m} - {z}/{n}";

  texts.lunarMonths = {"正月", "二月", "三月", "四月", "五月", "六月",
                       "七月", "八月", "九月", "十月", "冬月", "臘月"};
  texts.lunarDays = {"初一", "初二", "初三", "初四", "初五", "初六", "初七", "初八",
                     "初九", "初十", "十一", "十二", "十三", "十四", "十五", "十六",
                     "十七", "十八", "十九", "二十", "廿一", "廿二", "廿三", "廿四",
                     "廿五", "廿六", "廿七", "廿八", "廿九", "三十"};
  texts.lunarMonth = "{L}";
  texts.lunarLeapMonth = "閏{L}";
  texts.lunarDay = "{D}";
  texts.lunarMonthBrief = "{L}";
  texts.lunarLeapMonthBrief = "閏{m}";
  texts.lunarDayBrief = "{D}";
  texts.lunarDate = "{y}年{L}{D}";
  texts.lunarLeapDate = "{y}年閏{L}{D}";
  texts.lunarBirthday = "{L}{D}";
  texts.lunarLeapBirthday = "閏{L}{D}";
  texts.birthdayYears = "{c}週年";

  texts.weekHeading = "週";
  texts.week = "週數";
  texts.dayOfYear = "年內第幾天";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "農曆";
  texts.newMoon = "朔";
  texts.solarTerm = "節氣";
  texts.festivals = "節日";
  texts.notCertain = "不確定";
  texts.byEngine = "引擎";
  texts.byAlmanac = "曆書";
  texts.fromToday = "距今天";
  texts.today = "今天";
  texts.tomorrow = "明天";
  texts.yesterday = "昨天";
  texts.inDays = "{c}天後";
  texts.daysAgo = "{c}天前";

  texts.hint = "? 說明  q 離開";
  texts.goTo = "前往 (YYYY-MM-DD)：";
  texts.notADate = "不是 1900-01-01 至 2099-12-31 之間的日期";
  texts.arrangement = "排列：{a}";
  texts.firstDay = "每週第一天：{w}";
  texts.rows = "列數：{c}";
  texts.rowsNotHere = "列數只用於 rolling 和 tail 排列";
  texts.calendarBegins = "日曆從 1900 年開始";
  texts.calendarEnds = "日曆到 2099 年為止";
  texts.clockOutside = "系統時間不在 1900 至 2099 年之間";
  texts.arrowKeys = "方向鍵";
  texts.mouse = "滑鼠";
  texts.help = {
      "在日期間移動",
      "上一頁、下一頁",
      "本月第一天、最後一天",
      "前一年、後一年",
      "今天",
      "前往某日",
      "下一種排列：rolling、tail、month、strip",
      "增加、減少一列",
      "換每週第一天",
      "顯示或隱藏週數",
      "顯示或隱藏休息日",
      "顯示或隱藏月份分隔",
      "點擊選擇日期，滾輪翻頁",
      "本說明，按任意鍵離開",
      "離開",
  };
  return texts;
}

}  // namespace almara::viewer
