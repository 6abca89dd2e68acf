// Text of the code pages that a document names, as UTF-8.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "memory/encoding_converter.h"

namespace brimwork {

class CodePageText {
 public:
  /// The Western code page, which stands in for those that the system knows not.
  static constexpr int kWestern = 1252;

  struct Decoded {
    std::string text;       // U+FFFD for each byte that is none of the code page
    bool isCutOff = false;  // the bytes end within a character, which text does not have
  };

  Decoded Decode(int codePage, std::string_view bytes);

 private:
  std::shared_ptr<EncodingConverter> ConverterOf(int codePage);

  std::map<int, std::shared_ptr<EncodingConverter>> converters_;
};

/// The code page of a font's character set (0 Western, 128 Japanese ...); documentCodePage for a
/// set that names none.
int CodePageOfCharset(int charset, int documentCodePage);

}  // namespace brimwork
