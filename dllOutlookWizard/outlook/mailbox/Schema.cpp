#include "Schema.h"

namespace tarnel::mailbox::schema {

// items: `original` is the moment, in the series' zone, at which an exception of a series would have stood;
// `seriesEnd` is where the last occurrence ends (local wall seconds), `weekdays` and `monthDays` are masks of the days
// that an occurrence can touch, so that a day's series are found without expanding the others. `extras` keeps the
// lines of an imported component that no other column stands for. Kind 1 is an appointment: tasks have no times.
const char* creation() {
  return R"sql(
CREATE TABLE store(id BLOB NOT NULL);
INSERT INTO store VALUES(randomblob(16));

CREATE TABLE folders(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE);
INSERT INTO folders VALUES(3, 'Deleted Items'), (9, 'Calendar'), (13, 'Tasks');

CREATE TABLE zones(
  id INTEGER PRIMARY KEY,
  tzid TEXT NOT NULL,
  definition TEXT NOT NULL,
  UNIQUE(tzid, definition));

CREATE TABLE items(
  id INTEGER PRIMARY KEY AUTOINCREMENT,
  folder INTEGER NOT NULL REFERENCES folders(id),
  kind INTEGER NOT NULL,
  subject TEXT NOT NULL,
  body TEXT NOT NULL,
  importance INTEGER NOT NULL,
  sensitivity INTEGER NOT NULL,
  status INTEGER NOT NULL,
  percentComplete INTEGER NOT NULL,
  dateCompleted INTEGER NOT NULL,
  dueDate INTEGER NOT NULL,
  totalWork INTEGER NOT NULL,
  actualWork INTEGER NOT NULL,
  startTime INTEGER NOT NULL,
  endTime INTEGER NOT NULL,
  location TEXT NOT NULL,
  allDay INTEGER NOT NULL,
  reminderSet INTEGER NOT NULL,
  series INTEGER REFERENCES items(id) ON DELETE CASCADE,
  original INTEGER,
  recurrence TEXT NOT NULL,
  zone INTEGER REFERENCES zones(id),
  seriesStart INTEGER NOT NULL,
  seriesEnd INTEGER NOT NULL,
  weekdays INTEGER NOT NULL,
  monthDays INTEGER NOT NULL,
  uid TEXT NOT NULL,
  created INTEGER NOT NULL,
  modified INTEGER NOT NULL,
  extras TEXT NOT NULL,
  complete INTEGER GENERATED ALWAYS AS (status = 2) VIRTUAL);
CREATE INDEX itemsByFolder ON items(folder) WHERE series IS NULL;
CREATE INDEX itemsByCompletion ON items(folder, complete) WHERE series IS NULL;
CREATE INDEX itemsByStart ON items(folder, startTime, endTime) WHERE recurrence = '' AND kind = 1;
CREATE INDEX itemsByEnd ON items(folder, endTime, startTime) WHERE recurrence = '' AND kind = 1;
CREATE INDEX itemsByLength ON items(folder, endTime - startTime) WHERE recurrence = '' AND kind = 1;
CREATE INDEX seriesByEnd ON items(folder, seriesEnd, weekdays, monthDays, startTime) WHERE recurrence <> '';
CREATE INDEX itemsByUid ON items(uid);
CREATE UNIQUE INDEX exceptionsBySeries ON items(series, original) WHERE series IS NOT NULL;

CREATE TABLE deletedOccurrences(
  series INTEGER NOT NULL REFERENCES items(id) ON DELETE CASCADE,
  original INTEGER NOT NULL,
  PRIMARY KEY(series, original)) WITHOUT ROWID;

CREATE TABLE names(id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE COLLATE NOCASE);

CREATE TABLE userProperties(
  item INTEGER NOT NULL REFERENCES items(id) ON DELETE CASCADE,
  name INTEGER NOT NULL REFERENCES names(id),
  value TEXT NOT NULL,
  PRIMARY KEY(item, name)) WITHOUT ROWID;
CREATE INDEX userPropertiesByValue ON userProperties(name, value);
)sql";
}

}  // namespace tarnel::mailbox::schema
