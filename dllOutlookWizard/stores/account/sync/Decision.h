#pragma once

#include <cstddef>

namespace tarnel::account {

// What became of an item since both sides last agreed on it.
enum class Here {
  none,  // it was never here
  same,
  changed,
  removed,
  created,  // and never sent
};

enum class There {
  none,  // it was never there
  same,
  changed,
  removed,  // for certain
  created,
  unproven,  // it can't be told; not in the list, for example, but perhaps there
};

// What a synchronisation does about it.
enum class Action {
  nothing,
  take,    // their state in place of ours; the item stays the one it is
  add,     // a new item here
  update,  // our changes into their text
  create,  // a new item there
  merge,   // field by field
  removeThere,
  removeHere,
  bringBack,    // removed here, but changed there: it comes back, and the user is told
  createAgain,  // removed there, but changed here: it stays and is sent again, and the user is told
  forget,       // it is gone on both sides
};

Action decide(Here here, There there);

// What the server said when it was asked for one item by itself.
enum class Probe {
  notAsked,
  found,
  gone,     // 404, 410
  unclear,  // anything else
};

// What a synchronisation has seen of an item on the server.
struct Sighting {
  bool known = false;        // both sides have agreed on it before
  bool seenBefore = false;   // it was in a listing since it was sent or found; a new item may be listed late
  bool fullListing = false;  // the listing is of all there is, else of changes
  bool listed = false;       // the item is in it
  bool toldGone = false;     // it is in it as gone
  bool sameState = false;    // with the ETag that we know; of a listed one or one that the probe has found
  Probe probe = Probe::notAsked;
};

// A known item is removed only when the listing has it no longer, it was in one before, and the server says so again
// when asked for it alone. Servers show items within a span of time, or list what is new only after a while.
There whereabouts(const Sighting& sighting);
// Whether asking for the item alone may turn `unproven` into an answer.
bool needsProbe(const Sighting& sighting);

// Whether so many of a collection's items may go, on either side, without asking the user: at most a tenth of them or
// ten, and never all.
bool mayGo(std::size_t going, std::size_t known);

}  // namespace tarnel::account
