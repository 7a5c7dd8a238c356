// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsJapanese() {
  Texts texts;
  texts.language = eLanguageJpn;
  texts.weekdays = {"日", "月", "火", "水", "木", "金", "土"};
  texts.narrowWeekdays = {"日", "月", "火", "水", "木", "金", "土"};
  texts.longWeekdays = {"日曜日", "月曜日", "火曜日", "水曜日", "木曜日", "金曜日", "土曜日"};
  texts.months = {"1月", "2月", "3月", "4月",  "5月",  "6月",
                  "7月", "8月", "9月", "10月", "11月", "12月"};
  texts.monthsInDates = texts.months;
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
  texts.lunarBirthday = "{m}月{d}日";
  texts.lunarLeapBirthday = "閏{m}月{d}日";
  texts.birthdayYears = "{c}周年";

  texts.weekHeading = "週";
  texts.week = "週";
  texts.dayOfYear = "年間通算日";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "旧暦";
  texts.newMoon = "朔";
  texts.solarTerm = "二十四節気";
  texts.festivals = "祝日・行事";
  texts.notCertain = "不確か";
  texts.byEngine = "エンジン";
  texts.byAlmanac = "暦書";
  texts.fromToday = "今日から";
  texts.today = "今日";
  texts.tomorrow = "明日";
  texts.yesterday = "昨日";
  texts.inDays = "{c}日後";
  texts.daysAgo = "{c}日前";

  texts.hint = "? ヘルプ  q 終了";
  texts.goTo = "移動先 (YYYY-MM-DD): ";
  texts.notADate = "1900-01-01 から 2099-12-31 までの日付ではありません";
  texts.arrangement = "配列: {a}";
  texts.firstDay = "週の始まり: {w}";
  texts.rows = "行数: {c}";
  texts.rowsNotHere = "行数は rolling と tail の配列だけで使います";
  texts.calendarBegins = "カレンダーは1900年からです";
  texts.calendarEnds = "カレンダーは2099年までです";
  texts.clockOutside = "時計が1900年から2099年の範囲にありません";
  texts.arrowKeys = "矢印";
  texts.mouse = "マウス";
  texts.help = {
      "日付を移動",
      "前、次のページ",
      "月の初日、末日",
      "前年、翌年",
      "今日",
      "日付へ移動",
      "次の配列: rolling, tail, month, strip",
      "行を増やす、減らす",
      "週の始まりを変える",
      "週番号の表示、非表示",
      "休日の表示、非表示",
      "月の区切りの表示、非表示",
      "クリックで日付を選択、ホイールでページ移動",
      "このヘルプ、どのキーでも閉じる",
      "終了",
  };
  return texts;
}

}  // namespace almara::viewer
