// SPDX-License-Identifier: MIT
//
// tables.js china|korea: prints what a package has for every day, one line each, as
// "date year month leap day term", the term as ESolarKyureki24 or -1.
"use strict";

const DAY = 86400000;

const TERMS = [
  "小寒", "大寒", "立春", "雨水", "惊蛰", "春分", "清明", "谷雨", "立夏", "小满", "芒种", "夏至",
  "小暑", "大暑", "立秋", "处暑", "白露", "秋分", "寒露", "霜降", "立冬", "小雪", "大雪", "冬至"];

function china(date) {
  const { Solar } = require("lunar-javascript");
  const lunar = Solar.fromYmd(date.getUTCFullYear(), date.getUTCMonth() + 1, date.getUTCDate())
    .getLunar();
  const month = lunar.getMonth(); // below 0 in a leap month
  return [lunar.getYear(), Math.abs(month), month < 0 ? 1 : 0, lunar.getDay(),
    TERMS.indexOf(lunar.getJieQi())];
}

function korea(date) {
  const KoreanLunarCalendar = require("korean-lunar-calendar");
  const calendar = new KoreanLunarCalendar();
  if (!calendar.setSolarDate(date.getUTCFullYear(), date.getUTCMonth() + 1, date.getUTCDate())) {
    throw new Error(`no answer for ${date.toISOString()}`);
  }
  const lunar = calendar.getLunarCalendar();
  return [lunar.year, lunar.month, lunar.intercalation ? 1 : 0, lunar.day, -1];
}

const [table, lastYear] = { china: [china, 2099], korea: [korea, 2050] }[process.argv[2]];
const lines = [];
for (let day = Date.UTC(1900, 0, 1); day <= Date.UTC(lastYear, 11, 31); day += DAY) {
  const date = new Date(day);
  lines.push([date.toISOString().slice(0, 10), ...table(date)].join(" "));
}
process.stdout.write(lines.join("\n") + "\n");
