// SPDX-License-Identifier: MIT
#include "navigator.h"

#include <algorithm>
#include <cstdlib>

#include "engine.h"

namespace viewer {
namespace {

bool pagesByMonth(EDispMonth mode) {
  return mode == eDispMonthRollingTail || mode == eDispMonthWholeMonth;
}

// Whether the day would follow the shown ones: on a board of few rows a month interval can take the
// place of the day that the board was built for.
bool monthIntervalHides(const Board& board, CivilDate date) {
  const std::vector<CivilDate> days = shownDays(board);
  return !days.empty() && days.back() < date;
}

}  // namespace

Navigator::Navigator(const BoardOptions& options) : options_(options) {
  read();
  selectNearest(dateOf(board_.contentDate));
}

void Navigator::moveDays(int direction) {
  const std::vector<CivilDate> days = shownDays(board_);
  const auto at = std::find(days.begin(), days.end(), selected_);
  if (at == days.end()) {
    return;
  }
  if (direction > 0 ? at + 1 != days.end() : at != days.begin()) {
    selected_ = *(at + direction);
    return;
  }
  const CivilDate target = addDays(selected_, direction);
  if (turnPage(direction)) {
    selectNearest(target);
  }
}

void Navigator::moveWeeks(int direction) {
  const CivilDate target = addDays(selected_, 7 * direction);
  if (findDay(board_, target) != nullptr || turnPage(direction)) {
    selectNearest(target);
  }
}

bool Navigator::page(int direction) {
  const std::vector<CivilDate> before = shownDays(board_);
  if (!turnPage(direction)) {
    return false;
  }
  const std::vector<CivilDate> after = shownDays(board_);
  if (pagesByMonth(options_.mode)) {
    selectNearest(addMonths(selected_, direction));
  } else if (!before.empty() && !after.empty()) {
    selectNearest(addDays(selected_, dayNumber(after.front()) - dayNumber(before.front())));
  }
  return true;
}

void Navigator::goToToday() { goTo(dateOf(board_.today)); }

void Navigator::goTo(CivilDate date) {
  selected_ = date;
  rebuild();
}

void Navigator::nextMode() {
  options_.mode = options_.mode == eDispMonthDayStrip ? eDispMonthRollingWeeks : options_.mode + 1;
  rebuild();
}

void Navigator::toggleBreakDays() {
  options_.hideBreakDays = !options_.hideBreakDays;
  rebuild();
}

void Navigator::toggleIntervals() {
  options_.monthIntervals = !options_.monthIntervals;
  rebuild();
}

bool Navigator::refreshToday() {
  if (readToday() == dateOf(board_.today)) {
    return false;
  }
  rebuild();
  return true;
}

void Navigator::read() { board_ = readBoard(); }

void Navigator::rebuild() {
  applyOptions(options_);
  showDate(options_, selected_);
  read();
  if (findDay(board_, selected_) == nullptr && monthIntervalHides(board_, selected_)) {
    turnPage(1);
  }
  selectNearest(selected_);
}

bool Navigator::turnPage(int direction) {
  const std::vector<CivilDate> before = shownDays(board_);
  takeStep({direction > 0 ? Step::Kind::Next : Step::Kind::Previous, 0});
  read();
  return shownDays(board_) != before;
}

void Navigator::selectNearest(CivilDate date) {
  const std::vector<CivilDate> days = shownDays(board_);
  const auto nearest = std::min_element(days.begin(), days.end(), [date](CivilDate a, CivilDate b) {
    return std::abs(dayNumber(a) - dayNumber(date)) < std::abs(dayNumber(b) - dayNumber(date));
  });
  selected_ = nearest == days.end() ? date : *nearest;
}

}  // namespace viewer
