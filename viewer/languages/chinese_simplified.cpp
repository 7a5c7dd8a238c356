// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsChineseSimplified() {
  Texts texts;
  texts.language = eLanguageChs;
  texts.weekdays = {"周日", "周一", "周二", "周三", "周四", "周五", "周六"};
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
                       "七月", "八月", "九月", "十月", "冬月", "腊月"};
  texts.lunarDays = {"初一", "初二", "初三", "初四", "初五", "初六", "初七", "初八",
                     "初九", "初十", "十一", "十二", "十三", "十四", "十五", "十六",
                     "十七", "十八", "十九", "二十", "廿一", "廿二", "廿三", "廿四",
                     "廿五", "廿六", "廿七", "廿八", "廿九", "三十"};
  texts.lunarMonth = "{L}";
  texts.lunarLeapMonth = "闰{L}";
  texts.lunarDay = "{D}";
  texts.lunarMonthBrief = "{L}";
  texts.lunarLeapMonthBrief = "闰{m}";
  texts.lunarDayBrief = "{D}";
  texts.lunarDate = "{y}年{L}{D}";
  texts.lunarLeapDate = "{y}年闰{L}{D}";
  texts.lunarBirthday = "{L}{D}";
  texts.lunarLeapBirthday = "闰{L}{D}";
  texts.birthdayYears = "{c}周年";

  texts.weekHeading = "周";
  texts.week = "周数";
  texts.dayOfYear = "年内第几天";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "农历";
  texts.newMoon = "朔";
  texts.solarTerm = "节气";
  texts.festivals = "节日";
  texts.notCertain = "不确定";
  texts.byEngine = "引擎";
  texts.byAlmanac = "历书";
  texts.fromToday = "距今天";
  texts.today = "今天";
  texts.tomorrow = "明天";
  texts.yesterday = "昨天";
  texts.inDays = "{c}天后";
  texts.daysAgo = "{c}天前";

  texts.hint = "? 帮助  q 退出";
  texts.goTo = "转到 (YYYY-MM-DD)：";
  texts.notADate = "不是 1900-01-01 至 2099-12-31 之间的日期";
  texts.arrangement = "排列：{a}";
  texts.firstDay = "每周第一天：{w}";
  texts.rows = "行数：{c}";
  texts.rowsNotHere = "行数只用于 rolling 和 tail 排列";
  texts.calendarBegins = "日历从 1900 年开始";
  texts.calendarEnds = "日历到 2099 年为止";
  texts.clockOutside = "系统时间不在 1900 至 2099 年之间";
  texts.arrowKeys = "方向键";
  texts.mouse = "鼠标";
  texts.help = {
      "在日期间移动",
      "上一页、下一页",
      "本月第一天、最后一天",
      "前一年、后一年",
      "今天",
      "转到某日",
      "下一种排列：rolling、tail、month、strip",
      "增加、减少一行",
      "换每周第一天",
      "显示或隐藏周数",
      "显示或隐藏休息日",
      "显示或隐藏月份分隔",
      "点击选择日期，滚轮翻页",
      "本帮助，按任意键离开",
      "退出",
  };
  return texts;
}

}  // namespace almara::viewer
