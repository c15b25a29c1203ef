#include "host/commands/DrawingDate.h"

#include "host/db/AcDbDatabase.h"

#include <chrono>
#include <cmath>

CString commands::DrawingDate(const AcDbDatabase& database) {
  namespace chrono = std::chrono;
  constexpr double kJulianDayOf1970 = 2440588; // the record counts days from midnight
  constexpr double kLastDay = 2932896;         // of the year 9999, counted from 1970
  const double days = database.header().real("$TDUPDATE").value_or(0) - kJulianDayOf1970;
  if (!(days >= 0 && days < kLastDay)) return {};
  const auto whole = std::floor(days);
  const chrono::year_month_day date(chrono::sys_days(chrono::days(static_cast<int>(whole))));
  const int seconds = static_cast<int>((days - whole) * 86400);
  CString text;
  text.Format(L"%04d-%02d-%02dT%02d:%02d:%02dZ", static_cast<int>(date.year()),
              static_cast<int>(static_cast<unsigned>(date.month())),
              static_cast<int>(static_cast<unsigned>(date.day())), seconds / 3600, seconds / 60 % 60,
              seconds % 60);
  return text;
}
