// SPDX-License-Identifier: MIT
//
// Shows the month of a date (today, if none is given) with week numbers, and what that date is in
// the lunisolar calendar: a complete host of the calendar engine for Node.js.
'use strict';

const almara = require('./almara.js');

const cellTexts = {
  [almara.eCalendarItemDay]: (number) => ` ${number}`,
  [almara.eCalendarItemToday]: (number) => `[${number}]`,
  [almara.eCalendarItemBreakDay]: (number) => ` ${number}.`,
  [almara.eCalendarItemTodayBreakDay]: (number) => `[${number}].`,
};
const months = ['January', 'February', 'March', 'April', 'May', 'June', 'July', 'August',
  'September', 'October', 'November', 'December'];
const days = ['Sun', 'Mon', 'Tue', 'Wed', 'Thu', 'Fri', 'Sat'];

function range(count) {
  return [...Array(count).keys()];
}

function cellText(cell) {
  const text = cellTexts[cell.type];
  return text ? text(String(cell.day).padStart(2)) : '';
}

function boardLines(engine) {
  const columns = range(engine.GetContentColumns());
  const date = engine.GetContentDate();
  const title = `${months[date.month - 1]} ${date.year}`;
  const headings = columns.map((column) => days[engine.GetCalendarWeekByColumns(column)]);
  const lines = [
    ' '.repeat((7 + 10 * columns.length - title.length) / 2) + title,
    '   Wk  ' + headings.map((day) => ` ${day.padEnd(9)}`).join(''),
  ];
  let row = 0;
  for (const index of range(engine.GetWeekNumberCount())) {
    const span = engine.GetWeekNumberItemWithIndex(index);
    for (const end = row + span.rows; row < end; row++) {
      const cells = columns.map((column) => engine.GetContentItem(row, column));
      lines.push(`${String(span.weekNumber).padStart(5)}  ` +
        cells.map((cell) => cellText(cell).padEnd(10)).join(''));
    }
  }
  return lines;
}

function annotationLine(engine) {
  const date = engine.GetContentDate();
  const lunar = engine.ConverterLunarWithDate(date);
  const [month, day] = [date.month, date.day].map((number) => String(number).padStart(2, '0'));
  const [region, english] = [almara.eLanguageChs, almara.eLanguageEng];
  const names = [
    engine.AlmaraSolarTermName(engine.Check24SekkiWithDate(date), english),
    engine.AlmaraFestivalName(engine.CheckFestivalSolarWithLang(region, date), english),
    engine.AlmaraFestivalName(engine.CheckFestivalLunarWithLang(region, date), english),
  ];
  // A date without a term or a festival has a code that has no name: null.
  return `${date.year}-${month}-${day}: ` +
    `lunar ${lunar.year}-${lunar.month}-${lunar.day}${lunar.leap ? ' in a leap month' : ''}` +
    names.filter((name) => name).map((name) => `, ${name}`).join('');
}

function main(text) {
  const date = /^(\d+)-(\d+)-(\d+)$/.exec(text);
  if (text && !date) {
    console.error('usage: board.js [YYYY-MM-DD]');
    process.exit(2);
  }
  const engine = almara.load();
  engine.SetPrintBoard(false); // the engine would write every board to descriptor 1, too
  engine.SetCivilDays(true);
  engine.SetDispMonth(almara.eDispMonthWholeMonth);
  engine.SetShowMonthInterval(false);
  engine.InitCalendarLogicDt(almara.eLanguageChs);
  if (date) {
    engine.GotoSpecifiedDate(...date.slice(1).map(Number));
  }
  const lines = [...boardLines(engine), annotationLine(engine), `options ${engine.GetConfigKey()}`];
  console.log(lines.join('\n'));
}

main(process.argv[2]);
