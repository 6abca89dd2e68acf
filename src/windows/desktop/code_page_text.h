// Text on its way into the bytes of a code page.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "environment/text_files.h"

namespace brimwork::windows {

class CodePageText {
 public:
  /// codePage: a number of the system's, CP_ACP for its own.
  explicit CodePageText(UINT codePage);

  /// Appends the bytes of text. A character that the code page has not is never written as another
  /// one that looks alike: it becomes a reference, or the call raises error 5.
  void Append(std::string_view text, UnencodableText unencodable, std::string& bytes) const;

 private:
  bool TryAppend(std::wstring_view text, std::string& bytes) const;
  void AppendEach(std::wstring_view text, UnencodableText unencodable, std::string& bytes) const;

  UINT codePage_;
  bool hasAll_;  // there is no character that it has not
};

}  // namespace brimwork::windows
