#include "Decision.h"

#include <algorithm>

namespace tarnel::account {
namespace {

constexpr std::size_t alwaysAllowed = 10;
constexpr std::size_t oneInSo = 10;

bool isMissing(const Sighting& sighting) {
  return sighting.known && !sighting.listed && (sighting.fullListing || sighting.toldGone);
}

Action ofChanged(There there) {
  switch (there) {
    case There::same:
      return Action::update;
    case There::changed:
    case There::created:
      return Action::merge;
    case There::removed:
      return Action::createAgain;
    case There::none:
      return Action::create;
    case There::unproven:
      break;
  }
  return Action::nothing;
}

Action ofSame(There there) {
  if (there == There::changed) return Action::take;
  return there == There::removed ? Action::removeHere : Action::nothing;
}

Action ofRemoved(There there) {
  if (there == There::same) return Action::removeThere;
  if (there == There::changed || there == There::created) return Action::bringBack;
  return there == There::removed || there == There::none ? Action::forget : Action::nothing;
}

}  // namespace

Action decide(Here here, There there) {
  switch (here) {
    case Here::none:
      return there == There::created || there == There::changed ? Action::add : Action::nothing;
    case Here::same:
      return ofSame(there);
    case Here::removed:
      return ofRemoved(there);
    case Here::changed:
      return ofChanged(there);
    case Here::created:
      // What is there already under its name is our own from an earlier try, or another program's of the same item.
      return there == There::none || there == There::removed ? Action::create
             : there == There::unproven                      ? Action::nothing
                                                             : Action::merge;
  }
  return Action::nothing;
}

There whereabouts(const Sighting& sighting) {
  if (!sighting.known) return sighting.listed ? There::created : There::none;
  if (!isMissing(sighting)) return !sighting.listed || sighting.sameState ? There::same : There::changed;
  if (sighting.probe == Probe::found) return sighting.sameState ? There::same : There::changed;
  return sighting.probe == Probe::gone && sighting.seenBefore ? There::removed : There::unproven;
}

bool needsProbe(const Sighting& sighting) {
  return isMissing(sighting) && sighting.seenBefore && sighting.probe == Probe::notAsked;
}

bool mayGo(std::size_t going, std::size_t known) {
  if (going == 0) return true;
  return going < known && going <= std::max(alwaysAllowed, known / oneInSo);
}

}  // namespace tarnel::account
