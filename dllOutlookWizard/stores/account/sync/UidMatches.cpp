#include "UidMatches.h"

#include <algorithm>
#include <map>
#include <set>

namespace tarnel::account {
namespace {

std::set<std::string> hrefsOf(const std::vector<UidSighting>& sightings) {
  std::set<std::string> hrefs;
  for (const UidSighting& sighting : sightings) hrefs.insert(sighting.href);
  return hrefs;
}

std::map<std::string, std::vector<const UidSighting*>> byUid(const std::vector<UidSighting>& sightings) {
  std::map<std::string, std::vector<const UidSighting*>> groups;
  for (const UidSighting& sighting : sightings)
    if (!sighting.uid.empty()) groups[sighting.uid].push_back(&sighting);
  return groups;
}

}  // namespace

UidMatches matchByUid(const std::vector<UidSighting>& known, const std::vector<UidSighting>& listed) {
  const std::set<std::string> knownHrefs = hrefsOf(known), listedHrefs = hrefsOf(listed);
  const auto knownByUid = byUid(known);
  UidMatches matches;
  for (auto& [uid, there] : byUid(listed)) {
    // Of two that were changed at the same time, the one that is known stays.
    auto ordered = there;
    std::sort(ordered.begin(), ordered.end(), [&](const UidSighting* left, const UidSighting* right) {
      if (left->modified != right->modified) return left->modified > right->modified;
      const bool leftKnown = knownHrefs.count(left->href) > 0, rightKnown = knownHrefs.count(right->href) > 0;
      return leftKnown != rightKnown ? leftKnown : left->href < right->href;
    });
    if (ordered.size() > 1) {
      UidDouble twice{uid, ordered.front()->href, {}};
      for (std::size_t i = 1; i < ordered.size(); ++i) twice.others.push_back(ordered[i]->href);
      matches.doubles.push_back(std::move(twice));
    }
    const std::string& shown = ordered.front()->href;
    const auto ours = knownByUid.find(uid);
    if (ours == knownByUid.end() || knownHrefs.count(shown) > 0) continue;
    for (const UidSighting* old : ours->second)
      if (listedHrefs.count(old->href) == 0) {
        matches.renamed.emplace_back(old->href, shown);
        break;
      }
  }
  return matches;
}

}  // namespace tarnel::account
