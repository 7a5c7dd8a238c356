// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsThai() {
  Texts texts;
  texts.language = eLanguageTha;
  texts.weekdays = {"อา.", "จ.", "อ.", "พ.", "พฤ.", "ศ.", "ส."};
  texts.narrowWeekdays = {"อา", "จ", "อ", "พ", "พฤ", "ศ", "ส"};
  texts.longWeekdays = {"วันอาทิตย์", "วันจันทร์", "วันอังคาร", "วันพุธ", "วันพฤหัสบดี", "วันศุกร์", "วันเสาร์"};
  texts.months = {"มกราคม",  "กุมภาพันธ์", "มีนาคม",  "เมษายน", "พฤษภาคม",  "มิถุนายน",
                  "กรกฎาคม", "สิงหาคม",  "กันยายน", "ตุลาคม",  "พฤศจิกายน", "ธันวาคม"};
  texts.monthsInDates = texts.months;
  texts.shortMonths = {"ม.ค.", "ก.พ.", "มี.ค.", "เม.ย.", "พ.ค.", "มิ.ย.",
                       "ก.ค.", "ส.ค.", "ก.ย.", "ต.ค.",  "พ.ย.", "ธ.ค."};

  texts.fullDate = "{w}ที่ {d} {M} ค.ศ. {y}";
  texts.dayOfMonth = "{d} {S}";
  texts.title = "{M} {y}";
  texts.titleMonths = "{M} - {N} {y}";
  texts.titleYears = "{M} {y} - {N} {z}";
  texts.titleMonthsBrief = "{S} - {T} {y}";
  texts.titleYearsBrief = "{m}/{y} - {n}/{z}";

  texts.lunarMonth = "เดือน {m}";
  texts.lunarLeapMonth = "อธิก {m}";
  texts.lunarDay = "จค{d}";
  texts.lunarMonthBrief = "ด.{m}";
  texts.lunarLeapMonthBrief = "อ.{m}";
  texts.lunarDayBrief = "จค{d}";
  texts.lunarDate = "วันที่ {d} เดือน {m} ปี {y}";
  texts.lunarLeapDate = "วันที่ {d} เดือน {m} (อธิกมาส) ปี {y}";
  texts.lunarBirthday = "วันที่ {d} เดือน {m}";
  texts.lunarLeapBirthday = "วันที่ {d} เดือน {m} (อธิกมาส)";
  texts.birthdayYears = "{c} ปี";

  texts.weekHeading = "สป.";
  texts.week = "สัปดาห์ที่";
  texts.dayOfYear = "วันที่ของปี";
  texts.dayOfYearValue = "{d} จาก {c}";
  texts.lunarDateLabel = "จันทรคติจีน";
  texts.newMoon = "จันทร์ดับ";
  texts.solarTerm = "ปักษ์สุริยคติ";
  texts.festivals = "วันสำคัญ";
  texts.notCertain = "ไม่แน่นอน";
  texts.byEngine = "เอนจิน";
  texts.byAlmanac = "ปฏิทินประกาศ";
  texts.fromToday = "นับจากวันนี้";
  texts.today = "วันนี้";
  texts.tomorrow = "พรุ่งนี้";
  texts.yesterday = "เมื่อวาน";
  texts.inDays = "อีก {c} วัน";
  texts.daysAgo = "{c} วันก่อน";

  texts.hint = "? วิธีใช้  q ออก";
  texts.goTo = "ไปที่ (YYYY-MM-DD): ";
  texts.notADate = "ไม่ใช่วันที่ตั้งแต่ 1900-01-01 ถึง 2099-12-31";
  texts.arrangement = "การจัดเรียง: {a}";
  texts.firstDay = "วันแรกของสัปดาห์: {w}";
  texts.rows = "จำนวนแถว: {c}";
  texts.rowsNotHere = "จำนวนแถวใช้กับ rolling และ tail เท่านั้น";
  texts.calendarBegins = "ปฏิทินเริ่มที่ปี 1900";
  texts.calendarEnds = "ปฏิทินสิ้นสุดที่ปี 2099";
  texts.clockOutside = "นาฬิกาอยู่นอกปี 1900 ถึง 2099";
  texts.arrowKeys = "ลูกศร";
  texts.mouse = "เมาส์";
  texts.help = {
      "เลื่อนระหว่างวัน",
      "หน้าก่อน หน้าถัดไป",
      "วันแรก วันสุดท้ายของเดือน",
      "ปีก่อน ปีถัดไป",
      "วันนี้",
      "ไปยังวันที่",
      "การจัดเรียงถัดไป: rolling, tail, month, strip",
      "เพิ่ม ลดหนึ่งแถว",
      "เปลี่ยนวันแรกของสัปดาห์",
      "แสดง ซ่อนเลขสัปดาห์",
      "แสดง ซ่อนวันหยุด",
      "แสดง ซ่อนแถบเดือน",
      "คลิกเลือกวัน ล้อเลื่อนเปลี่ยนหน้า",
      "วิธีใช้นี้ กดปุ่มใดก็ได้เพื่อออก",
      "ออก",
  };
  return texts;
}

}  // namespace almara::viewer
