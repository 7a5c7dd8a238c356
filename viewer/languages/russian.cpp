// SPDX-License-Identifier: MIT
#include "texts.h"

namespace almara::viewer {

Texts TextsRussian() {
  Texts texts;
  texts.language = eLanguageRus;
  texts.weekdays = {"Вс", "Пн", "Вт", "Ср", "Чт", "Пт", "Сб"};
  texts.narrowWeekdays = {"Вс", "Пн", "Вт", "Ср", "Чт", "Пт", "Сб"};
  texts.longWeekdays = {"воскресенье", "понедельник", "вторник", "среда",
                        "четверг",     "пятница",     "суббота"};
  texts.months = {"Январь", "Февраль", "Март",     "Апрель",  "Май",    "Июнь",
                  "Июль",   "Август",  "Сентябрь", "Октябрь", "Ноябрь", "Декабрь"};
  texts.monthsInDates = {"января", "февраля", "марта",    "апреля",  "мая",    "июня",
                         "июля",   "августа", "сентября", "октября", "ноября", "декабря"};
  texts.shortMonths = {"янв", "фев", "мар", "апр", "май", "июн",
                       "июл", "авг", "сен", "окт", "ноя", "дек"};

  texts.fullDate = "{w}, {d} {M} {y} г.";
  texts.dayOfMonth = "{d} {S}";
  texts.title = "{M} {y}";
  texts.titleMonths = "{M} - {N} {y}";
  texts.titleYears = "{M} {y} - {N} {z}";
  texts.titleMonthsBrief = "{S} - {T} {y}";
  texts.titleYearsBrief = "{S} {y} - {T} {z}";

  texts.lunarMonth = "Луна {m}";
  texts.lunarLeapMonth = "Вст. {m}";
  texts.lunarDay = "л{d}";
  texts.lunarMonthBrief = "Л{m}";
  texts.lunarLeapMonthBrief = "В{m}";
  texts.lunarDayBrief = "л{d}";
  texts.lunarDate = "{d}-й день {m}-го месяца {y}";
  texts.lunarLeapDate = "{d}-й день вставного {m}-го месяца {y}";
  texts.lunarBirthday = "{d}-й день {m}-го месяца";
  texts.lunarLeapBirthday = "{d}-й день вставного {m}-го месяца";
  texts.birthdayYears = "лет: {c}";

  texts.weekHeading = "Нед";
  texts.week = "Неделя";
  texts.dayOfYear = "День года";
  texts.dayOfYearValue = "{d} из {c}";
  texts.lunarDateLabel = "Лунная дата";
  texts.newMoon = "Новолуние";
  texts.solarTerm = "Солнечный сезон";
  texts.festivals = "Праздники";
  texts.notCertain = "Под вопросом";
  texts.byEngine = "Движок";
  texts.byAlmanac = "Альманах";
  texts.fromToday = "Когда";
  texts.today = "сегодня";
  texts.tomorrow = "завтра";
  texts.yesterday = "вчера";
  texts.inDays = "через {c} дн.";
  texts.daysAgo = "{c} дн. назад";

  texts.hint = "? справка  q выход";
  texts.goTo = "Перейти к (ГГГГ-ММ-ДД): ";
  texts.notADate = "не дата с 1900-01-01 по 2099-12-31";
  texts.arrangement = "Вид: {a}";
  texts.firstDay = "Первый день недели: {w}";
  texts.rows = "Строк: {c}";
  texts.rowsNotHere = "Число строк есть только у видов rolling и tail";
  texts.calendarBegins = "Календарь начинается с 1900 года";
  texts.calendarEnds = "Календарь кончается 2099 годом";
  texts.clockOutside = "Часы показывают год вне 1900–2099";
  texts.arrowKeys = "стрелки";
  texts.mouse = "мышь";
  texts.help = {
      "перемещение по дням",
      "предыдущая, следующая страница",
      "первый, последний день месяца",
      "на год назад, вперёд",
      "сегодня",
      "перейти к дате",
      "следующий вид: rolling, tail, month, strip",
      "на строку больше, меньше",
      "другой первый день недели",
      "номера недель вкл., выкл.",
      "выходные вкл., выкл.",
      "полосы месяцев вкл., выкл.",
      "щелчок выбирает день, колесо листает",
      "эта справка, любая клавиша закрывает",
      "выход",
  };
  return texts;
}

}  // namespace almara::viewer
