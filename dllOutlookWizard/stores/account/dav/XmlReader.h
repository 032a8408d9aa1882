#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "XmlElement.h"

namespace tarnel::account {

// How far the reading of a document has come to nothing.
enum class XmlFault {
  none,
  notXml,   // it is no XML, or has another root: a web page, for example
  cut,      // it was right as far as it went
  tooMuch,  // deeper or larger than any honest answer, or with definitions of its own (entities)
};

// Reads a document as it comes, and hands on each child of its root once that has ended, so that memory is bounded by
// the largest of them. What `take` throws comes out of `feed`.
class XmlReader {
 public:
  using Take = std::function<void(XmlElement&&)>;

  XmlReader(std::string_view space, std::string_view root, Take take);
  ~XmlReader();
  XmlReader(const XmlReader&) = delete;
  XmlReader& operator=(const XmlReader&) = delete;

  // False when the document can't be read on.
  bool feed(std::string_view part);
  // After the last part: whether all of it was there.
  XmlFault end();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarnel::account
