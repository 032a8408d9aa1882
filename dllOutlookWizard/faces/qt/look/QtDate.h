#pragma once

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <QTime>
#include <algorithm>

#include "Date.h"

namespace tarnel::qt {

inline QDate toQDate(Date date) {
  const CivilTime civil = date.civil();
  return {civil.year, civil.month, civil.day};
}

inline Date toDate(const QDate& date) { return Date::of(date.year(), date.month(), date.day()); }

// A minute of the day.
inline QTime toQTime(int minute) {
  const int inside = std::clamp(minute, 0, 1439);
  return {inside / 60, inside % 60};
}

// Where no country is known, dates are written month first and weeks begin on Sunday, as everywhere else.
inline bool knowsNoCountry() { return QLocale().language() == QLocale::C; }

inline Qt::DayOfWeek firstDayOfWeek() { return knowsNoCountry() ? Qt::Sunday : QLocale().firstDayOfWeek(); }

// The user's short form in digits, with the whole year.
inline QString numericDateFormat() {
  QString format = knowsNoCountry() ? QStringLiteral("MM/dd/yyyy") : QLocale().dateFormat(QLocale::ShortFormat);
  format.replace(QRegularExpression(QStringLiteral("M{3,}")), QStringLiteral("MM"));
  return format.replace(QRegularExpression(QStringLiteral("y+")), QStringLiteral("yyyy"));
}

// In the user's short form, never with seconds.
inline QString timeText(int minute) {
  const QString format = QLocale().timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
  return QLocale().toString(toQTime(minute), format);
}

}  // namespace tarnel::qt
