// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsKorean() {
  Texts texts;
  texts.language = eLanguageKor;
  texts.weekdays = {"일", "월", "화", "수", "목", "금", "토"};
  texts.narrowWeekdays = {"일", "월", "화", "수", "목", "금", "토"};
  texts.longWeekdays = {"일요일", "월요일", "화요일", "수요일", "목요일", "금요일", "토요일"};
  texts.months = {"1월", "2월", "3월", "4월",  "5월",  "6월",
                  "7월", "8월", "9월", "10월", "11월", "12월"};
  texts.monthsInDates = texts.months;
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
  texts.lunarBirthday = "{m}월 {d}일";
  texts.lunarLeapBirthday = "윤{m}월 {d}일";
  texts.birthdayYears = "{c}주년";

  texts.weekHeading = "주";
  texts.week = "주";
  texts.dayOfYear = "연중 일수";
  texts.dayOfYearValue = "{d} / {c}";
  texts.lunarDateLabel = "음력";
  texts.newMoon = "합삭";
  texts.solarTerm = "절기";
  texts.festivals = "기념일";
  texts.notCertain = "불확실";
  texts.byEngine = "엔진";
  texts.byAlmanac = "역서";
  texts.fromToday = "오늘부터";
  texts.today = "오늘";
  texts.tomorrow = "내일";
  texts.yesterday = "어제";
  texts.inDays = "{c}일 후";
  texts.daysAgo = "{c}일 전";

  texts.hint = "? 도움말  q 종료";
  texts.goTo = "이동 (YYYY-MM-DD): ";
  texts.notADate = "1900-01-01부터 2099-12-31까지의 날짜가 아닙니다";
  texts.arrangement = "배열: {a}";
  texts.firstDay = "주 시작 요일: {w}";
  texts.rows = "줄 수: {c}";
  texts.rowsNotHere = "줄 수는 rolling과 tail 배열에만 쓰입니다";
  texts.calendarBegins = "달력은 1900년부터입니다";
  texts.calendarEnds = "달력은 2099년까지입니다";
  texts.clockOutside = "시계가 1900년부터 2099년까지를 벗어났습니다";
  texts.arrowKeys = "화살표";
  texts.mouse = "마우스";
  texts.help = {
      "날짜 이동",
      "이전, 다음 쪽",
      "이달의 첫날, 마지막 날",
      "1년 전, 후",
      "오늘",
      "날짜로 이동",
      "다음 배열: rolling, tail, month, strip",
      "한 줄 늘리기, 줄이기",
      "주 시작 요일 바꾸기",
      "주 번호 켜기, 끄기",
      "쉬는 날 켜기, 끄기",
      "달 구분선 켜기, 끄기",
      "클릭으로 날짜 선택, 휠로 쪽 이동",
      "도움말, 아무 키나 누르면 닫힘",
      "종료",
  };
  return texts;
}

}  // namespace almara::viewer
