#include "XmlReader.h"

#include <expat.h>

#include <algorithm>
#include <exception>

#include "Failure.h"

namespace tarnel::account {
namespace {

constexpr std::size_t deepest = 32;
constexpr std::size_t mostElements = 20'000;   // in one child of the root
constexpr std::size_t mostBytes = 32u << 20;   // of text, names and attributes in one child of the root
constexpr XML_Char separator = '\n';           // no namespace has one in it
constexpr std::size_t longestPart = 1u << 20;  // expat counts in int

std::pair<std::string, std::string> spaceAndName(const XML_Char* joined) {
  const std::string_view text(joined);
  const std::size_t end = text.rfind(separator);
  if (end == std::string_view::npos) return {"", std::string(text)};
  return {std::string(text.substr(0, end)), std::string(text.substr(end + 1))};
}

}  // namespace

const XmlElement* XmlElement::child(std::string_view inSpace, std::string_view withName) const {
  const auto found = std::find_if(children.begin(), children.end(),
                                  [&](const XmlElement& element) { return element.is(inSpace, withName); });
  return found == children.end() ? nullptr : &*found;
}

std::string_view XmlElement::trimmed() const {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
  return std::string_view(text).substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::string XmlElement::attribute(std::string_view withName) const {
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [&](const auto& attribute) { return attribute.first == withName; });
  return found == attributes.end() ? "" : found->second;
}

struct XmlReader::State {
  State(std::string_view inSpace, std::string_view withName, Take taker)
      : parser(XML_ParserCreateNS(nullptr, separator)), space(inSpace), root(withName), take(std::move(taker)) {
    if (!parser) throw Failure(failure::automation, "expat gives no parser.");
    XML_SetUserData(parser.get(), this);
    XML_SetElementHandler(
        parser.get(),
        [](void* self, const XML_Char* name, const XML_Char** attributes) {
          static_cast<State*>(self)->guarded([&](State& state) { state.start(name, attributes); });
        },
        [](void* self, const XML_Char*) { static_cast<State*>(self)->guarded([](State& state) { state.finish(); }); });
    XML_SetCharacterDataHandler(parser.get(), [](void* self, const XML_Char* text, int size) {
      static_cast<State*>(self)->guarded([&](State& state) { state.add({text, static_cast<std::size_t>(size)}); });
    });
    // Without a document type there are no entities to expand, and no honest answer has one.
    XML_SetStartDoctypeDeclHandler(
        parser.get(), [](void* self, const XML_Char* name, const XML_Char*, const XML_Char*, int) {
          const std::string_view type(name);
          static_cast<State*>(self)->stop(type == "html" || type == "HTML" ? XmlFault::notXml : XmlFault::tooMuch);
        });
  }

  // Nothing that is thrown may pass through expat.
  template <class Body>
  void guarded(const Body& body) {
    if (fault != XmlFault::none || thrown) return;
    try {
      body(*this);
    } catch (...) {
      thrown = std::current_exception();
      XML_StopParser(parser.get(), XML_FALSE);
    }
  }

  void stop(XmlFault why) {
    if (fault == XmlFault::none) fault = why;
    XML_StopParser(parser.get(), XML_FALSE);
  }

  bool count(std::size_t elements, std::size_t more) {
    elementCount += elements;
    bytes += more;
    if (elementCount <= mostElements && bytes <= mostBytes && open.size() < deepest) return true;
    stop(XmlFault::tooMuch);
    return false;
  }

  void start(const XML_Char* joined, const XML_Char** attributes) {
    XmlElement element;
    std::tie(element.space, element.name) = spaceAndName(joined);
    if (!begun && !element.is(space, root)) return stop(XmlFault::notXml);
    begun = true;
    std::size_t size = element.space.size() + element.name.size();
    for (; *attributes; attributes += 2) {
      const auto [attributeSpace, name] = spaceAndName(attributes[0]);
      size += name.size() + std::string_view(attributes[1]).size();
      if (attributeSpace.empty()) element.attributes.emplace_back(name, attributes[1]);
    }
    if (count(1, size)) open.push_back(std::move(element));
  }

  void add(std::string_view text) {
    if (open.size() > 1 && count(0, text.size())) open.back().text += text;
  }

  void finish() {
    XmlElement element = std::move(open.back());
    open.pop_back();
    if (open.size() > 1) {
      open.back().children.push_back(std::move(element));
    } else if (open.size() == 1) {
      elementCount = bytes = 0;
      take(std::move(element));
    }
  }

  bool parse(std::string_view part, bool last) {
    const bool good = fault == XmlFault::none && XML_Parse(parser.get(), part.data(), static_cast<int>(part.size()),
                                                           last ? XML_TRUE : XML_FALSE) == XML_STATUS_OK;
    if (thrown) std::rethrow_exception(std::exchange(thrown, nullptr));
    if (good || fault != XmlFault::none) return good;
    const XML_Error error = XML_GetErrorCode(parser.get());
    const bool ended = last && (error == XML_ERROR_NO_ELEMENTS || error == XML_ERROR_UNCLOSED_TOKEN ||
                                error == XML_ERROR_PARTIAL_CHAR || error == XML_ERROR_UNCLOSED_CDATA_SECTION);
    fault = ended ? XmlFault::cut : XmlFault::notXml;
    return false;
  }

  struct Free {
    void operator()(XML_Parser done) const { XML_ParserFree(done); }
  };
  std::unique_ptr<XML_ParserStruct, Free> parser;
  std::string space, root;
  Take take;
  std::vector<XmlElement> open;  // the root and what is open in it
  std::exception_ptr thrown;
  XmlFault fault = XmlFault::none;
  std::size_t elementCount = 0;
  std::size_t bytes = 0;
  bool begun = false;
};

XmlReader::XmlReader(std::string_view space, std::string_view root, Take take)
    : state_(std::make_unique<State>(space, root, std::move(take))) {}

XmlReader::~XmlReader() = default;

bool XmlReader::feed(std::string_view part) {
  for (; part.size() > longestPart; part.remove_prefix(longestPart))
    if (!state_->parse(part.substr(0, longestPart), false)) return false;
  return state_->parse(part, false);
}

XmlFault XmlReader::end() {
  if (state_->fault == XmlFault::none) state_->parse("", true);
  return state_->fault;
}

}  // namespace tarnel::account
