#include "Schema.h"

#include "ItemColumns.h"

namespace tarnel::mailbox::schema {

// Kind 1 in the indexes is an appointment: tasks have no times.
std::string creation() {
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
)sql" + itemColumnDefinitions() +
         R"sql(  complete INTEGER GENERATED ALWAYS AS (status = 2) VIRTUAL);
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
