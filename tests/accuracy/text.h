// SPDX-License-Identifier: MIT
#ifndef ALMARA_TESTS_ACCURACY_TEXT_H_
#define ALMARA_TESTS_ACCURACY_TEXT_H_

#include <iosfwd>
#include <string>
#include <vector>

#include "accuracy/lunar_date.h"

namespace almara_accuracy {

std::string DateText(int day);              // 2033-08-25
std::string SpanText(int first, int last);  // 2033-08-25 to 2033-12-21
std::string ClockText(double moment);       // 2089-09-04 23:59:12; seconds cut
std::string ZoneText(Zone zone);            // UTC+8
std::string LunarText(const LunarDate& d);  // 2033, leap month 7, day 1
std::string NumberText(double value, int decimals);

// A table of the report, in Markdown. The name stands in a comment above it, so that a document
// which shows the table can be compared with the report.
class Table {
 public:
  using Row = std::vector<std::string>;

  Table(std::string name, std::string title, Row headings);
  void Add(Row row);
  void Print(std::ostream& out) const;

 private:
  void PrintRow(std::ostream& out, const Row& row, char fill) const;
  std::size_t Width(std::size_t column) const;

  std::string m_name;
  std::string m_title;
  std::vector<Row> m_rows;  // the headings first
};

}  // namespace almara_accuracy

#endif  // ALMARA_TESTS_ACCURACY_TEXT_H_
