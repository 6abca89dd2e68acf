// Text and file names as they stand in a web page of ours.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

/// Text for an element or a quoted attribute. Bytes that are no UTF-8, and characters that a page
/// cannot hold, become U+FFFD.
std::string HtmlText(std::string_view text);

/// A file name as a relative address: every byte but unreserved ASCII characters is
/// percent-encoded.
std::string PercentEncoded(std::string_view fileName);

}  // namespace brimwork
