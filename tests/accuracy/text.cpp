// SPDX-License-Identifier: MIT
#include "accuracy/text.h"

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <utility>

namespace almara_accuracy {

namespace {

template <typename... Values>
std::string Formatted(const char* format, Values... values) {
  char text[64];
  std::snprintf(text, sizeof text, format, values...);
  return text;
}

}  // namespace

std::string DateText(int day) {
  const almara_test::Civil date = CivilOf(day);
  return Formatted("%04d-%02d-%02d", date.year, date.month, date.day);
}

std::string SpanText(int first, int last) { return DateText(first) + " to " + DateText(last); }

std::string ClockText(double moment) {
  const double day = std::floor(moment);
  const int seconds = static_cast<int>((moment - day) * 86400);
  return DateText(static_cast<int>(day)) +
         Formatted(" %02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

std::string ZoneText(Zone zone) { return Formatted("UTC%+d", zone); }

std::string LunarText(const LunarDate& d) {
  return Formatted("%d, %smonth %d, day %d", d.year, d.leap != 0 ? "leap " : "", d.month, d.day);
}

std::string NumberText(double value, int decimals) { return Formatted("%.*f", decimals, value); }

Table::Table(std::string name, std::string title, Row headings)
    : m_name(std::move(name)), m_title(std::move(title)), m_rows{std::move(headings)} {}

void Table::Add(Row row) { m_rows.push_back(std::move(row)); }

std::size_t Table::Width(std::size_t column) const {
  std::size_t width = 3;
  for (const Row& row : m_rows) {
    width = std::max(width, row[column].size());
  }
  return width;
}

void Table::PrintRow(std::ostream& out, const Row& row, char fill) const {
  for (std::size_t column = 0; column < row.size(); ++column) {
    out << "| " << row[column] << std::string(Width(column) - row[column].size(), fill) << ' ';
  }
  out << "|\n";
}

void Table::Print(std::ostream& out) const {
  out << "## " << m_title << "\n\n<!-- accuracy: " << m_name << " -->\n";
  PrintRow(out, m_rows.front(), ' ');
  PrintRow(out, Row(m_rows.front().size()), '-');
  for (auto row = m_rows.begin() + 1; row != m_rows.end(); ++row) {
    PrintRow(out, *row, ' ');
  }
  out << "<!-- end -->\n\n";
}

}  // namespace almara_accuracy
