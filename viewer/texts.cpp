// SPDX-License-Identifier: MIT
#include "texts.h"

#include <cstdlib>
#include <iterator>

#include "text_layout.h"

namespace viewer {
namespace {

constexpr const char* kChineseMonthsSimplified[] = {"正月", "二月", "三月", "四月", "五月", "六月",
                                                    "七月", "八月", "九月", "十月", "冬月", "腊月"};

constexpr const char* kChineseMonthsTraditional[] = {
    "正月", "二月", "三月", "四月", "五月", "六月", "七月", "八月", "九月", "十月", "冬月", "臘月"};

constexpr const char* kChineseDays[] = {
    "初一", "初二", "初三", "初四", "初五", "初六", "初七", "初八", "初九", "初十",
    "十一", "十二", "十三", "十四", "十五", "十六", "十七", "十八", "十九", "二十",
    "廿一", "廿二", "廿三", "廿四", "廿五", "廿六", "廿七", "廿八", "廿九", "三十"};

static_assert(std::size(kChineseMonthsSimplified) == 12);
static_assert(std::size(kChineseMonthsTraditional) == 12);
static_assert(std::size(kChineseDays) == 30);

constexpr Texts kEnglish = {
    TextLanguage::English,
    {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
    {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
    {"January", "February", "March", "April", "May", "June", "July", "August", "September",
     "October", "November", "December"},
    {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"},
    // dates
    "{w}, {d} {M} {y}",
    "{S} {d}",
    "{M} {y}",
    "{M} - {N} {y}",
    "{M} {y} - {N} {z}",
    // lunar dates
    nullptr,
    nullptr,
    "Moon {m}",
    "Leap {m}",
    "L{d}",
    "day {d} of month {m}, {y}",
    "day {d} of leap month {m}, {y}",
    // labels
    "Wk",
    "Week",
    "Day of the year",
    "{d} of {c}",
    "Lunar date",
    "Solar term",
    "Festivals",
    "When",
    "today",
    "tomorrow",
    "yesterday",
    "in {c} days",
    "{c} days ago"};

constexpr Texts kChineseSimplified = {
    TextLanguage::ChineseSimplified,
    {"周日", "周一", "周二", "周三", "周四", "周五", "周六"},
    {"星期日", "星期一", "星期二", "星期三", "星期四", "星期五", "星期六"},
    {"一月", "二月", "三月", "四月", "五月", "六月", "七月", "八月", "九月", "十月", "十一月",
     "十二月"},
    {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
    // dates
    "{y}年{m}月{d}日 {w}",
    "{S}{d}日",
    "{y}年{m}月",
    "{y}年{m}月 - {n}月",
    "{y}年{m}月 - {z}年{n}月",
    // lunar dates
    kChineseMonthsSimplified,
    kChineseDays,
    "{L}",
    "闰{L}",
    "{D}",
    "{y}年{L}{D}",
    "{y}年闰{L}{D}",
    // labels
    "周",
    "周数",
    "年内第几天",
    "{d} / {c}",
    "农历",
    "节气",
    "节日",
    "距今天",
    "今天",
    "明天",
    "昨天",
    "{c}天后",
    "{c}天前"};

constexpr Texts kChineseTraditional = {
    TextLanguage::ChineseTraditional,
    {"週日", "週一", "週二", "週三", "週四", "週五", "週六"},
    {"星期日", "星期一", "星期二", "星期三", "星期四", "星期五", "星期六"},
    {"一月", "二月", "三月", "四月", "五月", "六月", "七月", "八月", "九月", "十月", "十一月",
     "十二月"},
    {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
    // dates
    "{y}年{m}月{d}日 {w}",
    "{S}{d}日",
    "{y}年{m}月",
    "{y}年{m}月 - {n}月",
    "{y}年{m}月 - {z}年{n}月",
    // lunar dates
    kChineseMonthsTraditional,
    kChineseDays,
    "{L}",
    "閏{L}",
    "{D}",
    "{y}年{L}{D}",
    "{y}年閏{L}{D}",
    // labels
    "週",
    "週數",
    "年內第幾天",
    "{d} / {c}",
    "農曆",
    "節氣",
    "節日",
    "距今天",
    "今天",
    "明天",
    "昨天",
    "{c}天後",
    "{c}天前"};

constexpr Texts kKorean = {
    TextLanguage::Korean,
    {"일", "월", "화", "수", "목", "금", "토"},
    {"일요일", "월요일", "화요일", "수요일", "목요일", "금요일", "토요일"},
    {"1월", "2월", "3월", "4월", "5월", "6월", "7월", "8월", "9월", "10월", "11월", "12월"},
    {"1월", "2월", "3월", "4월", "5월", "6월", "7월", "8월", "9월", "10월", "11월", "12월"},
    // dates
    "{y}년 {m}월 {d}일 {w}",
    "{S} {d}일",
    "{y}년 {m}월",
    "{y}년 {m}월 - {n}월",
    "{y}년 {m}월 - {z}년 {n}월",
    // lunar dates
    nullptr,
    nullptr,
    "음 {m}월",
    "윤 {m}월",
    "음 {d}",
    "{y}년 {m}월 {d}일",
    "{y}년 윤{m}월 {d}일",
    // labels
    "주",
    "주",
    "연중 일수",
    "{d} / {c}",
    "음력",
    "절기",
    "기념일",
    "오늘부터",
    "오늘",
    "내일",
    "어제",
    "{c}일 후",
    "{c}일 전"};

constexpr Texts kJapanese = {
    TextLanguage::Japanese,
    {"日", "月", "火", "水", "木", "金", "土"},
    {"日曜日", "月曜日", "火曜日", "水曜日", "木曜日", "金曜日", "土曜日"},
    {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
    {"1月", "2月", "3月", "4月", "5月", "6月", "7月", "8月", "9月", "10月", "11月", "12月"},
    // dates
    "{y}年{m}月{d}日 {w}",
    "{S}{d}日",
    "{y}年{m}月",
    "{y}年{m}月 - {n}月",
    "{y}年{m}月 - {z}年{n}月",
    // lunar dates
    nullptr,
    nullptr,
    "旧{m}月",
    "閏{m}月",
    "旧{d}日",
    "{y}年{m}月{d}日",
    "{y}年閏{m}月{d}日",
    // labels
    "週",
    "週",
    "年間通算日",
    "{d} / {c}",
    "旧暦",
    "二十四節気",
    "祝祭日",
    "今日から",
    "今日",
    "明日",
    "昨日",
    "{c}日後",
    "{c}日前"};

constexpr Texts kVietnamese = {
    TextLanguage::Vietnamese,
    {"CN", "T2", "T3", "T4", "T5", "T6", "T7"},
    {"Chủ Nhật", "Thứ Hai", "Thứ Ba", "Thứ Tư", "Thứ Năm", "Thứ Sáu", "Thứ Bảy"},
    {"Tháng 1", "Tháng 2", "Tháng 3", "Tháng 4", "Tháng 5", "Tháng 6", "Tháng 7", "Tháng 8",
     "Tháng 9", "Tháng 10", "Tháng 11", "Tháng 12"},
    {"Th1", "Th2", "Th3", "Th4", "Th5", "Th6", "Th7", "Th8", "Th9", "Th10", "Th11", "Th12"},
    // dates
    "{w}, {d} tháng {m} năm {y}",
    "{d} {S}",
    "{M} năm {y}",
    "{M} - {N} năm {y}",
    "{M} năm {y} - {N} năm {z}",
    // lunar dates
    nullptr,
    nullptr,
    "Tháng {m}",
    "Nhuận {m}",
    "ÂL {d}",
    "ngày {d} tháng {m} năm {y}",
    "ngày {d} tháng {m} nhuận năm {y}",
    // labels
    "Tuần",
    "Tuần",
    "Ngày trong năm",
    "{d} / {c}",
    "Âm lịch",
    "Tiết khí",
    "Ngày lễ",
    "So với hôm nay",
    "hôm nay",
    "ngày mai",
    "hôm qua",
    "{c} ngày nữa",
    "{c} ngày trước"};

}  // namespace

const Texts& textsFor(ELanguage region, bool utf8) {
  switch (utf8 ? textLanguageOf(region) : TextLanguage::English) {
    case TextLanguage::ChineseSimplified:
      return kChineseSimplified;
    case TextLanguage::ChineseTraditional:
      return kChineseTraditional;
    case TextLanguage::Korean:
      return kKorean;
    case TextLanguage::Japanese:
      return kJapanese;
    case TextLanguage::Vietnamese:
      return kVietnamese;
    case TextLanguage::English:
      break;
  }
  return kEnglish;
}

std::string fullDateText(const Texts& texts, CivilDate date) {
  return fillPattern(texts.fullDate, {{'y', std::to_string(date.year)},
                                      {'m', std::to_string(date.month)},
                                      {'M', texts.months[date.month - 1]},
                                      {'d', std::to_string(date.day)},
                                      {'w', texts.longWeekdays[dayOfWeek(date)]}});
}

std::string dayOfMonthText(const Texts& texts, CivilDate date) {
  const std::string day = fit(std::to_string(date.day), 2, "", Align::Right);
  return fillPattern(texts.dayOfMonth, {{'S', texts.shortMonths[date.month - 1]}, {'d', day}});
}

std::string monthsText(const Texts& texts, CivilDate first, CivilDate last) {
  const char* pattern = first.year != last.year     ? texts.titleYears
                        : first.month != last.month ? texts.titleMonths
                                                    : texts.title;
  return fillPattern(pattern, {{'y', std::to_string(first.year)},
                               {'m', std::to_string(first.month)},
                               {'M', texts.months[first.month - 1]},
                               {'n', std::to_string(last.month)},
                               {'N', texts.months[last.month - 1]},
                               {'z', std::to_string(last.year)}});
}

std::string dayOfYearText(const Texts& texts, CivilDate date) {
  return fillPattern(texts.dayOfYearValue, {{'d', std::to_string(dayOfYear(date))},
                                            {'c', std::to_string(daysInYear(date.year))}});
}

std::string fromTodayText(const Texts& texts, int days) {
  const char* pattern = days == 0    ? texts.today
                        : days == 1  ? texts.tomorrow
                        : days == -1 ? texts.yesterday
                        : days > 0   ? texts.inDays
                                     : texts.daysAgo;
  return fillPattern(pattern, {{'c', std::to_string(std::abs(days))}});
}

}  // namespace viewer
