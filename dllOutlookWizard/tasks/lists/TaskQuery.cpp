#include "TaskQuery.h"

#include <algorithm>
#include <array>

#include "SqlText.h"

namespace tarnel {
namespace {

constexpr std::string_view selectPiece =
    "SELECT Tasks.tskDesc, Tasks.tskStatus, Tasks.tskProject, Tasks.tskProjectKey, Tasks.tskDeadline, "
    "Tasks.tskCurrent,  Tasks.tskGUIDID, Tasks.tskImp, Tasks.tskTimeScheduled, Tasks.tskHasChecklist, "
    "Tasks.tskHasNotes, Tasks.tskPossPoints, Tasks.tskHasSchedule, Tasks.tskDifficulty, Tasks.tskTimeNeeded, "
    "Tasks.tskTimeSpent,Tasks.tskOUTEntityID, Tasks.tskDoneDate, Tasks.tskLastMod, Tasks.tskCreatedDate, "
    "Tasks.tskNotes, Tasks.tskStatus, Tasks.tskCustSortTarnel, Tasks.tskCustSortCur, Tasks.tskCustSortProj from "
    "TASKS ";

struct Piece {
  std::string_view code;
  std::string_view text;
};

constexpr std::array<Piece, 4> picks{{
    {currentTasksPick, " WHERE Tasks.tskCurrent = TRUE "},
    {"T01", " WHERE Tasks.tskStatus <> 0 "},
    {"T02", " WHERE Tasks.tskHasSchedule = TRUE "},
    {"T03", " WHERE Tasks.tskTimeNeeded > 180 AND Tasks.tskImp > 2 AND Tasks.tskHasSchedule = FALSE"},
}};

constexpr std::array<Piece, 16> sorts{{
    {"D00", " ORDER BY Tasks.tskPossPoints DESC"},
    {"D10", " ORDER BY Tasks.tskPossPoints DESC"},
    {"D02", " ORDER BY Tasks.tskDesc "},
    {"D12", " ORDER BY Tasks.tskDesc "},
    {"D03", " ORDER BY Tasks.tskDeadline "},
    {"D16", " ORDER BY Tasks.tskDeadline "},
    {"D13", " ORDER BY Tasks.tskImp "},
    {"D14", " ORDER BY Tasks.tskDifficulty "},
    {"D15", " ORDER BY Tasks.tskTimeNeeded "},
    {"D30", " ORDER BY Tasks.tskPossPoints "},
    {"D31", " ORDER BY Tasks.tskPossPoints "},
    {"D32", " ORDER BY Tasks.tskDesc DESC"},
    {"D33", " ORDER BY Tasks.tskImp DESC "},
    {"D34", " ORDER BY Tasks.tskDifficulty DESC "},
    {"D35", " ORDER BY Tasks.tskTimeNeeded DESC "},
    {"D36", " ORDER BY Tasks.tskDeadline DESC "},
}};

template <std::size_t Count>
const Piece* find(const std::array<Piece, Count>& pieces, std::string_view code) {
  const auto found = std::find_if(pieces.begin(), pieces.end(), [&](const Piece& piece) { return piece.code == code; });
  return found == pieces.end() ? nullptr : &*found;
}

std::string wherePiece(std::string_view pickCode) {
  if (const Piece* pick = find(picks, pickCode)) return std::string(pick->text);
  return " WHERE Tasks.tskProjectKey = " + sqlText(pickCode);
}

// The user's own order is another one for the Current list, the whole list and each project.
std::string_view customOrder(std::string_view pickCode) {
  if (pickCode == currentTasksPick) return " ORDER BY Tasks.tskCustSortCur ";
  if (isFixedPick(pickCode)) return " ORDER BY Tasks.tskCustSortTarnel ";
  return " ORDER BY Tasks.tskCustSortProj ";
}

std::string_view orderPiece(std::string_view sortCode, std::string_view pickCode) {
  if (sortCode == "D01" || sortCode == "D11") return customOrder(pickCode);
  const Piece* sort = find(sorts, sortCode);
  return sort ? sort->text : std::string_view{};
}

}  // namespace

bool isFixedPick(std::string_view pickCode) { return find(picks, pickCode) != nullptr; }

std::string taskQuery(std::string_view sortCode, std::string_view pickCode, bool withCompleted) {
  std::string query(selectPiece);
  query += wherePiece(pickCode);
  if (!withCompleted) query += " AND tskStatus <> 0 ";
  query += orderPiece(sortCode, pickCode);
  return query;
}

}  // namespace tarnel
