// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsVietnamese() {
  Texts texts;
  texts.language = eLanguageVit;
  texts.weekdays = {"CN", "T2", "T3", "T4", "T5", "T6", "T7"};
  texts.narrowWeekdays = {"CN", "T2", "T3", "T4", "T5", "T6", "T7"};
  texts.longWeekdays = {"Chủ Nhật", "Thứ Hai", "Thứ Ba", "Thứ Tư", "Thứ Năm", "Thứ Sáu", "Thứ Bảy"};
  texts.months = {"Tháng 1", "Tháng 2", "Tháng 3", "Tháng 4",  "Tháng 5",  "Tháng 6",
                  "Tháng 7", "Tháng 8", "Tháng 9", "Tháng 10", "Tháng 11", "Tháng 12"};
  texts.monthsInDates = texts.months;
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
  texts.lunarBirthday = "ngày {d} tháng {m}";
  texts.lunarLeapBirthday = "ngày {d} tháng {m} nhuận";
  texts.birthdayYears = "{c} năm";

  texts.weekHeading = "Tuần";
  texts.week = "Tuần";
  texts.dayOfYear = "Ngày trong năm";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "Âm lịch";
  texts.newMoon = "Trăng non";
  texts.solarTerm = "Tiết khí";
  texts.festivals = "Ngày lễ";
  texts.notCertain = "Chưa chắc chắn";
  texts.byEngine = "Bộ tính";
  texts.byAlmanac = "Lịch công bố";
  texts.fromToday = "So với hôm nay";
  texts.today = "hôm nay";
  texts.tomorrow = "ngày mai";
  texts.yesterday = "hôm qua";
  texts.inDays = "{c} ngày nữa";
  texts.daysAgo = "{c} ngày trước";

  texts.hint = "? trợ giúp  q thoát";
  texts.goTo = "Đến ngày (YYYY-MM-DD): ";
  texts.notADate = "không phải là ngày từ 1900-01-01 đến 2099-12-31";
  texts.arrangement = "Cách xếp: {a}";
  texts.firstDay = "Ngày đầu tuần: {w}";
  texts.rows = "Số hàng: {c}";
  texts.rowsNotHere = "Số hàng chỉ dùng cho cách xếp rolling và tail";
  texts.calendarBegins = "Lịch bắt đầu từ năm 1900";
  texts.calendarEnds = "Lịch kết thúc ở năm 2099";
  texts.clockOutside = "Đồng hồ nằm ngoài các năm 1900 đến 2099";
  texts.arrowKeys = "mũi tên";
  texts.mouse = "chuột";
  texts.help = {
      "di chuyển giữa các ngày",
      "trang trước, trang sau",
      "ngày đầu, ngày cuối tháng",
      "lùi, tiến một năm",
      "hôm nay",
      "đến một ngày",
      "cách xếp kế tiếp: rolling, tail, month, strip",
      "thêm, bớt một hàng",
      "đổi ngày đầu tuần",
      "bật, tắt số tuần",
      "bật, tắt ngày nghỉ",
      "bật, tắt dải tên tháng",
      "nhấp để chọn ngày; con lăn để lật trang",
      "trợ giúp này, phím bất kỳ để đóng",
      "thoát",
  };
  return texts;
}

}  // namespace almara::viewer
