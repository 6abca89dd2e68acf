// The index page of exported code: a table of the modules, each linked to its page.
#pragma once

#include <string>
#include <vector>

namespace brimwork {

struct IndexEntry {
  std::string page;    // file name, beside the index page
  std::string module;  // its name
  std::string source;  // path of the file that holds it
  int lines = 0;
};

struct IndexPage {
  std::string title;
  std::vector<IndexEntry> entries;
};

/// A complete page in UTF-8.
std::string HtmlIndex(const IndexPage& page);

/// What a source file holds, by its extension in any case: "Form", "Class module" ...
std::string KindOfModule(const std::string& source);

}  // namespace brimwork
