#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace tarnel {

// Lengths in twips, as they were asked for: whoever puts them on paper sees to it that something can be read.
struct PageMargins {
  std::int32_t left = 0;
  std::int32_t right = 0;
  std::int32_t top = 0;
  std::int32_t bottom = 0;

  friend bool operator==(const PageMargins&, const PageMargins&) = default;
};

// A page that is ready to be put on paper.
struct Document {
  std::filesystem::path file;
  std::string html;                   // its contents, as bytes of the file
  std::filesystem::path imageFolder;  // relative pictures and style sheets are found here
  std::string footer;                 // a template, read by footerParts
  std::string footerFont;             // a family; empty for the output's own
  std::int32_t footerSize = 0;        // points; 0 or less for the output's own
  PageMargins margins;
  // Told while pages are made: `done` of `total`.
  std::function<void(int done, int total)> progress;
};

// Puts documents on paper: a printer, a file, a window that shows what they will look like.
class DocumentOutput {
 public:
  virtual ~DocumentOutput() = default;
  // Nothing is printed when the user thinks better of it. Failure when it can't be done.
  virtual void print(const Document& document, const std::string& jobName) = 0;
  // Returns when the user has seen it.
  virtual void preview(const Document& document) = 0;
};

}  // namespace tarnel
