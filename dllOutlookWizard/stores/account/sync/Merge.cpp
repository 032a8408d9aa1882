#include "Merge.h"

#include <algorithm>

#include "ContentsPatch.h"

namespace tarnel::account {
namespace {

// The text of a part's body; empty for none.
std::string bodyOf(const ContentsPart& part) {
  const mailbox::IcsProperty* body = part.component().find(field::body);
  return body ? mailbox::unescaped(body->value) : "";
}

// Both texts, one under the other; a text that is in the other one is there already.
std::string bothBodies(const std::string& there, const std::string& here) {
  if (there.find(here) != std::string::npos) return there;
  if (here.find(there) != std::string::npos) return here;
  return there + "\r\n\r\n" + here;
}

class Merging {
 public:
  Merging(const Contents& base, const Contents& here, const Contents& there, Side later)
      : base_(base), here_(here), there_(there), later_(later), patch_(there) {}

  Merged run(const std::string& stamp) {
    std::set<std::string> keys;
    for (const Contents* contents : {&base_, &here_, &there_})
      for (const auto& [key, part] : contents->parts()) keys.insert(key);
    for (const std::string& key : keys) mergePart(key);
    if (!patch_.isEmpty()) addZones();
    merged_.text = patch_.apply(stamp);
    // What is not the server's as it was is compared as it will be read.
    const auto result = Contents::read(merged_.text);
    merged_.changesThere = !result || !result->sameAs(there_);
    merged_.changesHere = !result || !result->sameAs(here_);
    return std::move(merged_);
  }

 private:
  void mergePart(const std::string& key) {
    const ContentsPart* base = base_.part(key);
    const ContentsPart* here = here_.part(key);
    const ContentsPart* there = there_.part(key);
    if (here && there) {
      mergeFields(key, base, *here, *there);
    } else if (here) {
      const bool changed = !base || !(*here == *base);
      if (changed) patch_.add(here->component());
      if (changed && base) merged_.conflicts.push_back({key, ""});
    } else if (there && base) {
      if (*there == *base)
        patch_.remove(key);
      else
        merged_.conflicts.push_back({key, ""});
    }
  }

  void mergeFields(const std::string& key, const ContentsPart* base, const ContentsPart& here,
                   const ContentsPart& there) {
    std::set<std::string> names = here.fields();
    names.merge(there.fields());
    if (base) names.merge(base->fields());
    for (const std::string& name : names) {
      static const std::set<std::string> none;
      const auto& agreed = base ? base->values(name) : none;
      const auto& ours = here.values(name);
      const auto& theirs = there.values(name);
      if (ours == theirs || ours == agreed) continue;
      if (theirs == agreed)
        patch_.replace(key, name, here.lines(name));
      else
        settle(key, name, here, there);
    }
  }

  void settle(const std::string& key, const std::string& name, const ContentsPart& here, const ContentsPart& there) {
    const bool bodies = name == field::body && !here.values(name).empty() && !there.values(name).empty();
    if (bodies) {
      const std::string both = bothBodies(bodyOf(there), bodyOf(here));
      if (both != bodyOf(there)) patch_.replace(key, name, {"DESCRIPTION:" + mailbox::escaped(both)});
      return;
    }
    merged_.conflicts.push_back({key, name});
    if (later_ == Side::here) patch_.replace(key, name, here.lines(name));
  }

  // The zones that times from here may be in.
  void addZones() {
    for (const auto& [id, zone] : here_.zones())
      if (there_.zones().count(id) == 0) patch_.add(zone);
  }

  const Contents& base_;
  const Contents& here_;
  const Contents& there_;
  Side later_;
  ContentsPatch patch_;
  Merged merged_;
};

}  // namespace

Merged merge(const Contents& base, const Contents& here, const Contents& there, Side later, const std::string& stamp) {
  return Merging(base, here, there, later).run(stamp);
}

}  // namespace tarnel::account
